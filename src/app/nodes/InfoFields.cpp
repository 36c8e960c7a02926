#include "app/nodes/InfoFields.h"

#include "platform/PropertyList.h"

namespace {

constexpr unsigned char kDisplayFields[] = {
#include "DisplayFields.inc"
};

}  // namespace

InfoFields InfoFieldsOfList(const QByteArray& list)
{
    InfoFields fields;
    for (const QVariant& value : ReadPropertyList(list).fRoot.toList()) {
        const QVariantMap category = value.toMap();
        const QString title = category[QStringLiteral("Category")].toString();
        fields.push_back(std::make_unique<CategoryInfoField>(title));
        for (const QVariant& each : category[QStringLiteral("Elems")].toList()) {
            const QVariantMap elem = each.toMap();
            fields.push_back(std::make_unique<BaseInfoField>(
                title, elem[QStringLiteral("Title")].toString(),
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
