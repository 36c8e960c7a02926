#include "dicom_core/opening/ImageHeader.h"

#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/LeftOut.h"
#include "dicom_core/values/ParserOpen.h"
#include "dicom_core/values/ParserText.h"

#include <new>

void TakeImageHeader(ParserHandle parser, ImageHeader* header, const DicomImageFileRec* like)
{
    header->fVerdict = HeaderVerdict::Failed;
    header->fStatus = Parser_WalkHeader(parser);
    if (header->fStatus)
        return;
    std::uint32_t claimed = 0;
    if (!Parser_FileModalityIsAcceptable(parser)) {
        header->fVerdict = HeaderVerdict::Report;
    } else if (Qvx2Reader_GetNumberOfFrames(parser, kFramesClaimed, &claimed) || claimed == 0) {
        header->fVerdict = HeaderVerdict::NoPixels;
    } else if (claimed > INT32_MAX) {
        header->fStatus = kQvxMalformed;
    } else {
        DicomImageFileRec& record = header->fRecord;
        record.recType = kDirRecordOther;
        File_CollectDicomData(parser, &record, like);
        header->fFrameCount = static_cast<std::int32_t>(claimed);
        if (record.recNumFrames == 0)
            record.recNumFrames = header->fFrameCount;
        header->fIdentity = Qvx2Reader_FileIdentity(parser);
        header->fVerdict = HeaderVerdict::Image;
    }
}

void ReadImageHeader(const std::string& path, ImageHeader* header, const DicomImageFileRec* like)
{
    *header = {};
    try {
        QvxReaderPtr parser;
        header->fStatus = Qvx2Parser_Open(&parser, path.c_str(), kQvxProgramOptions);
        if (header->fStatus)
            return;
        const QvxReaderUse use(parser.get());  // one for all, or each would open the file anew
        bool valid = false;
        header->fStatus = Qvx2Reader_ValidateDataRef(parser.get(), &valid);
        if (!header->fStatus && !valid)
            header->fStatus = kQvxNotOfKind;
        if (!header->fStatus)
            TakeImageHeader(parser.get(), header, like);
    } catch (const std::bad_alloc&) {
        *header = {};
        header->fStatus = kQvxNoMemory;
    }
}

std::string LeftOutReason(const ImageHeader& header)
{
    switch (header.fVerdict) {
        case HeaderVerdict::Report:
            return std::string(kLeftOutReport);
        case HeaderVerdict::NoPixels:
            return std::string(kLeftOutNoPixels);
        default:
            return LeftOutReason(header.fStatus);
    }
}
