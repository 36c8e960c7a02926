// What a source says of its file.
#include "util/Log.h"

#include "qpix/DicomImporter.h"
#include "qpix/zelImageSource.h"
#include <algorithm>
#include <charconv>
#include <new>
#include <string_view>
#include <sys/stat.h>

namespace {

// Letters, digits and marks that stand in a URL's path as they are (RFC 3986).
bool PlainInURL(unsigned char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("/-._~").find(static_cast<char>(c)) != std::string_view::npos;
}

// The path that a "file:" URL names on this machine (RFC 8089).
bool PathOfURL(std::string_view url, std::string* path)
{
    for (const std::string_view begin : {"file://localhost/", "file:///"}) {
        if (!url.starts_with(begin))
            continue;
        for (std::size_t i = begin.size() - 1; i < url.size(); ++i) {
            unsigned value = 0;
            const char* const digits = url.data() + i + 1;
            if (url[i] != '%') {
                path->push_back(url[i]);
                continue;
            }
            if (url.size() - i < 3 ||
                std::from_chars(digits, digits + 2, value, 16).ptr != digits + 2)
                return false;
            path->push_back(static_cast<char>(value));
            i += 2;
        }
        return true;
    }
    return false;
}

}  // namespace

std::string FileURLOf(const FileRef& file)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    if (file.Empty())
        return {};
    std::string url = "file://";
    for (const char c : file.fPath) {
        const auto byte = static_cast<unsigned char>(c);
        if (PlainInURL(byte))
            url += c;
        else
            url += {'%', kHex[byte >> 4], kHex[byte & 15]};
    }
    return url;
}

const std::string& zelImageSource::GetDataPath() const
{
    return fFromURL ? fMore->fURL : fFile.fPath;
}

const std::string& zelImageSource::GetFileName()
{
    std::string& name = More().fFileName;
    if (name.empty())
        name = fFile.fPath.substr(fFile.fPath.rfind('/') + 1);  // none: the whole path
    return name;
}

std::string zelImageSource::GetFileNameNoExtension()
{
    const std::string& name = GetFileName();
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

const std::string& zelImageSource::GetDataPath_UTF8()
{
    std::optional<std::string>& path = More().fPathUTF8;
    if (!path)
        path = EscapedText(GetDataPath());
    return *path;
}

const std::string& zelImageSource::GetFileName_UTF8()
{
    std::optional<std::string>& name = More().fNameUTF8;
    if (!name)
        name = EscapedText(GetFileName());
    return *name;
}

QvxStatus zelImageSource::GetDataRef(FileRef* file) const
{
    if (!file)
        return kQvxBadArgument;
    if (const CImporterPlus* importer = Importer())
        return importer->GetDataRef(file);
    *file = fFile;
    return kQvxOK;
}

QvxStatus zelImageSource::ImportFromURL(std::string_view url)
{
    FileRef file;
    const bool local = PathOfURL(url, &file.fPath);
    std::string kept(url.substr(0, kMaxURLBytes));  // `url` may be a view of something of ours
    Reset();
    if (!local)
        return kQvxNoDataRefType;
    if (const QvxStatus status = TakeImporter(file))
        return status;
    More().fURL = std::move(kept);
    fFile = std::move(file);
    fFromURL = fValid = true;
    fValidationPending = false;
    const QvxStatus status = fIsDICOM ? LoadDicomParser() : kQvxOK;
    if (status)
        Reset();
    return status;
}

const zelFSInfo* zelImageSource::LoadFSInfo()
{
    if (fFile.Empty() || fFromURL)
        return nullptr;
    std::optional<zelFSInfo>& info = More().fFSInfo;
    struct stat known{};
    if (!info && stat(fFile.fPath.c_str(), &known) == 0)
        // The birth of a file is not told by all systems; its last change of state stands in.
        info = zelFSInfo{0, 0, known.st_ctim.tv_sec, known.st_mtim.tv_sec, known.st_atim.tv_sec};
    return info ? &*info : nullptr;
}

const zelMediaInfo* zelImageSource::LoadMediaInfo()
{
    struct stat known{};
    if (fMore && fMore->fMediaInfo)
        return &*fMore->fMediaInfo;
    zelMediaInfo made;
    if (LoadImporter() || stat(fFile.fPath.c_str(), &known) != 0 ||
        Importer()->GetMIMEType(&made.fMIMEType) ||
        Importer()->GetImportComponentInfo(&made.fImporterName, nullptr))
        return nullptr;
    made.fFileSize = static_cast<std::int32_t>(std::min<off_t>(known.st_size, INT32_MAX));
    More().fMediaInfo = std::move(made);
    return &*fMore->fMediaInfo;
}

QvxStatus zelImageSource::DicomFileFilterProc(const FileRef* file)
{
    static std::unique_ptr<DicomImporter> sShared;
    if (!file) {
        sShared.reset();
        return kQvxOK;
    }
    if (!sShared)
        sShared.reset(new (std::nothrow) DicomImporter);
    if (!sShared)
        return kQvxNoMemory;
    if (const QvxStatus status = sShared->SetDataFile(*file))
        return status;
    bool valid = false;
    const QvxStatus asked = sShared->Validate(&valid);
    return StatusOfValidation(asked, valid);
}
