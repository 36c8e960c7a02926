// The text fields that stand over a frame, as a property list names them: where each is placed and
// which elements or facts of the frame it shows. Plain values; the default list comes with the
// program (resources/ZELDefaultAnnotations.plist).
#pragma once
#include <QString>
#include <QVariantMap>
#include <cstdint>
#include <memory>
#include <vector>

// 0 to 8, row by row from the top left corner; -1 for a name that is none.
[[nodiscard]] std::int32_t positionValue(const QString& name);
// 1 frame counter, 2 number of frames, 3 window, 4 zoom; 0 for a name that is none.
[[nodiscard]] std::int32_t annotationTypeValue(const QString& name);

// Each begins with the list's defaults; the entry overrides what it holds.
class ZELBasicDemografic {
public:
    ZELBasicDemografic(const QVariantMap& defaults, const QVariantMap& entry);
    virtual ~ZELBasicDemografic() = default;

    std::int32_t position = -1;
    bool showWhenNoFit = false;
    std::int32_t fontSize = 0;  // kept; texts take their size from the preference
};

// One element of the file.
class ZELDemografic : public ZELBasicDemografic {
public:
    ZELDemografic(const QVariantMap& defaults, const QVariantMap& entry);
    QString prefix;
    std::int32_t dcmGroup = 0, dcmElement = 0;
};

// Two elements in one line.
class ZELDoubleDemografic : public ZELDemografic {
public:
    ZELDoubleDemografic(const QVariantMap& defaults, const QVariantMap& entry);
    QString separator, prefix2;
    std::int32_t dcmGroup2 = 0, dcmElement2 = 0;
};

// A fact of how the frame is shown.
class ZELBuiltInDemographic : public ZELBasicDemografic {
public:
    ZELBuiltInDemographic(const QVariantMap& defaults, const QVariantMap& entry);
    std::int32_t elemType = 0;
};

using AnnotationTemplates = std::vector<std::unique_ptr<ZELBasicDemografic>>;

// The items of a list with the parts "defaults" and "demographics", in its order. An entry with one
// or two "Elements" shows these, one without any and with a "BuiltIn" that; others are left out.
[[nodiscard]] AnnotationTemplates annotationsFromList(const QVariantMap& list);
// Those of the program's own list.
[[nodiscard]] AnnotationTemplates loadDefaultAnnotations();
