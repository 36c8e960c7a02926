#include "app/nodes/InfoFields.h"

#include "platform/PropertyList.h"
#include "platform/Words.h"

namespace {

constexpr unsigned char kDisplayFields[] = {
#include "DisplayFields.inc"
};

// Titles of a list that isn't the program's own stay as they are.
QString Translated(const QVariant& title)
{
    return ZelWord("DisplayFields", title.toString().toUtf8().constData());
}

}  // namespace

InfoFields InfoFieldsOfList(const QByteArray& list)
{
    InfoFields fields;
    for (const QVariant& value : ReadPropertyList(list).fRoot.toList()) {
        const QVariantMap category = value.toMap();
        const QString title = Translated(category[QStringLiteral("Category")]);
        fields.push_back(std::make_unique<CategoryInfoField>(title));
        for (const QVariant& each : category[QStringLiteral("Elems")].toList()) {
            const QVariantMap elem = each.toMap();
            fields.push_back(std::make_unique<BaseInfoField>(
                title, Translated(elem[QStringLiteral("Title")]),
                elem[QStringLiteral("Data")].toInt(), elem[QStringLiteral("Group")].toInt(),
                elem[QStringLiteral("Elem")].toInt()));
        }
    }
    return fields;
}

InfoFields getInfoFieldsArrayCopy()
{
    return InfoFieldsOfList(QByteArray::fromRawData(reinterpret_cast<const char*>(kDisplayFields),
                                                    sizeof kDisplayFields));
}

InfoFields FilledInfoFields(InfoFields all,
                            const std::function<QString(const BaseInfoField&)>& textOf)
{
    InfoFields filled;
    std::unique_ptr<CategoryInfoField> heading;  // until it gets its first field
    for (std::unique_ptr<CategoryInfoField>& entry : all) {
        auto* field = dynamic_cast<BaseInfoField*>(entry.get());
        if (!field) {
            heading = std::move(entry);
            continue;
        }
        QString text = textOf(*field);
        if (text.isEmpty())
            continue;
        field->setFieldContent(std::move(text));
        if (heading)
            filled.push_back(std::move(heading));
        filled.push_back(std::move(entry));
    }
    return filled;
}
