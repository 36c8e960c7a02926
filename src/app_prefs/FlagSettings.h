// The settings that are on or off, each with who is told. No widgets. Main thread only.
#pragma once
#include <span>
#include <string_view>

struct FlagSetting {
    const char* title;  // key of "Preferences"
    bool (*get)();
    void (*set)(bool on);
    std::string_view note;  // posted after a change; empty: nobody is told
};

[[nodiscard]] std::span<const FlagSetting> OpeningFlags();
[[nodiscard]] std::span<const FlagSetting> DicomFlags();
[[nodiscard]] std::span<const FlagSetting> LocalizerFlags();
[[nodiscard]] std::span<const FlagSetting> CineFlags();

// Stores and tells, unless it is so already.
void ChangeFlag(const FlagSetting& setting, bool on);
