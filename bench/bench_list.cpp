// While the list makes thumbnails of mammograms, 4,096 by 3,328 pixels in JPEG 2000, one decoding
// of which takes longer than anybody waits for a click: how long events ever wait. The time of all
// of them stands beside it, with what the same frames take one after the other without a list.
//   bench_list
#include "PairedRatio.h"
#include "Pulse.h"
#include "app/nodes/RepresentativeFrame.h"
#include "browser/BrowserFixture.h"
#include "dicom_core/store/TempFolder.h"

#include "QvxToolkit/StreamMaker.h"
#include <QApplication>
#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kRowsOfFilm = 4096, kColumnsOfFilm = 3328, kFilms = 4;
constexpr double kLimit_ms = 50;
constexpr int kPulse_ms = 2;

struct Films {
    Films()
    {
        const std::string stream =
            JPEG2000(MakePicture(kRowsOfFilm, kColumnsOfFilm, 1, 12), false, false, true);
        CImporterPlusFactory::InitFactory();
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
        dk_DicomBaseElem* study =
            MadeTree::Add<dk_Study>(MadeTree::Add<dk_Patient>(tree.patientTreeRoot()));
        for (int film = 0; film < kFilms; ++film) {
            DicomBuilder file;
            file.Meta("1.2.840.10008.1.2.4.90").CommonHeader("MG");
            file.Image({.rows = kRowsOfFilm, .columns = kColumnsOfFilm, .bits = 16, .stored = 12});
            const std::string bytes = file.Encapsulated({{stream}}).Bytes();
            sequences.push_back(MadeTree::Add<dk_Sequence>(MadeTree::Add<dk_Series>(study)));
            if (MadeTree::Add<dk_ImageFile>(sequences.back())
                    ->SetSourceFile(FileRef{folder.WriteFile(std::to_string(film), bytes)},
                                    kImportDicom) != kQvxOK)
                std::abort();
        }
    }
    TempFolder folder;
    ZELDcmTree tree;
    std::vector<dk_Sequence*> sequences;
};

struct Listing {
    double longest = 0, whole = 0;  // ms
};

Listing ListOnce(Films& films)
{
    FakeBrowserHost host;
    PatTreeDataSource source(&host);
    source.setupWithDicomTree(&films.tree);
    Pulse pulse(kPulse_ms);
    QElapsedTimer time;
    time.start();
    for (const DicomElemChildNode* node : source.sequenceNodes())
        (void)source.willDisplayCell(source.indexOf(node), 64, false);
    const auto waits = [&] {
        return std::ranges::any_of(source.sequenceNodes(), &DicomElemChildNode::iconMissing);
    };
    while (waits())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return {pulse.Longest(), static_cast<double>(time.nsecsElapsed()) / 1e6};
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const TempFolder caches;
    setenv("XDG_CACHE_HOME", caches.Path().c_str(), 1);
    zel_ImageBuffer buffer;
    buffer.SetIOBufferSize(kBaseBufferIOBytes);
    gAppBaseBuffer = &buffer;
    std::vector<double> longest, whole, alone;
    {
        Films films;
        for (int i = 0; i < kPairs; ++i) {
            buffer.Reset();
            const Listing listing = ListOnce(films);
            longest.push_back(listing.longest);
            whole.push_back(listing.whole);
            buffer.Reset();
            alone.push_back(MicrosecondsOf([&] {
                                for (dk_Sequence* film : films.sequences)
                                    (void)U_RepresentativeFrameImageFor(film, false);
                            }) /
                            1000);
        }
        buffer.Reset();
    }
    gAppBaseBuffer = nullptr;
    RemoveProgramTempFolder();
    const double worst = *std::ranges::max_element(longest);
    const bool held = worst <= kLimit_ms;
    std::printf(
        "longest pause while %d mammograms are listed: median %.1f ms, worst %.1f ms, limit %.0f: "
        "%s\n",
        kFilms, MedianOf(longest), worst, kLimit_ms, held ? "held" : "NOT HELD");
    std::printf("all of them: %.0f ms, without a list %.0f ms\n", MedianOf(whole), MedianOf(alone));
    return held ? 0 : 1;
}
