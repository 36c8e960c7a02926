// What the system's mount table and device tree say of a path.
#include "platform/Volumes.h"

#include "fixtures/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

constexpr std::string_view kMounts =
    "21 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
    "30 21 0:25 / /run rw - tmpfs tmpfs rw\n"
    "31 21 8:2 / /home rw shared:2 master:1 - ext4 /dev/sda2 rw\n"
    "40 21 11:0 / /media/ann/My\\040Disc ro,nosuid shared:9 - iso9660 /dev/sr0 ro\n"
    "41 21 8:17 / /media/ann/STICK rw - vfat /dev/sdb1 rw\n"
    "42 21 253:0 / /media/ann/SAFE rw - ext4 /dev/mapper/luks-1 rw\n"
    "43 21 0:44 / /media/ann/POOL rw - btrfs /dev/sdb2 rw\n"
    "44 21 0:50 / /srv/images rw - nfs4 server:/export rw\n"
    "45 21 0:51 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
    "46 21 7:0 / /mnt/image ro - udf /dev/loop0 ro\n"
    "47 21 8:2 / /mnt/over rw - ext4 /dev/sda2 rw\n"
    "48 21 8:17 / /mnt/over rw - vfat /dev/sdb1 rw\n"
    "49 21 179:1 / /media/ann/CARD rw - exfat /dev/mmcblk0p1 rw\n"
    "broken line\n";

// sda: a built-in disk; sdb: a stick on USB that calls itself fixed; dm-0 lies on sdb; mmcblk0: a
// memory card.
class VolumesTest : public testing::Test {
protected:
    VolumesTest()
    {
        AddDisk("pci/ata1/block/sda", "0", {{"sda1", "8:1"}, {"sda2", "8:2"}});
        AddDisk("pci/usb1/1-2/block/sdb", "0", {{"sdb1", "8:17"}, {"sdb2", "8:18"}});
        AddDisk("pci/mmc/block/mmcblk0", "0", {{"mmcblk0p1", "179:1"}});
        fSysfs.WriteFile("devices/pci/mmc/block/mmcblk0/device/type", "SD\n");
        AddDisk("virtual/block/dm-0", "0", {});
        AddDisk("virtual/block/loop0", "0", {});
        Link("dev/block/253:0", "devices/virtual/block/dm-0");
        Link("dev/block/7:0", "devices/virtual/block/loop0");
        Link("devices/virtual/block/dm-0/slaves/sdb1", "devices/pci/usb1/1-2/block/sdb/sdb1");
    }
    void AddDisk(const std::string& disk, const std::string& removable,
                 const std::vector<std::pair<std::string, std::string>>& partitions)
    {
        fSysfs.WriteFile("devices/" + disk + "/removable", removable + "\n");
        for (const auto& [name, number] : partitions) {
            const std::string partition = "devices/" + disk + "/" + name;
            fSysfs.WriteFile(partition + "/partition", "1\n");
            Link("dev/block/" + number, partition);
            Link("class/block/" + name, partition);
        }
    }
    void Link(const std::string& link, const std::string& target)
    {
        std::filesystem::create_directories(std::filesystem::path(fSysfs.Path(link)).parent_path());
        std::filesystem::create_directory_symlink(fSysfs.Path(target), fSysfs.Path(link));
    }
    TempFolder fSysfs;
};

TEST_F(VolumesTest, judges_each_path_by_the_volume_it_lies_on)
{
    const struct {
        const char* path;
        const char* mountPoint;
        bool isRoot, isNetwork, isOptical, isEjectable;
    } rows[] = {
        {"/", "/", true, false, false, false},
        {"/homework/a", "/", true, false, false, false},  // not below "/home"
        {"/home", "/home", false, false, false, false},
        {"/media/ann/My Disc/DICOMDIR", "/media/ann/My Disc", false, false, true, false},
        {"/media/ann/STICK/a", "/media/ann/STICK", false, false, false, true},
        {"/media/ann/SAFE/a", "/media/ann/SAFE", false, false, false, true},
        {"/media/ann/POOL/a", "/media/ann/POOL", false, false, false, true},
        {"/media/ann/CARD/a", "/media/ann/CARD", false, false, false, true},
        {"/srv/images/ct", "/srv/images", false, true, false, false},
        {"/run/user/1000/gvfs/smb", "/run/user/1000/gvfs", false, true, false, false},
        {"/mnt/image/a", "/mnt/image", false, false, true, false},
        {"/mnt/over/a", "/mnt/over", false, false, false, true},  // the later mount hides
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        const auto volume = VolumeOfCanonicalPath(kMounts, row.path, fSysfs.Path());
        ASSERT_TRUE(volume);
        EXPECT_EQ(volume->fMountPoint, row.mountPoint);
        EXPECT_EQ(volume->fIsRoot, row.isRoot);
        EXPECT_EQ(volume->fIsNetwork, row.isNetwork);
        EXPECT_EQ(volume->fIsOptical, row.isOptical);
        EXPECT_EQ(volume->fIsEjectable, row.isEjectable);
    }
    EXPECT_FALSE(VolumeOfCanonicalPath("", "/home", fSysfs.Path()));
    EXPECT_EQ(VolumesOfMountInfo(kMounts, fSysfs.Path()).size(), 12U);  // each point once
}

TEST(VolumeOfPath, finds_real_paths_only)
{
    VolumeFacts facts;
    ASSERT_TRUE(VolumeOfPath("/proc/self", &facts));
    EXPECT_EQ(facts.fFileSystem, "proc");
    EXPECT_FALSE(VolumeOfPath("/no/such/path", &facts));
}

}  // namespace
