// What stands in the menus that have a table: grid sizes, zoom values, colour tables, each list
// with an entry for "other" at its end if it has one. Tables lie in resources/MenuTables and are
// built in. No drawing. Any thread.
#pragma once
#include "prefs/PrefsColors.h"
#include "util/ColorTable.h"

#include <QString>
#include <QVariantMap>
#include <optional>
#include <vector>

struct ZELMenuItem {
    QString itemName;  // key "Title"
};

struct ZELGridDimMenuItem : ZELMenuItem {
    int rows = 0, columns = 0;  // keys "Rows", "Cols"
    [[nodiscard]] static ZELGridDimMenuItem FromDictionary(const QVariantMap& dictionary);
};

struct ZELZoomMenuItem : ZELMenuItem {
    double zoomValue = 0;  // key "Value"; percent
    [[nodiscard]] static ZELZoomMenuItem FromDictionary(const QVariantMap& dictionary);
};

// One colour table as its file has it.
class ZELCLUTMenuItem : public ZELMenuItem {
public:
    // Numbers beyond 0 to 255 are brought there. `itemName` is the title.
    [[nodiscard]] static ZELCLUTMenuItem FromDictionary(const QVariantMap& dictionary);

    QString clutTitle;     // key "MenuTitle"
    QString clutFilename;  // without folder and extension
    int sortingType = 0;   // key "MenuPosition"
    int tableID = 0;
    std::vector<int> reds, greens, blues;  // keys "Red", "Green", "Blue"; 0 to 255

    // 256 entries of i, and 257 times what stands above; black where that ends. Made at the first
    // call, which belongs to one thread.
    [[nodiscard]] const ColorTable& colorTable() const;
    // As many as there are reds, components 0 to 1, the last entry first.
    [[nodiscard]] std::vector<ZELColor> nsColors() const;

private:
    mutable std::optional<ColorTable> _colorTable;
};

// The dictionaries of the table `name` (no folder, no extension); empty if there is none.
[[nodiscard]] QVariantList MenuTableNamed(const QString& name);

template <typename Item>
class ZELMenuItemsArray {
public:
    // A name that isn't empty turns the other item on.
    [[nodiscard]] static ZELMenuItemsArray initFromFile(const QString& file,
                                                        const QString& otherName = {})
    {
        return ZELMenuItemsArray(MenuTableNamed(file), otherName);
    }
    ZELMenuItemsArray(const QVariantList& dictionaries, const QString& otherName)
        : hasOtherItem(!otherName.isEmpty()), otherItemTitle(otherName)
    {
        for (const QVariant& dictionary : dictionaries)
            standardItemsArray.push_back(Item::FromDictionary(dictionary.toMap()));
    }

    // The standard items, then a separator and the other item if that is on.
    [[nodiscard]] int count() const { return standardCount() + (hasOtherItem ? 2 : 0); }
    // The title at a place from 0, "-" for the separator; null for a place that there isn't.
    [[nodiscard]] QString objectAtIndex(int index) const
    {
        if (const Item* item = standardItemAt(index))
            return item->itemName;
        if (!hasOtherItem || index < 0 || index >= count())
            return {};
        return index == standardCount() ? QStringLiteral("-") : otherItemTitle;
    }
    // Null for the separator, the other item, and a place that there isn't.
    [[nodiscard]] const Item* standardItemAt(int index) const
    {
        return index >= 0 && index < standardCount()
                   ? &standardItemsArray[static_cast<std::size_t>(index)]
                   : nullptr;
    }

    std::vector<Item> standardItemsArray;
    bool hasOtherItem;
    QString otherItemTitle;

private:
    [[nodiscard]] int standardCount() const { return static_cast<int>(standardItemsArray.size()); }
};

using ZELGridMenuItemsArray = ZELMenuItemsArray<ZELGridDimMenuItem>;
using ZELZoomMenuItemsArray = ZELMenuItemsArray<ZELZoomMenuItem>;
using ZELCLUTMenuItemsArray = ZELMenuItemsArray<ZELCLUTMenuItem>;

inline constexpr const char* kMenuTableZoom = "ZELZoomMenuItems";
inline constexpr const char* kMenuTableGrids = "ZELGridMenuItems";
