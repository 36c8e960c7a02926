#include "dicom_core/values/ParserText.h"

#include "dicom_core/values/ParserValues.h"
#include "dicom_core/values/TrimText.h"

#include <algorithm>
#include <new>

namespace {

constexpr QvxElementTag kTagMediaStorageSOPClass{0x0002, 0x0002};
constexpr QvxElementTag kTagDirectoryRecords{0x0004, 0x1220};
constexpr QvxElementTag kTagModality{0x0008, 0x0060};
constexpr std::string_view kUidMediaDirectory = "1.2.840.10008.1.3.10";

constexpr std::uint32_t kJoinedBytes = 1u << 20;  // of a value; far more than any field takes

// Puts values behind one another, each without its trailing blanks, up to the limit of a field.
class ValueJoiner {
public:
    ValueJoiner(bool skipEmpty, std::size_t size, std::string* text)
        : fSkipEmpty(skipEmpty), fLimit(size > 0 ? size - 1 : 0), fText(text)
    {
    }
    [[nodiscard]] bool Full() const { return fText->size() >= fLimit; }
    void Add(std::string_view value)
    {
        value = value.substr(0, value.find('\0'));
        value = value.substr(0, value.find_last_not_of(' ') + 1);
        if (fSkipEmpty && value.empty())
            return;
        if (fSkipEmpty ? !fText->empty() : fAny)
            fText->push_back('\\');
        fAny = true;
        fText->append(value.substr(0, fLimit - std::min(fLimit, fText->size())));
        fText->resize(std::min(fText->size(), fLimit));
    }

private:
    bool fSkipEmpty, fAny = false;
    std::size_t fLimit;
    std::string* fText;
};

bool IsText(QvxVR vr)
{
    return GetElementSuperType(static_cast<QvxVRIndex>(GetDCM_VR_Index(vr))) == QvxSuperType::Text;
}

// A text of many values is split in one pass: to ask for them by number costs the square of their
// count. What the reader takes off a value is taken off here too.
QvxStatus JoinText(ParserHandle parser, QvxElementRef element, const QvxElementDataInfo& info,
                   ValueJoiner* joiner)
{
    std::string whole(std::min(info.fDataSize, kJoinedBytes), '\0');
    if (const QvxStatus status =
            Qvx2Reader_GetElementData(parser, element, kJoinedBytes, whole.data()))
        return status;
    if (info.fVR == QvxVROfIndex(kVRIndexDA))
        std::erase(whole, '.');
    if (info.fVR == QvxVROfIndex(kVRIndexTM))
        std::erase(whole, ':');
    std::string_view rest = whole;
    for (std::int32_t index = 0; index < info.fMultiplicity && !joiner->Full(); ++index) {
        const std::size_t end = rest.find('\\');
        joiner->Add(rest.substr(0, end));
        if (end == std::string_view::npos)
            break;
        rest.remove_prefix(end + 1);
    }
    return kQvxOK;
}

QvxStatus JoinEach(ParserHandle parser, QvxElementRef element, std::int32_t count,
                   ValueJoiner* joiner)
{
    for (std::int32_t index = 1; index <= count && !joiner->Full(); ++index) {
        QvxHandle value;
        const QvxStatus status = Qvx2Reader_GetElementDataAsText(parser, element, index, &value);
        if (status && status != kQvxNoValue)
            return status;
        if (!status && value.Bytes().empty())
            break;  // bytes of no kind that has a text, and so are all that follow
        joiner->Add(value.Text());
    }
    return kQvxOK;
}

// Values of the most common elements go from the reader's memory to the text at once.
QvxStatus JoinValues(ParserHandle parser, QvxElementRef element, bool skipEmpty, std::size_t size,
                     std::string* text)
{
    ValueJoiner joiner(skipEmpty, size, text);
    if (std::string_view plain; !Qvx2Reader_GetPlainText(parser, element, &plain)) {
        joiner.Add(plain);
        return kQvxOK;
    }
    QvxElementDataInfo info;
    if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(parser, element, &info))
        return status;
    if (info.fMultiplicity > 1 && IsText(info.fVR))
        return JoinText(parser, element, info, &joiner);
    return JoinEach(parser, element, std::max(info.fMultiplicity, 1), &joiner);
}

void CopyText(std::string_view whole, std::size_t size, std::string* text)
{
    whole = whole.substr(0, size > 0 ? size - 1 : 0);
    text->assign(whole.substr(0, whole.find('\0')));
}

QvxStatus OneValue(ParserHandle parser, QvxElementRef element, std::int32_t index, std::size_t size,
                   std::string* text)
{
    if (std::string_view plain;
        index == 1 && !Qvx2Reader_GetPlainText(parser, element, &plain) && !plain.empty()) {
        CopyText(plain, size, text);
        TrimTrailingSpaces(text);
        return kQvxOK;
    }
    QvxHandle value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsText(parser, element, index, &value))
        return status;
    if (value.IsNull())
        return kQvxNoValue;
    CopyTextHandleToCString(value, size, text);
    TrimTrailingSpaces(text);
    return kQvxOK;
}

}  // namespace

void CopyTextHandleToCString(const QvxHandle& handle, std::size_t size, std::string* text)
{
    CopyText(handle.Text(), size, text);
}

