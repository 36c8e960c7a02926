// The series of the demo study, each one call, and what their headers share.
#pragma once
#include "tool/demo/DemoFileWriter.h"
#include "tool/demo/DemoPhantom.h"

#include <string>
#include <string_view>

// Each makes its folder in `folder` and writes its files there. On failure `folder` says which.
[[nodiscard]] QvxStatus WriteDemoCT(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoLocalizer(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoRadiograph(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoChart(DemoFolder* folder);

struct DemoSeries {
    int number;
    std::string_view modality, sopClass, description, bodyPart;
    std::string_view time;  // HHMMSS of the study's day
};

struct DemoPixelForm {
    int rows, columns;
    int samples = 1;
    int allocated = 16, stored = 12;
};

inline constexpr std::string_view kUidCTImageStorage = "1.2.840.10008.5.1.4.1.1.2";
inline constexpr std::string_view kUidDXForPresentation = "1.2.840.10008.5.1.4.1.1.1.1";
inline constexpr std::string_view kUidSecondaryCapture = "1.2.840.10008.5.1.4.1.1.7";

// The same UID for the same words, under the root 2.25 (PS3.5 B.2).
[[nodiscard]] std::string DemoUid(std::string_view words);
// Of instance `instance` (from 1) of a series, and of the coordinate system of CT and localizer.
[[nodiscard]] std::string DemoInstanceUid(const DemoSeries& series, int instance);
[[nodiscard]] std::string DemoFrameOfReferenceUid();

// Patient, study, series, equipment, instance.
[[nodiscard]] DemoDataSet DemoHeader(const DemoSeries& series, int instance);
// Group 0028 as far as it tells how the pixels are stored; unsigned.
void DemoHeader_AddPixelForm(DemoDataSet* dataSet, const DemoPixelForm& form);
[[nodiscard]] std::string DemoFileName(std::string_view folder, int instance);
