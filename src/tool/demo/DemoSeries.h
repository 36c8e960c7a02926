// The series of the demo, each one call that writes its files into `folder`. On failure `folder`
// says which. Chart, ultrasound and polar map are drawn without the phantom.
#pragma once
#include "tool/demo/DemoFileWriter.h"
#include "tool/demo/DemoPhantom.h"

// Of the phantom itself, all in one coordinate system but for the chart.
[[nodiscard]] QvxStatus WriteDemoLocalizer(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoCT(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoRadiograph(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoChart(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoObliqueMR(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoPET(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoEnhancedMR(const DemoPhantom& phantom, DemoFolder* folder);
// Of the other patients.
[[nodiscard]] QvxStatus WriteDemoUltrasound(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoLateral(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoOverlays(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoAngiogram(const DemoPhantom& phantom, DemoFolder* folder);
[[nodiscard]] QvxStatus WriteDemoPolarMap(const DemoPhantom& phantom, DemoFolder* folder);
