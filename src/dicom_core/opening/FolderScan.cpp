#include "dicom_core/opening/FolderScan.h"

#include "dicom_core/opening/Classify.h"
#include "dicom_core/opening/FolderListing.h"
#include "dicom_core/opening/HeaderAhead.h"
#include "dicom_core/opening/LeftOut.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ProgressCalls.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "platform/Words.h"

#include <algorithm>

namespace {

constexpr std::chrono::milliseconds kCancelPoll{50};  // while a header doesn't come

// Takes the entries of a listing one by one, with the headers that the pool reads.
class FolderScan {
public:
    FolderScan(const FolderListing* listing, dk_DicomBaseElem* collection, OpenSettings* settings);
    [[nodiscard]] QvxStatus Run();

private:
    [[nodiscard]] QvxStatus Step(const ListedEntry& entry);
    [[nodiscard]] QvxStatus TakeFile(std::string path);
    void AddImage(std::string path, ImageHeader* header);

    const FolderListing* fListing;
    dk_DicomBaseElem* fCollection;
    OpenSettings* fSettings;
    TextPool fTexts;
    const DicomImageFileRec* fLast = nullptr;  // of the file added last
    std::vector<std::uint32_t> fToRead;        // entries whose headers the pool reads
    HeaderAhead fAhead;
};

std::vector<std::uint32_t> EntriesToRead(const FolderListing& listing)
{
    std::vector<std::uint32_t> wanted;
    for (std::size_t i = 0; i < listing.fEntries.size(); ++i)
        if (listing.fEntries[i].IsToRead())
            wanted.push_back(static_cast<std::uint32_t>(i));
    return wanted;
}

FolderScan::FolderScan(const FolderListing* listing, dk_DicomBaseElem* collection,
                       OpenSettings* settings)
    : fListing(listing),
      fCollection(collection),
      fSettings(settings),
      fToRead(EntriesToRead(*listing)),
      fAhead(fToRead.size(), [this](std::size_t index) {
          return fListing->PathOf(fListing->fEntries[fToRead[index]]);
      })
{
}

QvxStatus FolderScan::Step(const ListedEntry& entry)
{
    if (entry.fIsFolder)
        return U_StepTheOpenProgressDialog(fSettings);
    return U_StepTheOpenProgressDialog(fSettings, [&entry] {
        return QStringLiteral("%1%2").arg(ZelWord(kWordsMain, "progrOpen_ExaminingFile"),
                                          DisplayName(entry.fName));
    });
}

void FolderScan::AddImage(std::string path, ImageHeader* header)
{
    header->fRecord.ShareTexts(&fTexts, fLast);
    auto source = std::make_unique<zelImageSource>();
    source->ImportFromHeader(FileRef{std::move(path)}, header->fIdentity, header->fFrameCount);
    auto file = std::make_unique<dk_ImageFile>();
    file->SetSourceFile(source.release());  // which the file disposes of
    file->SetParserInfoData(header->fRecord);
    fLast = file->GetParserInfoData();
    fCollection->AddChild(std::move(file));
}

QvxStatus FolderScan::TakeFile(std::string path)
{
    ImageHeader* header = nullptr;
    while (!(header = fAhead.Next(kCancelPoll)))
        if (const QvxStatus status = U_ProgressCheckForCancel(fSettings))
            return status;
    if (header->fVerdict == HeaderVerdict::Image)
        AddImage(std::move(path), header);
    else
        fSettings->dcmDBRoot->LeaveOut(std::move(path), LeftOutReason(*header));
    return kQvxOK;
}

QvxStatus FolderScan::Run()
{
    for (const ListedEntry& entry : fListing->fEntries) {
        if (const QvxStatus status = Step(entry))
            return status;
        if (!entry.fLeftOut.empty())
            fSettings->dcmDBRoot->LeaveOut(fListing->PathOf(entry), std::string(entry.fLeftOut));
        else if (!entry.fIsFolder)
            if (const QvxStatus status = TakeFile(fListing->PathOf(entry)))
                return status;
    }
    return kQvxOK;
}

// A folder of nothing but hidden files opens without a dialog.
bool IsWorthADialog(const std::vector<CatalogEntry>& entries, bool recursive)
{
    return std::ranges::any_of(entries, [recursive](const CatalogEntry& entry) {
        return !entry.fHidden && (recursive || entry.fKind != CatalogKind::Folder);
    });
}

QvxStatus ListAndScan(const std::string& path, bool recursive, std::vector<CatalogEntry> top,
                      dk_DicomBaseElem* collection, OpenSettings* settings)
{
    FolderListing listing;
    const auto poll = [settings] { return U_ProgressCheckForCancel(settings); };
    if (const QvxStatus status =
            ListForScan(path, std::move(top), recursive, settings->dcmDBRoot, poll, &listing))
        return status;
    const auto files = std::ranges::count(listing.fEntries, false, &ListedEntry::fIsFolder);
    if (const QvxStatus status = U_ProgressUpdate(
            settings, kProgressBeginCounted, 0,
            static_cast<std::int32_t>(std::min<std::ptrdiff_t>(files, INT32_MAX)), 0, {}, {}))
        return status;
    return FolderScan(&listing, collection, settings).Run();
}

}  // namespace

QvxStatus AddFileToCollection(const std::string& path, dk_DicomBaseElem* collection,
                              OpenSettings* settings)
{
    if (U_File_IsInvisible(path)) {
        settings->dcmDBRoot->LeaveOut(path, std::string(kLeftOutHidden));
        return kQvxOK;
    }
    auto file = std::make_unique<dk_ImageFile>();
    if (const QvxStatus status = file->SetSourceFile(FileRef{path}, kImportDicom)) {
        settings->dcmDBRoot->LeaveOut(path, LeftOutReason(status));
        return status;
    }
    collection->AddChild(std::move(file));
    return kQvxOK;
}

QvxStatus ScanDirectoryContents(const std::string& path, bool recursive,
                                dk_DicomBaseElem* collection, OpenSettings* settings)
{
    std::vector<CatalogEntry> top;
    if (const QvxStatus status = ListFolder(path, &top))
        settings->dcmDBRoot->LeaveOut(path, LeftOutReason(status));
    if (IsWorthADialog(top, recursive) && !settings->progressIsON)
        CreateTheOpenProgressDialog(settings);
    const QvxStatus status = ListAndScan(path, recursive, std::move(top), collection, settings);
    const QvxStatus atEnd = U_ProgressUpdate(settings, kProgressIndeterminate, 0, 0, 0, {}, {});
    static_cast<void>(atEnd);  // a cancel shows at the next step
    return status;
}
