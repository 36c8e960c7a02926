#include "Annotations/AnnotationTemplates.h"

#include "platform/PropertyList.h"

#include <array>

namespace {

constexpr unsigned char kDefaultList[] = {
#include "ZELDefaultAnnotations.inc"
};

constexpr std::array kPositions{"TopLeft",    "TopCenter",    "TopRight",
                                "MiddleLeft", "MiddleCenter", "MiddleRight",
                                "BottomLeft", "BottomCenter", "BottomRight"};
constexpr std::array kTypes{"CurrentFrame", "TotalFrames", "VOISettings", "CurrentZoom"};

// The number of a name from 0; -1 when it is none of them.
template <std::size_t kCount>
std::int32_t NumberOf(const QString& name, const std::array<const char*, kCount>& names)
{
    for (std::size_t i = 0; i < kCount; ++i)
        if (name == QLatin1String(names[i]))
            return static_cast<std::int32_t>(i);
    return -1;
}

// A key that is missing leaves what is there.
void Take(const QVariantMap& map, const char* key, QString* text)
{
    if (const auto found = map.find(QLatin1String(key)); found != map.end())
        *text = found->toString();
}

void Take(const QVariantMap& map, const char* key, std::int32_t* number)
{
    if (const auto found = map.find(QLatin1String(key)); found != map.end())
        *number = found->toInt();
}

QVariantList ElementsOf(const QVariantMap& entry)
{
    return entry[QStringLiteral("Elements")].toList();
}

// Empty when there is none of that number.
QVariantMap ElementAt(const QVariantMap& entry, qsizetype index)
{
    return ElementsOf(entry).value(index).toMap();
}

std::unique_ptr<ZELBasicDemografic> ItemOf(const QVariantMap& defaults, const QVariantMap& entry)
{
    switch (ElementsOf(entry).size()) {
        case 1:
            return std::make_unique<ZELDemografic>(defaults, entry);
        case 2:
            return std::make_unique<ZELDoubleDemografic>(defaults, entry);
        case 0:
            if (!entry[QStringLiteral("BuiltIn")].toString().isEmpty())
                return std::make_unique<ZELBuiltInDemographic>(defaults, entry);
            return nullptr;
        default:
            return nullptr;
    }
}

}  // namespace

std::int32_t positionValue(const QString& name) { return NumberOf(name, kPositions); }

std::int32_t annotationTypeValue(const QString& name) { return NumberOf(name, kTypes) + 1; }

ZELBasicDemografic::ZELBasicDemografic(const QVariantMap& defaults, const QVariantMap& entry)
{
    for (const QVariantMap* map : {&defaults, &entry}) {
        if (map->contains(QStringLiteral("Position")))
            position = positionValue((*map)[QStringLiteral("Position")].toString());
        if (map->contains(QStringLiteral("ShowWhenNoFit")))
            showWhenNoFit = (*map)[QStringLiteral("ShowWhenNoFit")].toBool();
        Take(*map, "FontSize", &fontSize);
    }
}

ZELDemografic::ZELDemografic(const QVariantMap& defaults, const QVariantMap& entry)
    : ZELBasicDemografic(defaults, entry)
{
    const QVariantMap element = ElementAt(entry, 0);
    Take(defaults, "Prefix", &prefix);
    Take(element, "Prefix", &prefix);
    Take(element, "DicomGroup", &dcmGroup);
    Take(element, "DicomElement", &dcmElement);
}

ZELDoubleDemografic::ZELDoubleDemografic(const QVariantMap& defaults, const QVariantMap& entry)
    : ZELDemografic(defaults, entry)
{
    const QVariantMap element = ElementAt(entry, 1);
    Take(defaults, "Prefix2", &prefix2);
    Take(defaults, "Separator", &separator);
    Take(element, "Separator", &separator);
    Take(element, "Prefix", &prefix2);
    Take(element, "DicomGroup", &dcmGroup2);
    Take(element, "DicomElement", &dcmElement2);
}

ZELBuiltInDemographic::ZELBuiltInDemographic(const QVariantMap& defaults, const QVariantMap& entry)
    : ZELBasicDemografic(defaults, entry)
{
    QString name;
    Take(defaults, "BuiltIn", &name);
    Take(entry, "BuiltIn", &name);
    elemType = annotationTypeValue(name);
}

AnnotationTemplates annotationsFromList(const QVariantMap& list)
{
    const QVariantMap defaults = list[QStringLiteral("defaults")].toMap();
    AnnotationTemplates items;
    for (const QVariant& entry : list[QStringLiteral("demographics")].toList())
        if (auto item = ItemOf(defaults, entry.toMap()))
            items.push_back(std::move(item));
    return items;
}

AnnotationTemplates loadDefaultAnnotations()
{
    const QByteArray bytes(reinterpret_cast<const char*>(kDefaultList), sizeof kDefaultList);
    return annotationsFromList(ReadPropertyList(bytes).fRoot.toMap());
}
