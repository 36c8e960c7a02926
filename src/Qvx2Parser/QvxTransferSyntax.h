// The transfer syntaxes that are known by number, and what the meta group's entry settles.
#pragma once
#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

// UIDs below "1.2.840.10008.1.2", in the order of their numbers 0 to 28.
inline constexpr std::string_view kTransferSyntaxRoot = "1.2.840.10008.1.2";
inline constexpr auto kTransferSyntaxSuffixes = std::to_array<std::string_view>({
    "",      ".1",    ".1.99", ".2",    ".4.50", ".4.51", ".4.52", ".4.53", ".4.54", ".4.55",
    ".4.56", ".4.57", ".4.58", ".4.59", ".4.60", ".4.61", ".4.62", ".4.63", ".4.64", ".4.65",
    ".4.66", ".4.70", ".4.80", ".4.81", ".4.90", ".4.91", ".4.92", ".4.93", ".5",
});
static_assert(kTransferSyntaxSuffixes.size() == 29);
inline constexpr std::uint32_t kTransferSyntaxDeflated = 2;
inline constexpr std::uint32_t kTransferSyntaxFirstJPEG = 4;
inline constexpr std::uint32_t kTransferSyntaxLastJ2K = 27;
inline constexpr std::uint32_t kTransferSyntaxRLE = 28;

// The row of `uid`, or -1.
[[nodiscard]] constexpr int TransferSyntaxIndex(std::string_view uid)
{
    if (!uid.starts_with(kTransferSyntaxRoot))
        return -1;
    uid.remove_prefix(kTransferSyntaxRoot.size());
    const auto row = std::ranges::find(kTransferSyntaxSuffixes, uid);
    return row == kTransferSyntaxSuffixes.end()
               ? -1
               : static_cast<int>(row - kTransferSyntaxSuffixes.begin());
}

// What the walk knows of a syntax when it meets it in the meta group: thirteen of them, compared
// whole. The JPEG 2000 ones leave order and form to the data's own bytes.
struct WalkSettingsRow {
    std::uint8_t fIndex;
    bool fSettlesForm;
    std::uint8_t fByteOrder, fExplicitVR, fImageForm;
};
// clang-format off
inline constexpr auto kWalkSettings = std::to_array<WalkSettingsRow>({
    // index settles order explicit image form
    {  0, true,  0, 0, 1 },
    {  1, true,  0, 1, 1 },
    {  3, true,  1, 1, 1 },
    {  4, true,  0, 1, 2 },
    {  5, true,  0, 1, 2 },
    {  6, true,  0, 1, 2 },
    { 11, true,  0, 1, 2 },
    { 21, true,  0, 1, 2 },
    { 28, true,  0, 1, 2 },
    { 24, false, 0, 0, 0 },
    { 25, false, 0, 0, 0 },
    { 26, false, 0, 0, 0 },
    { 27, false, 0, 0, 0 },
});
// clang-format on

// The row for `uid`, or null when the walk does not know it.
[[nodiscard]] constexpr const WalkSettingsRow* WalkSettingsOf(std::string_view uid)
{
    const int index = TransferSyntaxIndex(uid);
    const auto row = std::ranges::find(kWalkSettings, index, &WalkSettingsRow::fIndex);
    return row == kWalkSettings.end() ? nullptr : &*row;
}
