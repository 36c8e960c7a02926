// Another colour and font of the text over frames, once they are posted.
#include "app/draw/AnnotationLook.h"

#include "app/grid/GridFixture.h"
#include "dicom_core/annotations/PrepareSequenceAnnotations.h"

namespace {

TEST(AnnotationLook, reaches_every_sequence_and_paints_the_grids)
{
    const Quiet quiet;
    InstallSequenceAnnotations();
    MadeTree made({{.frames = 2}, {.frames = 1}, {.frames = 1}});
    Window window(&made);
    const AnnotationLook look(&window.host);
    const auto annotation = [&](std::size_t sequence) {
        return AnnotationManagerOf(*made.sequences[sequence])->GetNthAdorner(0);
    };
    for (dk_Sequence* sequence : made.sequences)
        sequence->GetViewState()->Revert(sequence->GetModality(), 1);
    window.host.Take();
    NotificationCenter::Default().Post(
        kNoteAnnotationColorChanged, nullptr,
        {{QLatin1String(kKeyNewAnnotationColor), QColor(255, 0, 128)}});
    EXPECT_EQ(window.host.Take(), (Words{"A all", "B all"}));
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(annotation(i)->fColor.red, 65535) << i;
        EXPECT_EQ(annotation(i)->fColor.blue, 128 * 257) << i;
    }
    NotificationCenter::Default().Post(kNoteAnnotationFontChanged, nullptr,
                                       {{QLatin1String(kKeyNewAnnotationFontName), "Serif"},
                                        {QLatin1String(kKeyNewAnnotationFontSize), 17.0F}});
    EXPECT_EQ(window.host.Take(), (Words{"A all", "B all"}));
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(annotation(i)->fFontName, QStringLiteral("Serif")) << i;
        EXPECT_EQ(annotation(i)->fFontSize, 17) << i;
    }
    window.a.setCineModeIsON(true);
    NotificationCenter::Default().Post(kNoteUSRegionsColorChange, nullptr);
    EXPECT_EQ(window.host.Take(), (Words{"B all"})) << "what plays paints itself";
    NotificationCenter::Default().Post(kNoteUSRegionsShowHide, nullptr);
    EXPECT_EQ(window.host.Take(), (Words{"B all"})) << "shown and hidden in every window";
    SetSequenceAnnotationsMaker(nullptr);
}

}  // namespace