QvxStatus CopyCStringToTextHandle(std::string_view text, QvxHandle* handle)
{
    if (!handle)
        return kQvxBadArgument;
    QvxHandle made = Qvx_NewHandle(static_cast<std::int64_t>(text.size()));
    if (made.IsNull())
        return kQvxNoMemory;
    Qvx_BlockMoveData(text.data(), made.Data(), static_cast<std::int64_t>(text.size()));
    *handle = std::move(made);
    return kQvxOK;
}

QvxStatus Parser_JoinElementValues(ParserHandle parser, QvxElementRef element, bool skipEmpty,
                                   std::size_t size, std::string* text)
{
    if (!text)
        return kQvxBadArgument;
    text->clear();
    QvxStatus status = kQvxNoMemory;
    try {
        status = JoinValues(parser, element, skipEmpty, size, text);
    } catch (const std::bad_alloc&) {
    }
    if (status)
        text->clear();
    return status;
}

QvxStatus Parser_GetElementValueInCString(ParserHandle parser, QvxElementRef element,
                                          std::int32_t index, std::size_t size, std::string* text)
{
    if (index == kAllValues)
        return Parser_JoinElementValues(parser, element, false, size, text);
    if (!text)
        return kQvxBadArgument;
    text->clear();
    try {
        return OneValue(parser, element, index, size, text);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus Parser_GetElementValueInCString(ParserHandle parser, QvxElementRef parent,
                                          std::uint16_t group, std::uint16_t element,
                                          std::int32_t index, std::size_t size, std::string* text)
{
    if (!text)
        return kQvxBadArgument;
    text->clear();
    QvxElementRef found = QvxElementRef::None;
    if (const QvxStatus status = Qvx2Reader_FindElement(parser, parent, {group, element}, &found))
        return status;
    return Parser_GetElementValueInCString(parser, found, index, size, text);
}

QvxStatus Parser_GetElementValue(ParserHandle parser, QvxElementRef parent, std::uint16_t group,
                                 std::uint16_t element, std::int32_t index,
                                 QvxNumericValueType* type, ParserNumber* value)
{
    if (!type || !value)
        return kQvxBadArgument;
    QvxElementRef found = QvxElementRef::None;
    if (const QvxStatus status = Qvx2Reader_FindElement(parser, parent, {group, element}, &found))
        return status;
    QvxElementValue read;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(parser, found, index, &read))
        return status;
    if (read.fType >= QvxNumericValueType::Float64)
        return kQvxUnsupported;
    if (read.fType == QvxNumericValueType::Float32) {
        *value = read.fFloat32;
    } else {
        std::int32_t whole = 0;
        if (const QvxStatus status = Parser_GetElementValueAsLong(parser, found, index, &whole))
            return status;
        *value = whole;
    }
    *type = read.fType;
    return kQvxOK;
}

std::int32_t GetNumericElemValueAsLong(ParserHandle parser, QvxElementRef element,
                                       std::int32_t index)
{
    std::int32_t number = 0;
    return Parser_GetElementValueAsLong(parser, element, index, &number) ? 0 : number;
}

std::uint32_t GetNumericElemValueAsULong(ParserHandle parser, QvxElementRef element,
                                         std::int32_t index)
{
    return static_cast<std::uint32_t>(GetNumericElemValueAsLong(parser, element, index));
}

bool Parser_FileModalityIsAcceptable(ParserHandle parser)
{
    std::string modality;
    return Parser_GetElementValueInCString(parser, QvxElementRef::None, kTagModality.group,
                                           kTagModality.element, 1, 17, &modality) ||
           modality != "SR";
}

bool Parser_FileHasPixelData(ParserHandle parser)
{
    std::uint32_t frames = 0;
    return !Qvx2Reader_GetNumberOfFrames(parser, kFramesClaimed, &frames) && frames != 0;
}

bool Parser_FileIsDICOMDIR(ParserHandle parser, std::uint32_t* recordCount, QvxElementRef* sequence)
{
    if (recordCount)
        *recordCount = 0;
    if (sequence)
        *sequence = QvxElementRef::None;
    if (!parser)
        return false;
    // A walk that breaks off is reported once, by its first caller; what it built is asked below.
    static_cast<void>(CheckAndFillDICOMHeaderPointers(parser, QvxParseMode::Lazy, 0));
    std::string uid;
    const QvxStatus status =
        Parser_GetElementValueInCString(parser, QvxElementRef::None, kTagMediaStorageSOPClass.group,
                                        kTagMediaStorageSOPClass.element, 1, 256, &uid);
    const bool isDirectory = !status && uid == kUidMediaDirectory;
    QvxElementRef records = QvxElementRef::None;
    if ((!recordCount && !sequence) ||
        Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagDirectoryRecords, &records))
        return isDirectory;
    if (sequence)
        *sequence = records;
    if (recordCount) {
        // Records behind a damaged one don't count; those in front of it do.
        QvxElementRefArray refs;
        static_cast<void>(Qvx2Reader_GetElementRefs(parser, records, &refs));
        *recordCount = static_cast<std::uint32_t>(QvxRefsOf(refs).size());
    }
    return isDirectory;
}
