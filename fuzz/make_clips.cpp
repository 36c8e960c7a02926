// Writes the seeds of fuzz_video into a folder: a tiny clip of each codec and container, behind the
// three bytes that the target takes its format from.
#include "QvxToolkit/ClipMaker.h"
#include <cstdio>
#include <fstream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_clips FOLDER\n");
        return 2;
    }
    constexpr int kSide = 32, kFrames = 6;
    const char* kHEVC = "preset=ultrafast:x265-params=log-level=none:pools=none:keyint=4";
    const char* const kinds[][3] = {
        {"mpeg2video", "mpeg2video", "bf=1"},
        {"mpeg2video", "vob", "bf=1"},
        {"mpeg2video", "mpegts", "bf=1"},
        {"libx264", "h264", "preset=veryfast:bf=2"},
        {"libx264", "mp4", "preset=veryfast"},
        {"libx264", "mpegts", "preset=ultrafast"},
        {"libx265", "hevc", kHEVC},
        {"libx265", "mp4", kHEVC},
    };
    int number = 0;
    for (const auto& kind : kinds) {
        const std::string clip = MakeClip({.fEncoder = kind[0],
                                           .fContainer = kind[1],
                                           .fOptions = kind[2],
                                           .fFrames = kFrames,
                                           .fColumns = kSide,
                                           .fRows = kSide});
        std::ofstream file(std::string(argv[1]) + "/clip" + std::to_string(number++),
                           std::ios::binary);
        file << '\0' << static_cast<char>(kSide - 1) << static_cast<char>(kSide - 1) << clip;
        if (clip.empty() || !file.flush()) {
            std::fprintf(stderr, "make_clips: no clip %s, %s\n", kind[0], kind[1]);
            return 1;
        }
    }
    return 0;
}
