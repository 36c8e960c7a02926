// Which files are DICOM, how their form is found out, and where a walk goes on or ends.
#include "Qvx2Parser/ReaderFixture.h"

namespace {

DicomBuilder Bare() { return DicomBuilder().NoPreamble().CommonHeader(); }

bool IsValid(const std::string& bytes, std::uint32_t options = 0)
{
    const QvxReaderPtr reader = OpenFile(bytes, options);
    bool valid = false;
    EXPECT_EQ(Qvx2Reader_ValidateDataRef(reader.get(), &valid), kQvxOK);
    return valid;
}

}  // namespace

TEST(Walk, finds_byte_order_and_form_of_any_beginning)
{
    struct Row {
        const char* fault;
        std::string bytes;
        std::uint32_t options;
        QvxStatus status;
        std::uint32_t byteOrder, explicitVR;
    };
    const auto patient = [](DicomBuilder b) {
        return b.Element(0x0020, 0x0010, "SH", "ID7").Bytes();
    };
    const auto with = [&](std::string_view syntax) {
        return DicomBuilder().Meta(syntax).CommonHeader();
    };
    const Row rows[] = {
        {"implicit, nothing in front", patient(Bare().Implicit()), 0, kQvxOK, 0, 0},
        {"explicit, nothing in front", patient(Bare().Explicit()), 0, kQvxOK, 0, 1},
        {"explicit big, nothing in front", patient(Bare().ExplicitBig()), 0, kQvxOK, 1, 1},
        {"implicit big, nothing in front", patient(Bare().ImplicitBig()), 0, kQvxOK, 1, 0},
        {"meta group at offset 0", patient(with(kUidExplicitBig).NoPreamble()), 0, kQvxOK, 1, 1},
        {"meta group in implicit form", patient(with(kUidImplicitLittle).MetaImplicit()), 0, kQvxOK,
         0, 0},
        {"meta group without its length", patient(with(kUidExplicitLittle).NoMetaLength()), 0,
         kQvxOK, 0, 1},
        {"meta group with a wrong length", patient(with(kUidExplicitLittle).MetaLength(4)), 0,
         kQvxOK, 0, 1},
        {"a trailing blank: the data decide", patient(with("1.2.840.10008.1.2.1 ").ExplicitBig()),
         0, kQvxOK, 1, 1},
        {"JPEG 2000: the data decide", patient(with(kUidJpeg2000)), 0, kQvxOK, 0, 1},
        {"equal bytes tell nothing", Hex("0808 0500 43530200 4141"), 0, kQvxMalformed,
         kUnknownState, kUnknownState},
        {"a first group of 0028", DicomBuilder().NoPreamble().Image({}).Bytes(), 0, kQvxOK, 0, 1},
        {"a first group of 0010",
         DicomBuilder().NoPreamble().Element(0x0010, 0x0010, "PN", "A").Bytes(), 0, kQvxMalformed,
         kUnknownState, kUnknownState},
        {"the meta group lies, plainly read", patient(with(kUidExplicitLittle).Implicit()), 0,
         kQvxMalformed, 0, 1},
        {"explicit is implicit", patient(with(kUidExplicitLittle).Implicit()), kQvxProgramOptions,
         kQvxOK, 0, 0},
        {"implicit is explicit", patient(with(kUidImplicitLittle).Explicit()), kQvxProgramOptions,
         kQvxOK, 0, 1},
        {"big is little", patient(with(kUidExplicitBig).Explicit()), kQvxProgramOptions, kQvxOK, 0,
         1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const QvxReaderPtr reader = OpenFile(row.bytes, row.options);
        QvxStatus status = kQvxOK;
        (void)TopLevelKeys(reader, &status);
        EXPECT_EQ(status, row.status);
        ASSERT_NE(Qvx2Reader_State(reader.get()), nullptr);
        EXPECT_EQ(Qvx2Reader_State(reader.get())->fByteOrder, row.byteOrder);
        EXPECT_EQ(Qvx2Reader_State(reader.get())->fExplicitVR, row.explicitVR);
        if (status == kQvxOK && row.fault != std::string("a first group of 0028")) {
            EXPECT_EQ(TextOf(reader, 0x0020, 0x0010).substr(0, 3), "ID7");
        }
    }
}

TEST(Walk, validates_by_the_marker_or_by_five_known_tags)
{
    std::string marker(128, 'x');
    marker += "DICM";
    EXPECT_TRUE(IsValid(marker));
    EXPECT_TRUE(IsValid(Bare().Bytes()));
    EXPECT_FALSE(IsValid(Hex("00112233445566778899")));
    DicomBuilder few;  // three known tags, then private ones past byte 1024
    few.NoPreamble()
        .Element(0x0008, 0x0005, "CS", "ISO_IR 100")
        .Element(0x0008, 0x0060, "CS", "CT");
    for (std::uint16_t i = 0; i < 40; ++i)
        few.Element(0x0009, static_cast<std::uint16_t>(0x1000 + i), "LO", std::string(40, 'p'));
    EXPECT_FALSE(IsValid(few.Bytes()));
    EXPECT_TRUE(IsValid(few.CutAt(900).Bytes()))
        << "the end of the file before byte 1024 proves enough";
    const auto early = Bare().Sequence(0x0008, 0x1140, {Item(Undefined)}, Undefined);
    EXPECT_TRUE(IsValid(early.Bytes()));
}

TEST(Walk, ends_or_goes_on_where_it_should)
{
    constexpr std::uint32_t kCommon = 5;  // elements of CommonHeader
    struct Row {
        const char* fault;
        std::string bytes;
        std::uint32_t options;
        QvxStatus status;
        std::size_t beyondCommon;
    };
    const auto file = [] { return DicomBuilder().NoPreamble().CommonHeader(); };
    const Row rows[] = {
        {"an unknown VR ends it, what came before stays",
         file().Element(0x0010, 0x0030, "ZZ", "19").Element(0x0010, 0x0040, "CS", "M").Bytes(), 0,
         kQvxMalformed, 0},
        {"UC is unknown, plainly", file().Element(0x0020, 0x0013, "UC", "1").Bytes(), 0,
         kQvxMalformed, 0},
        {"UC and OV are known to the program",
         file().Element(0x0020, 0x0013, "UC", "1").Element(0x0020, 0x0014, "OV", 1).Bytes(),
         kQvxProgramOptions, kQvxOK, 2},
        {"a length past the file",
         file().Element(0x0010, 0x0030, "UT", "19").StateLength(100000).Bytes(), 0, kQvxMalformed,
         0},
        {"text of undefined length",
         file().Element(0x0010, 0x0030, "UT", "19").StateLength(0xFFFFFFFF).Bytes(), 0,
         kQvxMalformed, 0},
        {"a file that ends in a value",
         file().Element(0x0010, 0x0030, "LO", "12345678").CutTail(4).Bytes(), 0, kQvxOK, 1},
        {"a file that ends in a header",
         file().Element(0x0010, 0x0030, "LO", "12345678").CutTail(13).Bytes(), 0, kQvxOK, 0},
        {"pixels end it",
         file().Image({}).NativePixels({1}).Element(0x7FE1, 0x0010, "LO", "x").Bytes(), 0, kQvxOK,
         9},
        {"empty pixels don't", file().NativePixels({}).Element(0x7FE1, 0x0010, "LO", "x").Bytes(),
         0, kQvxOK, 2},
        {"pixels longer than the file open",
         file().Image({}).NativePixels({1}).StateLength(1 << 30).Bytes(), 0, kQvxOK, 9},
        {"pixels with a nonsense VR have a short length",
         file().Image({}).NativePixels({1}, "?!").LengthBytes(2).Bytes(), 0, kQvxOK, 9},
        {"a definite sequence is one jump",
         file()
             .Sequence(0x0008, 0x1140, {Item().Raw("rubbish that is no element")})
             .Element(0x0010, 0x0040, "CS", "M")
             .Bytes(),
         0, kQvxOK, 2},
        {"an undefined one is walked; its faults are the walk's",
         file()
             .Sequence(0x0008, 0x1140, {Item(Undefined).Raw("rubbish that is no element")},
                       Undefined)
             .Bytes(),
         0, kQvxMalformed, 0},
        {"a delimiter of some length has none",
         file()
             .Sequence(0x0008, 0x1140, {Item(Undefined).EndItemWith(0xE00D, 8)}, Undefined)
             .Element(0x0010, 0x0040, "CS", "M")
             .Bytes(),
         0, kQvxOK, 2},
        {"deeper than any sequence goes",
         file()
             .Sequence(0x0008, 0x1140, {NestedItems(200, 0x0008, 0x1140, Undefined)}, Undefined)
             .Bytes(),
         0, kQvxMalformed, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const QvxReaderPtr reader = OpenFile(row.bytes, row.options);
        QvxStatus status = kQvxOK;
        const auto keys = TopLevelKeys(reader, &status);
        EXPECT_EQ(status, row.status);
        EXPECT_EQ(keys.size(), kCommon + row.beyondCommon);
        (void)TopLevelKeys(reader, &status);
        EXPECT_EQ(status, kQvxOK) << "a failed walk is reported once";
    }
}

TEST(Walk, UN_of_undefined_length_is_implicit_unless_it_shows_otherwise)
{
    const auto child = Item(Undefined)
                           .Element(0x0008, 0x1150, "UI", "1.2.3")
                           .Sequence(0x0008, 0x1140, {Item().Element(0x0008, 0x1155, "UI", "4.5")});
    for (const bool implicit : {true, false}) {
        SCOPED_TRACE(implicit);
        DicomBuilder file;
        file.NoPreamble().CommonHeader().Sequence(0x0008, 0x1115, {child}, Undefined).StateVR("UN");
        if (implicit)
            file.ImplicitContent();
        const QvxReaderPtr reader = OpenFile(file.Bytes(), kQvxProgramOptions);
        const auto item = Find(reader, 0xFFFE, 0xE000, Find(reader, 0x0008, 0x1115));
        EXPECT_EQ(TextOf(reader, Find(reader, 0x0008, 0x1150, item)), "1.2.3");
        // A sequence inside is expanded later, and still in the right form.
        const auto inner = Find(reader, 0xFFFE, 0xE000, Find(reader, 0x0008, 0x1140, item));
        EXPECT_EQ(TextOf(reader, Find(reader, 0x0008, 0x1155, inner)), "4.5");
    }
}

TEST(Walk, UN_of_a_known_tag_has_the_VR_of_the_dictionary)
{
    DicomBuilder file;
    file.NoPreamble().CommonHeader().Element(0x0018, 0x0015, "CS", "CHEST").StateVR("UN");
    file.Element(0x0019, 0x1001, "LO", "PRIVATE").StateVR("UN");
    file.Element(0x0020, 0x0013, "IS", "7").StateVR("UN");
    file.Element(0x0028, 0x0010, "US", 512).StateVR("UN");
    const QvxReaderPtr reader = OpenFile(file.Bytes(), kQvxProgramOptions);
    EXPECT_EQ(TextOf(reader, 0x0018, 0x0015), "CHEST ");
    EXPECT_EQ(TextOf(reader, 0x0028, 0x0010), "512");
    QvxVR vr{};
    ASSERT_EQ(
        Qvx2Reader_GetElementValueRepresentation(reader.get(), Find(reader, 0x0019, 0x1001), &vr),
        kQvxOK);
    EXPECT_EQ(vr, QvxVROfIndex(kVRIndexUN));
}

TEST(Walk, single_element_mode_jumps_groups_that_it_can_trust)
{
    for (const std::uint32_t groupLength : {0u, 4u, 0xFFFFFF00u}) {
        SCOPED_TRACE(groupLength);
        DicomBuilder file;
        file.NoPreamble().CommonHeader();
        if (groupLength)
            file.GroupLength(0x0018, groupLength);
        else
            file.GroupLength(0x0018);
        file.Element(0x0018, 0x0050, "DS", "1.5").GroupLength(0x0028).Image({.rows = 7});
        const QvxReaderPtr reader = OpenFile(file.NativePixels({1}).Bytes());
        EXPECT_EQ(Meta(reader, kMetaByteOrder), 0u);  // a state without a walk
        QvxElementRef found{};
        ASSERT_EQ(
            Qvx2Reader_GetElementRef(reader.get(), QvxElementRef::None, {0x0028, 0x0010}, &found),
            kQvxOK);
        EXPECT_EQ(TextOf(reader, found), "7");
        EXPECT_EQ(
            Qvx2Reader_GetElementRef(reader.get(), QvxElementRef::None, {0x0028, 0x0009}, &found),
            kQvxNoSuchElement);
    }
}

TEST(Walk, graphics_mode_keeps_what_pictures_need)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle).GroupLength(0x0008).CommonHeader();
    file.GroupLength(0x0040).Element(0x0040, 0x0254, "LO", "x").GroupLength(0x0028).Image({});
    const QvxReaderPtr reader = OpenFile(file.NativePixels({1}).Bytes());
    ASSERT_EQ(Qvx2Reader_ReadDICOMHeader(reader.get(), QvxParseMode::Graphics), kQvxOK);
    EXPECT_EQ(Find(reader, 0x0040, 0x0254), QvxElementRef::None);
    EXPECT_NE(Find(reader, 0x0028, 0x0010), QvxElementRef::None);
    EXPECT_NE(Find(reader, 0x7FE0, 0x0010), QvxElementRef::None);
}

