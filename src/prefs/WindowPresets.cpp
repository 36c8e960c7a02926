#include "prefs/WindowPresets.h"

#include "platform/PreferenceStore.h"
#include "platform/PropertyList.h"
#include "prefs/Prefs.h"

#include <cmath>
#include <limits>

namespace {

constexpr unsigned char kPresets[] = {
#include "WWWLPresets.inc"
};

// Of this run only: the next start has the program's own again.
constexpr const char* kKeyEmptied = "WWWLPresetsAreEmptied";

QVariantList PresetsOfTheProgram()
{
    const QByteArray bytes(reinterpret_cast<const char*>(kPresets), sizeof kPresets);
    return ReadPropertyList(bytes).fRoot.toList();
}

// 0 for what no float holds.
float NumberOf(const QVariant& value)
{
    const double number = value.toDouble();
    return std::abs(number) <= std::numeric_limits<float>::max() ? static_cast<float>(number) : 0;
}

std::vector<ZELWWWLMenuItem> ItemsOf(const QVariantList& list)
{
    std::vector<ZELWWWLMenuItem> presets;
    for (const QVariant& preset : list) {
        presets.push_back(ZELWWWLMenuItem::FromDictionary(preset.toMap()));
        presets.back().tableID = static_cast<int>(presets.size()) - 1;
    }
    return presets;
}

}  // namespace

ZELWWWLMenuItem ZELWWWLMenuItem::FromDictionary(const QVariantMap& dictionary)
{
    return {{dictionary[QStringLiteral("Title")].toString()},
            NumberOf(dictionary[QStringLiteral("WW")]),
            NumberOf(dictionary[QStringLiteral("WC")])};
}

QVariantMap ZELWWWLMenuItem::dictionaryToSave() const
{
    return {{QStringLiteral("Title"), itemName},
            {QStringLiteral("WW"), double{wwidth}},
            {QStringLiteral("WC"), double{wcenter}}};
}

std::vector<ZELWWWLMenuItem> loadWWWLPresets()
{
    // An empty list is never stored: there is none, or another thing in its place.
    const QVariantList stored = prefs_Store().Array(kPrefsKeyWWWLPresets);
    if (!stored.isEmpty())
        return ItemsOf(stored);
    return prefs_Store().Bool(kKeyEmptied) ? std::vector<ZELWWWLMenuItem>()
                                           : loadWWWLPresetsOfTheProgram();
}

std::vector<ZELWWWLMenuItem> loadWWWLPresetsOfTheProgram()
{
    return ItemsOf(PresetsOfTheProgram());
}

QvxStatus saveWWWLPresets(const std::vector<ZELWWWLMenuItem>& presets)
{
    QVariantList list;
    for (const ZELWWWLMenuItem& preset : presets)
        list.push_back(preset.dictionaryToSave());
    prefs_Store().Override(kKeyEmptied, list.isEmpty() ? QVariant(true) : QVariant());
    if (list.isEmpty())
        prefs_Store().Remove(kPrefsKeyWWWLPresets);
    else if (const QvxStatus status = prefs_Store().Set(kPrefsKeyWWWLPresets, list))
        return status;
    return prefs_Store().Synchronize();
}
