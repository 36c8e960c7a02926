// One image file into the cache folder of its tree.
#include "dicom_core/opening/CacheCopy.h"

#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ProgressCalls.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "platform/FileCopy.h"
#include "platform/Words.h"
#include "util/FileNames.h"
#include "util/Log.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace {

constexpr std::uint64_t kMiB = 1024 * 1024;
constexpr std::uint64_t kQuietUpTo = 8 * kMiB;
constexpr int kErrorsBorne = 3;
constexpr int kMostOfOneName = 100000;

struct CopyContext {
    OpenSettings* fSettings = nullptr;  // null: nobody watches
    std::string fSource;
    QvxStatus fError = kQvxOK;
    int fErrorCount = 0;
    std::uint64_t fShown_MiB = 0;
};

QvxStatus ShowProgress(std::uint64_t copied, std::uint64_t total, CopyContext* context)
{
    const std::uint64_t copied_MiB = copied / kMiB;
    // The label would say the same again, but the user may have cancelled.
    if (total <= kQuietUpTo || copied_MiB == context->fShown_MiB)
        return U_ProgressCheckForCancel(context->fSettings);
    context->fShown_MiB = copied_MiB;
    const QString text = ZelWord(kWordsMain, "progrOpen_CopyingFile")
                             .arg(DisplayName(context->fSource), QString::number(copied_MiB),
                                  QString::number(total / kMiB));
    return U_ProgressUpdate(context->fSettings, kProgressLabelThrottled, 0, 0, 0, text, {});
}

// False ends the copy; the context says why.
bool theCopyfileCallback(FileCopyEvent event, std::uint64_t copied, std::uint64_t total,
                         CopyContext* context)
{
    if (context->fSettings)
        context->fError = ShowProgress(copied, total, context);
    if (!context->fError && event == FileCopyEvent::Error && ++context->fErrorCount > kErrorsBorne)
        context->fError = kZelCopyErrors;
    return context->fError == kQvxOK;
}

bool Exists(const std::string& path)
{
    struct stat info{};
    return lstat(path.c_str(), &info) == 0;
}

// A scan takes in links to files of its folder; what is copied is the file itself.
std::string WithoutLink(const std::string& path)
{
    std::error_code failed;
    if (!std::filesystem::is_symlink(path, failed))
        return path;
    const std::string real = std::filesystem::canonical(path, failed).string();
    return failed ? path : real;
}

std::string PathOfSource(const dk_ImageFile& file)
{
    if (!file.fFileSpec.Empty())
        return file.fFileSpec.fPath;
    return file.GetSource() ? file.GetSource()->GetDataPath() : std::string();
}

// The name with the first free number as its extension; room for the number is made in the name.
std::string FreeTarget(const std::string& folder, const std::string& name)
{
    std::string target;
    for (int number = 1; number < kMostOfOneName; ++number) {
        const std::string extension = '.' + std::to_string(number);
        target = JoinedPath(folder,
                            CleanFileName(name, kMaxFileNameBytes - extension.size()) + extension);
        if (!Exists(target))
            break;
    }
    return target;
}

// Empty if there is no copy.
std::string TryCopy(dk_ImageFile* file, const std::string& folder, OpenSettings* settings)
{
    file->fCacheCopyTried = true;
    QvxStatus status = kQvxOK;
    std::string copy = U_CopyFileToHDCache(file, folder, settings, &status);
    if (status && status != kQvxUserCanceled)
        LogLine("not copied to the cache: " + std::string(StatusText(status)) + ": " +
                PathOfSource(*file));
    return copy;
}

}  // namespace

QvxStatus UU_FileCopy(const std::string& source, const std::string& target, OpenSettings* settings)
{
    CopyContext context{.fSettings = settings, .fSource = source};
    const QvxStatus status = CopyOneFile(
        source, target, [&context](FileCopyEvent event, std::uint64_t copied, std::uint64_t total) {
            return theCopyfileCallback(event, copied, total, &context);
        });
    if (status == EEXIST)
        return kZelCopyTargetExists;
    if (context.fError)  // the callback ended the copy
        return context.fError;
    return status < 0 ? kZelCopyFailed : status;
}

std::string U_CopyFileToHDCache(dk_ImageFile* file, const std::string& folder,
                                OpenSettings* settings, QvxStatus* status)
{
    const std::string source = PathOfSource(*file);
    *status = kQvxFileNotFound;
    if (source.empty() && !file->fFileName.Empty())
        LogLine("ATT: sourceURL is nil in U_CopyFileToHDCache, filename: " +
                std::string(file->fFileName.View()));
    if (source.empty() || folder.empty())
        return {};
    const std::string real = WithoutLink(source);
    const std::string name =
        file->fFileName.Empty() ? LastComponent(source) : std::string(file->fFileName.View());
    std::string target = JoinedPath(folder, CleanFileName(name));
    *status = UU_FileCopy(real, target, settings);
    if (*status == kZelCopyTargetExists) {
        target = FreeTarget(folder, name);
        *status = UU_FileCopy(real, target, settings);
    }
    return *status ? std::string() : target;
}

bool CopyDICOMDIRFileToCache(dk_ImageFile* file, const std::string& folder, OpenSettings* settings)
{
    std::string copy = TryCopy(file, folder, settings);
    if (copy.empty())
        return false;
    file->fSourceSpec = file->fFileSpec;
    file->fFileSpec.fPath = std::move(copy);
    return true;
}

bool CopyFolderFileToCache(dk_ImageFile* file, const FileRef& source, const std::string& folder,
                           OpenSettings* settings)
{
    const FileRef origin = source;  // may be the source's own, which goes
    std::string copy = TryCopy(file, folder, settings);
    if (copy.empty())
        return false;
    file->fSourceSpec = origin;
    file->fFileSpec.fPath = std::move(copy);
    file->SetSourceFile(nullptr);
    return file->SetSourceFile(file->fFileSpec, kImportDicom) == kQvxOK;
}
