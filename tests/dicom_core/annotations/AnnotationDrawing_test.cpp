// What lies on the paper after drawing, and where.
#include "dicom_core/annotations/AnnotationFixtures.h"
#include "dicom_core/annotations/AnnotationText.h"
#include "dicom_core/annotations/PrepareSequenceAnnotations.h"
#include "dicom_core/annotations/SequenceFieldAnnotation.h"

#include <filesystem>

namespace {

class AnnotationDrawing : public PaintingTest {};

constexpr ZELRGBColor kYellow{0xFFFF, 0xFFFF, 0};
constexpr QvxElementTag kID{0x0010, 0x0020}, kOtherID{0x0010, 0x1000};

void Add(AnnotationManagerX* manager, TextPosition position, QvxElementTag tag, bool always = false)
{
    auto field = std::make_unique<TextFieldAnnotation>(position, tag, QString());
    field->fShowWhenNoFit = always;
    manager->AddAnnotation(std::move(field));
}

Rect Cell(int width, int height, int left = 0, int top = 0)
{
    return LRectToRect({top, left, top + height, left + width});
}

// What a manager draws into a cell of its own size.
QImage Drawn(AnnotationManagerX* manager, AnnotatedSequence& made, int width, int height,
             int frame = 1)
{
    manager->SetForeColor(kYellow);
    manager->SetCurrentSequence(&made.sequence);
    Paper paper(width, height);
    manager->Draw(Cell(width, height), frame, paper.Painter());
    return paper.Image();
}

int InkIn(const QImage& image, const QRect& part)
{
    int count = 0;
    const QRect inside = part & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            count += IsInk(image.pixel(x, y)) ? 1 : 0;
    return count;
}

int Ink(const QImage& image) { return InkIn(image, image.rect()); }

FileWords TwoLines()
{
    return {.elements = {{0x0010, 0x0020, "LO", "..."}, {0x0010, 0x1000, "LO", "WWWWWW"}}};
}

}  // namespace

TEST_F(AnnotationDrawing, a_line_lies_where_it_was_measured)
{
    const QString text = QStringLiteral("Wgjp Äy");
    for (const double scale : {1.0, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        Paper paper(200, 100, scale);
        const QRectF bounds = CalculateTextBounds(text, paper.Painter(), GetAnnotationFontRef());
        EXPECT_LT(bounds.y(), -1);  // what hangs below the baseline
        EXPECT_GT(bounds.height(), -bounds.y() + 4);
        ShapeDrawStringWithFontX(text, paper.Painter(), {40, -50}, GetAnnotationFontRef(), kYellow);
        const QRectF ink = paper.BoundsOf(IsInk);
        EXPECT_NEAR(ink.left(), 40 + bounds.x(), 1.2);
        EXPECT_NEAR(ink.right(), 40 + bounds.right(), 2);  // measuring rounds outward
        EXPECT_NEAR(ink.bottom(), 50 - bounds.y(), 1.2);
        EXPECT_NEAR(ink.top(), 50 - (bounds.y() + bounds.height()), 1.2);
        const QRectF all = paper.Painted();
        EXPECT_NEAR(all.right() - ink.right(), 1, 1);
        EXPECT_NEAR(all.bottom() - ink.bottom(), 1, 1);
        const QRectF dark = paper.BoundsOf([](QRgb pixel) { return qRed(pixel) < 0x40; });
        EXPECT_GT(dark.width(), ink.width() / 2);
    }
    Paper empty(10, 10);
    EXPECT_EQ(CalculateTextBounds({}, empty.Painter(), GetAnnotationFontRef()), QRectF());
    EXPECT_GT(GetLineHeightForFont(GetAnnotationFontRef()), 8);
}

TEST_F(AnnotationDrawing, corner_lines_read_downward)
{
    AnnotatedSequence made(TwoLines());
    for (const TextPosition position :
         {TextPosition::TopLeft, TextPosition::TopRight, TextPosition::BottomLeft,
          TextPosition::BottomCenter, TextPosition::BottomRight}) {
        AnnotationManagerX manager;
        manager.SetShowsDemographics(true);
        Add(&manager, position, kID);
        Add(&manager, position, kOtherID);
        const QImage image = Drawn(&manager, made, 300, 200);
        // The dots of the first line have their pixels above those of the second's letters.
        QRect dots, all;
        for (int y = 0; y < image.height(); ++y) {
            QRect row;
            for (int x = 0; x < image.width(); ++x)
                if (IsInk(image.pixel(x, y)))
                    row |= QRect(x, y, 1, 1);
            all |= row;
            if (dots.isEmpty())
                dots = row;
        }
        EXPECT_LT(dots.width(), all.width() * 2 / 3) << static_cast<int>(position);
        EXPECT_GT(all.height(), 10);
    }
}

TEST_F(AnnotationDrawing, the_size_of_the_cell_decides)
{
    struct Row {
        const char* fault;
        int width, height;
        bool always, rest;  // which of two fields are seen
    };
    const Row rows[] = {
        {"too narrow", 48, 300, false, false},
        {"only what always shows", 128, 400, true, false},
        {"all that fits", 129, 400, true, true},
        {"no text takes a quarter", 60, 60, false, false},
    };
    AnnotatedSequence made(TwoLines());
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        AnnotationManagerX manager;
        manager.SetShowsDemographics(true);
        Add(&manager, TextPosition::TopLeft, kOtherID, true);
        Add(&manager, TextPosition::BottomLeft, kOtherID);
        const QImage image = Drawn(&manager, made, row.width, row.height);
        const QRect upper(0, 0, row.width, row.height / 2);
        EXPECT_EQ(InkIn(image, upper) > 0, row.always);
        EXPECT_EQ(InkIn(image, upper.translated(0, upper.height())) > 0, row.rest);
    }
}

