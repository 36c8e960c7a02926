// What a source says of its file.
#include "util/Log.h"

#include "qpix/DicomImporter.h"
#include "qpix/zelImageSource.h"
#include <algorithm>
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

}  // namespace

std::string zelImageSource::GetFileURL() const
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    if (fFile.Empty())
        return {};
    std::string url = "file://";
    for (const char c : fFile.fPath) {
        const auto byte = static_cast<unsigned char>(c);
        if (PlainInURL(byte))
            url += c;
        else
            url += {'%', kHex[byte >> 4], kHex[byte & 15]};
    }
    return url;
}

const std::string& zelImageSource::GetFileName()
{
    if (fFileName.empty())
        fFileName = fFile.fPath.substr(fFile.fPath.rfind('/') + 1);  // none: the whole path
    return fFileName;
}

std::string zelImageSource::GetFileNameNoExtension()
{
    const std::string& name = GetFileName();
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

const std::string& zelImageSource::GetDataPath_UTF8()
{
    if (!fPathUTF8)
        fPathUTF8 = EscapedText(fFile.fPath);
    return *fPathUTF8;
}

const std::string& zelImageSource::GetFileName_UTF8()
{
    if (!fNameUTF8)
        fNameUTF8 = EscapedText(GetFileName());
    return *fNameUTF8;
}

const zelFSInfo* zelImageSource::LoadFSInfo()
{
    struct stat known{};
    if (!fFSInfo && !fFile.Empty() && stat(fFile.fPath.c_str(), &known) == 0)
        // The birth of a file is not told by all systems; its last change of state stands in.
        fFSInfo = zelFSInfo{0, 0, known.st_ctim.tv_sec, known.st_mtim.tv_sec, known.st_atim.tv_sec};
    return fFSInfo ? &*fFSInfo : nullptr;
}

const zelMediaInfo* zelImageSource::LoadMediaInfo()
{
    struct stat known{};
    if (fMediaInfo)
        return &*fMediaInfo;
    zelMediaInfo made;
    if (LoadImporter() || stat(fFile.fPath.c_str(), &known) != 0 ||
        fImporter->GetMIMEType(&made.fMIMEType) ||
        fImporter->GetImportComponentInfo(&made.fImporterName, nullptr))
        return nullptr;
    made.fFileSize = static_cast<std::int32_t>(std::min<off_t>(known.st_size, INT32_MAX));
    fMediaInfo = std::move(made);
    return &*fMediaInfo;
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
