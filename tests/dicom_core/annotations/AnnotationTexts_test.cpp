// What the annotations of a frame say.
#include "dicom_core/annotations/AnnotationFixtures.h"
#include "dicom_core/annotations/AnnotationText.h"
#include "dicom_core/annotations/OrientationAnnotation.h"
#include "dicom_core/annotations/SequenceFieldAnnotation.h"

namespace {

class AnnotationTexts : public PaintingTest {};

std::string Said(const ImageAnnotation& annotation, AnnotatedSequence& made, int frame = 1)
{
    return annotation.GetText(made.Frame(frame)).toStdString();
}

constexpr QvxElementTag kName{0x0010, 0x0010}, kID{0x0010, 0x0020}, kThickness{0x0018, 0x0050},
    kComments{0x0020, 0x4000}, kPrimary{0x0018, 0x1510}, kSecondary{0x0018, 0x1511};

}  // namespace

TEST_F(AnnotationTexts, a_field_says_prefix_and_element)
{
    struct Row {
        const char* fault;
        std::vector<Element> elements;
        QvxElementTag tag;
        const char *prefix, *text;
    };
    const Element latin{0x0008, 0x0005, "CS", "ISO_IR 100"};
    const Element kanji{0x0008, 0x0005, "CS", "\\ISO 2022 IR 87"};
    const Row rows[] = {
        {"no prefix", {{0x0010, 0x0020, "LO", "A-7"}}, kID, "", "A-7"},
        {"joined by a colon", {{0x0010, 0x0020, "LO", "A-7"}}, kID, "ID", "ID: A-7"},
        {"joined directly", {{0x0010, 0x0020, "LO", "A-7"}}, kID, "ID ", "ID A-7"},
        {"an empty element", {{0x0010, 0x0020, "LO", ""}}, kID, "ID", ""},
        {"blanks are nothing", {{0x0010, 0x0020, "LO", "  "}}, kID, "ID ", ""},
        {"no element", {}, kID, "ID", ""},
        {"whole millimetres", {{0x0018, 0x0050, "DS", "5.00"}}, kThickness, "", "5"},
        {"two decimals", {{0x0018, 0x0050, "DS", "5.25"}}, kThickness, "T ", "T 5.25"},
        {"markup stays text", {{0x0010, 0x0020, "LO", "<b>7</b>"}}, kID, "", "<b>7</b>"},
        {"lines", {{0x0020, 0x4000, "LT", "one\r\ntwo\x07 "}}, kComments, "", "one  two"},
        {"Latin-1", {latin, {0x0010, 0x0010, "PN", "M\xFCller^J\xF6rg"}}, kName, "", "Müller Jörg"},
        {"Japanese",
         {kanji, {0x0010, 0x0010, "PN", "Yamada^Tarou=\x1B$B;3ED\x1B(B^\x1B$BB@O:\x1B(B"}},
         kName,
         "",
         "Yamada Tarou=山田 太郎"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        AnnotatedSequence made({.elements = row.elements});
        EXPECT_EQ(Said(TextFieldAnnotation(TextPosition::TopLeft, row.tag, row.prefix), made),
                  row.text);
    }
}

TEST_F(AnnotationTexts, two_elements_in_one_line)
{
    struct Row {
        const char* fault;
        const char *first, *second;
        bool swapped;
        const char* text;
    };
    const Row rows[] = {
        {"both", "12.54", "-30.00", false, "P: 12.5°, S -30°"},
        {"the first alone", "12.5", nullptr, false, "P: 12.5°"},
        {"the second alone", nullptr, "7", false, "S 7°"},
        {"none", nullptr, "", false, ""},
        {"degrees by place, not by element", "12.54", "3", true, "P: 3, S 12.54"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        AnnotatedSequence made(
            {.modality = "XA",
             .elements = {{0x0018, 0x1510, "DS", row.first}, {0x0018, 0x1511, "DS", row.second}}});
        const DoubleFieldAnnotation field(TextPosition::TopLeft,
                                          row.swapped ? kSecondary : kPrimary, "P",
                                          row.swapped ? kPrimary : kSecondary, "S ", ", ");
        EXPECT_EQ(Said(field, made), row.text);
    }
}

TEST_F(AnnotationTexts, each_frame_says_its_own)
{
    AnnotatedSequence made({.elements = {{0x0010, 0x0020, "LO", "one"}}});
    made.Add({.frames = 2, .elements = {{0x0010, 0x0020, "LO", "two"}}});
    const TextFieldAnnotation field(TextPosition::TopLeft, kID, "");
    EXPECT_EQ(Said(field, made, 1), "one");
    EXPECT_EQ(Said(field, made, 3), "two");
}

TEST_F(AnnotationTexts, counts_where_cine_opens)
{
    for (const auto& [modality, text] :
         {std::pair{"XA", "Frm 3/4"}, {"US", "Frm 3/4"}, {"CT", ""}, {"DX", ""}}) {
        AnnotatedSequence made({.modality = modality, .frames = 4});
        const auto say = [&](std::int32_t elemType, const char* prefix = "") {
            return Said({SequenceFieldAnnotation(TextPosition::TopLeft,
                                                 SequenceFieldTypeOf(elemType), prefix)},
                        made, 3);
        };
        EXPECT_EQ(say(1), text);
        EXPECT_EQ(say(1, "F").empty(), *text == 0);
        EXPECT_EQ(say(2), "Total frames 4");
        EXPECT_EQ(say(0), "");
        EXPECT_EQ(say(5), "");
    }
}

TEST_F(AnnotationTexts, zoom_in_percent)
{
    AnnotatedSequence made({});
    const std::pair<std::int32_t, const char*> rows[] = {
        {kZoomOne, "Scale: 100%"},
        {kZoomOne / 2, "Scale: 50%"},
        {kZoomOne / 8, "Scale: 12.51%"},  // the half hundredth that is added counts
        {3 * kZoomOne, "Scale: 300%"},
        {kZoomOne / 3, "Scale: 33.34%"}};
    for (const auto& [zoom, text] : rows) {
        made.Look().zoom = zoom;
        EXPECT_EQ(SequenceFieldText(SequenceFieldType::Scale, made.sequence, made.Look()), text);
    }
}

TEST_F(AnnotationTexts, window_or_brightness)
{
    AnnotatedSequence made({});
    struct Row {
        const char* fault;
        float level, width;
        double factor, offset;
        const char* text;
    };
    const Row rows[] = {
        {"half away from zero", 40.5F, 399.4F, 1, 0, "WL: 41, WW: 399"},
        {"below zero", -40.5F, 1, 1, 0, "WL: -41, WW: 1"},
        {"no zero with a sign", -0.3F, 1, 1, 0, "WL: 0, WW: 1"},
        {"beyond 32 bits", 5e9F, 1, 1, 0, "WL: 5000000000, WW: 1"},
        {"half units", 2.25F, 7.5F, 0.5, 0, "WL: 2.3, WW: 7.5"},
        {"small steps", 0.125F, 0.5F, 0.002, 0, "WL: 0.125, WW: 0.500"},
        {"large steps between whole numbers", 70.5F, 100, 2.5, 0, "WL: 70.5, WW: 100.0"},
        {"an offset", 0.5F, 2, 1, 0.5, "WL: 0.5, WW: 2.0"},
    };
    for (const Row& row : rows) {
        zel_TransformRec& look = made.Look();
        look.voiLevel = row.level;
        look.voiWidth = row.width;
        look.voiInfo.pixelFactor = row.factor;
        look.voiInfo.pixelOffset = row.offset;
        look.brightness = 9;
        EXPECT_EQ(SequenceFieldText(SequenceFieldType::Window, made.sequence, look), row.text)
            << row.fault;
    }

    // A sequence without a source is no gray one.
    dk_Sequence other;
    zel_TransformRec look;
    EXPECT_EQ(SequenceFieldText(SequenceFieldType::Window, other, look), "");
    look.contrast = -5;
    EXPECT_EQ(SequenceFieldText(SequenceFieldType::Window, other, look), "B: 0%, C: -5%");
    EXPECT_EQ(SequenceFieldText(SequenceFieldType::Scale, other, look), "");
}

TEST_F(AnnotationTexts, letters_follow_turn_then_flip)
{
    struct Row {
        std::int16_t rotation;
        bool vertFlip, horzFlip;
        EdgeStrings shown;
    };
    const Row rows[] = {
        {0, false, false, {"A", "R", "P", "L"}},   {90, false, false, {"R", "P", "L", "A"}},
        {180, false, false, {"P", "L", "A", "R"}}, {270, false, false, {"L", "A", "R", "P"}},
        {0, true, false, {"P", "R", "A", "L"}},    {0, false, true, {"A", "L", "P", "R"}},
        {90, true, false, {"L", "P", "R", "A"}},   {270, false, true, {"L", "P", "R", "A"}},
    };
    for (const Row& row : rows) {
        zel_TransformRec record;
        record.rotation = row.rotation;
        record.vertFlip = row.vertFlip;
        record.horzFlip = row.horzFlip;
        EXPECT_EQ(TurnedEdgeStrings({"A", "R", "P", "L"}, record), row.shown) << row.rotation;
    }
}
