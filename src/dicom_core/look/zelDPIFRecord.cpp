#include "dicom_core/look/zelDPIFRecord.h"

#include <cstring>

namespace {

constexpr std::size_t kLongs = kDPIFFixedSize / 4;

// Takes values of 4 and 8 bytes one behind the other.
class Unpacker {
public:
    explicit Unpacker(std::span<const std::byte> bytes) : fBytes(bytes) {}
    template <typename Value>
    bool Take(Value* value)
    {
        if (fBytes.size() < sizeof *value)
            return false;
        std::memcpy(value, fBytes.data(), sizeof *value);
        fBytes = fBytes.subspan(sizeof *value);
        return true;
    }

private:
    std::span<const std::byte> fBytes;
};

std::uint32_t Bits(std::int32_t value) { return static_cast<std::uint32_t>(value); }

}  // namespace

zelDPIFBytes PackDPIFRecord(const zelDPIFRecord& record)
{
    const zelVOIBlitterInfo& info = record.voiInfo;
    const zelDisplayVOILimits& limits = record.limits;
    const std::array<std::uint32_t, kLongs> longs = {
        Bits(info.photometric),    Bits(info.pixelExtra), Bits(info.pixelRange),
        info.pixelFormat,          Bits(info.pixelShift), Bits(record.pixelMinimum),
        Bits(record.pixelMaximum), Bits(record.unread),   Bits(record.reserved),
        limits.minWidth,           limits.maxWidth,       Bits(limits.minLevel),
        Bits(limits.maxLevel)};
    const std::array<double, 2> scale = {info.pixelFactor, info.pixelOffset};
    static_assert(sizeof longs == kDPIFFixedSize);
    zelDPIFBytes bytes;
    std::memcpy(bytes.data(), longs.data(), sizeof longs);
    std::memcpy(bytes.data() + sizeof longs, scale.data(), sizeof scale);
    return bytes;
}

QvxStatus UnpackDPIFRecord(std::span<const std::byte> bytes, zelDPIFRecord* record)
{
    if (!record || bytes.size() < kDPIFFixedSize)
        return kQvxBadArgument;
    zelDPIFRecord made;
    zelVOIBlitterInfo& info = made.voiInfo;
    zelDisplayVOILimits& limits = made.limits;
    Unpacker from(bytes);
    const bool whole = from.Take(&info.photometric) && from.Take(&info.pixelExtra) &&
                       from.Take(&info.pixelRange) && from.Take(&info.pixelFormat) &&
                       from.Take(&info.pixelShift) && from.Take(&made.pixelMinimum) &&
                       from.Take(&made.pixelMaximum) && from.Take(&made.unread) &&
                       from.Take(&made.reserved) && from.Take(&limits.minWidth) &&
                       from.Take(&limits.maxWidth) && from.Take(&limits.minLevel) &&
                       from.Take(&limits.maxLevel);
    if (!whole || info.pixelFormat == 0)
        return kQvxBadArgument;
    double factor = 1, offset = 0;
    if (from.Take(&factor) && from.Take(&offset)) {
        info.pixelFactor = factor;
        info.pixelOffset = offset;
    }
    *record = made;
    return kQvxOK;
}
