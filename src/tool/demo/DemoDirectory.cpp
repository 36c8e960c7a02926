#include "tool/demo/DemoDirectory.h"

#include "tool/demo/DemoHeader.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace {

constexpr std::uint32_t kNextRecord = 0x00041400, kLowerRecord = 0x00041420;

// What a record of each level takes from the image: the keys that PS3.3 F.5 wants, and what a list
// of series is good to show without opening an image.
struct Level {
    std::string_view type;
    std::uint32_t key;  // equal for all images of one record
    std::vector<std::uint32_t> elements;
};

const std::array<Level, 4>& Levels()
{
    static const std::array<Level, 4> kLevels = {{
        {"PATIENT", 0x00100020, {0x00100010, 0x00100020, 0x00100030, 0x00100040}},
        {"STUDY",
         0x0020000D,
         {0x00080020, 0x00080030, 0x00080050, 0x00081030, 0x0020000D, 0x00200010}},
        {"SERIES", 0x0020000E, {0x00080060, 0x00080080, 0x0008103E, 0x0020000E, 0x00200011}},
        {"IMAGE",
         kDemoSOPInstance,
         {0x00080008, 0x00200013, 0x00200032, 0x00200037, 0x00200052, 0x00280008, 0x00280010,
          0x00280011, 0x00280030}},
    }};
    return kLevels;
}

DemoDataSet RecordOf(const Level& level, const DemoDataSet& image)
{
    DemoDataSet record;
    record.Longs(kNextRecord, {0});
    record.Short(0x00041410, 0xFFFF);  // in use
    record.Longs(kLowerRecord, {0});
    record.Text(0x00041430, "CS", level.type);
    record.Copy(0x00080005, image);
    for (const std::uint32_t tag : level.elements)
        record.Copy(tag, image);
    return record;
}

std::string FileId(std::string_view name)
{
    std::string id(name);
    std::ranges::replace(id, '/', '\\');
    return id;
}

DemoDataSet Root(std::int64_t first, std::int64_t last)
{
    DemoDataSet root;
    root.Text(0x00041130, "CS", "ZELORA_DEMO");
    root.Longs(0x00041200, {first});
    root.Longs(0x00041202, {last});
    root.Short(0x00041212, 0);
    return root;
}

}  // namespace

void DemoDirectory::Add(std::string_view name, const DemoDataSet& dataSet, DemoSyntax syntax)
{
    bool open = true;  // so far all as in the file before
    for (int i = 0; i < 4; ++i) {
        const Level& level = Levels()[static_cast<std::size_t>(i)];
        const std::string key = dataSet.ValueOf(level.key);
        const auto last = std::find_if(fRecords.rbegin(), fRecords.rend(),
                                       [i](const Record& record) { return record.level <= i; });
        open = open && last != fRecords.rend() && last->level == i && last->key == key;
        if (!open)
            fRecords.push_back({i, key, RecordOf(level, dataSet)});
    }
    DemoDataSet& image = fRecords.back().dataSet;
    image.Text(0x00041500, "CS", FileId(name));
    image.Text(0x00041510, "UI", dataSet.ValueOf(kDemoSOPClass));
    image.Text(0x00041511, "UI", dataSet.ValueOf(kDemoSOPInstance));
    image.Text(0x00041512, "UI", DemoSyntax_Row(syntax).uid);
}

std::string DemoDirectory::Encoded(std::size_t start) const
{
    constexpr std::size_t kSequenceHead = 12, kItemHead = 8;
    std::vector<std::int64_t> offsets;
    std::size_t at = start + Root(0, 0).Encoded(DemoSyntax::ExplicitLittle).size() + kSequenceHead;
    for (const Record& record : fRecords) {
        offsets.push_back(static_cast<std::int64_t>(at));
        at += kItemHead + record.dataSet.Encoded(DemoSyntax::ExplicitLittle).size();
    }
    std::vector<DemoDataSet> items;
    std::int64_t lastRoot = 0;
    for (std::size_t i = 0; i < fRecords.size(); ++i) {
        DemoDataSet item = fRecords[i].dataSet;
        const int level = fRecords[i].level;
        const auto behind = fRecords.begin() + static_cast<std::ptrdiff_t>(i) + 1;
        const auto next = std::find_if(behind, fRecords.end(),
                                       [&](const Record& other) { return other.level <= level; });
        const auto offsetOf = [&](auto record) {
            return offsets[static_cast<std::size_t>(std::distance(fRecords.begin(), record))];
        };
        if (next != fRecords.end() && next->level == level)
            item.Longs(kNextRecord, {offsetOf(next)});
        if (behind != next)
            item.Longs(kLowerRecord, {offsetOf(behind)});
        if (level == 0)
            lastRoot = offsets[i];
        items.push_back(std::move(item));
    }
    DemoDataSet directory = Root(offsets.empty() ? 0 : offsets.front(), lastRoot);
    directory.Items(0x00041220, std::move(items));
    return directory.Encoded(DemoSyntax::ExplicitLittle);
}
