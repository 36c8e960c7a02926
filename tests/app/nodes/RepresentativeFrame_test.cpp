// Thumbnails: their sizes, and that they show a frame as its file means it.
#include "app/nodes/RepresentativeFrame.h"

#include "app/grid/GridFixture.h"
#include "app/grid/RenderFrame.h"
#include "app/nodes/DicomElemChildNode.h"

TEST(RepresentativeFrame, keeps_the_proportions_of_the_frame)
{
    struct Row {
        const char* fault;
        const char* aspect;
        bool square;
        QSize size;
        float height;
    };
    const Row rows[] = {
        {"wider than high", nullptr, false, {360, 270}, 270},
        {"square on demand", nullptr, true, {360, 360}, 360},
        {"pixels twice as high as wide", "2\\1", false, {240, 360}, 360},
        {"pixels twice as wide as high", "1\\2", false, {360, 135}, 135},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        MadeTree made(
            {{.frames = 1, .spacing = row.aspect ? nullptr : "1\\1", .aspect = row.aspect}});
        const QImage image = U_RepresentativeFrameImageFor(made.sequences[0], row.square);
        EXPECT_EQ(image.size(), row.size);
        EXPECT_FLOAT_EQ(U_IconHeightOf(image), row.height);
    }
}

TEST(RepresentativeFrame, shows_the_window_of_the_file_whatever_the_user_chose)
{
    MadeTree made(std::vector<SeriesForm>{{.frames = 1}});
    const QImage before = U_RepresentativeFrameImageFor(made.sequences[0], false);
    EXPECT_EQ(before.pixelColor(180, 2), QColor(Qt::black)) << "air above";
    EXPECT_EQ(before.pixelColor(180, 200), QColor(Qt::white));
    ZELSequenceProxy proxy(made.sequences[0]);
    proxy.changeBnCForAllFrames(true, 5000, 4000);
    proxy.invertColorsForFrame(-1);
    proxy.changeRotationForFrame(-1, 90);
    EXPECT_EQ(U_RepresentativeFrameImageFor(made.sequences[0], false), before);
    EXPECT_EQ(proxy.rotationForFrame(1), 90) << "the user's look is the user's";
}

TEST(RepresentativeFrame, a_frame_that_cannot_be_drawn_is_white)
{
    const Quiet quiet;
    MadeTree made(std::vector<SeriesForm>{{.frames = 1}});
    dk_Sequence* lost = MadeTree::Add<dk_Sequence>(made.sequences[0]->GetParent());
    std::unique_ptr<Port> port;
    EXPECT_EQ(U_UpdateDrawBufferForRepresentativeFrameOf(lost, false, &port), kQvxOK);
    const QImage image = U_NSCreateImageFromGWorld(*port);
    EXPECT_EQ(image.size(), QSize(360, 360));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(180, 180), QColor(Qt::white));
    EXPECT_EQ(DrawRepresentativeCellImage(lost, port.get(), {0, 0, 9, 9}), kQvxBadArgument);
}
