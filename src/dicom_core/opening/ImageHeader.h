// What an open needs of one image file: read once, in one use of the file, and handed over whole.
#pragma once
#include "dicom_core/tree/DicomImageFileRec.h"
#include "util/FileRef.h"

#include "Qvx2Parser/Qvx2Reader.h"
#include <string>

enum class HeaderVerdict : std::uint8_t {
    Image,
    Failed,    // `fStatus` says why
    Report,    // Modality SR
    NoPixels,  // no frame of pixel data
};

struct ImageHeader {
    HeaderVerdict fVerdict = HeaderVerdict::Failed;
    QvxStatus fStatus = kQvxOK;
    // The rest only of an image.
    std::int32_t fFrameCount = 0;
    FileIdentity fIdentity;
    DicomImageFileRec fRecord;
};

// The verdict on the header behind `parser`, and the record if it is an image. Texts that `like`
// holds too are shared with it, which must belong to this thread then.
void TakeImageHeader(ParserHandle parser, ImageHeader* header, const DicomImageFileRec* like);
// Opens, validates and reads the file at `path` (bytes) and closes it again. Any thread.
void ReadImageHeader(const std::string& path, ImageHeader* header, const DicomImageFileRec* like);
// Why a header that is no image's is left out.
[[nodiscard]] std::string LeftOutReason(const ImageHeader& header);
