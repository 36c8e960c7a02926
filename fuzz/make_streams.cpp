// Writes seeds for the fuzzers of the stream decoders, a folder for each: sound streams with the
// header bytes that go with them.
#include "QvxToolkit/JXLMaker.h"
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

std::string gFolder;

void Write(const char* target, const StreamPicture& picture, const std::string& stream)
{
    static int number = 0;
    const std::string folder = gFolder + '/' + target;
    std::filesystem::create_directories(folder);
    std::ofstream file(folder + "/seed" + std::to_string(++number), std::ios::binary);
    const int options =
        (picture.samples == 3 ? 1 : 0) | (picture.bits - 1) << 1 | (picture.isSigned ? 32 : 0);
    file << static_cast<char>(options) << static_cast<char>(picture.rows - 1)
         << static_cast<char>(picture.columns - 1) << stream;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_streams FOLDER\n");
        return 2;
    }
    gFolder = argv[1];
    for (const int bits : {8, 12, 16}) {
        const StreamPicture gray = MakePicture(13, 17, 1, bits);
        Write("fuzz_jpeg", gray, LosslessJPEG(gray, 1 + bits % 7));
        Write("fuzz_jpegls", gray, JPEGLS(gray, 0, 0));
        Write("fuzz_jpeg2000", gray, JPEG2000(gray, bits == 8, bits == 12, bits != 16));
        Write("fuzz_rle", gray, RLE(gray, bits > 8 ? 2 : 1));
        Write("fuzz_deflated", gray, Deflated(std::string(13 * 17 * 2, 'd')));
        Write("fuzz_jpegxl", gray, JPEGXL(gray, bits == 12, bits == 8));
    }
    const StreamPicture color = MakePicture(16, 16, 3, 8), bytes = MakePicture(16, 16, 1, 8);
    Write("fuzz_jpeg", color, LossyJPEG(color, true, false));
    Write("fuzz_jpeg", bytes, LossyJPEG(bytes, false, true));
    Write("fuzz_jpegls", color, JPEGLS(color, 2, 0));
    Write("fuzz_jpegls", color, JPEGLS(color, 0, 2));
    Write("fuzz_jpeg2000", color, JPEG2000(color, false, false, true));
    Write("fuzz_jpegxl", color, JPEGXL(color));
    Write("fuzz_jpegxl", color, JPEGXL(color, true));
    Write("fuzz_rle", color, RLE(color, 1));
    return 0;
}
