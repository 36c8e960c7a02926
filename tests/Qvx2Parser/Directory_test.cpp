// Directories: levels of linked records, icons, the graphics walk, and the words of records.
#include "ReaderFixture.h"

#include "Qvx2Parser/QvxDirectory.h"
#include "Qvx2Parser/QvxDirectoryNames.h"
#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>

namespace {

constexpr std::string_view kUidDirectory = "1.2.840.10008.1.3.10";

// A link to a record by its number, or to any offset; `form` empty: no link at all.
struct To {
    To(int number = -1, std::uint32_t raw = 0, const char* form = "UL")
        : record(number), offset(raw), vr(form)
    {
    }
    int record;
    std::uint32_t offset;
    std::string vr;
};
const To kNothing, kMissing(-1, 0, "");

struct Record {
    std::string type;
    To next = {}, below = {};
    bool icon = false;
};

std::uint32_t Resolve(const To& to, const std::vector<std::uint32_t>& offsets)
{
    const auto number = static_cast<std::size_t>(to.record);
    return to.record >= 0 && number < offsets.size() ? offsets[number] : to.offset;
}

template <typename Target>
void AddLink(Target& target, std::uint16_t element, const To& to,
             const std::vector<std::uint32_t>& offsets)
{
    if (!to.vr.empty())
        target.Element(0x0004, element, to.vr, Resolve(to, offsets));
}

using Shape = std::function<void(DicomBuilder&)>;

DicomBuilder Build(const std::vector<Record>& records, const To& root, DicomLength length,
                   const Shape& shape, const std::vector<std::uint32_t>& offsets)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle, kUidDirectory);
    shape(file);
    file.Element(0x0004, 0x1130, "CS", "DISC");
    AddLink(file, 0x1200, root, offsets);
    std::vector<Item> items;
    for (const Record& record : records) {
        Item item(length);
        AddLink(item, 0x1400, record.next, offsets);
        AddLink(item, 0x1420, record.below, offsets);
        item.Element(0x0004, 0x1430, "CS", record.type);
        if (record.icon)
            item.Sequence(0x0088, 0x0200,
                          {Item(length)
                               .Element(0x0028, 0x0010, "US", 1)
                               .NativePixels(std::string("\1\2\3\4"))},
                          length);
        items.push_back(std::move(item));
    }
    return file.Sequence(0x0004, 0x1220, std::move(items), length);
}

// Where each record's item tag stands; icons have items too.
std::vector<std::uint32_t> OffsetsOf(const DicomBuilder& file, const std::vector<Record>& records)
{
    std::vector<std::uint32_t> offsets;
    unsigned item = 0;
    for (const Record& record : records) {
        offsets.push_back(static_cast<std::uint32_t>(file.OffsetOf(0xFFFE, 0xE000, item)));
        item += record.icon ? 2 : 1;
    }
    return offsets;
}

struct Directory {
    Directory(
        const std::vector<Record>& records, const To& root, std::uint32_t options = 0,
        DicomLength length = Definite, const Shape& shape = [](DicomBuilder&) {})
    {
        fOffsets = OffsetsOf(Build(records, root, length, shape, {}), records);
        fReader = OpenFile(Build(records, root, length, shape, fOffsets).Bytes(), options);
    }
    // Numbers of the records of a level as text, "null" for a null handle.
    std::string Level(QvxElementRef parent, QvxStatus* status)
    {
        QvxElementRefArray refs;
        *status = Qvx2Reader_GetDIRElementRefs(fReader.get(), parent, &refs);
        return refs.IsNull() ? "null" : Numbers(refs);
    }
    std::string Numbers(const QvxElementRefArray& refs)
    {
        std::string numbers;
        for (const QvxElementRef ref : QvxRefsOf(refs)) {
            std::uint32_t offset = 0;
            EXPECT_EQ(Qvx2Reader_GetTagOffset(fReader.get(), ref, &offset), kQvxOK);
            const auto at = std::ranges::find(fOffsets, offset);
            numbers += std::to_string(at - fOffsets.begin());
        }
        return numbers;
    }
    QvxElementRef RefOf(std::size_t number)
    {
        QvxElementRefArray refs;
        EXPECT_EQ(Qvx2Reader_GetElementRefs(fReader.get(), Find(fReader, 0x0004, 0x1220), &refs),
                  kQvxOK);
        return QvxRefsOf(refs)[number];
    }
    std::vector<std::uint32_t> fOffsets;
    QvxReaderPtr fReader;
};

