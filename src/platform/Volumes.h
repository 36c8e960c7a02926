// Which volume a path lies on, and what kind of volume that is: the facts that tell slow media
// from a hard disk. Paths are bytes. Any thread.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct VolumeFacts {
    std::string fMountPoint;
    std::string fDevice;      // as mounted, for example "/dev/sr0" or "server:/export"
    std::string fFileSystem;  // the kernel's name of the type, for example "iso9660"
    bool fIsRoot = false;     // mounted at "/"
    bool fIsNetwork = false;
    bool fIsOptical = false;    // an optical drive, or a disc's file system
    bool fIsEjectable = false;  // removable medium, memory card, or anything on USB
};

// The volume that holds `path`, which must exist. False if it can't be found; a caller who asks
// for network volumes takes that as one.
[[nodiscard]] bool VolumeOfPath(const std::string& path, VolumeFacts* facts);

// The mounted volumes that are optical or ejectable, the root volume never, in mount order.
[[nodiscard]] std::vector<VolumeFacts> MountedRemovableMedia();

// The decisions behind both, fed with what the system says.
//   mountInfo  the text of /proc/self/mountinfo
//   sysfs      the folder that is /sys, without a final "/"; read for removable flags
// The later of two mounts on one point counts, as it hides the earlier.
[[nodiscard]] std::vector<VolumeFacts> VolumesOfMountInfo(std::string_view mountInfo,
                                                          const std::string& sysfs);
// The volume of `canonicalPath` (absolute, without links): the longest mount point above it.
[[nodiscard]] std::optional<VolumeFacts> VolumeOfCanonicalPath(std::string_view mountInfo,
                                                               std::string_view canonicalPath,
                                                               const std::string& sysfs);
// The text of /proc/self/mountinfo; empty if it can't be read.
[[nodiscard]] std::string ReadMountInfo();
