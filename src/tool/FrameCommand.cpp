// zelora frame FILE [-n N] [--raw | --png] [--window WIDTH,LEVEL] -o OUT
#include "dicom_core/imaging/FramePicture.h"
#include "tool/CommandLine.h"
#include "tool/OpenedFile.h"

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

QvxStatus RenderPicture(FramePicture& picture, RgbImage* image)
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
    *image = RgbOf(argb, width, height);
    return kQvxOK;
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
    RgbImage image;
    if (const QvxStatus status = RenderPicture(*picture, &image))
        return Failure(request.fPath, FrameReason(request.fFrame, status));
    const std::vector<std::uint8_t> png = PngOf(image);
    if (png.empty())
        return Failure(request.fPath, "can't be made a PNG");
    return WriteOut(request, png);
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
