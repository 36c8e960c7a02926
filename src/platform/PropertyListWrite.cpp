// The writing half of property lists.
#include "platform/PropertyList.h"

#include <QDateTime>
#include <QXmlStreamWriter>
#include <cmath>

namespace {

bool XMLCarries(char16_t unit)
{
    // A carriage return would come back as a line end.
    return unit == u'\t' || unit == u'\n' || (unit >= 0x20 && unit < 0xFFFE);
}

QString WithoutForbiddenCharacters(const QString& text)
{
    QString clean = text;
    for (qsizetype i = 0; i < clean.size(); ++i) {
        const QChar c = clean.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < clean.size() && clean.at(i + 1).isLowSurrogate();
        if (isPair)
            ++i;
        else if (c.isSurrogate() || !XMLCarries(c.unicode()))
            clean[i] = QChar::ReplacementCharacter;
    }
    return clean;
}

class PropertyListWriter {
public:
    explicit PropertyListWriter(QByteArray* bytes) : fXML(bytes)
    {
        fXML.setAutoFormatting(true);
        fXML.setAutoFormattingIndent(-1);  // one tab
    }
    QvxStatus Write(const QVariant& root);

private:
    bool WriteValue(const QVariant& value, int depth);
    bool WriteNumber(const QVariant& value);
    bool WriteContainer(const QVariant& value, int depth);

    QXmlStreamWriter fXML;
};

QvxStatus PropertyListWriter::Write(const QVariant& root)
{
    fXML.writeStartDocument();
    fXML.writeStartElement("plist");
    fXML.writeAttribute("version", "1.0");
    const bool isWritten = WriteValue(root, 0);
    fXML.writeEndElement();
    fXML.writeEndDocument();
    return isWritten && !fXML.hasError() ? kQvxOK : kQvxBadArgument;
}

bool PropertyListWriter::WriteValue(const QVariant& value, int depth)
{
    switch (value.typeId()) {
        case QMetaType::Bool:
            fXML.writeEmptyElement(value.toBool() ? "true" : "false");
            return true;
        case QMetaType::QString:
            fXML.writeTextElement("string", WithoutForbiddenCharacters(value.toString()));
            return true;
        case QMetaType::QByteArray:
            fXML.writeTextElement("data", QString::fromLatin1(value.toByteArray().toBase64()));
            return true;
        case QMetaType::QDateTime:
            fXML.writeTextElement("date", value.toDateTime().toUTC().toString(Qt::ISODate));
            return value.toDateTime().isValid();
        case QMetaType::QVariantList:
        case QMetaType::QStringList:
        case QMetaType::QVariantMap:
            return depth < kPropertyListMaxDepth && WriteContainer(value, depth + 1);
        default:
            return WriteNumber(value);
    }
}

bool PropertyListWriter::WriteNumber(const QVariant& value)
{
    switch (value.typeId()) {
        case QMetaType::Double:
        case QMetaType::Float:
            fXML.writeTextElement("real", QString::number(value.toDouble(), 'g', 17));
            return std::isfinite(value.toDouble());
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
            fXML.writeTextElement("integer", QString::number(value.toLongLong()));
            return true;
        default:
            return false;
    }
}

bool PropertyListWriter::WriteContainer(const QVariant& value, int depth)
{
    bool isWritten = true;
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap dict = value.toMap();
        fXML.writeStartElement("dict");
        for (auto entry = dict.begin(); isWritten && entry != dict.end(); ++entry) {
            fXML.writeTextElement("key", WithoutForbiddenCharacters(entry.key()));
            isWritten = WriteValue(entry.value(), depth);
        }
    } else {
        fXML.writeStartElement("array");
        for (const QVariant& entry : value.toList())
            isWritten = isWritten && WriteValue(entry, depth);
    }
    fXML.writeEndElement();
    return isWritten;
}

}  // namespace

QvxStatus WritePropertyList(const QVariant& root, QByteArray* bytes)
{
    if (!bytes)
        return kQvxBadArgument;
    QByteArray written;
    const QvxStatus status = PropertyListWriter(&written).Write(root);
    if (status == kQvxOK)
        *bytes = written;
    return status;
}
