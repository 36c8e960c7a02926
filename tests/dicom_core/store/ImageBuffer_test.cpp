// The frame buffer: what it holds, what goes first, and what a failure leaves.
#include "dicom_core/store/TempFolder.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "fixtures/TempFolder.h"

#include <csignal>
#include <cstring>
#include <gtest/gtest.h>
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

std::size_t FilesOfFrames()
{
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(GetProgramTempFolder()))
        files += entry.path().filename().string().starts_with("Temp_") ? 1 : 0;
    return files;
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

// Another process with a folder of its own, which ends only when it is killed.
class OtherProcess {
public:
    OtherProcess()
    {
        int ends[2] = {-1, -1};
        EXPECT_EQ(pipe(ends), 0);
        fChild = fork();
        if (fChild == 0) {
            const std::string& folder = GetProgramTempFolder();
            if (write(ends[1], folder.data(), folder.size()) > 0)
                pause();
            _exit(1);
        }
        char name[1024];
        const ssize_t got = read(ends[0], name, sizeof name);
        fFolder.assign(name, got > 0 ? static_cast<std::size_t>(got) : 0);
        close(ends[0]);
        close(ends[1]);
    }
    ~OtherProcess() { Kill(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    void Kill()
    {
        if (fChild > 0) {
            kill(fChild, SIGKILL);
            waitpid(fChild, nullptr, 0);
        }
        fChild = 0;
    }
    [[nodiscard]] const std::string& Folder() const { return fFolder; }

private:
    pid_t fChild = 0;
    std::string fFolder;
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
    EXPECT_TRUE(!disk || colorAgain->baseAddr[0] == 0);
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
    const auto fileOf = [this] {
        const ImageBufferInfo* info = buffer->GetImageInfoByID(1, 7);
        return info->fDisk ? info->fDisk->fPath : std::string();
    };
    const std::string file = fileOf();
    ASSERT_EQ(buffer->UpdateImage(Params(*other, 1)), kQvxOK);
    EXPECT_EQ(fileOf(), file) << "written in place";
    EXPECT_EQ(buffer->UpdateImage(*larger, Rect{0, 0, 11, 30}, 1, 7), kQvxBadArgument);
    auto read = PortOf(kPixelFormatGray16, 20, 10, 0);
    ASSERT_EQ(buffer->DrawImageByID(1, 7, read.get(), nullptr), kQvxOK);
    EXPECT_TRUE(SamePixels(*other, *read));
    EXPECT_EQ(buffer->BytesUsed(), 400);
    ASSERT_EQ(buffer->UpdateImage(Params(*larger, 1)), kQvxOK);
    EXPECT_EQ(buffer->BytesUsed(), 600);
    EXPECT_FALSE(std::filesystem::exists(file));

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
    const auto frame = PortOf(40, 100, 100, 1);
    for (std::int32_t id = 1; id <= 5; ++id)
        ASSERT_EQ(buffer->AddNewImage(Params(*frame, id)), kQvxOK);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{4096, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    const QvxStatus status = buffer->UpdateImage(Params(*frame, 6));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(status, kZelBufferFull);
    EXPECT_EQ(buffer->BytesUsed(), 30000) << "twice the frame's size has gone";
    EXPECT_TRUE(!Holds(1) && !Holds(2) && Holds(3) && !Holds(6));
    EXPECT_EQ(FilesOfFrames(), buffer->CountImages());

    const auto color = PortOf(kPixelFormatARGB32, 10, 10, 1);
    buffer->SetIOBufferSize(0);
    EXPECT_EQ(buffer->AddNewImage(Params(*color, 7)), kQvxBadArgument)
        << "colour needs the block to pass through";
    EXPECT_EQ(buffer->BytesUsed(), 30000);
}

TEST_P(DiskBuffer, indexed_and_compressed_frames_are_drawn_as_what_they_were)
{
    std::unique_ptr<Port> gray;  // a system's table, but not the one of 8 bits
    const std::optional<ColorTable> table = SystemColorTable(40);
    ASSERT_EQ(NewPort(8, 16, 16, &*table, &gray), kQvxOK);
    std::memset(gray->baseAddr, 200, 16 * 16);
    ASSERT_EQ(buffer->AddNewImage(Params(*gray, 1)), kQvxOK);
    auto target = PortOf(kPixelFormatARGB32, 8, 8, 0);
    ASSERT_EQ(buffer->DrawImageByID(1, 7, target.get(), nullptr), kQvxOK);
    for (const int i : {1, 2, 3})
        EXPECT_EQ(target->baseAddr[i], 55) << "entry 200 of the gray table";

    ImageDescription description;
    description.fCodecType = FourCC("jpeg");
    description.fWidth = description.fHeight = 64;
    const std::vector<std::byte> bytes(333, std::byte{7});
    ImageInsertionParams params = Params(*gray, 2);
    params.type = kInsertCompressed;
    params.description = &description;
    params.bytes = bytes;
    ASSERT_EQ(buffer->AddNewImage(params), kQvxOK);
    EXPECT_EQ(buffer->BytesUsed(), 256 + 333);
    EXPECT_EQ(buffer->DrawImageByID(2, 7, target.get(), nullptr), kQvxUnsupported);
    buffer->SetDecompressor([&](const ImageDescription& said, std::span<const std::byte> stored,
                                Port*, const Rect& rect) {
        const bool same = std::equal(stored.begin(), stored.end(), bytes.begin(), bytes.end());
        return same && said.fCodecType == FourCC("jpeg") && rect == Rect{0, 0, 8, 8}
                   ? kQvxOK
                   : kQvxBadArgument;
    });
    EXPECT_EQ(buffer->DrawImageByID(2, 7, target.get(), nullptr), kQvxOK);
}
TEST_P(DiskBuffer, takes_what_was_written_elsewhere_or_deletes_it)
{
    std::unique_ptr<Port> indexed;
    const std::optional<ColorTable> table = SystemColorTable(40);
    ASSERT_EQ(NewPort(8, 100, 100, &*table, &indexed), kQvxOK);
    std::memset(indexed->baseAddr, 90, 100 * 100);
    const auto gray = PortOf(kPixelFormatGray16, 100, 100, 3);
    const auto color = PortOf(kPixelFormatARGB32, 100, 100, 40);
    std::vector<std::uint8_t> block(1 << 12);
    const auto written = [&](const Port& port) {
        std::string path;
        WrittenPixels pixels;
        EXPECT_EQ(NewTempFile(&path), kQvxOK);
        EXPECT_EQ(pixels.Write(port, port.bounds, path, block), kQvxOK);
        return pixels;
    };
    std::int32_t id = 0;
    for (const Port* port : {gray.get(), color.get(), indexed.get()}) {
        ASSERT_EQ(buffer->TakeImage(written(*port), Params(*port, ++id)), kQvxOK) << id;
        ASSERT_EQ(buffer->AddNewImage(Params(*port, id + 10)), kQvxOK);
        auto taken = PortOf(kPixelFormatARGB32, 50, 50, 1), added = PortOf(32, 50, 50, 2);
        ASSERT_EQ(buffer->DrawImageByID(id, 7, taken.get(), nullptr), kQvxOK);
        ASSERT_EQ(buffer->DrawImageByID(id + 10, 7, added.get(), nullptr), kQvxOK);
        EXPECT_TRUE(SamePixels(*taken, *added)) << id;
    }
    EXPECT_EQ(buffer->BytesUsed(), 2 * (20000 + 30000 + 10000));

    EXPECT_EQ(buffer->TakeImage({}, Params(*gray, 4)), kQvxBadArgument);
    EXPECT_EQ(buffer->TakeImage(written(*gray), Params(*gray, 0)), kQvxBadArgument);
    EXPECT_EQ(buffer->TakeImage(written(*gray), Params(*gray, 1)), kQvxBadArgument) << "taken";
    ASSERT_EQ(buffer->SetBufLimit(120000), kQvxOK);
    EXPECT_EQ(buffer->TakeImage(written(*gray), Params(*gray, 4, 1, 1)), kZelBufferFull);
    EXPECT_EQ(written(*gray).Write(*gray, gray->bounds, "/nowhere/file", block), kQvxFileNotFound);
    EXPECT_EQ(FilesOfFrames(), buffer->CountImages());
    ASSERT_EQ(buffer->TakeImage(written(*gray), Params(*gray, 4)), kQvxOK);
    EXPECT_FALSE(Holds(1)) << "the oldest made room";
    EXPECT_EQ(FilesOfFrames(), buffer->CountImages());
}
INSTANTIATE_TEST_SUITE_P(Disk, DiskBuffer, testing::Values(kBufferOnDisk));

TEST(TempFolderOfFrames, is_private_marked_and_swept_when_its_process_is_gone)
{
    const TempFolder home;
    setenv("XDG_CACHE_HOME", home.Path().c_str(), 1);
    OtherProcess other;
    const std::string own = GetProgramTempFolder();
    ASSERT_FALSE(own.empty());
    EXPECT_LE(std::filesystem::path(own).filename().string().size(), 31u);
    EXPECT_EQ(std::filesystem::status(own).permissions(), std::filesystem::perms::owner_all);
    EXPECT_TRUE(std::filesystem::exists(own + "/ZEL_LockFile.txt"));
    const std::string parent = std::filesystem::path(own).parent_path();
    const std::string unmarked = parent + "/ZeloraZEL Temp_1_1";
    std::filesystem::create_directory(unmarked);
    SweepDeadTempFolders();
    EXPECT_TRUE(std::filesystem::exists(own));
    EXPECT_TRUE(std::filesystem::exists(other.Folder()));
    EXPECT_FALSE(std::filesystem::exists(unmarked)) << "given up while it was made";
    other.Kill();
    SweepDeadTempFolders();
    EXPECT_FALSE(std::filesystem::exists(other.Folder()));
    EXPECT_TRUE(std::filesystem::exists(own));
    std::string first, second;
    EXPECT_EQ(NewTempFile(&first), kQvxOK);
    EXPECT_EQ(NewTempFile(&second), kQvxOK);
    EXPECT_NE(first, second);
    RemoveProgramTempFolder();
    EXPECT_FALSE(std::filesystem::exists(own));
    unsetenv("XDG_CACHE_HOME");
}
