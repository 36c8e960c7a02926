// The rows that the info pane may show: headings and DICOM elements, from the list that comes with
// the program. Main thread only.
#pragma once
#include "app/nodes/BaseTreeNode.h"

#include <QByteArray>
#include <functional>

class CategoryInfoField : public BaseTreeNode {
public:
    explicit CategoryInfoField(QString title) : _categoryTitle(std::move(title)) {}
    [[nodiscard]] const QString& categoryTitle() const { return _categoryTitle; }

private:
    QString _categoryTitle;
};

// One element of a file.
class BaseInfoField final : public CategoryInfoField {
public:
    BaseInfoField(QString category, QString title, int type, int group, int elem)
        : CategoryInfoField(std::move(category)),
          _fieldTitle(std::move(title)),
          _fieldType(type),
          _fieldGroup(group),
          _fieldElem(elem)
    {
    }
    [[nodiscard]] const QString& fieldTitle() const { return _fieldTitle; }
    [[nodiscard]] const QString& fieldContent() const { return _fieldContent; }
    void setFieldContent(QString content) { _fieldContent = std::move(content); }
    [[nodiscard]] int fieldType() const { return _fieldType; }
    [[nodiscard]] int fieldGroup() const { return _fieldGroup; }
    [[nodiscard]] int fieldElem() const { return _fieldElem; }

private:
    QString _fieldTitle, _fieldContent = QStringLiteral("xxx");
    int _fieldType, _fieldGroup, _fieldElem;
};

using InfoFields = std::vector<std::unique_ptr<CategoryInfoField>>;

// Of the list "DisplayFields.plist": a heading for each category, behind it its fields. Made anew
// for each use.
[[nodiscard]] InfoFields getInfoFieldsArrayCopy();
// The same from the bytes of such a list; empty for what is none.
[[nodiscard]] InfoFields InfoFieldsOfList(const QByteArray& list);

// Of `all` the fields for which `textOf` has a text, with it, each below its heading; headings of
// nothing are left out.
[[nodiscard]] InfoFields FilledInfoFields(
    InfoFields all, const std::function<QString(const BaseInfoField&)>& textOf);
