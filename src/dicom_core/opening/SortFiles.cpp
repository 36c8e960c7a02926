// Order of the files of an open, and its copies.
#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/LeftOut.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace {

dk_ImageFile* FileOf(dk_DicomBaseElem* child) { return static_cast<dk_ImageFile*>(child); }

// What tells one image from another. Images without a UID are told apart by their series' number
// alone.
struct ImageKey {
    std::string_view fInstanceUID;
    std::int32_t fSeriesNumber;
    bool operator==(const ImageKey&) const = default;
};

struct ImageKeyHash {
    std::size_t operator()(const ImageKey& key) const
    {
        constexpr std::size_t kOdd = 0x9E3779B97F4A7C15u;
        const auto number = static_cast<std::uint32_t>(key.fSeriesNumber);
        return std::hash<std::string_view>()(key.fInstanceUID) ^ (number * kOdd);
    }
};

}  // namespace

// Files that agree in every key change places each time they meet in an exchange sort, so that they
// end up in the opposite order of their listing: a stable sort of the reversed list.
void SortImageFilesForPatientList(dk_DicomBaseElem* collection)
{
    std::vector<dk_DicomBaseElem*> files;
    files.reserve(static_cast<std::size_t>(collection->GetNumChildren()));
    for (dk_DicomBaseElem* child = collection->GetFirstChild(); child; child = child->GetNext())
        files.push_back(child);
    std::ranges::reverse(files);
    std::ranges::stable_sort(files, [](dk_DicomBaseElem* a, dk_DicomBaseElem* b) {
        return !FileOf(b)->IsBefore(FileOf(a));  // which holds for equal ones too
    });
    collection->OrderChildren(files);
}

void FindIdenticalImageFilesInList(dk_DicomBaseElem* collection, ZELDcmTree* tree)
{
    std::unordered_map<ImageKey, dk_ImageFile*, ImageKeyHash> met;
    met.reserve(static_cast<std::size_t>(collection->GetNumChildren()));
    dk_DicomBaseElem* child = collection->GetFirstChild();
    while (child) {
        dk_ImageFile* file = FileOf(child);
        const DicomImageFileRec& record = *file->GetParserInfoData();
        const ImageKey key{record.recSOPInstanceUID.View(), record.recSeriesNumber};
        const auto [first, isNew] = met.try_emplace(key, file);
        if (isNew) {
            child = child->GetNext();
            continue;
        }
        tree->LeaveOut(file->GetSource()->GetDataPath(),
                       LeftOutCopyOf(first->second->GetSource()->GetDataPath()));
        child = collection->DeleteChildAndGetNext(child);
    }
}
