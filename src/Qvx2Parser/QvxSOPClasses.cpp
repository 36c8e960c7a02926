#include "Qvx2Parser/QvxSOPClasses.h"

#include <algorithm>

// clang-format off
constexpr std::array<QvxStandardSOPClass, 59> gStandardSOPClassElemVector = {{
    {"1.2.840.10008.5.1.1.27",         "Stored Print Storage",                                       "A.23",   1},
    {"1.2.840.10008.5.1.1.29",         "Hardcopy Grayscale Image Storage",                           "A.24",   1},
    {"1.2.840.10008.5.1.1.30",         "Hardcopy Color Image Storage",                               "A.25",   1},
    {"1.2.840.10008.5.1.4.1.1.1",      "Computed Radiography Image Storage",                         "A.2",    1},
    {"1.2.840.10008.5.1.4.1.1.1.1",    "Digital X-Ray Image Storage - For Presentation",             "A.26",   1},
    {"1.2.840.10008.5.1.4.1.1.1.1.1",  "Digital X-Ray Image Storage - For Processing",               "A.26",   1},
    {"1.2.840.10008.5.1.4.1.1.1.2",    "Digital Mammography X-Ray Image Storage - For Presentation", "A.27",   1},
    {"1.2.840.10008.5.1.4.1.1.1.2.1",  "Digital Mammography X-Ray Image Storage - For Processing",   "A.27",   1},
    {"1.2.840.10008.5.1.4.1.1.1.3",    "Digital Intra-Oral X-Ray Image Storage - For Presentation",  "A.28",   1},
    {"1.2.840.10008.5.1.4.1.1.1.3.1",  "Digital Intra-Oral X-Ray Image Storage - For Processing",    "A.28",   1},
    {"1.2.840.10008.5.1.4.1.1.10",     "Standalone Modality LUT Storage",                            "A.12",   1},
    {"1.2.840.10008.5.1.4.1.1.11",     "Standalone VOI LUT Storage",                                 "A.13",   1},
    {"1.2.840.10008.5.1.4.1.1.11.1",   "Grayscale Softcopy Presentation State Storage",              "A.33.1", 1},
    {"1.2.840.10008.5.1.4.1.1.12.1",   "X-Ray Angiographic Image Storage",                           "A.14",   1},
    {"1.2.840.10008.5.1.4.1.1.12.2",   "X-Ray Radiofluoroscopic Image Storage",                      "A.16",   1},
    {"1.2.840.10008.5.1.4.1.1.12.3",   "X-Ray Angiographic Bi-Plane Image Storage",                  "A.15",   0},
    {"1.2.840.10008.5.1.4.1.1.128",    "Positron Emission Tomography Image Storage",                 "A.21",   1},
    {"1.2.840.10008.5.1.4.1.1.129",    "Standalone PET Curve Storage",                               "A.22",   1},
    {"1.2.840.10008.5.1.4.1.1.2",      "CT Image Storage",                                           "A.3",    1},
    {"1.2.840.10008.5.1.4.1.1.20",     "Nuclear Medicine Image Storage",                             "A.5",    1},
    {"1.2.840.10008.5.1.4.1.1.3",      "Ultrasound Multi-frame Image Storage",                       "A.7",    0},
    {"1.2.840.10008.5.1.4.1.1.3.1",    "Ultrasound Multi-frame Image Storage",                       "A.7",    1},
    {"1.2.840.10008.5.1.4.1.1.4",      "MR Image Storage",                                           "A.4",    1},
    {"1.2.840.10008.5.1.4.1.1.4.1",    "Enhanced MR Image Storage",                                  "A.36.2", 1},
    {"1.2.840.10008.5.1.4.1.1.4.2",    "MR Spectroscopy Storage",                                    "A.36.3", 1},
    {"1.2.840.10008.5.1.4.1.1.481.1",  "RT Image Storage",                                           "A.17",   1},
    {"1.2.840.10008.5.1.4.1.1.481.2",  "RT Dose Storage",                                            "A.18",   1},
    {"1.2.840.10008.5.1.4.1.1.481.3",  "RT Structure Set Storage",                                   "A.19",   1},
    {"1.2.840.10008.5.1.4.1.1.481.4",  "RT Beams Treatment Record Storage",                          "A.29",   1},
    {"1.2.840.10008.5.1.4.1.1.481.5",  "RT Plan Storage",                                            "A.20",   1},
    {"1.2.840.10008.5.1.4.1.1.481.6",  "RT Brachy Treatment Record Storage",                         "A.30",   1},
    {"1.2.840.10008.5.1.4.1.1.481.7",  "RT Treatment Summary Record Storage",                        "A.31",   1},
    {"1.2.840.10008.5.1.4.1.1.5",      "Nuclear Medicine Image Storage",                             "A.5",    0},
    {"1.2.840.10008.5.1.4.1.1.6",      "Ultrasound Image Storage",                                   "A.6",    0},
    {"1.2.840.10008.5.1.4.1.1.6.1",    "Ultrasound Image Storage",                                   "A.6",    1},
    {"1.2.840.10008.5.1.4.1.1.66",     "Raw Data Storage",                                           "A.37",   1},
    {"1.2.840.10008.5.1.4.1.1.7",      "Secondary Capture Image Storage",                            "A.8.1",  1},
    {"1.2.840.10008.5.1.4.1.1.7.1",    "Multi-frame Single Bit Secondary Capture Image Storage",     "A.8.2",  1},
    {"1.2.840.10008.5.1.4.1.1.7.2",    "Multi-frame Grayscale Byte Secondary Capture Image Storage", "A.8.3",  1},
    {"1.2.840.10008.5.1.4.1.1.7.3",    "Multi-frame Grayscale Word Secondary Capture Image Storage", "A.8.4",  1},
    {"1.2.840.10008.5.1.4.1.1.7.4",    "Multi-frame True Color Secondary Capture Image Storage",     "A.8.5",  1},
    {"1.2.840.10008.5.1.4.1.1.77.1.1", "VL Endoscopic Image Storage",                                "A.32.1", 1},
    {"1.2.840.10008.5.1.4.1.1.77.1.2", "VL Microscopic Image Storage",                               "A.32.2", 1},
    {"1.2.840.10008.5.1.4.1.1.77.1.3", "VL Slide-Coordinates Microscopic Image Storage",             "A.32.3", 1},
    {"1.2.840.10008.5.1.4.1.1.77.1.4", "VL Photographic Image Storage",                              "A.32.4", 1},
    {"1.2.840.10008.5.1.4.1.1.8",      "Standalone Overlay Storage",                                 "A.9",    1},
    {"1.2.840.10008.5.1.4.1.1.88.11",  "Basic Text SR",                                              "A.35.1", 1},
    {"1.2.840.10008.5.1.4.1.1.88.22",  "Enhanced SR",                                                "A.35.2", 1},
    {"1.2.840.10008.5.1.4.1.1.88.33",  "Comprehensive SR",                                           "A.35.3", 1},
    {"1.2.840.10008.5.1.4.1.1.88.50",  "Mammography CAD SR",                                         "A.35.5", 1},
    {"1.2.840.10008.5.1.4.1.1.88.59",  "Key Object Selection Document",                              "A.35.4", 1},
    {"1.2.840.10008.5.1.4.1.1.88.65",  "Chest CAD SR",                                               "A.35.6", 1},
    {"1.2.840.10008.5.1.4.1.1.9",      "Standalone Curve Storage",                                   "A.10",   1},
    {"1.2.840.10008.5.1.4.1.1.9.1.1",  "12-lead ECG Waveform Storage",                               "A.34.3", 1},
    {"1.2.840.10008.5.1.4.1.1.9.1.2",  "General ECG Waveform Storage",                               "A.34.4", 1},
    {"1.2.840.10008.5.1.4.1.1.9.1.3",  "Ambulatory ECG Waveform Storage",                            "A.34.5", 1},
    {"1.2.840.10008.5.1.4.1.1.9.2.1",  "Hemodynamic Waveform Storage",                               "A.34.6", 1},
    {"1.2.840.10008.5.1.4.1.1.9.3.1",  "Cardiac Electrophysiology Waveform Storage",                 "A.34.7", 1},
    {"1.2.840.10008.5.1.4.1.1.9.4.1",  "Basic Voice Audio Waveform Storage",                         "A.34.2", 1},
}};
// clang-format on

const QvxStandardSOPClass* FindStandardSOPClass(std::string_view uid)
{
    const auto row = std::ranges::find(gStandardSOPClassElemVector, uid, &QvxStandardSOPClass::uid);
    return row != gStandardSOPClassElemVector.end() ? &*row : nullptr;
}
