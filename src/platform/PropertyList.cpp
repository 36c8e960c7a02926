#include "platform/PropertyList.h"

#include <QDateTime>
#include <QStringDecoder>
#include <QXmlStreamReader>
#include <cerrno>
#include <cmath>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

// An array or dictionary that is still open.
struct Level {
    bool fIsDict = false;
    bool fHasKey = false;
    QString fKey;
    QVariantMap fDict;
    QVariantList fArray;
};

class PropertyListReader {
public:
    explicit PropertyListReader(const QByteArray& bytes);
    PropertyListReading Read();

private:
    bool Step();  // false: reading stops here
    bool StartElement();
    void EndElement();
    void StartContainer(bool isDict);
    void ReadKey();
    void ReadValue(QStringView kind);
    void Add(const QVariant& value);
    void CloseLevel();
    void Fault(const char* what);
    bool Stop(const char* what);

    QXmlStreamReader fXML;
    std::vector<Level> fLevels;
    PropertyListReading fReading;
    int fValues = 0;
    bool fInside = false;  // of <plist>
};

PropertyListReader::PropertyListReader(const QByteArray& bytes)
{
    // Decoded here: the XML reader would give up at the first bad byte before it answers anything.
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        Fault("not UTF-8");
    fXML.addData(text);
}

void PropertyListReader::Fault(const char* what)
{
    fReading.fStatus = kQvxMalformed;
    if (fReading.fFault.empty())
        fReading.fFault = "line " + std::to_string(fXML.lineNumber()) + ": " + what;
}

bool PropertyListReader::Stop(const char* what)
{
    Fault(what);
    return false;
}

PropertyListReading PropertyListReader::Read()
{
    while (!fXML.atEnd() && Step()) {
    }
    if (fXML.hasError())
        Fault("broken markup");
    while (!fLevels.empty())
        CloseLevel();
    if (!fReading.fRoot.isValid())
        Fault("no value");
    return fReading;
}

bool PropertyListReader::Step()
{
    switch (fXML.readNext()) {
        case QXmlStreamReader::DTD:
            // No property list needs them, and they can grow without limit.
            return fXML.entityDeclarations().isEmpty() || Stop("entity declarations");
        case QXmlStreamReader::EntityReference:
            return Stop("unknown entity");
        case QXmlStreamReader::StartElement:
            return StartElement();
        case QXmlStreamReader::EndElement:
            EndElement();
            return true;
        case QXmlStreamReader::Characters:
            if (!fXML.isWhitespace())
                Fault("text outside of a value");
            return true;
        default:
            return true;
    }
}

bool PropertyListReader::StartElement()
{
    const QString name = fXML.name().toString();
    if (!fInside) {
        fInside = name == QLatin1String("plist");
        return fInside || Stop("not a property list");
    }
    if (++fValues > kPropertyListMaxValues)
        return Stop("too many values");
    const bool isDict = name == QLatin1String("dict");
    if (isDict || name == QLatin1String("array")) {
        if (fLevels.size() >= static_cast<std::size_t>(kPropertyListMaxDepth))
            return Stop("too deep");
        StartContainer(isDict);
    } else if (name == QLatin1String("key")) {
        ReadKey();
    } else {
        ReadValue(name);
    }
    return true;
}

void PropertyListReader::StartContainer(bool isDict)
{
    fLevels.emplace_back();
    fLevels.back().fIsDict = isDict;
}

void PropertyListReader::EndElement()
{
    // What is no container is read whole, so only these and <plist> end here.
    if (!fLevels.empty())
        CloseLevel();
}

void PropertyListReader::CloseLevel()
{
    Level level = std::move(fLevels.back());
    fLevels.pop_back();
    if (level.fHasKey)
        Fault("key without a value");
    Add(level.fIsDict ? QVariant(level.fDict) : QVariant(level.fArray));
}

