// The transfer syntaxes in which the demo writes its files.
#pragma once
#include <array>
#include <cstddef>
#include <string_view>

enum class DemoSyntax {
    ExplicitLittle,
    ImplicitLittle,
    ExplicitBig,
    Deflated,
    RLE,
    JPEGBaseline,
    JPEGLossless,
    JPEGLS,
    JPEG2000,
};

struct DemoSyntaxRow {
    std::string_view uid;
    bool explicitVR, bigEndian, encapsulated;
};
// clang-format off
inline constexpr auto kDemoSyntaxes = std::to_array<DemoSyntaxRow>({
    // in the order of DemoSyntax     explicit  big    encapsulated
    {"1.2.840.10008.1.2.1",           true,     false, false},
    {"1.2.840.10008.1.2",             false,    false, false},
    {"1.2.840.10008.1.2.2",           true,     true,  false},
    {"1.2.840.10008.1.2.1.99",        true,     false, false},
    {"1.2.840.10008.1.2.5",           true,     false, true},
    {"1.2.840.10008.1.2.4.50",        true,     false, true},
    {"1.2.840.10008.1.2.4.70",        true,     false, true},
    {"1.2.840.10008.1.2.4.80",        true,     false, true},
    {"1.2.840.10008.1.2.4.90",        true,     false, true},
});
// clang-format on

[[nodiscard]] constexpr const DemoSyntaxRow& DemoSyntax_Row(DemoSyntax syntax)
{
    return kDemoSyntaxes[static_cast<std::size_t>(syntax)];
}
