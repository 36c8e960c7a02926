// The frame buffer: what it holds, what goes first, and what a failure leaves.
#include "dicom_core/store/TempFolder.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "fixtures/TempFolder.h"
#include "platform/Folders.h"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::unique_ptr<Port> PortOf(std::uint32_t format, int width, int height, std::uint8_t fill)
{
    std::unique_ptr<Port> port;
    EXPECT_EQ(NewPort(format, width, height, nullptr, &port), kQvxOK);
    for (int v = 0; v < height; ++v)
        std::memset(
            port->baseAddr + std::ptrdiff_t{v} * port->rowBytes, fill + v % 7,
            static_cast<std::size_t>(width) * static_cast<std::size_t>(port->pixelSize) / 8);
    return port;
}

ImageInsertionParams Params(const Port& port, std::int32_t primary, std::uint32_t priority = 1,
                            std::uint32_t limit = kAllPriorities, std::int32_t secondary = 7)
{
    ImageInsertionParams params;
    params.source = &port;
    params.primaryID = primary;
    params.secondaryID = secondary;
    params.storagePriority = priority;
    params.makeRoomLimit = limit;
    return params;
}

bool SamePixels(const Port& a, const Port& b, int skip = 0)
{
    for (int v = 0; v < a.bounds.bottom; ++v)
        for (int i = 0; i < a.bounds.right * a.pixelSize / 8; ++i)
            if ((skip == 0 || i % skip != 0) &&
                a.baseAddr[v * a.rowBytes + i] != b.baseAddr[v * b.rowBytes + i])
                return false;
    return true;
}

class ImageBuffer : public testing::TestWithParam<std::uint32_t> {
protected:
    void SetUp() override
    {
        setenv("XDG_CACHE_HOME", fFolder.Path().c_str(), 1);
        buffer = std::make_unique<zel_ImageBuffer>(GetParam());
        buffer->SetIOBufferSize(1 << 20);
    }
    void TearDown() override
    {
        buffer.reset();
        RemoveProgramTempFolder();
        unsetenv("XDG_CACHE_HOME");
    }
    bool Holds(std::int32_t primary) { return buffer->GetImageInfoByID(primary, 7) != nullptr; }
    TempFolder fFolder;
    std::unique_ptr<zel_ImageBuffer> buffer;
};

}  // namespace

TEST_P(ImageBuffer, frames_come_back_and_cost_what_is_stated)
{
    const auto gray = PortOf(kPixelFormatGray16, 100, 100, 3);
    const auto color = PortOf(kPixelFormatARGB32, 100, 100, 40);
    ASSERT_EQ(buffer->AddNewImage(Params(*gray, 1)), kQvxOK);
    ASSERT_EQ(buffer->AddNewImage(Params(*color, 2)), kQvxOK);
    const bool disk = GetParam() == kBufferOnDisk;
    EXPECT_EQ(buffer->BytesUsed(), 20000 + (disk ? 30000 : 40000));
    EXPECT_EQ(buffer->AddNewImage(Params(*gray, 1)), kQvxBadArgument) << "the key is taken";
    EXPECT_EQ(buffer->AddNewImage(Params(*gray, 0)), kQvxBadArgument);
    auto again = PortOf(kPixelFormatGray16, 100, 100, 0);
    auto colorAgain = PortOf(kPixelFormatARGB32, 100, 100, 0);
    ASSERT_EQ(buffer->DrawImageByID(1, 7, again.get(), nullptr), kQvxOK);
    ASSERT_EQ(buffer->DrawImageByID(2, 7, colorAgain.get(), nullptr), kQvxOK);
    EXPECT_TRUE(SamePixels(*gray, *again));
    EXPECT_TRUE(SamePixels(*color, *colorAgain, 4));
    if (disk)
        EXPECT_EQ(colorAgain->baseAddr[0], 0);
    const Rect half{0, 0, 50, 50};
    EXPECT_EQ(buffer->DrawImageByID(2, 7, colorAgain.get(), &half), kQvxOK);
    EXPECT_TRUE(buffer->DisposeImageByID(1, 7));
    EXPECT_FALSE(buffer->DisposeImageByID(1, 7));
    buffer->Reset();
    EXPECT_EQ(buffer->BytesUsed(), 0);
}

