// zelora frame FILE [-n N] [--raw | --png] [--window WIDTH,LEVEL] [--invert] [--rotate DEGREES]
//              [--flip h|v] [--clut NUMBER] [--overlays] -o OUT
#include "dicom_core/imaging/DicomOverlays.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/look/TransDocs.h"
#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "prefs/ColorTableFiles.h"
#include "prefs/Prefs.h"
#include "tool/CommandLine.h"
#include "tool/OpenedFile.h"
#include "util/Log.h"

#include "QvxToolkit/DecodedFrame.h"
#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>
#include <png.h>
#include <vector>

namespace {

struct WindowWanted {
    double fWidth = 0, fLevel = 0;  // user values
};

struct FrameRequest {
    std::string fPath, fOut;
    std::uint32_t fFrame = 1;
    bool fRaw = false;
    std::optional<WindowWanted> fWindow;
    bool fInvert = false, fOverlays = false;
    std::uint32_t fRotate = 0;  // degrees clockwise, before the flip
    char fFlip = 0;             // 'h', 'v'
    std::uint32_t fTable = 0;   // 0: none
    [[nodiscard]] bool ChangesLook() const
    {
        return fInvert || fRotate != 0 || fFlip != 0 || fTable != 0 || fWindow;
    }
};

std::string FrameReason(std::uint32_t frame, QvxStatus status, const std::string& why = {})
{
    return "frame " + std::to_string(frame) + ": " +
           (why.empty() ? std::string(StatusText(status)) : why);
}

int WriteOut(const FrameRequest& request, std::span<const std::uint8_t> bytes)
{
    std::string why;
    if (WriteWholeFile(request.fOut, bytes, &why) != kQvxOK)
        return Failure(request.fOut, why);
    return kExitOK;
}

// The stored values in the width that they were decoded to.
int WriteRaw(const FrameRequest& request)
{
    QvxReaderPtr reader;
    std::string why;
    if (OpenDicomFile(request.fPath, &reader, &why) != kQvxOK)
        return Failure(request.fPath, why);
    QvxFrameRecord record;
    if (const QvxStatus status = QvxMakeFrameRecord(reader.get(), &record, &why))
        return Failure(request.fPath, why.empty() ? StatusText(status) : why);
    if (request.fFrame > record.fFrames)
        return Failure(request.fPath, "has " + std::to_string(record.fFrames) + " frames");
    DecodedFrame frame;
    if (const QvxStatus status = DecodeFrame(reader.get(), record, request.fFrame, &frame, &why))
        return Failure(request.fPath, FrameReason(request.fFrame, status, why));
    if constexpr (std::endian::native == std::endian::big) {
        const auto width = static_cast<std::ptrdiff_t>(BytesOfForm(frame.fForm));
        for (auto value = frame.fBytes.begin(); value != frame.fBytes.end(); value += width)
            std::reverse(value, value + width);
    }
    return WriteOut(request, frame.fBytes);
}

// The picture as rows of R, G, B bytes; its own are A, R, G, B.
struct RgbImage {
    int fWidth = 0, fHeight = 0;
    std::vector<std::uint8_t> fBytes;
};

RgbImage RgbOf(const std::vector<std::uint8_t>& argb, int width, int height)
{
    RgbImage image{width, height, {}};
    image.fBytes.reserve(argb.size() / 4 * 3);
    for (std::size_t i = 0; i + 3 < argb.size(); i += 4)
        image.fBytes.insert(image.fBytes.end(), {argb[i + 1], argb[i + 2], argb[i + 3]});
    return image;
}

// Empty on failure.
std::vector<std::uint8_t> PngOf(const RgbImage& image)
{
    png_image header{};
    header.version = PNG_IMAGE_VERSION;
    header.width = static_cast<png_uint_32>(image.fWidth);
    header.height = static_cast<png_uint_32>(image.fHeight);
    header.format = PNG_FORMAT_RGB;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(header);
    std::vector<std::uint8_t> png(size);
    if (!png_image_write_to_memory(&header, png.data(), &size, 0, image.fBytes.data(), 0, nullptr))
        return {};
    png.resize(size);
    return png;
}

// The first line that was logged while a frame was loaded: the one with the reason.
std::string& FirstLogLine()
{
    static std::string sLine;
    return sLine;
}

void KeepFirstLine(std::string_view line)
{
    if (FirstLogLine().empty())
        FirstLogLine() = line;
}

class LogKeeper {
public:
    LogKeeper()
    {
        FirstLogLine().clear();
        SetLogSink(KeepFirstLine);
    }
    ~LogKeeper() { SetLogSink(nullptr); }
    LogKeeper(const LogKeeper&) = delete;
    LogKeeper& operator=(const LogKeeper&) = delete;
    // The reason without the path that it begins with.
    [[nodiscard]] static std::string Reason(const std::string& path, QvxStatus status)
    {
        const std::string& line = FirstLogLine();
        const std::string start = EscapedText(path) + ": ";
        return line.starts_with(start) ? line.substr(start.size())
                                       : std::string(StatusText(status));
    }
};

// What the user is said to have done to the frame.
void TakeLook(const FrameRequest& request, dk_ImageFrameInfo* frame)
{
    zel_TransformRec& look = frame->fTransform;
    look.invert = request.fInvert;
    if (request.fRotate != 0)
        look.RecRotation(static_cast<std::int32_t>(request.fRotate));
    if (request.fFlip == 'h')
        look.RecHorzFlip();
    else if (request.fFlip == 'v')
        look.RecVertFlip();
    frame->fColorTable = static_cast<std::int32_t>(request.fTable);
    if (request.fWindow)
        look.RecordVOI(static_cast<float>(request.fWindow->fWidth),
                       static_cast<float>(request.fWindow->fLevel));
}

// The document's picture at its own size, with overlays where they are wanted.
QvxStatus RenderPicture(const FrameRequest& request, zel_QTViewerDoc* document, RgbImage* image)
{
    const int width = document->GetWidth(), height = document->GetHeight();
    std::vector<std::uint8_t> argb(static_cast<std::size_t>(width) *
                                   static_cast<std::size_t>(height) * 4);
    Port port;
    port.baseAddr = argb.data();
    port.rowBytes = width * 4;
    port.bounds = document->GetDocBounds();
    port.pixelFormat = kPixelFormatARGB32;
    port.pixelSize = 32;
    port.cmpCount = 4;
    port.cmpSize = 8;
    if (const QvxStatus status =
            document->CopyPixelsToGWorldL(&port, nullptr, nullptr, CopyMode::Replace, nullptr))
        return status;
    const dk_ImageFrameInfo* frame = document->CurrentFrame();
    const IdentityTransDoc turned;
    if (request.fOverlays)
        if (const QvxStatus status =
                U_DrawDicomOverlays(frame->fSource, frame->fFrameInFile, &port, port.bounds,
                                    &frame->fTransform, &turned, nullptr, OverlaysBeyond::Cut))
            return status;
    *image = RgbOf(argb, width, height);
    return kQvxOK;
}

// Loads the frame twice: the first time sets its window and its limits up, the second shows what is
// done to it.
QvxStatus LoadWithLook(const FrameRequest& request, dk_Sequence* sequence,
                       zel_QTViewerDoc* document)
{
    const auto number = static_cast<std::int32_t>(request.fFrame);
    if (const QvxStatus status = U_LoadFrameContentToViewerDoc(sequence, number, document))
        return status;
    if (!request.ChangesLook())
        return kQvxOK;
    TakeLook(request, document->CurrentFrame());
    return U_LoadFrameContentToViewerDoc(sequence, number, document);
}

// The picture's bytes; empty, with a reason, on failure.
std::vector<std::uint8_t> MakePng(const FrameRequest& request, std::string* why)
{
    const LogKeeper log;
    CImporterPlusFactory::InitFactory();
    auto file = std::make_unique<dk_ImageFile>();
    if (const QvxStatus status = file->SetSourceFile(FileRef{request.fPath}, kImportDicom)) {
        QvxReaderPtr reader;
        if (OpenDicomFile(request.fPath, &reader, why) == kQvxOK)
            *why = StatusText(status);
        return {};
    }
    dk_Sequence sequence;
    sequence.AddChild(std::move(file));
    const std::int32_t frames = std::max(sequence.GetNumberOfFrames(), 1);
    if (request.fFrame > static_cast<std::uint32_t>(frames)) {
        *why = "has " + std::to_string(frames) + " frames";
        return {};
    }
    zel_QTViewerDoc document;
    if (const QvxStatus status = LoadWithLook(request, &sequence, &document)) {
        *why = FrameReason(request.fFrame, status, LogKeeper::Reason(request.fPath, status));
        return {};
    }
    if (request.fWindow && !document.IsVOIReady()) {
        *why = "is in colour and has no window";
        return {};
    }
    RgbImage image;
    if (const QvxStatus status = RenderPicture(request, &document, &image)) {
        *why = FrameReason(request.fFrame, status);
        return {};
    }
    std::vector<std::uint8_t> png = PngOf(image);
    if (png.empty())
        *why = "can't be made a PNG";
    return png;
}

int WritePng(const FrameRequest& request)
{
    std::string why;
    const int tables = prefs_GetNumberOfCLUTs();
    if (request.fTable > static_cast<std::uint32_t>(tables))
        return Failure(request.fPath, "--clut: there are " + std::to_string(tables) + " tables");
    const std::vector<std::uint8_t> png = MakePng(request, &why);
    return png.empty() ? Failure(request.fPath, why) : WriteOut(request, png);
}

// What is wrong with the words, or nothing.
std::string ReadRequest(const ParsedWords& parsed, FrameRequest* request)
{
    if (!parsed.fProblem.empty())
        return parsed.fProblem;
    if (parsed.fPaths.size() != 1 || !parsed.Has("-o"))
        return "frame takes one file and -o OUT";
    request->fPath = parsed.fPaths[0];
    request->fOut = parsed.Value("-o");
    request->fRaw = parsed.Has("--raw");
    if (request->fRaw && parsed.fOptions.size() > 2 + (parsed.Has("-n") ? 1U : 0U))
        return "--raw goes with none of the options of pictures";
    if (!ParseNumber(parsed.Value("-n", "1"), &request->fFrame) || request->fFrame == 0)
        return "-n takes the number of a frame, from 1";
    request->fInvert = parsed.Has("--invert");
    request->fOverlays = parsed.Has("--overlays");
    if (!ParseNumber(parsed.Value("--rotate", "0"), &request->fRotate) ||
        request->fRotate % 90 != 0 || request->fRotate > 270)
        return "--rotate takes 90, 180 or 270";
    const std::string flip = parsed.Value("--flip");
    if (parsed.Has("--flip") && flip != "h" && flip != "v")
        return "--flip takes h or v";
    request->fFlip = flip.empty() ? '\0' : flip[0];
    if (!ParseNumber(parsed.Value("--clut", "0"), &request->fTable))
        return "--clut takes the number of a colour table, from 1";
    if (parsed.Has("--window")) {
        const std::string text = parsed.Value("--window");
        const std::size_t comma = text.find(',');
        WindowWanted window;
        if (comma == std::string::npos ||
            !ParseNumber(std::string_view(text).substr(0, comma), &window.fWidth) ||
            !ParseNumber(std::string_view(text).substr(comma + 1), &window.fLevel) ||
            window.fWidth <= 0)
            return "--window takes WIDTH,LEVEL with a width above 0";
        request->fWindow = window;
    }
    return {};
}

}  // namespace

int RunFrame(CommandWords words)
{
    const ParsedWords parsed = ParseWords(words, {{"-n", true},
                                                  {"-o", true},
                                                  {"--window", true},
                                                  {"--rotate", true},
                                                  {"--flip", true},
                                                  {"--clut", true},
                                                  {"--invert"},
                                                  {"--overlays"},
                                                  {"--raw"},
                                                  {"--png"}});
    FrameRequest request;
    const std::string problem = ReadRequest(parsed, &request);
    if (!problem.empty())
        return WrongUsage(problem);
    if (request.fRaw)
        return WriteRaw(request);
    prefs_InitializeForApplication();
    if (request.fTable != 0)
        prefs_SetCLUTs(loadCLUTTables());
    return WritePng(request);
}
