// A clip as it lives with its file's reader: the stream, and the module's open decoder once a frame
// was asked for. Internal.
//
// Open decoders hold a few dozen pictures each. All clips of the program together keep to
// kOpenClipBytes, as far as it can be told beforehand; those that were used longest ago are closed,
// and open again when they are used.
#pragma once
#include "QvxToolkit/DecodedFrame.h"
#include "QvxToolkit/QvxClipStream.h"
#include "QvxToolkit/QvxStream.h"
#include "QvxToolkit/QvxVideoModule.h"
#include <mutex>
#include <string>

inline constexpr std::uint64_t kOpenClipBytes = std::uint64_t{1} << 29;

class QvxClip {
public:
    // The reader's clip, made when there is none for this record. May throw std::bad_alloc.
    [[nodiscard]] static QvxClip& Of(QvxParserRec* reader, const QvxFrameRecord& record);

    QvxClip(QvxParserRec* reader, const QvxFrameRecord& record);
    ~QvxClip();
    QvxClip(const QvxClip&) = delete;
    QvxClip& operator=(const QvxClip&) = delete;

    [[nodiscard]] const QvxClipStream& Stream() const { return fStream; }
    // Precision and size of the samples that Frame leaves.
    [[nodiscard]] static QvxStreamFacts FactsOf(const QvxFrameRecord& record);
    // Frame `number`, from 1. kQvxEndOfFile when the stream ends before it; kQvxMalformed or
    // kQvxUnsupported, with a reason, when there is nothing to be made of it.
    [[nodiscard]] QvxStatus Frame(const QvxFrameRecord& record, std::uint32_t number, void* samples,
                                  std::string* why);
    // Frames that the stream holds; decodes it to the end. Codes as of Frame.
    [[nodiscard]] QvxStatus Count(const QvxFrameRecord& record, std::uint32_t* frames,
                                  std::string* why);
    // Closes the decoder, unless it is at work in another thread.
    void CloseIfIdle();
    [[nodiscard]] std::uint64_t OpenBytes() const;

private:
    [[nodiscard]] bool IsOf(const QvxFrameRecord& record) const;
    [[nodiscard]] QvxStatus Open(const QvxFrameRecord& record, std::string* why);
    [[nodiscard]] QvxStatus OpenStream(const QvxFrameRecord& record, std::string* why);
    void Close();
    // What the module answered; one that could not read is closed, to be opened anew.
    [[nodiscard]] QvxStatus Settled(QvxVideoResult result, std::string* why);
    [[nodiscard]] bool LoadModule(std::string* why);
    static std::int32_t ReadProc(void* clip, std::uint64_t offset, std::uint8_t* dest,
                                 std::int32_t count);

    QvxVideoFormat fFormat;
    std::uint64_t fOffset;
    QvxClipStream fStream;
    std::mutex fAtWork;
    QvxVideoOpenProc fOpenProc = nullptr;
    QvxVideoFrameProc fFrameProc = nullptr;
    QvxVideoCountProc fCountProc = nullptr;
    QvxVideoCloseProc fCloseProc = nullptr;
    void* fDecoder = nullptr;    // the module's; null when closed
    QvxStatus fStatus = kQvxOK;  // a failure to open stands
    std::string fWhy;
};
