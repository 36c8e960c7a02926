// What a header, or a directory record, gives the record that an open sorts and groups by.
#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/TrimText.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

namespace {

using Rec = DicomImageFileRec;

// One run over the elements of a header or a directory record.
struct Collecting {
    ParserHandle fParser = nullptr;
    Rec* fRecord = nullptr;
    const Rec* fLike = nullptr;  // the record of a file nearby: texts that are equal are shared
    std::string fText;           // of the element at hand

    // An element that is there and empty is no fault: the field is empty too.
    QvxStatus Read(QvxElementRef element, std::int32_t index, std::size_t size)
    {
        const QvxStatus status =
            Parser_GetElementValueInCString(fParser, element, index, size, &fText);
        return status == kQvxNoValue ? kQvxOK : status;
    }
    template <auto Field>
    void Put(std::string_view text)
    {
        if (fLike && (fLike->*Field).View() == text)
            fRecord->*Field = fLike->*Field;
        else
            (fRecord->*Field).Assign(text);
    }
};

template <auto Field>
constexpr std::size_t kCapacityOf = std::remove_cvref_t<decltype(Rec{}.*Field)>::kCapacity;

// What the standard gives one value: codes, UIDs, dates.
template <auto Field>
QvxStatus TakeValue(Collecting* run, QvxElementRef element)
{
    const QvxStatus status = run->Read(element, 1, kCapacityOf<Field>);
    run->Put<Field>(run->fText);
    return status;
}

// What people have written. A backslash can be half of a character there, so nothing is cut off at
// it.
template <auto Field>
QvxStatus TakeWords(Collecting* run, QvxElementRef element)
{
    const QvxStatus status = run->Read(element, kAllValues, kCapacityOf<Field>);
    run->Put<Field>(run->fText);
    return status;
}

template <std::int32_t Rec::* Field>
QvxStatus TakeNumber(Collecting* run, QvxElementRef element)
{
    run->fRecord->*Field = GetNumericElemValueAsLong(run->fParser, element, 1);
    return kQvxOK;
}

QvxStatus TakePatientName(Collecting* run, QvxElementRef element)
{
    const QvxStatus status = run->Read(element, kAllValues, kCapacityOf<&Rec::recPatientName>);
    TrimCarets(&run->fText);
    TrimTrailingSpaces(&run->fText);
    run->Put<&Rec::recPatientName>(run->fText);
    return status;
}

QvxStatus TakeStudyID(Collecting* run, QvxElementRef element)
{
    const QvxStatus status = run->Read(element, kAllValues, kCapacityOf<&Rec::recStudyID>);
    const bool isZero = run->fText.find_first_not_of('0') == std::string::npos;
    run->Put<&Rec::recStudyID>(isZero ? std::string_view() : run->fText);
    return status;
}

QvxStatus TakeFileID(Collecting* run, QvxElementRef element)
{
    const QvxStatus status = run->Read(element, kAllValues, kCapacityOf<&Rec::recRelPath>);
    if (status || run->fText.empty())
        return status;
    std::string path, name;
    DicomUtil_RefFileIDToPath(run->fText, &path);
    DicomUtil_SplitFilenameFromRelPathToParent(&path, &name);
    if (name.empty() && path.size() > 1)  // a file beside the directory
        name = std::exchange(path, {}).substr(1);
    run->Put<&Rec::recRelPath>(path);
    run->Put<&Rec::recFileName>(name);
    return kQvxOK;
}

QvxStatus TakeRecordType(Collecting* run, QvxElementRef element)
{
    constexpr std::size_t kTypeBytes = 256;
    const QvxStatus status = run->Read(element, 1, kTypeBytes);
    run->fRecord->recType = DicomUtil_DirRecordType(run->fText);
    return status;
}

struct CollectedRow {
    QvxElementTag fTag;
    QvxStatus (*fTake)(Collecting*, QvxElementRef);
};
// By tag, ascending.
constexpr auto kCollected = std::to_array<CollectedRow>({
    {{0x0004, 0x1430}, TakeRecordType},
    {{0x0004, 0x1500}, TakeFileID},
    {{0x0008, 0x0018}, TakeValue<&Rec::recSOPInstanceUID>},
    {{0x0008, 0x0020}, TakeValue<&Rec::recStudyDate>},
    {{0x0008, 0x0030}, TakeValue<&Rec::recStudyTime>},
    {{0x0008, 0x0050}, TakeWords<&Rec::recAccessionNumber>},
    {{0x0008, 0x0060}, TakeValue<&Rec::recModality>},
    {{0x0008, 0x103E}, TakeWords<&Rec::recSeriesDescription>},
    {{0x0010, 0x0010}, TakePatientName},
    {{0x0010, 0x0020}, TakeWords<&Rec::recPatientID>},
    {{0x0010, 0x0040}, TakeValue<&Rec::recPatientSex>},
    {{0x0018, 0x0015}, TakeValue<&Rec::recBodyPart>},
    {{0x0020, 0x000D}, TakeValue<&Rec::recStudyUID>},
    {{0x0020, 0x000E}, TakeValue<&Rec::recSeriesUID>},
    {{0x0020, 0x0010}, TakeStudyID},
    {{0x0020, 0x0011}, TakeNumber<&Rec::recSeriesNumber>},
    {{0x0020, 0x0013}, TakeNumber<&Rec::recInstanceNumber>},
    {{0x0028, 0x0008}, TakeNumber<&Rec::recNumFrames>},
});

constexpr std::size_t kOfDirectories = 2;  // rows that only directories have

constexpr auto kTagsOfHeaders = [] {
    std::array<QvxElementTag, kCollected.size() - kOfDirectories> tags;
    for (std::size_t i = 0; i < tags.size(); ++i)
        tags[i] = kCollected[kOfDirectories + i].fTag;
    return tags;
}();

}  // namespace

QvxStatus CollectRecordData(ParserHandle parser, QvxElementRef reference, Rec* record)
{
    QvxElementRefArray elements;
    if (const QvxStatus status = Qvx2Reader_GetElementRefs(parser, reference, &elements))
        return status;
    Collecting run{parser, record, nullptr, {}};
    QvxStatus last = kQvxOK;
    for (const QvxElementRef element : QvxRefsOf(elements)) {
        QvxElementTag tag;
        if (Qvx2Reader_GetElementTag(parser, element, &tag))
            continue;
        const auto row = std::ranges::lower_bound(kCollected, tag, {}, &CollectedRow::fTag);
        if (row != kCollected.end() && row->fTag == tag)
            last = row->fTake(&run, element);
    }
    return last;
}

void File_CollectDicomData(ParserHandle parser, Rec* record, const Rec* like)
{
    std::array<QvxElementRef, kTagsOfHeaders.size()> found;
    if (Qvx2Reader_FindTopLevelElements(parser, kTagsOfHeaders, found))
        return;
    Collecting run{parser, record, like, {}};
    // A field whose value can't be read stays empty; the other fields don't mind.
    for (std::size_t i = 0; i < found.size(); ++i)
        if (found[i] != QvxElementRef::None)
            static_cast<void>(kCollected[kOfDirectories + i].fTake(&run, found[i]));
}
