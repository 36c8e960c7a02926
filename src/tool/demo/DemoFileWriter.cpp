#include "tool/demo/DemoFileWriter.h"

#include "util/ByteOrder.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr std::uint32_t kTagSOPClass = 0x00080016, kTagSOPInstance = 0x00080018;

template <typename T>
void AppendLE(std::string* out, T number)
{
    std::array<char, sizeof(T)> bytes{};
    StoreLE(bytes.data(), number);
    out->append(bytes.data(), bytes.size());
}

bool HasLongLength(std::string_view vr) { return vr == "OB" || vr == "OW" || vr == "SQ"; }

void AppendElement(std::string* out, std::uint32_t tag, std::string_view vr, std::string_view bytes)
{
    AppendLE(out, static_cast<std::uint16_t>(tag >> 16));
    AppendLE(out, static_cast<std::uint16_t>(tag & 0xFFFF));
    out->append(vr);
    if (HasLongLength(vr)) {
        out->append(2, '\0');
        AppendLE(out, static_cast<std::uint32_t>(bytes.size()));
    } else {
        AppendLE(out, static_cast<std::uint16_t>(bytes.size()));
    }
    out->append(bytes);
}

// Preamble, "DICM" and meta group.
std::string FileHead(const DemoDataSet& dataSet)
{
    DemoDataSet meta;
    meta.Text(0x00020001, "OB", std::string_view("\0\1", 2));
    meta.Text(0x00020002, "UI", dataSet.ValueOf(kTagSOPClass));
    meta.Text(0x00020003, "UI", dataSet.ValueOf(kTagSOPInstance));
    meta.Text(0x00020010, "UI", "1.2.840.10008.1.2.1");
    meta.Text(0x00020012, "UI", "2.25.1480239867104935672138057719342650117");
    meta.Text(0x00020013, "SH", "ZELORA_DEMO_1");
    const std::string group = meta.Encoded();
    std::string length;
    AppendLE(&length, static_cast<std::uint32_t>(group.size()));

    std::string head(128, '\0');
    head += "DICM";
    AppendElement(&head, 0x00020000, "UL", length);
    return head + group;
}

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

void DemoDataSet::Text(std::uint32_t tag, std::string_view vr, std::string_view text)
{
    Value& value = fElements[tag];
    value.vr = vr;
    value.bytes = text;
    if (value.bytes.size() % 2)
        value.bytes += vr == "UI" || vr == "OB" ? '\0' : ' ';
}

void DemoDataSet::Decimals(std::uint32_t tag, std::initializer_list<double> numbers)
{
    std::string text;
    for (const double number : numbers) {
        // A DS holds 16 characters: nine digits leave room for sign, point and exponent.
        std::array<char, 16> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                       std::chars_format::general, 9)
                             .ptr;
        text.append(text.empty() ? "" : "\\").append(digits.data(), end);
    }
    Text(tag, "DS", text);
}

void DemoDataSet::Integer(std::uint32_t tag, int number)
{
    Text(tag, "IS", std::to_string(number));
}

void DemoDataSet::Short(std::uint32_t tag, int number, std::string_view vr)
{
    std::string bytes;
    AppendLE(&bytes, static_cast<std::uint16_t>(number));
    Text(tag, vr, bytes);
}

void DemoDataSet::Item(std::uint32_t tag, const DemoDataSet& item)
{
    const std::string content = item.Encoded();
    std::string bytes("\xFE\xFF\x00\xE0", 4);
    AppendLE(&bytes, static_cast<std::uint32_t>(content.size()));
    Text(tag, "SQ", bytes + content);
}

void DemoDataSet::Pixels(std::string bytes, std::string_view vr)
{
    if (bytes.size() % 2)
        bytes += '\0';
    fElements[0x7FE00010] = {std::string(vr), std::move(bytes)};
}

std::string DemoDataSet::ValueOf(std::uint32_t tag) const
{
    const auto element = fElements.find(tag);
    return element != fElements.end() ? element->second.bytes : std::string();
}

std::string DemoDataSet::Encoded() const
{
    std::string out;
    for (const auto& [tag, value] : fElements)
        AppendElement(&out, tag, value.vr, value.bytes);
    return out;
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

QvxStatus DemoFolder::WriteFile(std::string_view name, const DemoDataSet& dataSet)
{
    const std::string path = fPath + '/' + std::string(name);
    const std::string partial = path + ".partial";
    const int error = WriteWhole(partial, FileHead(dataSet) + dataSet.Encoded());
    if (error != 0)
        return Fail(path, error);
    if (::rename(partial.c_str(), path.c_str()) != 0) {
        const int renameError = errno;
        ::unlink(partial.c_str());
        return Fail(path, renameError);
    }
    return kQvxOK;
}
