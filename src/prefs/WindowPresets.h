// The user's presets of window and level: those stored under "WWWLPresets", or those that come with
// the program (resources/WWWLPresets.plist). Main thread only.
#pragma once
#include "prefs/MenuItems.h"
#include "util/StatusCodes.h"

#include <QString>
#include <QVariantMap>
#include <vector>

// Its `itemName` is empty for one that has no name.
struct ZELWWWLMenuItem : ZELMenuItem {
    float wwidth = 0, wcenter = 0;
    int tableID = 0;  // its position in the list, from 0

    // Keys "Title", "WW" and "WC"; what is missing or no number is empty or 0.
    static ZELWWWLMenuItem FromDictionary(const QVariantMap& dictionary);
    [[nodiscard]] QVariantMap dictionaryToSave() const;
};

// None in a run in which the user has emptied the list.
[[nodiscard]] std::vector<ZELWWWLMenuItem> loadWWWLPresets();
// Those that come with the program, whatever is stored.
[[nodiscard]] std::vector<ZELWWWLMenuItem> loadWWWLPresetsOfTheProgram();
// Stores the list at once; an empty one takes the stored list away. An errno when it can't be
// written.
QvxStatus saveWWWLPresets(const std::vector<ZELWWWLMenuItem>& presets);
