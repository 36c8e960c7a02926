// What a copy carries over, what it refuses, and that nothing stays of one that fails.
#include "platform/FileCopy.h"

#include "fixtures/TempFolder.h"

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

std::string BytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::ptrdiff_t EntriesOf(const std::string& folder)
{
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

struct FileCopy : testing::Test {
    FileCopy() { fs::create_directory(out); }
    std::string Source(std::size_t size) const
    {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<char>(i * 31 / 7);
        return folder.WriteFile("source", bytes);
    }
    TempFolder folder;
    std::string out = folder.Path("out"), target = out + "/copy";
};

TEST_F(FileCopy, has_all_bytes_the_time_and_the_permissions)
{
    for (const std::size_t size : {std::size_t{0}, kFileCopyPiece, 3 * kFileCopyPiece + 1}) {
        const std::string source = Source(size);
        const auto time = fs::file_time_type::clock::now() - std::chrono::hours(1000);
        fs::last_write_time(source, time);
        chmod(source.c_str(), 04440);
        std::uint64_t last = 0;
        ASSERT_EQ(CopyOneFile(source, target,
                              [&](FileCopyEvent, std::uint64_t copied, std::uint64_t total) {
                                  EXPECT_GT(copied, last);
                                  EXPECT_EQ(total, size);
                                  last = copied;
                                  return true;
                              }),
                  kQvxOK);
        EXPECT_EQ(last, size);
        EXPECT_EQ(BytesOf(target), BytesOf(source));
        EXPECT_EQ(fs::last_write_time(target), time);
        EXPECT_EQ(static_cast<unsigned>(fs::status(target).permissions()), 0440U);
        EXPECT_EQ(EntriesOf(out), 1);
        fs::remove(target);
        fs::remove(source);
    }
}

TEST_F(FileCopy, refuses_what_is_no_file_without_waiting_and_never_replaces_one)
{
    const std::string source = Source(10);
    mkfifo(folder.Path("pipe").c_str(), 0600);
    fs::create_symlink("source", folder.Path("link"));
    const struct {
        const char* fault;
        std::string source, target;
        QvxStatus status;
    } rows[] = {
        {"waits for a writer", folder.Path("pipe"), target, kQvxNotOfKind},
        {"reads a device", "/dev/zero", target, kQvxNotOfKind},
        {"takes a folder", folder.Path(), target, kQvxNotOfKind},
        {"follows a link", folder.Path("link"), target, ELOOP},
        {"makes up a file", folder.Path("none"), target, ENOENT},
        {"cuts the name", source + std::string("\0x", 2), target, ENOENT},
        {"makes folders", source, out + "/deeper/copy", ENOENT},
        {"replaces a file", source, source, EEXIST},
        {"replaces a folder", source, out, EEXIST},
        {"replaces a link", source, folder.Path("link"), EEXIST},
    };
    for (const auto& row : rows)
        EXPECT_EQ(CopyOneFile(row.source, row.target, nullptr), row.status) << row.fault;
    EXPECT_EQ(EntriesOf(out), 0);
    EXPECT_EQ(BytesOf(source).size(), 10U);
}

TEST_F(FileCopy, that_is_stopped_or_outlived_by_its_source_leaves_nothing)
{
    const std::string source = Source(4 * kFileCopyPiece);
    const auto copyWhile = [&](const std::function<bool()>& deed) {
        return CopyOneFile(source, target,
                           [&](FileCopyEvent, std::uint64_t, std::uint64_t) { return deed(); });
    };
    EXPECT_EQ(copyWhile([] { return false; }), ECANCELED);
    EXPECT_EQ(EntriesOf(out), 0);
    const auto takeName = [&] { return std::ofstream(target).good(); };
    EXPECT_EQ(copyWhile(takeName), EEXIST);
    EXPECT_EQ(BytesOf(target), "");
    fs::remove(target);
    const auto unlinkSource = [&] { return fs::remove(source) || true; };
    const std::string bytes = BytesOf(source);
    EXPECT_EQ(copyWhile(unlinkSource), kQvxOK);  // what is open is still there
    EXPECT_EQ(BytesOf(target), bytes);
    fs::remove(target);
    static_cast<void>(Source(4 * kFileCopyPiece));
    const auto shorten = [&] {
        fs::resize_file(source, 10);
        return true;
    };
    EXPECT_EQ(copyWhile(shorten), kQvxEndOfFile);
    EXPECT_EQ(EntriesOf(out), 0);
}

TEST_F(FileCopy, to_a_full_disk_tries_again_as_often_as_it_is_told)
{
    const std::string source = Source(4 * kFileCopyPiece);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit full{2 * kFileCopyPiece, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    int errors = 0;
    const auto giveUpAfterThree = [&](FileCopyEvent event, std::uint64_t copied, std::uint64_t) {
        EXPECT_LE(copied, 2 * kFileCopyPiece);
        return event != FileCopyEvent::Error || ++errors < 3;
    };
    const QvxStatus patient = CopyOneFile(source, target, giveUpAfterThree);
    const QvxStatus plain = CopyOneFile(source, target, nullptr);
    setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ(patient, ECANCELED);
    EXPECT_EQ(errors, 3);
    EXPECT_EQ(plain, EFBIG);
    EXPECT_EQ(EntriesOf(out), 0);
}

}  // namespace
