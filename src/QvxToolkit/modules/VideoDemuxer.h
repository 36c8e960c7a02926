// From the bytes of a stream to the coded pictures in it, in the order of decoding. The container
// is known by its first bytes: FFmpeg's own probing, its other formats and its protocols are out of
// reach. Internal.
#pragma once
#include "QvxToolkit/modules/VideoParts.h"

// Reads of a stream, of which there is an allowance: a hostile stream sends no one round and round.
class VideoBytes {
public:
    explicit VideoBytes(const QvxVideoInput& input) : fInput(input) {}
    // Before each call from outside: a few times the stream's size may be read until the next.
    void RenewAllowance();
    // Reads up to `count` bytes; answers how many, an AVERROR below 0. AVERROR_EOF at the end.
    [[nodiscard]] int Read(std::int64_t offset, std::uint8_t* dest, int count);
    // Reads all of them, or answers false.
    [[nodiscard]] bool ReadAll(std::int64_t offset, std::uint8_t* dest, int count);
    // A read has failed: what looked like the stream's end is none.
    [[nodiscard]] bool HasFailed() const { return fFailed; }
    [[nodiscard]] std::int64_t Size() const { return static_cast<std::int64_t>(fInput.fSize); }

private:
    QvxVideoInput fInput;
    std::uint64_t fAllowance = 0;
    bool fFailed = false;
};

class VideoDemuxer {
public:
    explicit VideoDemuxer(VideoBytes* bytes) : fBytes(bytes) {}
    // To the beginning; may be called again.
    [[nodiscard]] QvxVideoResult Open();
    // The next packet of the first stream with a codec of ours, its key flag the only one kept.
    // kVideoEnds behind the last.
    [[nodiscard]] QvxVideoResult Next(AVPacket* packet);
    // Goes on at a byte position of the container, with rests of other pictures at first. False
    // when the container has no such way.
    [[nodiscard]] bool SeekTo(std::int64_t position);
    // Each packet lies at its position in one piece, as the decoder takes it.
    [[nodiscard]] bool IsInOnePiece() const { return fInOnePiece; }

    // After the first packet: what the decoder is to be opened with, and the size that the stream
    // says the last packet's picture has; 0 when it doesn't say.
    [[nodiscard]] const AVCodecParameters* Codec() const;
    [[nodiscard]] QvxVideoSize StatedSize() const;

private:
    static int ReadProc(void* demuxer, std::uint8_t* dest, int count);
    static std::int64_t SeekProc(void* demuxer, std::int64_t offset, int whence);
    [[nodiscard]] bool Takes(const AVPacket& packet);

    VideoBytes* fBytes;
    std::int64_t fPosition = 0;
    VideoOwner<AVIOContext> fIO;  // outlives the context below
    VideoOwner<AVFormatContext> fFormat;
    int fStream = -1;
    bool fInOnePiece = false;
};
