#include "dicom_core/opening/PathNames.h"

#include "util/Log.h"

#include <QStringDecoder>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

namespace {

std::string WithoutTrailingSlashes(std::string path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

std::string RealPath(const std::string& path)
{
    struct FreeText {
        void operator()(char* text) const noexcept { std::free(text); }
    };
    const std::unique_ptr<char, FreeText> real(realpath(path.c_str(), nullptr));
    return real ? real.get() : std::string();
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

std::string UpperCaseName(std::string_view name)
{
    if (!std::ranges::all_of(name, [](char c) { return (c & 0x80) == 0; })) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
        const QString text = decoder(QByteArrayView(name.data(), std::ssize(name)));
        if (!decoder.hasError())
            return text.toUpper().toStdString();
    }
    std::string upper(name);
    std::ranges::transform(upper, upper.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return upper;
}

std::string RealFolder(const std::string& path)
{
    const std::string real = RealPath(path);
    return real.empty() ? real : JoinedPath(real, "");
}

bool LeadsInto(const std::string& link, const std::string& realFolder)
{
    return !realFolder.empty() && RealPath(link).starts_with(realFolder);
}