TEST_P(ImageBuffer, the_least_important_and_oldest_go_first)
{
    struct Row {
        const char* fault;
        std::int32_t request;
        std::uint32_t limit;
        QvxStatus status;
        const char* left;
    };
    // Frame 1 has 60 bytes and priority 1, 2 has 30 and 1, 3 has 10 and 2.
    const Row rows[] = {
        {"the older of two", 30, kAllPriorities, kQvxOK, "23"},
        {"a byte is enough", 1, kAllPriorities, kQvxOK, "23"},
        {"as many as are needed", 70, kAllPriorities, kQvxOK, "3"},
        {"the limit keeps its own class", 95, 2, kZelBufferFull, "3"},
        {"one above the class lets it go", 95, 3, kQvxOK, ""},
        {"nothing below the least class", 10, 1, kZelBufferFull, "123"},
        {"a negative request", -1, kAllPriorities, kQvxBadArgument, "123"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        buffer->Reset();
        ASSERT_EQ(buffer->SetBufLimit(100), kQvxOK);
        const auto sixty = PortOf(40, 10, 6, 0), thirty = PortOf(40, 10, 3, 0),
                   ten = PortOf(40, 10, 1, 0);
        ASSERT_EQ(buffer->AddNewImage(Params(*sixty, 1)), kQvxOK);
        ASSERT_EQ(buffer->AddNewImage(Params(*thirty, 2)), kQvxOK);
        ASSERT_EQ(buffer->AddNewImage(Params(*ten, 3, 2)), kQvxOK);
        EXPECT_EQ(buffer->MakeRoom(row.request, row.limit), row.status);
        std::string left;
        for (const std::int32_t id : {1, 2, 3})
            left += Holds(id) ? std::to_string(id) : "";
        EXPECT_EQ(left, row.left);
    }
    buffer->Reset();
    const auto sixty = PortOf(40, 10, 6, 0), thirty = PortOf(40, 10, 3, 0);
    ASSERT_EQ(buffer->AddNewImage(Params(*sixty, 1)), kQvxOK);
    ASSERT_EQ(buffer->AddNewImage(Params(*thirty, 2)), kQvxOK);
    auto target = PortOf(40, 10, 6, 0);
    ASSERT_EQ(buffer->DrawImageByID(1, 7, target.get(), nullptr), kQvxOK);  // 2 is the older now
    EXPECT_EQ(buffer->MakeRoom(11, kAllPriorities), kQvxOK);
    EXPECT_TRUE(Holds(1));
    EXPECT_FALSE(Holds(2));
    EXPECT_TRUE(buffer->SetImageLockByID(1, 7, ImageBufferInfo::kLocked));
    EXPECT_EQ(buffer->MakeRoom(90, kAllPriorities), kZelBufferFull);
    EXPECT_EQ(buffer->CalcMaxAvailableSpace(), 40);
}

TEST_P(ImageBuffer, updates_priorities_and_what_lies_beside_a_frame)
{
    const auto first = PortOf(kPixelFormatGray16, 20, 10, 1);
    const auto other = PortOf(kPixelFormatGray16, 20, 10, 90);
    const auto larger = PortOf(kPixelFormatGray16, 30, 10, 5);
    ASSERT_EQ(buffer->UpdateImage(*first, Rect{}, 1, 7), kQvxOK);
    const std::uint32_t kTag = FourCC("DPIF");
    EXPECT_EQ(buffer->SetImageAuxInfoByID(1, 7, kTag, "12345", 5), kQvxOK);
    char aux[8] = {};
    EXPECT_FALSE(buffer->GetImageAuxInfoByID(1, 7, FourCC("ABCD"), aux, sizeof aux));
    EXPECT_FALSE(buffer->GetImageAuxInfoByID(1, 7, kTag, aux, 4)) << "no room for it";
    EXPECT_TRUE(buffer->GetImageAuxInfoByID(1, 7, kTag, aux, sizeof aux));
    EXPECT_STREQ(aux, "12345");
    ASSERT_EQ(buffer->UpdateImage(Params(*other, 1)), kQvxOK);
    auto read = PortOf(kPixelFormatGray16, 20, 10, 0);
    ASSERT_EQ(buffer->DrawImageByID(1, 7, read.get(), nullptr), kQvxOK);
    EXPECT_TRUE(SamePixels(*other, *read));
    EXPECT_EQ(buffer->BytesUsed(), 400);
    ASSERT_EQ(buffer->UpdateImage(Params(*larger, 1)), kQvxOK);
    EXPECT_EQ(buffer->BytesUsed(), 600);

    ASSERT_EQ(buffer->UpdateImage(Params(*first, 2, 2, kAllPriorities, 8)), kQvxOK);
    buffer->ChangeAllPriorities(2, 1);
    buffer->SetImageStoragePriorityByID(2, 8, 0, 1);
    std::uint32_t priority = 99;
    EXPECT_TRUE(buffer->GetImageStoragePriorityByID(2, 8, &priority));
    EXPECT_EQ(priority, 1u) << "mode 1 never lowers";
    EXPECT_TRUE(buffer->SetImageFlagsByID(2, 8, 6));
    buffer->DisposeImagesByFlags(5);
    EXPECT_EQ(buffer->CountImages(), 2u) << "not all flags of the mask";
    buffer->DisposeImagesBySecondaryID(8);
    EXPECT_EQ(buffer->CountImages(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Stores, ImageBuffer, testing::Values(kBufferOnDisk, kBufferInMemory));

using DiskBuffer = ImageBuffer;
TEST_P(DiskBuffer, a_full_disk_makes_room_or_says_so)
{
    buffer->SetIOBufferSize(0);
    const auto frame = PortOf(40, 100, 100, 1), large = PortOf(40, 900, 900, 1);
    ASSERT_EQ(buffer->AddNewImage(Params(*frame, 1)), kQvxOK);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{65536, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    const QvxStatus status = buffer->UpdateImage(Params(*large, 2));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(status, kZelBufferFull);
    EXPECT_FALSE(Holds(2));
    EXPECT_EQ(buffer->BytesUsed(), Holds(1) ? 10000 : 0);
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(GetProgramTempFolder()))
        files += entry.path().filename().string().starts_with("Temp_") ? 1 : 0;
    EXPECT_EQ(files, buffer->CountImages());
    const auto color = PortOf(kPixelFormatARGB32, 10, 10, 1);
    EXPECT_EQ(buffer->AddNewImage(Params(*color, 3)), kQvxBadArgument)
        << "colour needs the block to pass through";
}
INSTANTIATE_TEST_SUITE_P(Disk, DiskBuffer, testing::Values(kBufferOnDisk));

TEST(TempFolderOfFrames, is_private_marked_and_swept_when_its_process_is_gone)
{
    const TempFolder home;
    setenv("XDG_CACHE_HOME", home.Path().c_str(), 1);
    const std::string own = GetProgramTempFolder();
    ASSERT_FALSE(own.empty());
    EXPECT_LE(std::filesystem::path(own).filename().string().size(), 31u);
    EXPECT_EQ(std::filesystem::status(own).permissions(), std::filesystem::perms::owner_all);
    EXPECT_TRUE(std::filesystem::exists(own + "/ZEL_LockFile.txt"));
    const std::string parent = std::filesystem::path(own).parent_path();
    const std::string dead = parent + "/ZeloraZEL Temp_1_1", alive = parent + "/ZeloraZEL Temp_2_2";
    std::filesystem::create_directory(dead);
    std::filesystem::create_directory(alive);
    std::ofstream(dead + "/ZEL_LockFile.txt").close();
    std::ofstream(dead + "/Temp_00000001").close();
    const int lock = open((alive + "/ZEL_LockFile.txt").c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    SweepDeadTempFolders();
    EXPECT_FALSE(std::filesystem::exists(dead));
    EXPECT_TRUE(std::filesystem::exists(alive));
    EXPECT_TRUE(std::filesystem::exists(own));
    std::string first, second;
    EXPECT_EQ(NewTempFile(&first), kQvxOK);
    EXPECT_EQ(NewTempFile(&second), kQvxOK);
    EXPECT_NE(first, second);
    RemoveProgramTempFolder();
    EXPECT_FALSE(std::filesystem::exists(own));
    close(lock);
    unsetenv("XDG_CACHE_HOME");
}
