#include "dicom_core/opening/LeftOut.h"

#include "util/Log.h"

#include <cerrno>

std::string LeftOutReason(QvxStatus status)
{
    switch (status) {
        case kQvxNotOfKind:
            return std::string(kLeftOutNotDicom);
        case ENOENT:
        case ENOTDIR:
            return "vanished";
        case kQvxFileNotFound:
        case ENAMETOOLONG:
            return "its path is too long";
        case kQvxSeekFailed:
            return "changed while it was read";
        default:
            break;
    }
    return (status > 0 ? "unreadable: " : "damaged: ") + std::string(StatusText(status));
}

std::string LeftOutCopyOf(const std::string& path) { return "copy of " + EscapedText(path); }
