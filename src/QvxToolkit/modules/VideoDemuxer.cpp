#include "QvxToolkit/modules/VideoDemuxer.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

constexpr int kBufferBytes = 1 << 16, kStartBytes = 1 << 16;
constexpr std::uint64_t kReadsOfStream = 4, kSpareAllowance = 1 << 24;

constexpr std::uint8_t kSyncByte = 0x47;

using Start = std::vector<std::uint8_t>;

bool IsTransportStream(const Start& start)
{
    for (const std::size_t packet : {188U, 192U, 204U}) {
        for (std::size_t i = 0; i < packet && i + packet < start.size(); ++i) {
            if (start[i] == kSyncByte && start[i + packet] == kSyncByte &&
                (i + 2 * packet >= start.size() || start[i + 2 * packet] == kSyncByte))
                return true;
        }
    }
    return false;
}

bool IsMP4(const Start& start)
{
    if (start.size() < 8)
        return false;
    const auto isBox = [&start](const char* name) {
        return std::memcmp(start.data() + 4, name, 4) == 0;
    };
    return std::ranges::any_of(std::initializer_list<const char*>{"ftyp", "moov", "mdat", "free",
                                                                  "skip", "wide", "styp", "moof"},
                               isBox);
}

// The byte behind a start code 00 00 01 and the one after it tell elementary streams apart.
const char* NameByStartCode(std::uint8_t code, std::uint8_t next)
{
    if (code == 0xBA)  // pack header
        return "mpeg";
    if (code == 0xB3 || code == 0xB8 || code == 0x00)  // sequence, group, picture
        return "mpegvideo";
    // Parameter sets, delimiter and prefix information of HEVC; as H.264 they would be in no order
    // that a stream begins with.
    const bool isHEVC =
        next == 1 && (code == 0x40 || code == 0x42 || code == 0x44 || code == 0x46 || code == 0x4E);
    return isHEVC ? "hevc" : "h264";
}

const char* NameOfContainer(const Start& start)
{
    if (IsMP4(start))
        return "mov";
    if (!start.empty() && start[0] != 0 && IsTransportStream(start))
        return "mpegts";
    for (std::size_t i = 0; i + 4 < start.size(); ++i) {
        if (start[i] == 0 && start[i + 1] == 0 && start[i + 2] == 1)
            return NameByStartCode(start[i + 3], start[i + 4]);
    }
    return nullptr;
}

// Files that a stream names are none of ours.
int OpenNothing(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**)
{
    return AVERROR(EPERM);
}

bool IsOfCodecs(AVCodecID codec)
{
    return codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO ||
           codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC;
}

}  // namespace

void VideoBytes::RenewAllowance() { fAllowance = kReadsOfStream * fInput.fSize + kSpareAllowance; }

int VideoBytes::Read(std::int64_t offset, std::uint8_t* dest, int count)
{
    if (offset < 0 || count <= 0)
        return AVERROR(EINVAL);
    if (offset >= Size())
        return AVERROR_EOF;
    if (static_cast<std::uint64_t>(count) > fAllowance)
        return AVERROR_EXIT;
    const std::int32_t got =
        fInput.fRead(fInput.fContext, static_cast<std::uint64_t>(offset), dest, count);
    fFailed = fFailed || got < 0;
    if (got <= 0)
        return got < 0 ? AVERROR(EIO) : AVERROR_EOF;
    fAllowance -= static_cast<std::uint64_t>(got);
    return got;
}

bool VideoBytes::ReadAll(std::int64_t offset, std::uint8_t* dest, int count)
{
    while (count > 0) {
        const int got = Read(offset, dest, count);
        if (got <= 0)
            return false;
        offset += got;
        dest += got;
        count -= got;
    }
    return true;
}

int VideoDemuxer::ReadProc(void* demuxer, std::uint8_t* dest, int count)
{
    auto* self = static_cast<VideoDemuxer*>(demuxer);
    const int got = self->fBytes->Read(self->fPosition, dest, count);
    self->fPosition += std::max(got, 0);
    return got;
}