void PropertyListReader::ReadKey()
{
    const QString key = fXML.readElementText(QXmlStreamReader::SkipChildElements);
    if (fXML.hasError())
        return;
    if (fLevels.empty() || !fLevels.back().fIsDict)
        return Fault("key outside of a dictionary");
    if (fLevels.back().fHasKey)
        Fault("key without a value");
    fLevels.back().fKey = key;
    fLevels.back().fHasKey = true;
}

void PropertyListReader::Add(const QVariant& value)
{
    if (fLevels.empty()) {
        if (fReading.fRoot.isValid())
            return Fault("more than one value");
        fReading.fRoot = value;
        return;
    }
    Level& level = fLevels.back();
    if (!level.fIsDict) {
        level.fArray.append(value);
        return;
    }
    if (!level.fHasKey)
        return Fault("value without a key");
    level.fDict.insert(level.fKey, value);
    level.fHasKey = false;
}

QVariant RealOf(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? QVariant(number) : QVariant();
}

QVariant IntegerOf(const QString& text)
{
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    return isNumber ? QVariant(number) : QVariant();
}

QVariant DataOf(const QString& text)
{
    QByteArray letters = text.toUtf8();
    letters.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    const auto decoded = QByteArray::fromBase64Encoding(
        letters, QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? QVariant(*decoded) : QVariant();
}

QVariant DateOf(const QString& text)
{
    const QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    return date.isValid() ? QVariant(date) : QVariant();
}

// Invalid for a text that is no such value, and for a kind that there isn't.
QVariant ValueOf(QStringView kind, const QString& text)
{
    if (kind == QLatin1String("true") || kind == QLatin1String("false"))
        return kind == QLatin1String("true");
    if (kind == QLatin1String("string"))
        return text;
    if (kind == QLatin1String("integer"))
        return IntegerOf(text);
    if (kind == QLatin1String("real"))
        return RealOf(text);
    if (kind == QLatin1String("data"))
        return DataOf(text);
    return kind == QLatin1String("date") ? DateOf(text) : QVariant();
}

void PropertyListReader::ReadValue(QStringView kind)
{
    const QString text = fXML.readElementText(QXmlStreamReader::SkipChildElements);
    if (fXML.hasError())
        return;  // a text that is cut is no value
    const QVariant value = ValueOf(kind, text);
    if (value.isValid())
        return Add(value);
    Fault("a value that means nothing");
    if (!fLevels.empty())
        fLevels.back().fHasKey = false;
}

QvxStatus ReadWholeFile(int descriptor, QByteArray* bytes)
{
    struct stat info{};
    if (fstat(descriptor, &info) != 0)
        return errno;
    if (!S_ISREG(info.st_mode) || info.st_size > kPropertyListMaxBytes)
        return kQvxMalformed;
    bytes->resize(info.st_size);
    qsizetype have = 0;
    while (have < bytes->size()) {
        const ssize_t got =
            read(descriptor, bytes->data() + have, static_cast<std::size_t>(bytes->size() - have));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return errno;
        if (got == 0)
            break;
        have += got;
    }
    bytes->truncate(have);
    return kQvxOK;
}

}  // namespace

PropertyListReading ReadPropertyList(const QByteArray& bytes)
{
    return PropertyListReader(bytes).Read();
}

PropertyListReading ReadPropertyListFile(const std::string& path)
{
    PropertyListReading failed;
    const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) {
        failed.fStatus = errno == ENOENT ? kQvxFileNotFound : errno;
        failed.fFault = StatusText(failed.fStatus);
        return failed;
    }
    QByteArray bytes;
    failed.fStatus = ReadWholeFile(descriptor, &bytes);
    close(descriptor);
    if (failed.fStatus == kQvxOK)
        return ReadPropertyList(bytes);
    failed.fFault = failed.fStatus == kQvxMalformed ? "no regular file, or too long"
                                                    : StatusText(failed.fStatus);
    return failed;
}