const Record kPlain{"PATIENT"};

TEST(GetDIRElementRefs, lists_the_root_in_the_order_of_its_links)
{
    constexpr std::uint32_t kKeep = kWalkKeepCutLevels;
    struct Row {
        const char* fault;
        std::vector<Record> records;
        To root;
        std::uint32_t options;
        QvxStatus status;
        std::string listed;
    };
    const auto next = [](To to) { return Record{"PATIENT", to}; };
    const Row rows[] = {
        {"file order instead of links", {next(2), kPlain, next(1)}, 0, 0, kQvxOK, "021"},
        {"root link of 0", {kPlain}, kNothing, 0, kQvxOK, ""},
        {"no root link", {kPlain}, kMissing, 0, kQvxNoSuchElement, "null"},
        {"root link that isn't UL", {kPlain}, To(0, 0, "US"), 0, kQvxOK, "null"},
        {"root link that is text", {kPlain}, To(0, 0, "SH"), 0, kQvxOK, "null"},
        {"root link past the file", {kPlain}, To(-1, 0x7FFFFFFF), 0, kQvxOK, "null"},
        {"root link to the largest number", {kPlain}, To(-1, UINT32_MAX), 0, kQvxOK, "null"},
        {"no records", {}, To(-1, 300), 0, kQvxOK, "null"},
        {"record that names itself", {next(0)}, 0, 0, kQvxOK, "0"},
        {"two that name each other", {next(1), next(0)}, 0, 0, kQvxOK, "01"},
        {"loop that leaves out the first", {next(1), next(2), next(1)}, 0, 0, kQvxOK, "012"},
        {"no next link", {next(1), next(kMissing)}, 0, 0, kQvxNoSuchElement, "null"},
        {"the same, kept", {next(1), next(kMissing)}, 0, kKeep, kQvxOK, "01"},
        {"next that isn't UL", {next(To(0, 0, "US"))}, 0, 0, kQvxMalformed, "null"},
        {"the same, kept", {next(To(0, 0, "US"))}, 0, kKeep, kQvxOK, "0"},
        {"next inside a record", {next(To(-1, 260))}, 0, 0, kQvxNoSuchElement, "null"},
        {"the same, kept", {next(To(-1, 260))}, 0, kKeep, kQvxOK, "0"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Directory directory(row.records, row.root, row.options);
        QvxStatus status = kQvxOK;
        EXPECT_EQ(directory.Level(QvxElementRef::None, &status), row.listed);
        EXPECT_EQ(status, row.status);
        EXPECT_EQ(directory.Level(QvxElementRef::None, &status), row.listed) << "a second time";
    }
}

TEST(GetDIRElementRefs, finds_records_in_files_of_every_form)
{
    struct Row {
        const char* fault;
        DicomLength length;
        std::uint32_t options;
        Shape shape;
    };
    const Row rows[] = {
        {"undefined lengths", Undefined, 0, [](DicomBuilder&) {}},
        {"implicit", Definite, 0,
         [](DicomBuilder& file) { file.Meta(kUidImplicitLittle, kUidDirectory); }},
        {"big endian", Undefined, 0,
         [](DicomBuilder& file) { file.Meta(kUidExplicitBig, kUidDirectory); }},
        {"deflated", Definite, kQvxProgramOptions,
         [](DicomBuilder& file) { file.Meta(kUidDeflated, kUidDirectory).Deflated(); }},
    };
    const std::vector<Record> records = {{"PATIENT", 3, 2},
                                         {"SERIES", kNothing, kMissing},
                                         {"STUDY", kNothing, 1, true},
                                         {"PATIENT"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Directory directory(records, 0, row.options, row.length, row.shape);
        QvxStatus status = kQvxOK;
        EXPECT_EQ(directory.Level(QvxElementRef::None, &status), "03");
        EXPECT_EQ(directory.Level(directory.RefOf(0), &status), "2");
        EXPECT_EQ(directory.Level(directory.RefOf(2), &status), "1");
        EXPECT_EQ(directory.Level(directory.RefOf(3), &status), "");
        EXPECT_EQ(status, kQvxOK);
        const bool keeps = row.options != 0;
        EXPECT_EQ(directory.Level(directory.RefOf(1), &status), keeps ? "" : "null");
        EXPECT_EQ(status, keeps ? kQvxOK : kQvxNoSuchElement);
        EXPECT_EQ(directory.Level(static_cast<QvxElementRef>(7), &status), "null");
        EXPECT_EQ(status, kQvxBadChain);
    }
}

// The time for a level of so many records, each of which names the one before it.
double SecondsFor(int count)
{
    const auto shape = [](DicomBuilder&) {};
    const std::vector<Record> two(2, {"IMAGE"});
    const auto place = OffsetsOf(Build(two, 0, Definite, shape, {}), two);
    std::vector<Record> records;
    std::vector<std::uint32_t> offsets;
    for (int i = 0; i < count; ++i) {
        records.push_back({"IMAGE", i - 1});
        offsets.push_back(place[0] + static_cast<std::uint32_t>(i) * (place[1] - place[0]));
    }
    const auto reader = OpenFile(Build(records, count - 1, Definite, shape, offsets).Bytes());
    const auto start = std::chrono::steady_clock::now();
    QvxElementRefArray refs;
    EXPECT_EQ(Qvx2Reader_GetDIRElementRefs(reader.get(), QvxElementRef::None, &refs), kQvxOK);
    EXPECT_EQ(QvxRefsOf(refs).size(), static_cast<std::size_t>(count));
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST(GetDIRElementRefs, costs_time_in_proportion_to_the_records)
{
    const auto best = [](int count) {
        return std::min({SecondsFor(count), SecondsFor(count), SecondsFor(count)});
    };
    // 16 times the records cost 256 times as much when each look-up walks the list.
    EXPECT_LT(best(16000), 80 * best(1000));
}

TEST(DirectoryIcons, are_counted_and_mapped)
{
    Directory directory({{"IMAGE", 1, kNothing, true}, kPlain, {"IMAGE", 0, 0, true}}, 0);
    std::uint32_t count = 0;
    EXPECT_EQ(ParserGetNumDICOMDIRImages(directory.fReader.get(), &count), kQvxOK);
    EXPECT_EQ(count, 2u);
    QvxHandle map;
    EXPECT_EQ(Qvx2Reader_GetDICOMDIRImageOffsetsAndSizes(directory.fReader.get(), &map), kQvxOK);
    ASSERT_EQ(QvxFrameMapOf(map).size(), 2u);
    for (const QvxFrameMapRecord& row : QvxFrameMapOf(map)) {
        char pixels[4] = {};
        ASSERT_EQ(Qvx2Reader_ReadData(directory.fReader.get(), pixels, row.fOffset, row.fSize),
                  kQvxOK);
        EXPECT_EQ(std::string(pixels, row.fSize), "\1\2\3\4");
        EXPECT_EQ(row.fFragmentCount, 1u);
        EXPECT_EQ(row.fFirstFragmentSize, row.fSize);
    }
    Directory none({kPlain}, 0);
    EXPECT_EQ(Qvx2Reader_GetDICOMDIRImageOffsetsAndSizes(none.fReader.get(), &map), kQvxOK);
    EXPECT_EQ(map.Bytes().size(), 4u) << "a count of 0";
    const auto image = OpenFile(DicomBuilder().Meta(kUidExplicitLittle).CommonHeader().Bytes());
    EXPECT_EQ(ParserGetNumDICOMDIRImages(image.get(), &count), kQvxNoSuchElement);
}

TEST(GraphicsWalk, jumps_over_records_without_icons)
{
    struct Row {
        const char* fault;
        std::vector<Record> records;
        std::string kept;
        DicomLength length = Definite;
    };
    const Record image{"IMAGE"}, series{"SERIES"};
    const auto imageTo = [](int number) { return Record{"IMAGE", number}; };
    const Record withIcon{"IMAGE", 3, kNothing, true};
    const Row rows[] = {
        {"an icon is jumped away from", {series, withIcon, image, image}, "012"},
        {"image's own next", {series, imageTo(3), kPlain, image}, "013"},
        {"series' next", {{"SERIES", 3}, image, kPlain, image}, "013"},
        {"study's next", {{"STUDY", 4}, series, image, kPlain, image}, "0124"},
        {"patient's next", {{"PATIENT", 3}, image, {"SERIES"}, image}, "013"},
        {"series before study", {{"STUDY", 2}, {"SERIES", 4}, image, kPlain, image}, "0124"},
        {"to the sequence's end", {series, image, image, image}, "01"},
        {"a link back", {series, imageTo(0), image}, "012"},
        {"a link past the file", {series, {"IMAGE", To(-1, 9999999)}, image}, "012"},
        {"a link to no record", {series, {"IMAGE", To(-1, 300)}, image}, "012"},
        {"no end known: other records end it",
         {series, image, image, {"PRIVATE"}, image},
         "0123",
         Undefined},
        {"no end known: a series goes on", {image, series, {"PRIVATE"}, image}, "0123", Undefined},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Directory directory(row.records, 0, 0, row.length);
        ASSERT_EQ(Qvx2Reader_ReadDICOMHeader(directory.fReader.get(), QvxParseMode::Graphics),
                  kQvxOK);
        QvxElementRefArray refs;
        EXPECT_EQ(
            Qvx2Reader_GetSequenceElementRefs(directory.fReader.get(), {0x0004, 0x1220}, &refs),
            kQvxOK);
        EXPECT_EQ(directory.Numbers(refs), row.kept);
    }
}

TEST(DirectoryNames, paths_of_file_ids)
{
    struct Row {
        std::string id, path, parent, name;
    };
    const Row rows[] = {
        {"DIR1\\DIR2\\FILE1  ", ":DIR1:DIR2:FILE1", ":DIR1:DIR2", "FILE1"},
        {"\\IMG\\A ", ":IMG:A", ":IMG", "A"},
        {"/:\\IMG/A:B", ":IMG:A:B", ":IMG:A", "B"},
        {"      ", ":", ":", ""},
        {"", ":", ":", ""},
        {"IM1", ":IM1", ":IM1", ""},
        {"A B \\", ":A B :", ":A B ", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.id);
        std::string path = "x", name = "x";
        DicomUtil_RefFileIDToPath(row.id, &path);
        EXPECT_EQ(path, row.path);
        DicomUtil_SplitFilenameFromRelPathToParent(&path, &name);
        EXPECT_EQ(path, row.parent);
        EXPECT_EQ(name, row.name);
    }
}

TEST(DirectoryNames, numbers_of_record_types)
{
    EXPECT_EQ(DicomUtil_DirRecordType("PATIENT"), 1);
    EXPECT_EQ(DicomUtil_DirRecordType("RT PLAN"), 17);
    EXPECT_EQ(DicomUtil_DirRecordType("PRIVATE"), 24);
    EXPECT_EQ(DicomUtil_DirRecordType("Patient"), kDirRecordOther);
}

}  // namespace
