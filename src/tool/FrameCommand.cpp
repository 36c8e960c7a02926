// zelora frame FILE [-n N] [--raw | --png] [--window WIDTH,LEVEL] -o OUT
#include "dicom_core/imaging/FramePicture.h"
#include "tool/CommandLine.h"
#include "tool/OpenedFile.h"

#include "QvxToolkit/DecodedFrame.h"
#include <QBuffer>
#include <QImage>
#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>
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

// The picture's bytes A, R, G, B become Qt's words 0xAARRGGBB.
QImage ImageOf(const std::vector<std::uint8_t>& argb, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    const std::uint8_t* from = argb.data();
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x, from += 4)
            row[x] = qRgb(from[1], from[2], from[3]);
    }
    return image;
}

QvxStatus RenderPicture(FramePicture& picture, QImage* image)
{
    const int width = picture.Width(), height = picture.Height();
    if (width > INT16_MAX || height > INT16_MAX)  // what the bounds of a pixel map can say
        return kQvxUnsupported;
    std::vector<std::uint8_t> argb(static_cast<std::size_t>(width) *
                                   static_cast<std::size_t>(height) * 4);
    PixMap map;
    map.baseAddr = argb.data();
    map.rowBytes = width * 4;
    map.bounds = {0, 0, static_cast<std::int16_t>(height), static_cast<std::int16_t>(width)};
    map.pixelFormat = kPixelFormatARGB32;
    map.pixelSize = 32;
    map.cmpCount = 4;
    map.cmpSize = 8;
    if (const QvxStatus status = picture.Render(map))
        return status;
    *image = ImageOf(argb, width, height);
    return image->isNull() ? kQvxNoMemory : kQvxOK;
}

int WritePng(const FrameRequest& request)
{
    std::unique_ptr<FramePicture> picture;
    std::string why;
    if (FramePicture::Open(request.fPath, &picture, &why) != kQvxOK)
        return Failure(request.fPath, why);
    if (request.fFrame > static_cast<std::uint32_t>(picture->FrameCount()))
        return Failure(request.fPath, "has " + std::to_string(picture->FrameCount()) + " frames");
    if (const QvxStatus status = picture->LoadFrame(static_cast<int>(request.fFrame)))
        return Failure(request.fPath, FrameReason(request.fFrame, status));
    if (request.fWindow && !picture->IsGray())
        return Failure(request.fPath, "is in colour and has no window");
    if (request.fWindow)
        picture->Transform().RecordVOI(static_cast<float>(request.fWindow->fWidth),
                                       static_cast<float>(request.fWindow->fLevel));
    QImage image;
    if (const QvxStatus status = RenderPicture(*picture, &image))
        return Failure(request.fPath, FrameReason(request.fFrame, status));
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        return Failure(request.fPath, "can't be made a PNG");
    return WriteOut(request, {reinterpret_cast<const std::uint8_t*>(png.constData()),
                              static_cast<std::size_t>(png.size())});
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
    if (request->fRaw && (parsed.Has("--png") || parsed.Has("--window")))
        return "--raw goes with neither --png nor --window";
    if (!ParseNumber(parsed.Value("-n", "1"), &request->fFrame) || request->fFrame == 0)
        return "-n takes the number of a frame, from 1";
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
    const ParsedWords parsed =
        ParseWords(words, {{"-n", true}, {"-o", true}, {"--window", true}, {"--raw"}, {"--png"}});
    FrameRequest request;
    const std::string problem = ReadRequest(parsed, &request);
    if (!problem.empty())
        return WrongUsage(problem);
    return request.fRaw ? WriteRaw(request) : WritePng(request);
}