TEST(Walk, inflates_a_deflated_data_set_within_bounds)
{
    DicomBuilder file;
    file.Meta(kUidDeflated).CommonHeader().Image({.rows = 16, .columns = 16});
    file.NativePixels(std::string(512, '\1')).Deflated();
    QvxStatus status = kQvxOK;
    (void)TopLevelKeys(OpenFile(file.Bytes()), &status);
    EXPECT_NE(status, kQvxOK) << "a plain call doesn't inflate";
    const QvxReaderPtr reader = OpenFile(file.Bytes(), kQvxProgramOptions);
    EXPECT_EQ(TextOf(reader, 0x0028, 0x0010), "16");
    EXPECT_TRUE(Qvx2Reader_State(reader.get())->fWasInflated);
    QvxFrameMapRecord row;
    ASSERT_EQ(Qvx2Reader_GetFrameMapRecord(reader.get(), 1, &row), kQvxOK);
    std::string pixels(512, '\0');
    ASSERT_EQ(Qvx2Reader_ReadData(reader.get(), pixels.data(), row.fOffset, 512), kQvxOK);
    EXPECT_EQ(pixels, std::string(512, '\1'));
    const auto bomb = DicomBuilder()
                          .Meta(kUidDeflated)
                          .CommonHeader()
                          .Element(0x0009, 0x1010, "UN", std::string(4 << 20, '\0'))
                          .Deflated();
    (void)TopLevelKeys(OpenFile(bomb.Bytes(), kQvxProgramOptions), &status);
    EXPECT_EQ(status, kQvxMalformed);
    DicomBuilder past;  // a meta group that runs past the end
    past.MetaGroup(Item()
                       .Element(0x0002, 0x0010, "UI", kUidDeflated)
                       .Element(0x0002, 0x0016, "AE", "x")
                       .StateLength(100));
    (void)TopLevelKeys(OpenFile(past.Bytes(), kQvxProgramOptions), &status);
    EXPECT_EQ(status, kQvxEndOfFile);
}

