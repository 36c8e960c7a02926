#include "tool/demo/DemoFileWriter.h"

#include "tool/demo/DemoEncode.h"
#include "tool/demo/DemoHeader.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr std::string_view kUidDirectory = "1.2.840.10008.1.3.10";

// 0 or an errno. Nothing is left behind on failure.
int WriteWhole(const std::string& path, std::string_view bytes)
{
    ::unlink(path.c_str());  // of a run that was killed
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (file < 0)
        return errno;
    int error = 0;
    while (!bytes.empty() && error == 0) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            error = errno;
    }
    if (::close(file) != 0 && error == 0)
        error = errno;
    if (error != 0)
        ::unlink(path.c_str());
    return error;
}

}  // namespace

std::string DemoFileHead(std::string_view sopClass, std::string_view instance, DemoSyntax syntax)
{
    DemoDataSet meta;
    meta.Text(0x00020001, "OB", std::string_view("\0\1", 2));
    meta.Text(0x00020002, "UI", sopClass);
    meta.Text(0x00020003, "UI", instance);
    meta.Text(0x00020010, "UI", DemoSyntax_Row(syntax).uid);
    meta.Text(0x00020012, "UI", "2.25.1480239867104935672138057719342650117");
    meta.Text(0x00020013, "SH", "ZELORA_DEMO_1");
    const std::string group = meta.Encoded(DemoSyntax::ExplicitLittle);
    DemoDataSet length;
    length.Longs(0x00020000, {static_cast<std::int64_t>(group.size())});
    return std::string(128, '\0') + "DICM" + length.Encoded(DemoSyntax::ExplicitLittle) + group;
}

QvxStatus DemoFolder::Fail(const std::string& path, int error)
{
    fFailure = path + ": " + std::generic_category().message(error);
    return error == ENOSPC ? kQvxDiskFull : error;
}

QvxStatus DemoFolder::MakeFolder(std::string_view name)
{
    const std::string path = name.empty() ? fPath : fPath + '/' + std::string(name);
    struct stat status{};
    if (::mkdir(path.c_str(), 0755) == 0)
        return kQvxOK;
    const int error = errno;
    if (error == EEXIST && ::stat(path.c_str(), &status) == 0)
        return S_ISDIR(status.st_mode) ? kQvxOK : Fail(path, ENOTDIR);
    return Fail(path, error);
}

QvxStatus DemoFolder::Write(const std::string& name, std::string_view bytes)
{
    for (std::size_t end = name.find('/'); end != name.npos; end = name.find('/', end + 1)) {
        if (const QvxStatus status = MakeFolder(name.substr(0, end)))
            return status;
    }
    const std::string path = fPath + '/' + name, partial = path + ".partial";
    if (const int error = WriteWhole(partial, bytes))
        return Fail(path, error);
    if (::rename(partial.c_str(), path.c_str()) != 0) {
        const int error = errno;
        ::unlink(partial.c_str());
        return Fail(path, error);
    }
    return kQvxOK;
}

QvxStatus DemoFolder::WriteFile(const std::string& name, const DemoDataSet& dataSet,
                                DemoSyntax syntax)
{
    std::string body = dataSet.Encoded(syntax);
    if (syntax == DemoSyntax::Deflated) {
        std::string deflated;
        if (const QvxStatus status = DemoEncode_Deflate(body, &deflated))
            return status;
        body = std::move(deflated);
    }
    fDirectory.Add(name, dataSet, syntax);
    return Write(name, DemoFileHead(dataSet.ValueOf(kDemoSOPClass),
                                    dataSet.ValueOf(kDemoSOPInstance), syntax) +
                           body);
}

QvxStatus DemoFolder::WriteDirectory()
{
    const std::string head =
        DemoFileHead(kUidDirectory, DemoUid("directory"), DemoSyntax::ExplicitLittle);
    return Write("DICOMDIR", head + fDirectory.Encoded(head.size()));
}
