#include "util/StatusCodes.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

struct StatusWords {
    QvxStatus fStatus;
    std::string_view fText;
};

// clang-format off
constexpr auto kWords = std::to_array<StatusWords>({
    { kQvxOK,              "no error" },
    { kQvxDirectoryFull,   "the folder is full" },
    { kQvxDiskFull,        "the disk is full" },
    { kQvxEndOfFile,       "the file ends too early" },
    { kQvxTooManyFiles,    "too many open files" },
    { kQvxFileNotFound,    "no such file" },
    { kQvxBadArgument,     "bad argument or state" },
    { kQvxNoMemory,        "not enough memory" },
    { kQvxNullHandle,      "missing memory block" },
    { kQvxUserCanceled,    "cancelled" },
    { kQvxLockFailed,      "the pixels can't be had" },
    { kQvxNotOfKind,       "not a DICOM file" },
    { kQvxNoMovie,         "no movie can be made of it" },
    { kQvxNoDataRefType,   "missing data reference type" },
    { kQvxNoDataRef,       "missing data reference" },
    { kQvxNullReader,      "missing reader" },
    { kQvxUnsupported,     "an unsupported kind of data" },
    { kQvxDrawStopped,     "drawing was stopped" },
    { kQvxMalformed,       "malformed data" },
    { kQvxNoDefaultWindow, "no window in the image" },
    { kQvxSeekFailed,      "a broken chain of data" },
    { kQvxBadChain,        "a bad element reference" },
    { kQvxBadValueIndex,   "value index out of range" },
    { kQvxNoDestination,   "missing destination" },
    { kQvxBadMultiplicity, "bad value multiplicity" },
    { kQvxWrongVR,         "the value representation does not allow this" },
    { kQvxNotASequence,    "not a sequence" },
    { kQvxNoResultRecord,  "missing result record" },
    { kQvxNoSuchElement,   "no such element" },
    { kQvxNoValue,         "no value" },
    { kQvxResultNotNull,   "result is not empty" },
    { kQvxOutOfMemory,     "not enough memory" },
    { kQvxNegativeSize,    "negative size" },
    { kQvxNoImporter,      "no importer" },
    { kZelDiscOpenFailed,       "the disc gave no image" },
    { kZelNoPatientInFile,      "the file gave no image" },
    { kZelNoPatientInFolder,    "no DICOM file in the folder" },
    { kZelNoPatientInDirectory, "the DICOMDIR led to no image" },
    { kZelRecentFailed,         "the recent document can't be opened" },
    { kZelCopyErrors,           "too many errors in one copy" },
    { kZelCopyTargetExists,     "the copy's target exists" },
    { kZelCopyFailed,           "the copy failed" },
    { kZelBufferFull,           "the frame buffer is full" },
});
// clang-format on

}  // namespace

std::string_view StatusText(QvxStatus status)
{
    const auto row = std::find_if(kWords.begin(), kWords.end(),
                                  [status](const StatusWords& w) { return w.fStatus == status; });
    if (row != kWords.end())
        return row->fText;
    return status > 0 ? std::string_view(std::strerror(status)) : "unknown error";
}