// Little endian files take a shorter way through the walk than big endian ones: the answers agree.
TEST(Walk, all_forms_of_a_file_have_the_same_elements)
{
    const auto fill = [](DicomBuilder file) {
        file.NoPreamble().CommonHeader().GroupLength(0x0018).Element(0x0018, 0x0050, "DS", "1.5");
        const Item item = Item(Undefined).Element(0x0008, 0x1150, "UI", "1.2");
        file.Sequence(0x0020, 0x1115, {item, Item().Element(0x0008, 0x1155, "UI", "3")}, Undefined);
        file.Sequence(0x0020, 0x9116, {item}).Element(0x0020, 0x4000, "LT", std::string(900, 'c'));
        file.Image({.rows = 3, .columns = 2, .signedness = 1}).Element(0x0028, 0x0106, "SS", -7);
        return file.NativePixels({1, 2, 3, 4, 5, 6}).Bytes();
    };
    std::vector<std::uint32_t> wanted;
    for (const std::string& bytes :
         {fill(DicomBuilder().ExplicitBig()), fill(DicomBuilder().Explicit()),
          fill(DicomBuilder().Implicit()), fill(DicomBuilder().ImplicitBig())}) {
        const QvxReaderPtr reader = OpenFile(bytes);
        QvxStatus status = kQvxMalformed;
        const auto keys = TopLevelKeys(reader, &status);
        EXPECT_EQ(status, kQvxOK);
        wanted = wanted.empty() ? keys : wanted;
        EXPECT_EQ(keys, wanted);
        EXPECT_EQ(TextOf(reader, 0x0018, 0x0050), "1.5 ");
        EXPECT_EQ(TextOf(reader, 0x0020, 0x4000), std::string(900, 'c'));
        EXPECT_EQ(TextOf(reader, 0x0028, 0x0106), "-7") << "US or SS, by the representation";
        EXPECT_EQ(Qvx2Reader_State(reader.get())->fColumns, 2);
        std::uint32_t items = 0;
        EXPECT_EQ(Qvx2Reader_GetSequenceNumItems(reader.get(), {0x0020, 0x1115}, &items), kQvxOK);
        EXPECT_EQ(items, 2u);
    }
}
