#include "platform/Volumes.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <unordered_set>

namespace {

constexpr int kMaxDeviceDepth = 4;  // of mapped devices over others

// File systems that another machine serves.
constexpr auto kNetworkFileSystems = std::to_array<std::string_view>({"9p",
                                                                      "afs",
                                                                      "autofs",
                                                                      "beegfs",
                                                                      "ceph",
                                                                      "cifs",
                                                                      "coda",
                                                                      "davfs",
                                                                      "fuse.ceph",
                                                                      "fuse.curlftpfs",
                                                                      "fuse.davfs",
                                                                      "fuse.davfs2",
                                                                      "fuse.glusterfs",
                                                                      "fuse.gvfsd-fuse",
                                                                      "fuse.rclone",
                                                                      "fuse.s3fs",
                                                                      "fuse.sshfs",
                                                                      "glusterfs",
                                                                      "gpfs",
                                                                      "lustre",
                                                                      "ncpfs",
                                                                      "nfs",
                                                                      "nfs4",
                                                                      "orangefs",
                                                                      "prl_fs",
                                                                      "smb2",
                                                                      "smb3",
                                                                      "smbfs",
                                                                      "vboxsf",
                                                                      "vmhgfs"});
constexpr auto kDiscFileSystems = std::to_array<std::string_view>({"iso9660", "udf"});

template <std::size_t N>
bool IsOneOf(const std::array<std::string_view, N>& names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

// The kernel writes blanks, tabs, line ends and backslashes as "\" and three octal digits.
std::string WithoutEscapes(std::string_view text)
{
    const auto digit = [&text](std::size_t i) {
        return i < text.size() && text[i] >= '0' && text[i] <= '7' ? text[i] - '0' : -1;
    };
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int a = digit(i + 1), b = digit(i + 2), c = digit(i + 3);
        if (text[i] == '\\' && a >= 0 && b >= 0 && c >= 0) {
            bytes.push_back(static_cast<char>(a * 64 + b * 8 + c));
            i += 3;
        } else {
            bytes.push_back(text[i]);
        }
    }
    return bytes;
}

std::string_view NextWord(std::string_view* line)
{
    const std::size_t end = std::min(line->find(' '), line->size());
    const std::string_view word = line->substr(0, end);
    line->remove_prefix(std::min(end + 1, line->size()));
    return word;
}

struct MountLine {
    std::string_view fNumber, fMountPoint, fFileSystem, fDevice;  // number: "major:minor"
};

// id, parent, number, root, mount point, options, optional fields, "-", type, device, …
bool ParseMountLine(std::string_view line, MountLine* mount)
{
    NextWord(&line);
    NextWord(&line);
    mount->fNumber = NextWord(&line);
    NextWord(&line);
    mount->fMountPoint = NextWord(&line);
    while (!line.empty() && NextWord(&line) != "-") {
    }
    mount->fFileSystem = NextWord(&line);
    mount->fDevice = NextWord(&line);
    return !mount->fMountPoint.empty() && !mount->fFileSystem.empty();
}

std::string FirstLineOf(const std::filesystem::path& path)
{
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

bool IsOnUSB(const std::filesystem::path& device)
{
    return std::ranges::any_of(device,
                               [](const auto& part) { return part.native().starts_with("usb"); });
}

// Of a disk or a partition; an encrypted stick is judged by the disk below it.
bool DeviceIsEjectable(const std::filesystem::path& link, int depth)
{
    std::error_code error;
    const std::filesystem::path device = std::filesystem::canonical(link, error);
    if (error)
        return false;
    std::filesystem::path disk = device;
    if (std::filesystem::exists(device / "partition", error))
        disk = device.parent_path();
    if (IsOnUSB(disk) || FirstLineOf(disk / "removable") == "1" ||
        FirstLineOf(disk / "device" / "type") == "SD")
        return true;
    if (depth >= kMaxDeviceDepth)
        return false;
    for (std::filesystem::directory_iterator below(disk / "slaves", error), end;
         !error && below != end; below.increment(error))
        if (DeviceIsEjectable(below->path(), depth + 1))
            return true;
    return false;
}

bool IsOpticalDevice(std::string_view device)
{
    constexpr std::string_view kDevices = "/dev/";
    if (!device.starts_with(kDevices))
        return false;
    device.remove_prefix(kDevices.size());
    const std::size_t digits = device.find_first_of("0123456789");
    const std::string_view kind = device.substr(0, digits);
    return digits != std::string_view::npos && (kind == "sr" || kind == "scd");
}

// Where sysfs keeps the device of a mount; empty if there is none. Major number 0 is no device: a
// file system over several disks has it, and names one of them.
std::string SysfsDevice(const MountLine& mount, const std::string& device)
{
    if (!mount.fNumber.starts_with("0:"))
        return "/dev/block/" + std::string(mount.fNumber);
    const std::size_t name = std::string_view("/dev/").size();
    if (!device.starts_with("/dev/") || device.find('/', name) != std::string::npos)
        return {};
    return "/class/block/" + device.substr(name);
}

VolumeFacts FactsOf(const MountLine& mount, const std::string& sysfs)
{
    VolumeFacts facts;
    facts.fMountPoint = WithoutEscapes(mount.fMountPoint);
    facts.fDevice = WithoutEscapes(mount.fDevice);
    facts.fFileSystem = mount.fFileSystem;
    facts.fIsRoot = facts.fMountPoint == "/";
    facts.fIsNetwork = IsOneOf(kNetworkFileSystems, mount.fFileSystem);
    facts.fIsOptical =
        IsOpticalDevice(facts.fDevice) || IsOneOf(kDiscFileSystems, mount.fFileSystem);
    const std::string device = SysfsDevice(mount, facts.fDevice);
    facts.fIsEjectable = !device.empty() && DeviceIsEjectable(sysfs + device, 0);
    return facts;
}

std::vector<MountLine> MountLines(std::string_view mountInfo)
{
    std::vector<MountLine> lines;
    while (!mountInfo.empty()) {
        const std::size_t end = std::min(mountInfo.find('\n'), mountInfo.size());
        MountLine mount;
        if (ParseMountLine(mountInfo.substr(0, end), &mount))
            lines.push_back(mount);
        mountInfo.remove_prefix(std::min(end + 1, mountInfo.size()));
    }
    return lines;
}

bool LiesBelow(std::string_view path, std::string_view folder)
{
    return folder == "/" || path == folder ||
           (path.starts_with(folder) && path[folder.size()] == '/');
}

struct FreeText {
    void operator()(char* text) const noexcept { std::free(text); }
};

}  // namespace

std::string ReadMountInfo()
{
    std::ifstream file("/proc/self/mountinfo", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<VolumeFacts> VolumesOfMountInfo(std::string_view mountInfo, const std::string& sysfs)
{
    const std::vector<MountLine> lines = MountLines(mountInfo);
    std::vector<VolumeFacts> volumes;
    std::unordered_set<std::string_view> seen;
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        if (seen.insert(line->fMountPoint).second)
            volumes.push_back(FactsOf(*line, sysfs));
    std::ranges::reverse(volumes);
    return volumes;
}

std::optional<VolumeFacts> VolumeOfCanonicalPath(std::string_view mountInfo,
                                                 std::string_view canonicalPath,
                                                 const std::string& sysfs)
{
    const std::vector<MountLine> lines = MountLines(mountInfo);
    const MountLine* best = nullptr;
    std::size_t bestSize = 0;
    for (const MountLine& line : lines) {
        const std::string point = WithoutEscapes(line.fMountPoint);
        if (point.size() >= bestSize && LiesBelow(canonicalPath, point)) {
            best = &line;
            bestSize = point.size();
        }
    }
    if (!best)
        return std::nullopt;
    return FactsOf(*best, sysfs);
}

bool VolumeOfPath(const std::string& path, VolumeFacts* facts)
{
    const std::unique_ptr<char, FreeText> canonical(realpath(path.c_str(), nullptr));
    if (!facts || !canonical)
        return false;
    const auto volume = VolumeOfCanonicalPath(ReadMountInfo(), canonical.get(), "/sys");
    if (!volume)
        return false;
    *facts = *volume;
    return true;
}

std::vector<VolumeFacts> MountedRemovableMedia()
{
    std::vector<VolumeFacts> volumes = VolumesOfMountInfo(ReadMountInfo(), "/sys");
    std::erase_if(volumes, [](const VolumeFacts& volume) {
        return volume.fIsRoot || !(volume.fIsOptical || volume.fIsEjectable);
    });
    return volumes;
}