TEST_F(AnnotationDrawing, flags_choose_between_text_and_ruler)
{
    AnnotatedSequence made({.elements = {{0x0010, 0x0020, "LO", "A-7"},
                                         {0x0020, 0x0037, "DS", "1\\0\\0\\0\\1\\0"},
                                         {0x0028, 0x0030, "DS", "0.5\\0.5"}}});
    AnnotationManagerX manager;
    Add(&manager, TextPosition::TopLeft, kID);
    manager.AddAnnotation(std::make_unique<OrientationAnnotation>());
    manager.AddRuler(std::make_unique<RulerAnnotation>());
    const QRect corner(0, 0, 60, 30), top(190, 0, 20, 25), bar(150, 370, 40, 12);
    const QRect left(0, 190, 20, 30);
    const auto inkOf = [&](bool text, bool ruler) {
        manager.SetShowsDemographics(text);
        manager.SetShowsScale(ruler);
        const QImage image = Drawn(&manager, made, 400, 400);
        std::vector<bool> seen;
        for (const QRect& part : {corner, top, left, bar})
            seen.push_back(InkIn(image, part) > 0);
        return seen;
    };
    EXPECT_EQ(inkOf(true, true), (std::vector<bool>{true, true, true, true}));
    EXPECT_EQ(inkOf(true, false), (std::vector<bool>{true, true, true, false}));
    EXPECT_EQ(inkOf(false, true), (std::vector<bool>{false, false, false, true}));
    EXPECT_EQ(inkOf(false, false), (std::vector<bool>{false, false, false, false}));
    // Letters stay in a tiny cell, the field goes.
    manager.SetShowsDemographics(true);
    const QImage tiny = Drawn(&manager, made, 100, 100);
    EXPECT_GT(InkIn(tiny, {40, 0, 20, 25}), 0);
    EXPECT_EQ(InkIn(tiny, {0, 0, 30, 25}), 0);
}

TEST_F(AnnotationDrawing, the_current_frame_comes_back)
{
    AnnotatedSequence made({.frames = 3, .elements = {{0x0010, 0x0020, "LO", "first"}}});
    made.Add({.elements = {{0x0010, 0x0020, "LO", "second"}}});
    AnnotationManagerX manager;
    manager.SetShowsDemographics(true);
    Add(&manager, TextPosition::TopLeft, kID);
    const QImage first = Drawn(&manager, made, 300, 300);
    made.sequence.SetCurrentFrameIndex(2);
    const QImage other = Drawn(&manager, made, 300, 300, 4);
    EXPECT_GT(Ink(other), 0);
    EXPECT_NE(first, other);
    EXPECT_EQ(made.sequence.GetCurrentFrameIndex(), 2);
    for (const int none : {-1, 0, 5})
        EXPECT_EQ(Ink(Drawn(&manager, made, 300, 300, none)), 0) << none;
    // A file that is gone has no reader.
    std::filesystem::remove(made.files[1]->GetSource()->GetDataFile().fPath);
    made.files[1]->GetSource()->ReleaseParser();
    EXPECT_EQ(Ink(Drawn(&manager, made, 300, 300, 4)), 0);
    EXPECT_EQ(made.sequence.GetCurrentFrameIndex(), 2);
    manager.SetCurrentSequence(nullptr);
    Paper paper(300, 300);
    manager.Draw(Cell(300, 300), 1, paper.Painter());
    EXPECT_TRUE(paper.Painted().isEmpty());
}

// A cell somewhere in the view looks like the same cell at its origin, and stays inside.
TEST_F(AnnotationDrawing, a_cell_may_lie_anywhere)
{
    AnnotatedSequence made({.elements = {{0x0010, 0x0020, "LO", "A-7"},
                                         {0x0020, 0x0037, "DS", "0.8\\0.6\\0\\-0.6\\0.8\\0"},
                                         {0x0028, 0x0030, "DS", "0.5\\0.5"}}});
    AnnotationManagerX manager;
    manager.SetShowsDemographics(true);
    manager.SetShowsScale(true);
    for (int i = 0; i < 9; ++i)
        Add(&manager, TextPositionOf(i), kID);
    manager.AddAnnotation(std::make_unique<OrientationAnnotation>());
    manager.AddRuler(std::make_unique<RulerAnnotation>());
    const QImage there = Drawn(&manager, made, 300, 240);
    Paper paper(300, 240, 1, 70, 90);
    QPainter& painter = paper.Painter();
    const QTransform before = painter.transform();
    manager.Draw(Cell(300, 240, 70, 90), 1, painter);
    EXPECT_EQ(painter.transform(), before);
    EXPECT_EQ(paper.Image(), there);
    Paper around(340, 280, 1, 50, 70);
    manager.Draw(Cell(300, 240, 70, 90), 1, around.Painter());
    EXPECT_TRUE(QRectF(20, 20, 300, 240).contains(around.Painted()));
}

