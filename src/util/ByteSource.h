// Where the bytes of one DICOM object come from. Every read of a user's file goes through `ReadAt`.
// A source is used by one thread at a time.
#pragma once
#include "util/FileRef.h"
#include "util/StatusCodes.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

class ByteSource {
public:
    virtual ~ByteSource() = default;
    // Fills all of `dest` from `offset` on. kQvxEndOfFile when the run does not lie wholly in the
    // source (nothing is promised of `dest` then), kQvxSeekFailed when the file can't be read.
    [[nodiscard]] virtual QvxStatus ReadAt(std::uint64_t offset, std::span<std::byte> dest) = 0;
    [[nodiscard]] virtual std::uint64_t Size() const = 0;
    // Of the file behind it, as it was when it was opened; not known of other sources.
    [[nodiscard]] virtual FileIdentity Identity() const { return {}; }
    // Between BeginUse and the matching EndUse a source keeps what makes reads cheap: descriptor
    // and read-ahead. Calls nest. Outside, an idle source holds neither.
    virtual void BeginUse() {}
    virtual void EndUse() {}
};

// Keeps a source in use for a scope.
class ByteSourceUse {
public:
    explicit ByteSourceUse(ByteSource* source) : fSource(source)
    {
        if (fSource)
            fSource->BeginUse();
    }
    ~ByteSourceUse()
    {
        if (fSource)
            fSource->EndUse();
    }
    ByteSourceUse(const ByteSourceUse&) = delete;
    ByteSourceUse& operator=(const ByteSourceUse&) = delete;

private:
    ByteSource* fSource;  // not owned, may be null
};

// A regular, non-empty file, opened read-only, close-on-exec and non-blocking; pipes, devices and
// folders are refused without waiting. The descriptor is closed when the source is idle and opened
// again on demand; a file that has been replaced or written to since then answers kQvxSeekFailed.
// Small reads are served from one window that grows from 4 to 64 KiB while they go on.
class FileSource final : public ByteSource {
public:
    // The descriptor stays open for the first use, which follows soon as a rule. Answers
    // kQvxFileNotFound for an empty path or one with a NUL in it, kQvxNotOfKind for something that
    // is no regular file or is empty, an errno when it can't be opened. `expected` (null or not
    // known: any) is the state that the file must still be in, kQvxSeekFailed if it isn't.
    [[nodiscard]] static QvxStatus Open(const std::string& path,
                                        std::unique_ptr<FileSource>* source,
                                        const FileIdentity* expected = nullptr);
    ~FileSource() override;

    [[nodiscard]] QvxStatus ReadAt(std::uint64_t offset, std::span<std::byte> dest) override;
    [[nodiscard]] std::uint64_t Size() const override { return fIdentity.fSize; }
    [[nodiscard]] FileIdentity Identity() const override { return fIdentity; }
    void BeginUse() override { ++fUses; }
    void EndUse() override;
    [[nodiscard]] const std::string& Path() const { return fPath; }

private:
    FileSource() = default;
    [[nodiscard]] QvxStatus OpenDescriptor();
    [[nodiscard]] QvxStatus ReadFile(std::uint64_t offset, std::span<std::byte> dest);
    void CloseDescriptor();

    std::string fPath;
    FileIdentity fIdentity;
    std::uint64_t fWindowStart = 0;
    std::unique_ptr<std::byte[]> fWindow;
    std::uint32_t fWindowFilled = 0;  // bytes of the window that hold data
    std::uint32_t fNextWindow = 0;    // size of the next fill
    int fDescriptor = -1;
    int fUses = 0;
};

// Bytes in memory, owned.
class MemorySource final : public ByteSource {
public:
    explicit MemorySource(std::vector<std::byte> bytes) : fBytes(std::move(bytes)) {}
    [[nodiscard]] QvxStatus ReadAt(std::uint64_t offset, std::span<std::byte> dest) override;
    [[nodiscard]] std::uint64_t Size() const override { return fBytes.size(); }

private:
    std::vector<std::byte> fBytes;
};
