// The handle itself: opening, references, children, flags, and reading through a small window.
#include "fixtures/TempFolder.h"

#include "Qvx2Parser/QvxBufferedInput.h"
#include "Qvx2Parser/ReaderFixture.h"
#include <cerrno>

TEST(Reader, bad_paths_have_their_codes)
{
    const TempFolder folder;
    QvxReaderPtr reader;
    EXPECT_EQ(Qvx2Parser_Open(&reader, nullptr), kQvxBadArgument);
    EXPECT_EQ(Qvx2Parser_Open(&reader, folder.Path("missing").c_str()), ENOENT);
    EXPECT_EQ(Qvx2Parser_Open(&reader, std::string(1026, 'x').c_str()), kQvxFileNotFound);
    EXPECT_EQ(Qvx2Parser_Open(&reader, folder.Path().c_str()), kQvxNotOfKind);
    EXPECT_EQ(Qvx2Parser_Open(&reader, "/dev/null"), kQvxNotOfKind);
    const std::string large = folder.WriteFile("large", "sparse");
    std::filesystem::resize_file(large, UINT32_MAX);
    EXPECT_EQ(Qvx2Parser_Open(&reader, large.c_str()), kQvxMalformed) << "32-bit offsets end here";
    EXPECT_EQ(reader, nullptr);
    ASSERT_EQ(Qvx2Reader_OpenBase(&reader), kQvxOK);
    EXPECT_EQ(Qvx2Reader_SetInputFileURL(reader.get(), nullptr), kQvxNoDataRef);
    std::uint32_t frames = 0;
    EXPECT_EQ(Qvx2Reader_GetNumberOfFrames(reader.get(), 0, &frames), kQvxNoDataRef);
    EXPECT_EQ(Qvx2Reader_SetParserFlags(nullptr, 1), kQvxNullReader);
}

TEST(Reader, stale_foreign_and_made_up_references_are_refused)
{
    const std::string bytes = DicomBuilder().Meta(kUidExplicitLittle).CommonHeader().Bytes();
    const QvxReaderPtr one = OpenFile(bytes), other = OpenFile(bytes);
    const QvxElementRef mine = Find(one, 0x0008, 0x0060), foreign = Find(other, 0x0008, 0x0060);
    QvxElementTag tag;
    EXPECT_EQ(Qvx2Reader_GetElementTag(one.get(), mine, &tag), kQvxOK);
    EXPECT_EQ(Qvx2Reader_GetElementTag(one.get(), foreign, &tag), kQvxBadChain);
    EXPECT_EQ(Qvx2Reader_GetElementTag(one.get(), QvxElementRef::None, &tag), kQvxBadChain);
    EXPECT_EQ(
        Qvx2Reader_GetElementTag(
            one.get(), static_cast<QvxElementRef>(static_cast<std::uint32_t>(mine) + 5000), &tag),
        kQvxBadChain);
    ASSERT_EQ(Qvx2Reader_ReadDICOMHeader(one.get(), QvxParseMode::Lazy), kQvxOK);
    EXPECT_EQ(Qvx2Reader_GetElementTag(one.get(), mine, &tag), kQvxBadChain) << "walked anew";
}

