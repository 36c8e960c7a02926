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
