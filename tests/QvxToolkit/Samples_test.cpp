// Real files against what independent decoders made of them. ZELORA_SAMPLES names a folder with
// files and a table, expected.tsv; without it there is nothing to compare.
#include "util/Sha256.h"

#include "QvxToolkit/DecodedFrame.h"
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

namespace {

using Row = std::map<std::string, std::string>;  // by the heading of the column

std::vector<std::string> Split(const std::string& line)
{
    std::vector<std::string> cells(1);
    for (const char letter : line) {
        if (letter == '\t')
            cells.emplace_back();
        else if (letter != '\r')
            cells.back() += letter;
    }
    return cells;
}

std::vector<Row> ReadTable(const std::string& path)
{
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    const auto headings = Split(line);
    std::vector<Row> rows;
    while (std::getline(file, line)) {
        const auto cells = Split(line);
        Row& row = rows.emplace_back();
        for (std::size_t i = 0; i < headings.size() && i < cells.size(); ++i)
            row[headings[i]] = cells[i];
    }
    return rows;
}

struct OpenFile {
    QvxReaderPtr reader;
    QvxFrameRecord record;
    QvxStatus status = kQvxOK;
    std::string why;
};

OpenFile OpenImage(const std::string& path)
{
    OpenFile file;
    bool valid = false;
    file.status = Qvx2Parser_Open(&file.reader, path.c_str(), kQvxProgramOptions);
    if (file.status == kQvxOK)
        file.status = Qvx2Reader_ValidateDataRef(file.reader.get(), &valid);
    if (file.status == kQvxOK && !valid)
        file.status = kQvxNotOfKind;
    if (file.status == kQvxOK)
        file.status = QvxMakeFrameRecord(file.reader.get(), &file.record, &file.why);
    return file;
}

class Samples : public testing::Test {
protected:
    void SetUp() override
    {
        const char* folder = std::getenv("ZELORA_SAMPLES");
        if (!folder)
            GTEST_SKIP() << "ZELORA_SAMPLES names no folder of sample files";
        fFolder = std::string(folder) + '/';
        fRows = ReadTable(fFolder + "expected.tsv");
        ASSERT_FALSE(fRows.empty()) << "no expected.tsv in " << folder;
    }
    std::string fFolder;
    std::vector<Row> fRows;
};

// Where the table is not what a picture should be: its decoders left luminance and chrominance of a
// JFIF stream as they are, since the header calls them RGB.
bool IsKnownBetter(const std::string& path) { return path == "nonconformant/GH195.dcm"; }

void CompareFrame(OpenFile& file, Row& row, const std::string& which)
{
    SCOPED_TRACE(which + " frame");
    if (row["frame_" + which].empty())
        return;
    DecodedFrame frame;
    std::string why;
    const auto number = static_cast<std::uint32_t>(std::stoul(row["frame_" + which]) + 1);
    ASSERT_EQ(DecodeFrame(file.reader.get(), file.record, number, &frame, &why), kQvxOK) << why;
    const DecodedStats stats = StatsOf(frame);
    const std::string compare = row["compare"];
    const double rounding = 1e-8;  // of the table's own numbers
    const double tolerance = compare.starts_with("tol:") ? std::stod(compare.substr(4)) : rounding;
    EXPECT_NEAR(stats.fMinimum, std::stod(row["min_" + which]), tolerance);
    EXPECT_NEAR(stats.fMaximum, std::stod(row["max_" + which]), tolerance);
    if (tolerance == rounding)
        EXPECT_EQ(Sha256Of(CanonicalBytes(frame)), row["sha_" + which]);
    else
        EXPECT_NEAR(stats.fMean, std::stod(row["mean_" + which]), tolerance);
}

}  // namespace

TEST_F(Samples, pixels_are_those_of_other_decoders)
{
    int compared = 0;
    for (Row& row : fRows) {
        const std::string compare = row["compare"];
        const bool comparable =
            compare == "exact" || compare == "partial" || compare.starts_with("tol:");
        if (!comparable || row["readable"] != "y" || IsKnownBetter(row["path"]))
            continue;
        SCOPED_TRACE(row["path"]);
        OpenFile file = OpenImage(fFolder + row["path"]);
        EXPECT_EQ(file.status, kQvxOK) << file.why;
        if (file.status != kQvxOK)
            continue;
        ++compared;
        EXPECT_EQ(std::to_string(file.record.fFrames), row["frames"]);
        EXPECT_EQ(std::to_string(file.record.fRows), row["rows"]);
        EXPECT_EQ(std::to_string(file.record.fColumns), row["columns"]);
        for (const char* which : {"first", "mid", "last"})
            CompareFrame(file, row, which);
    }
    EXPECT_GT(compared, 0);
    RecordProperty("compared", compared);
}

TEST_F(Samples, what_nobody_can_read_is_refused)
{
    for (Row& row : fRows) {
        SCOPED_TRACE(row["path"]);
        if (row["readable"] != "n")
            continue;
        EXPECT_NE(OpenImage(fFolder + row["path"]).status, kQvxOK);
    }
}
