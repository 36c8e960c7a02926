#include "dicom_core/opening/PathNames.h"

#include "util/Log.h"

#include <filesystem>
#include <system_error>

namespace {

std::string WithoutTrailingSlashes(std::string path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

}  // namespace

std::string LastComponent(const std::string& path)
{
    const std::string whole = WithoutTrailingSlashes(path);
    return whole == "/" ? whole : whole.substr(whole.rfind('/') + 1);
}

std::string ParentFolder(const std::string& path)
{
    const std::string whole = WithoutTrailingSlashes(path);
    const std::size_t slash = whole.rfind('/');
    if (slash == std::string::npos)
        return {};
    return WithoutTrailingSlashes(whole.substr(0, slash + 1));
}

std::string JoinedPath(const std::string& folder, const std::string& name)
{
    return folder.empty() || folder.ends_with('/') ? folder + name : folder + '/' + name;
}

QString DisplayName(const std::string& path)
{
    return QString::fromStdString(EscapedText(LastComponent(path)));
}

std::string StandardisedPath(const std::string& path)
{
    std::error_code failed;
    const std::filesystem::path whole = std::filesystem::absolute(path, failed);
    return WithoutTrailingSlashes(
        (failed ? std::filesystem::path(path) : whole).lexically_normal().string());
}
