// The user's presets of window and level as the preferences edit them. Every change is stored at
// once and told, with the list as the notification's object. No widgets. Main thread only.
#pragma once
#include "prefs/WindowPresets.h"

#include <functional>
#include <optional>
#include <vector>

class PresetList {
public:
    enum class Column { Title, Level, Width };
    static constexpr int kColumns = 3;
    // Shows the alert of a status code and answers 1000 for its first button.
    using AlertForError = std::function<int(int code, const QString& name)>;
    static constexpr int kFirstButton = 1000;

    PresetList() : fPresets(loadWWWLPresets()) {}
    void reload() { fPresets = loadWWWLPresets(); }

    [[nodiscard]] int count() const { return static_cast<int>(fPresets.size()); }
    // Numbers without decimals, as they are shown, and with all that they have, as they are edited.
    [[nodiscard]] QString textAt(int row, Column column) const;
    [[nodiscard]] QString editTextAt(int row, Column column) const;
    // False, and nothing changes, for what is no number, one beyond a billion, or a width of 0 or
    // below. Numbers are taken in the user's spelling and with a point.
    bool setTextAt(int row, Column column, const QString& text);

    // The row of the new preset, behind `row`; at the end for a row that there isn't.
    int addPreset(int row);
    // At the end, under the name of one that has none yet. Its row.
    int addPresetOf(float width, float level);
    void removePresets(std::vector<int> rows);
    // Between the rows `target` - 1 and `target`. Where the preset stands then; none if it stays.
    std::optional<int> movePreset(int row, int target);
    // Asks first; false if the user did not agree.
    bool resetToDefaults(const AlertForError& ask);

private:
    void saveTableValues();
    [[nodiscard]] bool has(int row) const { return row >= 0 && row < count(); }
    [[nodiscard]] const ZELWWWLMenuItem& at(int row) const
    {
        return fPresets[static_cast<std::size_t>(row)];
    }

    std::vector<ZELWWWLMenuItem> fPresets;
};
