#include "tool/demo/DemoHeader.h"

#include "tool/demo/DemoEncode.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view kUidRoot = "2.25.";

struct PatientRow {
    std::string_view characterSet, name, id, birthDate, sex, age;
    std::string_view studyDate, studyTime, studyDescription, studyId, accession;
};
// Text outside ASCII is spelled in bytes; what it says stands above it.
constexpr auto kPatients = std::to_array<PatientRow>({
    {"ISO_IR 100", "Demo^Phantom", "ZELORA-DEMO", "19700101", "O", "054Y", "20240115", "101500",
     "Demo study of a phantom", "DEMO1", "ZELORA0001"},
    // JIS X 0208: "Jitsuen^Hanako" (a demonstration's Hanako) in Latin letters, kanji and kana;
    // "ultrasound of the heart".
    {"\\ISO 2022 IR 87",
     "Jitsuen^Hanako=\x1b$B<B1i\x1b(B^\x1b$B2V;R\x1b(B=\x1b$B$8$D$($s\x1b(B^\x1b$B$O$J$3\x1b(B",
     "ZELORA-JA", "19620303", "F", "061Y", "20240116", "090000", "\x1b$B?4B!D62;GH\x1b(B", "DEMO2",
     "ZELORA0002"},
    // KS X 1001: "Siheom^Gildong" (a trial's Gildong) in Latin letters, hanja and hangul; "spine".
    // Its escape sequence is due again behind each delimiter (PS3.5 6.1.2.5.3).
    {"\\ISO 2022 IR 149",
     "Siheom^Gildong=\x1b$)C\xE3\xCB\xFA\xD0^\x1b$)C\xD1\xCE\xD4\xD7"
     "=\x1b$)C\xBD\xC3\xC7\xE8^\x1b$)C\xB1\xE6\xB5\xBF",
     "ZELORA-KO", "19811109", "M", "042Y", "20240117", "160000", "\x1b$)C\xC3\xB4\xC3\xDF", "DEMO3",
     "ZELORA0003"},
    // ISO 8859-7: "Dokimi^Eleni" (a test's Eleni); "coronary angiography".
    {"ISO_IR 126", "\xC4\xEF\xEA\xE9\xEC\xDE^\xC5\xEB\xDD\xED\xE7", "ZELORA-EL", "19550520", "F",
     "068Y", "20240118", "133000", "\xD3\xF4\xE5\xF6\xE1\xED\xE9\xEF\xE3\xF1\xE1\xF6\xDF\xE1",
     "DEMO4", "ZELORA0004"},
});

int Index(DemoPatient patient) { return static_cast<int>(patient); }

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

// Words that tell the studies' UIDs apart.
std::string WordsOf(DemoPatient patient)
{
    return patient == DemoPatient::Phantom ? "" : "of " + std::to_string(Index(patient)) + ' ';
}

// Sorted as text, the series of a study follow their numbers: a list without a directory goes by
// it.
std::string SeriesUid(const DemoSeries& series)
{
    std::string uid = DemoUid(WordsOf(series.patient) + "series " + std::to_string(series.number));
    uid[kUidRoot.size()] = static_cast<char>('0' + series.number);
    return uid;
}

void AddPatientAndStudy(DemoDataSet* dataSet, DemoPatient patient)
{
    const PatientRow& row = kPatients[static_cast<std::size_t>(patient)];
    dataSet->Text(0x00080005, "CS", row.characterSet);
    dataSet->Text(0x00080020, "DA", row.studyDate);
    dataSet->Text(0x00080030, "TM", row.studyTime);
    dataSet->Text(0x00080050, "SH", row.accession);
    dataSet->Text(0x00080070, "LO", "Zelora");
    dataSet->Text(0x00080080, "LO", "Zelora Demo");
    dataSet->Text(0x00080090, "PN", "Demo^Referrer");
    dataSet->Text(0x00081030, "LO", row.studyDescription);
    dataSet->Text(0x00081090, "LO", "Arithmetic");
    dataSet->Text(0x00100010, "PN", row.name);
    dataSet->Text(0x00100020, "LO", row.id);
    dataSet->Text(0x00100030, "DA", row.birthDate);
    dataSet->Text(0x00100040, "CS", row.sex);
    dataSet->Text(0x00101010, "AS", row.age);
    dataSet->Text(0x0020000D, "UI", DemoUid(WordsOf(patient) + "study"));
    dataSet->Text(0x00200010, "SH", row.studyId);
}

void AddPixelForm(DemoDataSet* dataSet, const DemoPixelForm& form)
{
    dataSet->Short(0x00280002, form.samples);
    dataSet->Text(0x00280004, "CS", form.photometric);
    if (form.samples > 1)
        dataSet->Short(0x00280006, 0);  // colour by pixel
    dataSet->Short(0x00280010, form.rows);
    dataSet->Short(0x00280011, form.columns);
    dataSet->Short(0x00280100, form.allocated);
    dataSet->Short(0x00280101, form.stored);
    dataSet->Short(0x00280102, form.stored - 1);
    dataSet->Short(0x00280103, form.isSigned ? 1 : 0);
}