std::int64_t VideoDemuxer::SeekProc(void* demuxer, std::int64_t offset, int whence)
{
    auto* self = static_cast<VideoDemuxer*>(demuxer);
    if (whence == AVSEEK_SIZE)
        return self->fBytes->Size();
    whence &= ~AVSEEK_FORCE;
    const std::int64_t base = whence == SEEK_CUR   ? self->fPosition
                              : whence == SEEK_END ? self->fBytes->Size()
                                                   : 0;
    if (offset > INT64_MAX - base || base + offset < 0)
        return AVERROR(EINVAL);
    return self->fPosition = base + offset;
}

QvxVideoResult VideoDemuxer::Open()
{
    fFormat.reset();
    fPosition = 0;
    fStream = -1;
    Start start(static_cast<std::size_t>(std::min<std::int64_t>(kStartBytes, fBytes->Size())));
    if (!fBytes->ReadAll(0, start.data(), static_cast<int>(start.size())))
        return kVideoBroken;
    const char* name = NameOfContainer(start);
    const AVInputFormat* input = name ? av_find_input_format(name) : nullptr;
    if (!input)
        return kVideoNotAStream;
    fInOnePiece = std::strcmp(name, "mpegts") != 0 && std::strcmp(name, "mpeg") != 0;

    auto* buffer = static_cast<std::uint8_t*>(av_malloc(kBufferBytes));
    if (!buffer)
        return kVideoNoMemory;
    fIO.reset(avio_alloc_context(buffer, kBufferBytes, 0, this, ReadProc, nullptr, SeekProc));
    if (!fIO) {
        av_free(buffer);
        return kVideoNoMemory;
    }
    AVFormatContext* format = avformat_alloc_context();
    if (!format)
        return kVideoNoMemory;
    format->pb = fIO.get();
    format->io_open = OpenNothing;
    format->max_probe_packets = 256;
    AVDictionary* options = nullptr;  // all pictures that are coded, whatever an edit list leaves
    av_dict_set(&options, "ignore_editlist", "1", 0);
    const int opened = avformat_open_input(&format, "", input, &options);  // frees it on failure
    av_dict_free(&options);
    if (opened < 0)
        return opened == AVERROR(ENOMEM) ? kVideoNoMemory : kVideoNotAStream;
    fFormat.reset(format);
    return kVideoDone;
}

bool VideoDemuxer::Takes(const AVPacket& packet)
{
    if (fStream < 0 && IsOfCodecs(fFormat->streams[packet.stream_index]->codecpar->codec_id))
        fStream = packet.stream_index;
    return packet.stream_index == fStream && packet.size > 0;
}

QvxVideoResult VideoDemuxer::Next(AVPacket* packet)
{
    for (;;) {
        av_packet_unref(packet);
        const int status = av_read_frame(fFormat.get(), packet);
        if (status == AVERROR(ENOMEM))
            return kVideoNoMemory;
        if (status < 0)  // what can't be read is not there
            return fStream < 0 ? kVideoNotAStream : kVideoEnds;
        if (Takes(*packet))
            break;
    }
    packet->flags &= AV_PKT_FLAG_KEY;
    av_packet_free_side_data(packet);
    return kVideoDone;
}

bool VideoDemuxer::SeekTo(std::int64_t position)
{
    return av_seek_frame(fFormat.get(), -1, position, AVSEEK_FLAG_BYTE) >= 0;
}

const AVCodecParameters* VideoDemuxer::Codec() const
{
    return fStream < 0 ? nullptr : fFormat->streams[fStream]->codecpar;
}

QvxVideoSize VideoDemuxer::StatedSize() const
{
    const AVStream* stream = fStream < 0 ? nullptr : fFormat->streams[fStream];
    const AVCodecParserContext* parser = stream ? av_stream_get_parser(stream) : nullptr;
    if (!parser || parser->width <= 0 || parser->height <= 0)
        return {0, 0};
    return {static_cast<std::uint32_t>(parser->height), static_cast<std::uint32_t>(parser->width)};
}
