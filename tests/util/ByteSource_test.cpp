// What a file source refuses, and that its window never answers with other bytes than the file's.
#include "util/ByteSource.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class FileSourceTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "zelora-test-XXXXXX").string();
        fFolder = mkdtemp(name.data());
    }
    void TearDown() override { fs::remove_all(fFolder); }

    std::string Write(const char* name, const std::string& bytes)
    {
        const fs::path path = fFolder / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path.string();
    }
    static QvxStatus OpenStatus(const std::string& path)
    {
        std::unique_ptr<FileSource> source;
        return FileSource::Open(path, &source);
    }
    fs::path fFolder;
};

}  // namespace

TEST_F(FileSourceTest, refuses_what_is_no_regular_file_at_once)
{
    const std::string pipe = (fFolder / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(OpenStatus(pipe), kQvxNotOfKind);
    EXPECT_EQ(OpenStatus(fFolder.string()), kQvxNotOfKind);
    EXPECT_EQ(OpenStatus("/dev/zero"), kQvxNotOfKind);
    EXPECT_EQ(OpenStatus(Write("empty", "")), kQvxNotOfKind);
    EXPECT_EQ(OpenStatus((fFolder / "missing").string()), ENOENT);
    EXPECT_EQ(OpenStatus(std::string("a\0b", 3)), kQvxFileNotFound);
}

TEST_F(FileSourceTest, reads_the_files_bytes_in_any_order_in_use_and_idle)
{
    std::string bytes;
    for (int i = 0; i < 300'000; ++i)
        bytes += static_cast<char>(i * 7 + i / 256);
    std::unique_ptr<FileSource> source;
    ASSERT_EQ(FileSource::Open(Write("data", bytes), &source), kQvxOK);
    const std::array<std::uint64_t, 9> offsets = {0,      4095,    4096, 10, 131'072,
                                                  65'535, 299'996, 3,    1};
    source->BeginUse();
    for (int round = 0; round < 2; ++round) {
        for (const std::uint64_t offset : offsets) {
            for (const std::size_t count : {1u, 4u, 5000u}) {
                std::vector<std::byte> got(count);
                const bool fits = offset + count <= bytes.size();
                ASSERT_EQ(source->ReadAt(offset, got), fits ? kQvxOK : kQvxEndOfFile);
                if (fits) {
                    EXPECT_EQ(std::memcmp(got.data(), bytes.data() + offset, count), 0);
                }
            }
        }
        source->EndUse();  // the second round runs on an idle source
    }
    std::array<std::byte, 2> two;
    EXPECT_EQ(source->ReadAt(UINT64_MAX, two), kQvxEndOfFile);
}

TEST_F(FileSourceTest, an_idle_source_notices_that_its_file_is_another)
{
    const auto later = [](const fs::path& path) {
        fs::last_write_time(path, fs::last_write_time(path) + std::chrono::nanoseconds(1000));
    };
    struct Row {
        const char* change;
        std::function<void(const std::string&)> make;
        QvxStatus status;
    };
    const Row rows[] = {
        {"nothing", [](const std::string&) {}, kQvxOK},
        {"replaced",
         [&](const std::string& path) { fs::rename(Write("other", "abcdefghij"), path); },
         kQvxSeekFailed},
        {"longer", [](const std::string& path) { std::ofstream(path, std::ios::app) << 'x'; },
         kQvxSeekFailed},
        {"written to", later, kQvxSeekFailed},
        {"gone", [](const std::string& path) { fs::remove(path); }, kQvxSeekFailed},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.change);
        const std::string path = Write("data", "0123456789");
        std::unique_ptr<FileSource> source, again;
        ASSERT_EQ(FileSource::Open(path, &source), kQvxOK);
        const FileIdentity identity = source->Identity();
        {
            const ByteSourceUse use(source.get());
        }
        row.make(path);
        std::array<std::byte, 2> two;
        EXPECT_EQ(source->ReadAt(0, two), row.status);
        const bool gone = !fs::exists(path);
        EXPECT_EQ(FileSource::Open(path, &again, &identity), gone ? ENOENT : row.status);
        EXPECT_EQ(again != nullptr, row.status == kQvxOK);
    }
}
