// Small files and a progress window for the tests of opening.
#pragma once
#include "dicom_core/progress/NoProgressWindow.h"
#include "fixtures/DicomBuilder.h"

#include <functional>
#include <string>
#include <vector>

struct ImageWords {
    std::string patient = "DOE^JOHN", id = "1", study = "1.2.1", date = "20200101";
    std::string series = "1.2.2", number = "1", instance = "1.2.3", instanceNumber = "1";
    std::string modality = "CT";
    int frames = 0;  // 0: not stated
};

// An image of one pixel a frame.
inline std::string SmallImage(const ImageWords& words = {})
{
    DicomBuilder builder;
    builder.Meta(kUidExplicitLittle)
        .Element(0x0008, 0x0018, "UI", words.instance)
        .Element(0x0008, 0x0020, "DA", words.date)
        .Element(0x0008, 0x0060, "CS", words.modality)
        .Element(0x0010, 0x0010, "PN", words.patient)
        .Element(0x0010, 0x0020, "LO", words.id)
        .Element(0x0020, 0x000D, "UI", words.study)
        .Element(0x0020, 0x000E, "UI", words.series)
        .Element(0x0020, 0x0011, "IS", words.number)
        .Element(0x0020, 0x0013, "IS", words.instanceNumber);
    const int frames = words.frames ? words.frames : 1;
    builder.Image({.rows = 1, .columns = 1, .frames = static_cast<std::uint16_t>(words.frames)});
    return builder.NativePixels(std::vector<int>(static_cast<std::size_t>(frames), 7)).Bytes();
}

// A directory file without records.
inline std::string EmptyDirectory()
{
    return DicomBuilder()
        .Meta(kUidExplicitLittle, "1.2.840.10008.1.3.10")
        .Element(0x0004, 0x1130, "CS", "EMPTY")
        .Element(0x0004, 0x1200, "UL", 0)
        .Bytes();
}

// `fOnEvents` runs whenever the user's events would be let in.
class SilentProgress : public NoProgressWindow {
public:
    void setLabel(const QString& text) override { fLabel = text; }
    void processEvents() override
    {
        if (fOnEvents)
            fOnEvents();
    }
    std::function<void()> fOnEvents;
    QString fLabel;
};