// What PS3.3 C.7.6.1.1.5 wants to be told of pixels that lost something.
void AddLoss(DemoDataSet* dataSet, const std::vector<std::string>& before,
             const std::vector<std::string>& after)
{
    double native = 0, kept = 0;
    for (std::size_t i = 0; i < before.size(); ++i) {
        native += static_cast<double>(before[i].size());
        kept += static_cast<double>(after[i].size());
    }
    dataSet->Text(0x00282110, "CS", "01");
    dataSet->Decimals(0x00282112, {native / kept});
    dataSet->Text(0x00282114, "CS", "ISO_10918_1");
}

}  // namespace

std::string DemoUid(std::string_view words)
{
    return std::string(kUidRoot) + Digits(words, 1) + Digits(words, 2);
}

std::string DemoInstanceUid(const DemoSeries& series, int instance)
{
    return DemoUid(WordsOf(series.patient) + "instance " + std::to_string(series.number) + ' ' +
                   std::to_string(instance));
}

std::string DemoFrameOfReferenceUid() { return DemoUid("frame of reference"); }

std::string DemoFileName(const DemoSeries& series, int instance)
{
    const std::string digits = std::to_string(instance);
    return "PAT" + std::to_string(Index(series.patient) + 1) + "/ST1/SE" +
           std::to_string(series.number) + "/IM" + std::string(6 - digits.size(), '0') + digits;
}

DemoDataSet DemoHeader(const DemoSeries& series, int instance)
{
    const PatientRow& row = kPatients[static_cast<std::size_t>(series.patient)];
    DemoDataSet dataSet;
    AddPatientAndStudy(&dataSet, series.patient);
    dataSet.Text(kDemoSOPClass, "UI", series.sopClass);
    dataSet.Text(kDemoSOPInstance, "UI", DemoInstanceUid(series, instance));
    for (const std::uint32_t date : {0x00080021U, 0x00080022U, 0x00080023U})
        dataSet.Text(date, "DA", row.studyDate);
    for (const std::uint32_t time : {0x00080031U, 0x00080032U, 0x00080033U})
        dataSet.Text(time, "TM", series.time);
    dataSet.Text(0x00080060, "CS", series.modality);
    dataSet.Text(0x0008103E, "LO", series.description);
    if (!series.bodyPart.empty())
        dataSet.Text(0x00180015, "CS", series.bodyPart);
    dataSet.Text(0x0020000E, "UI", SeriesUid(series));
    dataSet.Integer(0x00200011, series.number);
    dataSet.Integer(0x00200013, instance);
    return dataSet;
}

void DemoHeader_AddEquipment(DemoDataSet* dataSet)
{
    dataSet->Text(0x00181000, "LO", "0001");
    dataSet->Text(0x00181020, "LO", "1");
}

DemoDataSet DemoCode(std::string_view value, std::string_view scheme, std::string_view meaning)
{
    DemoDataSet code;
    code.Text(0x00080100, "SH", value);
    code.Text(0x00080102, "SH", scheme);
    code.Text(0x00080104, "LO", meaning);
    return code;
}

QvxStatus DemoImage_Write(DemoFolder* folder, const DemoSeries& series, int instance,
                          DemoDataSet dataSet, const DemoPixelForm& form,
                          const std::vector<std::string>& frames)
{
    AddPixelForm(&dataSet, form);
    if (frames.size() > 1)
        dataSet.Integer(0x00280008, static_cast<int>(frames.size()));
    if (DemoSyntax_Row(series.syntax).encapsulated) {
        std::vector<std::string> streams;
        for (const std::string& frame : frames) {
            streams.emplace_back();
            if (const QvxStatus status =
                    DemoEncode_Frame(series.syntax, form, frame, &streams.back()))
                return status;
        }
        if (series.syntax == DemoSyntax::JPEGBaseline)
            AddLoss(&dataSet, frames, streams);
        dataSet.Fragments(streams);
    } else {
        std::string pixels;
        for (const std::string& frame : frames)
            pixels += frame;
        dataSet.Pixels(std::move(pixels), form.allocated == 8 ? "OB" : "OW");
    }
    return folder->WriteFile(DemoFileName(series, instance), dataSet, series.syntax);
}

std::string DemoStoredValues(const std::vector<float>& values, float low, float high)
{
    std::string bytes;
    bytes.reserve(values.size() * 2);
    for (const float value : values) {
        const float rounded = std::clamp(value + 0.5F, low, high);
        DemoAppendLE(&bytes, static_cast<std::uint16_t>(static_cast<std::int32_t>(rounded)));
    }
    return bytes;
}
