#include "QvxToolkit/QvxClip.h"

#include "QvxToolkit/QvxModule.h"
#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr std::uint32_t kMostBits = 16;
// Two decoders, each with the pictures that may be referred to and those on their way.
constexpr std::uint64_t kPicturesOfDecoders = 40;

QvxStatus StatusOf(QvxVideoResult result, std::string* why)
{
    switch (result) {
        case kVideoDone:
            return kQvxOK;
        case kVideoNoMemory:
            return kQvxNoMemory;
        case kVideoEnds:
            return kQvxEndOfFile;
        case kVideoNotAStream:
            *why = "the pixel data is no stream of MPEG-2, H.264 or HEVC";
            return kQvxMalformed;
        case kVideoUnread:
            *why = "the stream can't be read";
            return kQvxSeekFailed;
        default:
            *why = "the stream can't be decoded";
            return kQvxMalformed;
    }
}

QvxVideoFormat FormatOf(const QvxFrameRecord& record)
{
    return {record.fRows, record.fColumns, record.fSamples, record.fBitsStored};
}

// Clips with an open decoder, the one used last in front.
class OpenClips {
public:
    static OpenClips& All()
    {
        static OpenClips sAll;
        return sAll;
    }
    void Use(QvxClip* clip)
    {
        const std::lock_guard lock(fMutex);
        std::erase(fClips, clip);
        fClips.insert(fClips.begin(), clip);
        std::uint64_t bytes = clip->OpenBytes();
        for (std::size_t i = 1; i < fClips.size(); ++i) {
            bytes += fClips[i]->OpenBytes();
            if (bytes > kOpenClipBytes)
                fClips[i]->CloseIfIdle();
        }
    }
    void Remove(QvxClip* clip)
    {
        const std::lock_guard lock(fMutex);
        std::erase(fClips, clip);
    }

private:
    std::mutex fMutex;
    std::vector<QvxClip*> fClips;
};

}  // namespace

QvxClip& QvxClip::Of(QvxParserRec* reader, const QvxFrameRecord& record)
{
    std::shared_ptr<void>& place = *Qvx2Reader_Attachment(reader);
    auto* clip = static_cast<QvxClip*>(place.get());
    if (!clip || !clip->IsOf(record)) {
        place.reset();
        const auto made = std::make_shared<QvxClip>(reader, record);
        clip = made.get();
        place = made;
    }
    return *clip;
}

QvxClip::QvxClip(QvxParserRec* reader, const QvxFrameRecord& record)
    : fFormat(FormatOf(record)), fOffset(record.fPixelOffset)
{
    fStream.Build(reader, static_cast<std::uint32_t>(fOffset));
}

QvxClip::~QvxClip()
{
    OpenClips::All().Remove(this);
    CloseIfIdle();
}

void QvxClip::CloseIfIdle()
{
    const std::unique_lock lock(fAtWork, std::try_to_lock);
    if (lock)
        Close();
}

void QvxClip::Close()
{
    if (fDecoder)
        fCloseProc(fDecoder);
    fDecoder = nullptr;
}

std::uint64_t QvxClip::OpenBytes() const
{
    const std::uint64_t sampleBytes = fFormat.fBits > 8 ? 2 : 1;  // 4:2:0 mostly
    return std::uint64_t{fFormat.fRows} * fFormat.fColumns * sampleBytes * 3 / 2 *
           kPicturesOfDecoders;
}

bool QvxClip::IsOf(const QvxFrameRecord& record) const
{
    const QvxVideoFormat format = FormatOf(record);
    return fOffset == record.fPixelOffset && fFormat.fRows == format.fRows &&
           fFormat.fColumns == format.fColumns && fFormat.fSamples == format.fSamples &&
           fFormat.fBits == format.fBits;
}

QvxStreamFacts QvxClip::FactsOf(const QvxFrameRecord& record)
{
    return {record.fRows, record.fColumns, record.fSamples, record.fBitsStored};
}

std::int32_t QvxClip::ReadProc(void* clip, std::uint64_t offset, std::uint8_t* dest,
                               std::int32_t count)
{
    return static_cast<QvxClip*>(clip)->fStream.Read(offset, dest, count);
}

bool QvxClip::LoadModule(std::string* why)
{
    const auto find = [why](const char* name, auto* proc) {
        void* found = QvxModuleFunction(kVideoModule, name, why);
        *proc = reinterpret_cast<std::remove_pointer_t<decltype(proc)>>(found);
        return found != nullptr;
    };
    return find(kVideoOpen, &fOpenProc) && find(kVideoFrame, &fFrameProc) &&
           find(kVideoCount, &fCountProc) && find(kVideoClose, &fCloseProc);
}

QvxStatus QvxClip::OpenStream(const QvxFrameRecord& record, std::string* why)
{
    if (record.fBitsStored > kMostBits) {
        *why = "(0028,0101): a clip of " + std::to_string(record.fBitsStored) + " bits";
        return kQvxUnsupported;
    }
    QvxStreamFacts facts = FactsOf(record);
    if (const QvxStatus status = QvxCheckStream(record, facts, why))
        return status;  // too large
    if (!LoadModule(why))
        return kQvxUnsupported;
    const QvxVideoInput input{this, fStream.Size(), ReadProc};
    QvxVideoSize size{0, 0};
    const QvxVideoResult result = fOpenProc(&input, &fFormat, &fDecoder, &size);
    if (result != kVideoWrongSize)
        return StatusOf(result == kVideoEnds ? kVideoBroken : result, why);
    facts.fRows = size.fRows;
    facts.fColumns = size.fColumns;
    return QvxCheckStream(record, facts, why);
}

QvxStatus QvxClip::Open(const QvxFrameRecord& record, std::string* why)
{
    if (!fDecoder && fStatus == kQvxOK) {
        const QvxStatus status = OpenStream(record, &fWhy);
        if (status == kQvxNoMemory || status == kQvxSeekFailed) {  // may pass
            *why = fWhy;
            return status;
        }
        fStatus = status;
    }
    if (fStatus == kQvxOK)
        OpenClips::All().Use(this);
    else
        *why = fWhy;
    return fStatus;
}

QvxStatus QvxClip::Settled(QvxVideoResult result, std::string* why)
{
    if (result == kVideoUnread)
        Close();
    return StatusOf(result, why);
}

QvxStatus QvxClip::Frame(const QvxFrameRecord& record, std::uint32_t number, void* samples,
                         std::string* why)
{
    const std::lock_guard lock(fAtWork);
    if (const QvxStatus status = Open(record, why))
        return status;
    return Settled(fFrameProc(fDecoder, number - 1, samples), why);
}

QvxStatus QvxClip::Count(const QvxFrameRecord& record, std::uint32_t* frames, std::string* why)
{
    const std::lock_guard lock(fAtWork);
    if (const QvxStatus status = Open(record, why))
        return status;
    return Settled(fCountProc(fDecoder, frames), why);
}
