// Which of the code that Highway compiled for several kinds of processor runs on this one. The two
// functions are those that its headers call and its shared library has; they stand here because
// loading that library measures the processor's clock for some milliseconds at each start.
#include <hwy/targets.h>

namespace {

#if HWY_ARCH_X86
bool HasSSE4()
{
    return __builtin_cpu_supports("sse4.1") && __builtin_cpu_supports("sse4.2") &&
           __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("aes");
}

bool HasAVX2()
{
    return __builtin_cpu_supports("avx") && __builtin_cpu_supports("avx2") &&
           __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
           __builtin_cpu_supports("fma") && __builtin_cpu_supports("f16c");
}

bool HasAVX3()
{
    return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
           __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw");
}

// By the instructions that each kind is compiled with; each kind has those of the one before. The
// compiler's questions ask for what the system keeps of a thread, too.
std::int64_t TargetsOfProcessor()
{
    __builtin_cpu_init();
    std::int64_t targets = HWY_SCALAR;
    if (!__builtin_cpu_supports("ssse3"))
        return targets;
    targets |= HWY_SSSE3;
    if (!HasSSE4())
        return targets;
    targets |= HWY_SSE4;
    if (!HasAVX2())
        return targets;
    targets |= HWY_AVX2;
    return HasAVX3() ? targets | HWY_AVX3 : targets;
}
#else
// What the whole program is compiled for anyway.
std::int64_t TargetsOfProcessor() { return HWY_STATIC_TARGET; }
#endif

}  // namespace

namespace hwy {

std::int64_t SupportedTargets()
{
    static const std::int64_t kTargets = TargetsOfProcessor();
    return kTargets;
}

ChosenTarget& GetChosenTarget()
{
    static ChosenTarget sChosen;
    return sChosen;
}

}  // namespace hwy
