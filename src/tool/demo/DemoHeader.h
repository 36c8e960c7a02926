// What the headers of all demo images share: patient, study, series, equipment, pixel form; and
// the way of an image into its file.
#pragma once
#include "tool/demo/DemoDataSet.h"
#include "tool/demo/DemoFileWriter.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::uint32_t kDemoSOPClass = 0x00080016, kDemoSOPInstance = 0x00080018;

// Nobody of them lives or lived. Each has one study, with words in a character set of its own. They
// stand in the order of their names' bytes, as a list of files without a directory sorts them.
enum class DemoPatient { Phantom, Hanako, Gildong, Eleni };

struct DemoSeries {
    DemoPatient patient = DemoPatient::Phantom;
    int number;  // 1 to 9, once in a study; its folder is named after it
    std::string_view modality, sopClass;
    std::string_view description;  // in the patient's character set
    std::string_view bodyPart;
    std::string_view time;  // HHMMSS of the study's day
    DemoSyntax syntax = DemoSyntax::ExplicitLittle;
};

struct DemoPixelForm {
    int rows, columns;
    int samples = 1;
    int allocated = 16, stored = 12;
    bool isSigned = false;
    std::string_view photometric = "MONOCHROME2";
};

// The same UID for the same words, under the root 2.25 (PS3.5 B.2).
[[nodiscard]] std::string DemoUid(std::string_view words);
// Of instance `instance` (from 1) of a series, and of the coordinate system of the phantom's body.
[[nodiscard]] std::string DemoInstanceUid(const DemoSeries& series, int instance);
[[nodiscard]] std::string DemoFrameOfReferenceUid();

// Patient, study, series, equipment, instance.
[[nodiscard]] DemoDataSet DemoHeader(const DemoSeries& series, int instance);
// Manufacturer and its fellows, as the enhanced classes want them.
void DemoHeader_AddEquipment(DemoDataSet* dataSet);
// A code sequence of one item. `scheme` is DCM or SCT.
[[nodiscard]] DemoDataSet DemoCode(std::string_view value, std::string_view scheme,
                                   std::string_view meaning);
// "PAT1/ST1/SE2/IM000001": names that a medium for interchange allows (PS3.10 8.2).
[[nodiscard]] std::string DemoFileName(const DemoSeries& series, int instance);

// Completes `dataSet` by group 0028 as far as it tells how pixels are stored and by the pixels
// themselves, in the series' transfer syntax, and writes it. Each of `frames` is native: little
// endian, interleaved, rows top-down, no gaps. More than one adds (0028,0008).
[[nodiscard]] QvxStatus DemoImage_Write(DemoFolder* folder, const DemoSeries& series, int instance,
                                        DemoDataSet dataSet, const DemoPixelForm& form,
                                        const std::vector<std::string>& frames);

// 16-bit little endian samples; values are clamped to `low` and `high` after rounding.
[[nodiscard]] std::string DemoStoredValues(const std::vector<float>& values, float low, float high);
