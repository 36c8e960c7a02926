// What 300 frames of 1024 by 1024 cost in resident memory, against 20 of them: every frame is
// decoded, kept by the base buffer and rendered, then all are rendered from the buffer.
#include "dicom_core/imaging/ImagingFixtures.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/store/TempFolder.h"
#include "pixels/PixelFormat.h"

#include "QvxToolkit/StreamMaker.h"
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace {

constexpr int kSide = 1024, kFew = 20, kMany = 300;
constexpr double kLimit = 1.05;  // a frame leaves some KiB of names and numbers

double ResidentKiB()
{
    ::malloc_trim(0);
    std::ifstream statm("/proc/self/statm");
    double total = 0, resident = 0;
    statm >> total >> resident;
    return resident * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1024;
}

void Show(dk_SequenceBase* sequence, zel_QTViewerDoc* document, Port* target, int from, int to)
{
    for (int frame = from; frame <= to; ++frame) {
        if (U_LoadFrameContentToViewerDoc(sequence, frame, document) ||
            document->CopyPixelsToGWorldL(target, nullptr, nullptr, CopyMode::Replace, nullptr))
            std::abort();
    }
}

double ResidentAfter(dk_SequenceBase* sequence, zel_QTViewerDoc* document, Port* target, int from,
                     int to)
{
    Show(sequence, document, target, from, to);  // decoded
    Show(sequence, document, target, 1, to);     // from the buffer
    return ResidentKiB();
}

}  // namespace

int main()
{
    const TempFolder caches;
    setenv("XDG_CACHE_HOME", caches.Path().c_str(), 1);
    MadeSequence made;
    const StreamPicture picture = MakePicture(kSide, kSide, 1, 16);
    const std::string stream = RLE(picture, 2);
    DicomBuilder file;
    file.Meta("1.2.840.10008.1.2.5").CommonHeader();
    file.Image({.rows = kSide, .columns = kSide, .bits = 16, .frames = kMany});
    made.Add(file.Encapsulated(std::vector<std::vector<DicomFragment>>(kMany, {{stream}})));
    file = {};
    zel_ImageBuffer buffer;
    buffer.SetIOBufferSize(kBaseBufferIOBytes);
    gAppBaseBuffer = &buffer;
    zel_QTViewerDoc document;
    std::unique_ptr<Port> target;
    if (NewPort(kPixelFormatARGB32, kSide, kSide, nullptr, &target))
        std::abort();
    const double few = ResidentAfter(&made.sequence, &document, target.get(), 1, kFew);
    const double many = ResidentAfter(&made.sequence, &document, target.get(), kFew + 1, kMany);
    const bool held = many <= few * kLimit;
    std::printf(
        "%d frames against %d, resident: %.0f KiB against %.0f KiB, %zu kept, ratio %.3f, "
        "limit %.2f: %s\n",
        kMany, kFew, many, few, buffer.CountImages(), many / few, kLimit,
        held ? "held" : "NOT HELD");
    gAppBaseBuffer = nullptr;
    buffer.Reset();
    RemoveProgramTempFolder();
    return held ? 0 : 1;
}
