#include "prefs/MenuItems.h"

#include "platform/PropertyList.h"

#include <algorithm>

namespace {

struct MenuTableFile {
    const char* fName;
    const unsigned char* fBytes;
    std::size_t fSize;
};
#include "MenuTables.inc"

constexpr int kEntries = 256, kMostOf8Bits = 255, kTo16Bits = 257;

std::vector<int> NumbersOf(const QVariant& list)
{
    std::vector<int> numbers;
    for (const QVariant& number : list.toList())
        numbers.push_back(
            static_cast<int>(std::clamp<qlonglong>(number.toLongLong(), 0, kMostOf8Bits)));
    return numbers;
}

int NumberAt(const std::vector<int>& numbers, std::size_t index)
{
    return index < numbers.size() ? numbers[index] : 0;
}

}  // namespace

ZELGridDimMenuItem ZELGridDimMenuItem::FromDictionary(const QVariantMap& dictionary)
{
    return {{dictionary[QStringLiteral("Title")].toString()},
            dictionary[QStringLiteral("Rows")].toInt(),
            dictionary[QStringLiteral("Cols")].toInt()};
}

ZELZoomMenuItem ZELZoomMenuItem::FromDictionary(const QVariantMap& dictionary)
{
    return {{dictionary[QStringLiteral("Title")].toString()},
            dictionary[QStringLiteral("Value")].toDouble()};
}

ZELCLUTMenuItem ZELCLUTMenuItem::FromDictionary(const QVariantMap& dictionary)
{
    ZELCLUTMenuItem item;
    item.clutTitle = item.itemName = dictionary[QStringLiteral("MenuTitle")].toString();
    item.sortingType = dictionary[QStringLiteral("MenuPosition")].toInt();
    item.reds = NumbersOf(dictionary[QStringLiteral("Red")]);
    item.greens = NumbersOf(dictionary[QStringLiteral("Green")]);
    item.blues = NumbersOf(dictionary[QStringLiteral("Blue")]);
    return item;
}

const ColorTable& ZELCLUTMenuItem::colorTable() const
{
    if (_colorTable)
        return *_colorTable;
    ColorTable& table = _colorTable.emplace();
    const auto part = [](const std::vector<int>& numbers, int index) {
        return static_cast<std::uint16_t>(NumberAt(numbers, static_cast<std::size_t>(index)) *
                                          kTo16Bits);
    };
    for (int i = 0; i < kEntries; ++i)
        table.fEntries.push_back(
            {static_cast<std::uint16_t>(i), part(reds, i), part(greens, i), part(blues, i)});
    return table;
}

std::vector<ZELColor> ZELCLUTMenuItem::nsColors() const
{
    std::vector<ZELColor> colors;
    const auto part = [](const std::vector<int>& numbers, std::size_t index) {
        return NumberAt(numbers, index) / double{kMostOf8Bits};
    };
    for (std::size_t i = reds.size(); i-- > 0;)
        colors.push_back({part(reds, i), part(greens, i), part(blues, i), 1});
    return colors;
}

QVariantList MenuTableNamed(const QString& name)
{
    const auto* file = std::ranges::find_if(kMenuTableFiles, [&name](const MenuTableFile& each) {
        return name == QLatin1String(each.fName);
    });
    if (file == std::end(kMenuTableFiles))
        return {};
    const QByteArray bytes(reinterpret_cast<const char*>(file->fBytes),
                           static_cast<qsizetype>(file->fSize));
    return ReadPropertyList(bytes).fRoot.toList();
}
