#include "tool/demo/DemoSeries.h"

#include <cstdint>

namespace {

constexpr std::string_view kStudyDate = "20240115", kStudyTime = "101500";

// 19 decimal digits that depend on every letter of `words`.
std::string Digits(std::string_view words, std::uint64_t seed)
{
    constexpr std::uint64_t kFactor = 0x9FB21C651E98DF25ULL;
    constexpr std::uint64_t kSmallest = 1000000000000000000ULL;  // of 19 digits
    std::uint64_t sum = seed;
    for (const char c : words) {
        sum = (sum ^ static_cast<unsigned char>(c)) * kFactor;
        sum ^= sum >> 32;
    }
    return std::to_string(kSmallest + sum % (8 * kSmallest));
}

void AddPatientAndStudy(DemoDataSet* dataSet)
{
    dataSet->Text(0x00080005, "CS", "ISO_IR 100");
    dataSet->Text(0x00080020, "DA", kStudyDate);
    dataSet->Text(0x00080030, "TM", kStudyTime);
    dataSet->Text(0x00080050, "SH", "ZELORA0001");
    dataSet->Text(0x00080070, "LO", "Zelora");
    dataSet->Text(0x00080080, "LO", "Zelora Demo");
    dataSet->Text(0x00080090, "PN", "Demo^Referrer");
    dataSet->Text(0x00081030, "LO", "Demo study of a phantom");
    dataSet->Text(0x00081090, "LO", "Arithmetic");
    dataSet->Text(0x00100010, "PN", "Demo^Phantom");
    dataSet->Text(0x00100020, "LO", "ZELORA-DEMO");
    dataSet->Text(0x00100030, "DA", "19700101");
    dataSet->Text(0x00100040, "CS", "O");
    dataSet->Text(0x00101010, "AS", "054Y");
    dataSet->Text(0x0020000D, "UI", DemoUid("study"));
    dataSet->Text(0x00200010, "SH", "DEMO1");
}

}  // namespace

std::string DemoUid(std::string_view words)
{
    return "2.25." + Digits(words, 1) + Digits(words, 2);
}

std::string DemoInstanceUid(const DemoSeries& series, int instance)
{
    return DemoUid("instance " + std::to_string(series.number) + ' ' + std::to_string(instance));
}

std::string DemoFrameOfReferenceUid() { return DemoUid("frame of reference"); }

std::string DemoFileName(std::string_view folder, int instance)
{
    const std::string digits = std::to_string(instance);
    return std::string(folder) + "/IM" + std::string(4 - digits.size(), '0') + digits + ".dcm";
}

DemoDataSet DemoHeader(const DemoSeries& series, int instance)
{
    DemoDataSet dataSet;
    AddPatientAndStudy(&dataSet);
    dataSet.Text(0x00080016, "UI", series.sopClass);
    dataSet.Text(0x00080018, "UI", DemoInstanceUid(series, instance));
    for (const std::uint32_t date : {0x00080021U, 0x00080022U, 0x00080023U})
        dataSet.Text(date, "DA", kStudyDate);
    for (const std::uint32_t time : {0x00080031U, 0x00080032U, 0x00080033U})
        dataSet.Text(time, "TM", series.time);
    dataSet.Text(0x00080060, "CS", series.modality);
    dataSet.Text(0x0008103E, "LO", series.description);
    if (!series.bodyPart.empty())
        dataSet.Text(0x00180015, "CS", series.bodyPart);
    dataSet.Text(0x0020000E, "UI", DemoUid("series " + std::to_string(series.number)));
    dataSet.Integer(0x00200011, series.number);
    dataSet.Integer(0x00200013, instance);
    return dataSet;
}

void DemoHeader_AddPixelForm(DemoDataSet* dataSet, const DemoPixelForm& form)
{
    dataSet->Short(0x00280002, form.samples);
    dataSet->Text(0x00280004, "CS", form.samples == 3 ? "RGB" : "MONOCHROME2");
    if (form.samples > 1)
        dataSet->Short(0x00280006, 0);  // colour by pixel
    dataSet->Short(0x00280010, form.rows);
    dataSet->Short(0x00280011, form.columns);
    dataSet->Short(0x00280100, form.allocated);
    dataSet->Short(0x00280101, form.stored);
    dataSet->Short(0x00280102, form.stored - 1);
    dataSet->Short(0x00280103, 0);
}