TEST(Reader, children_come_without_their_delimiter)
{
    for (const DicomLength length : {Definite, Undefined}) {
        SCOPED_TRACE(length);
        DicomBuilder file;
        file.Meta(kUidExplicitLittle).CommonHeader();
        const Item item = Item(length).Element(0x0008, 0x1150, "UI", "1.2");
        file.Sequence(0x0008, 0x1140, {item, item}, length).Sequence(0x0008, 0x1115, {}, length);
        const QvxReaderPtr reader = OpenFile(file.Bytes());
        std::uint32_t count = 0;
        ASSERT_EQ(Qvx2Reader_GetSequenceNumItems(reader.get(), {0x0008, 0x1140}, &count), kQvxOK);
        EXPECT_EQ(count, 2u);
        QvxElementRefArray refs;
        ASSERT_EQ(Qvx2Reader_GetSequenceElementRefs(reader.get(), {0x0008, 0x1115}, &refs), kQvxOK);
        EXPECT_TRUE(refs.IsNull()) << "an empty sequence gives none";
        const QvxElementRef first = Find(reader, 0xFFFE, 0xE000, Find(reader, 0x0008, 0x1140));
        ASSERT_EQ(Qvx2Reader_GetElementRefs(reader.get(), first, &refs), kQvxOK);
        EXPECT_EQ(QvxRefsOf(refs).size(), 1u);
        EXPECT_EQ(Qvx2Reader_GetElementRefs(reader.get(), Find(reader, 0x0008, 0x0060), &refs),
                  kQvxNotASequence);
        QvxVR vr{};
        ASSERT_EQ(Qvx2Reader_GetElementValueRepresentation(reader.get(), first, &vr), kQvxOK);
        EXPECT_EQ(vr, QvxVR::Item);
        ASSERT_EQ(Qvx2Reader_SetParserFlags(reader.get(), kParserBlankItemVR), kQvxOK);
        ASSERT_EQ(Qvx2Reader_GetElementValueRepresentation(reader.get(), first, &vr), kQvxOK);
        EXPECT_EQ(vr, QvxVROfIndex(kVRIndexBlank));
    }
}

TEST(Reader, offsets_are_those_of_the_file)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle).CommonHeader().Element(0x0010, 0x0020, "LO", "ID");
    const QvxReaderPtr reader = OpenFile(file.Bytes());
    const QvxElementRef id = Find(reader, 0x0010, 0x0020);
    std::uint32_t tagOffset = 0;
    QvxElementDataInfo info;
    ASSERT_EQ(Qvx2Reader_GetTagOffset(reader.get(), id, &tagOffset), kQvxOK);
    ASSERT_EQ(Qvx2Reader_GetElementDataInfo(reader.get(), id, &info), kQvxOK);
    EXPECT_EQ(tagOffset, file.OffsetOf(0x0010, 0x0020));
    EXPECT_EQ(info.fValueOffset, file.ValueOffsetOf(0x0010, 0x0020));
}

TEST(Reader, transfer_syntaxes_outside_the_walk_are_known_when_asked)
{
    struct Row {
        const char* fault;
        std::string syntax;
        std::uint32_t plain, index;
    };
    const Row rows[] = {
        {"settled by the walk", "1.2.840.10008.1.2.4.70", 21, 21},
        {"only when asked", "1.2.840.10008.1.2.4.80", kUnknownState, 22},
        {"with a trailing blank", "1.2.840.10008.1.2.5 ", kUnknownState, 28},
        {"not in the list", "1.2.840.10008.1.2.4.201", kUnknownState, kUnknownState},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const QvxReaderPtr reader =
            OpenFile(DicomBuilder().Meta(row.syntax).CommonHeader().Explicit().Bytes());
        QvxStatus status = kQvxOK;
        (void)TopLevelKeys(reader, &status);
        EXPECT_EQ(Qvx2Reader_State(reader.get())->fTransferSyntax, row.plain);
        EXPECT_EQ(Meta(reader, kMetaTransferSyntax), row.index);
    }
}

TEST(BufferedInput, gives_the_sources_bytes_and_its_end)
{
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += static_cast<char>(i * 31 + i / 256);
    MemorySource source(AsByteVector(bytes));
    const auto info = CreateInputBufferInfoPtr(NoxMemEnvInit(), &source, 4800);
    ASSERT_NE(info, nullptr);
    for (const std::uint32_t at : {0u, 1020u, 1024u, 4000u, 10u, 3u}) {
        for (const std::uint32_t count : {1u, 8u, 700u, 1500u}) {
            std::uint32_t offset = at;
            std::string got(count, '\0');
            const bool fits = at + count <= 4800;
            EXPECT_EQ(NoQT_Read_Buffered_Data(info.get(), got.data(), &offset, count),
                      fits ? kQvxOK : kQvxEndOfFile);
            EXPECT_EQ(offset, fits ? at + count : 4801u);
            if (fits) {
                EXPECT_EQ(got, bytes.substr(at, count));
            }
        }
    }
}
