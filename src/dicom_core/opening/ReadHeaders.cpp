#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/ImageHeader.h"
#include "dicom_core/opening/LeftOut.h"
#include "dicom_core/opening/ProgressCalls.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "platform/Words.h"

namespace {

QvxStatus StepFor(dk_ImageFile* file, OpenSettings* settings)
{
    return U_StepTheOpenProgressDialog(settings, [file] {
        return QStringLiteral("%1%2").arg(ZelWord(kWordsMain, "progrOpen_ReadingFile"),
                                          file->Copy_DK_DisplayTitle());
    });
}

// The file's record, from its header unless that was read ahead. What stands against the file, or
// nothing.
std::string ReadRecord(dk_ImageFile* file)
{
    if (file->GetParserInfoData())
        return {};
    zelImageSource* source = file->GetSource();
    ImageHeader header;
    header.fStatus = kQvxNotOfKind;
    if (!source->GetDataFile().Empty() && source->IsDICOM()) {
        const zelParserVisit visit(source);
        if (visit.Parser())
            TakeImageHeader(visit.Parser(), &header, nullptr);
        else
            header.fStatus = source->LoadDicomParser();  // says why
    }
    source->ReleaseParser();
    if (header.fVerdict != HeaderVerdict::Image)
        return LeftOutReason(header);
    file->SetParserInfoData(header.fRecord);
    return {};
}

// What stands against the file, or nothing.
std::string TakeIn(dk_ImageFile* file, const std::string& cacheFolder, bool copy,
                   OpenSettings* settings)
{
    const std::string reason = ReadRecord(file);
    if (!reason.empty() || !copy)
        return reason;
    const FileRef origin = file->GetSource()->GetDataFile();
    if (!CopyFolderFileToCache(file, origin, cacheFolder, settings))
        return std::string(kLeftOutNotCopied);
    if (zelImageSource* source = file->GetSource())
        source->ReleaseParser();
    return {};
}

}  // namespace

QvxStatus ParseCollectionAndReadFileData(dk_DicomBaseElem* collection,
                                         const std::string& cacheFolder, bool copy,
                                         OpenSettings* settings)
{
    dk_DicomBaseElem* child = collection->GetFirstChild();
    while (child) {
        auto* file = static_cast<dk_ImageFile*>(child);
        if (!file->GetSource()) {
            child = collection->DeleteChildAndGetNext(child);
            continue;
        }
        if (const QvxStatus status = StepFor(file, settings))
            return status;
        if (!copy && file->GetParserInfoData()) {  // read ahead
            child = child->GetNext();
            continue;
        }
        std::string path = file->GetSource()->GetDataPath();
        std::string reason = TakeIn(file, cacheFolder, copy, settings);
        if (reason.empty()) {
            child = child->GetNext();
            continue;
        }
        settings->dcmDBRoot->LeaveOut(std::move(path), std::move(reason));
        child = collection->DeleteChildAndGetNext(child);
    }
    return U_ProgressCheckForCancel(settings);  // within the last file
}