TEST_F(AnnotationDrawing, letters_of_an_edge_stand_from_below_upward)
{
    // To the left of the picture lies RA: the right hand more than the front.
    AnnotatedSequence made({.elements = {{0x0020, 0x0037, "DS", "0.8\\0.6\\0\\0\\0\\1"}}});
    AnnotationManagerX manager;
    manager.SetShowsDemographics(true);
    manager.AddAnnotation(std::make_unique<OrientationAnnotation>());
    const QImage drawn = Drawn(&manager, made, 200, 200);
    Paper expected(200, 200);
    const double step =
        1.3 * CalculateTextBounds("W", expected.Painter(), GetAnnotationFontRef()).height();
    const auto draw = [&](const char* letter, double y) {
        ShapeDrawStringWithFontX(QString::fromLatin1(letter), expected.Painter(), {5, y},
                                 GetAnnotationFontRef(), kYellow);
    };
    draw("R", -111 - step / 2);
    draw("A", -111 + step / 2);
    const QRect edge(0, 0, 30, 200);
    EXPECT_EQ(drawn.copy(edge), expected.Image().copy(edge));
}

// Frame 2 of an enhanced object has the letters of a plain file with its orientation.
TEST_F(AnnotationDrawing, letters_are_those_of_the_frame)
{
    const auto plane = [](const char* orientation) {
        return Item().Sequence(0x0020, 0x9116, {Item().Element(0x0020, 0x0037, "DS", orientation)});
    };
    const char *axial = "1\\0\\0\\0\\1\\0", *sagittal = "0\\1\\0\\0\\0\\-1";
    AnnotatedSequence plain({.elements = {{0x0020, 0x0037, "DS", sagittal}}}), enhanced({});
    DicomBuilder file = HeaderOf({.frames = 2});
    file.Sequence(0x5200, 0x9230, {plane(axial), plane(sagittal)}).NativePixels({1, 2, 3, 4});
    AddedFile(&enhanced.sequence, {enhanced.folder.WriteFile("e", file.Bytes())});
    AnnotationManagerX manager;
    manager.SetShowsDemographics(true);
    manager.AddAnnotation(std::make_unique<OrientationAnnotation>());
    const QImage wanted = Drawn(&manager, plain, 200, 200);
    EXPECT_GT(Ink(wanted), 0);
    EXPECT_EQ(Drawn(&manager, enhanced, 200, 200, 3), wanted);
    EXPECT_NE(Drawn(&manager, enhanced, 200, 200, 2), wanted);
}

TEST_F(AnnotationDrawing, view_states_are_filled_from_the_list)
{
    InstallSequenceAnnotations();
    AnnotatedSequence made({.elements = {{0x0010, 0x0010, "PN", "Doe^Jane"}}});
    AnnotationManagerX* manager = AnnotationManagerOf(made.sequence);
    ASSERT_TRUE(manager);
    EXPECT_EQ(manager->GetCurrentSequence(), &made.sequence);
    const auto items = loadDefaultAnnotations();
    ASSERT_EQ(manager->CountAdorners(), static_cast<int>(items.size()) + 2);
    // The last of the list's bottom lines stands in front.
    EXPECT_EQ(manager->GetNthAdorner(0)->GetFieldPosition(),
              TextPositionOf(items.back()->position));
    EXPECT_EQ(manager->GetNthAdorner(manager->CountAdorners() - 1)->fHorzMargin, 8);
    EXPECT_EQ(manager->GetNthAdorner(-1), nullptr);
    const QImage all = Drawn(manager, made, 600, 500);
    EXPECT_GT(InkIn(all, {0, 0, 100, 30}), 0);
    made.sequence.GetViewState()->SetShowsDemographics(false);
    EXPECT_EQ(Ink(Drawn(manager, made, 600, 500)), 0);
    PrepareSequenceAnnotations(made.sequence.GetModality(), made.sequence.GetViewState());
    EXPECT_EQ(Ink(Drawn(AnnotationManagerOf(made.sequence), made, 600, 500)), 0);
    InstallSequenceAnnotations({});
    made.sequence.ClearViewState();
    EXPECT_EQ(AnnotationManagerOf(made.sequence)->CountAdorners(), 2);
    AnnotationManagerOf(made.sequence)->RemoveAllAdorners();
    EXPECT_EQ(Ink(Drawn(AnnotationManagerOf(made.sequence), made, 600, 500)), 0);
    SetSequenceAnnotationsMaker(nullptr);
    made.sequence.ClearViewState();
    EXPECT_EQ(AnnotationManagerOf(made.sequence), nullptr);
}
