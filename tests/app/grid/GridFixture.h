// What the tests of grids share: small trees of made files, a measurement, a window of two grids.
#pragma once
#include "app/grid/FakeHost.h"
#include "app/grid/ViewerActions.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"
#include "util/Log.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

// No lines in the log, where a test provokes them.
class Quiet {
public:
    Quiet()
    {
        SetLogSink([](std::string_view) {});
    }
    ~Quiet() { SetLogSink(nullptr); }
};

// Each file is one frame of 64 by 48 pixels, 5 mm behind the one before; a gray one holds column
// plus 100 times the row, times 2, less 1024 in its units.
struct SeriesForm {
    const char* modality = "CT";
    int frames = 7;
    bool color = false;
    const char* spacing = "0.5\\0.5";  // null: not said
    const char* aspect = nullptr;      // height to width of a pixel
};

inline constexpr int kColumns = 64, kRows = 48;

inline DicomBuilder FrameFile(const SeriesForm& form, int frame)
{
    const std::string number = std::to_string(frame);
    DicomBuilder file;
    file.Meta(kUidExplicitLittle).CommonHeader(form.modality);
    file.Element(0x0020, 0x0013, "IS", number)
        .Element(0x0020, 0x0032, "DS", "0\\0\\" + std::to_string(5 * frame))
        .Element(0x0020, 0x0037, "DS", "1\\0\\0\\0\\1\\0")
        .Element(0x0020, 0x0052, "UI", "2.25.9");
    file.Image({.rows = kRows,
                .columns = kColumns,
                .bits = static_cast<std::uint16_t>(form.color ? 8 : 16),
                .samples = static_cast<std::uint16_t>(form.color ? 3 : 1)});
    if (form.spacing)
        file.Element(0x0028, 0x0030, "DS", form.spacing);
    if (form.aspect)
        file.Element(0x0028, 0x0034, "IS", form.aspect);
    if (form.color)
        return file.NativePixels(std::string(kRows * kColumns * 3, '\x50'), "OB");
    file.Element(0x0028, 0x1050, "DS", "40").Element(0x0028, 0x1051, "DS", "400");
    file.Element(0x0028, 0x1052, "DS", "-1024").Element(0x0028, 0x1053, "DS", "2");
    std::vector<int> pixels;
    for (int i = 0; i < kRows * kColumns; ++i)
        pixels.push_back(i % kColumns + 100 * (i / kColumns));
    return file.NativePixels(pixels);
}

// A tree of one patient with a series for each form; every frame has been decoded once, so that
// all records hold their windows.
struct MadeTree {
    explicit MadeTree(const std::vector<SeriesForm>& forms = {{}})
    {
        CImporterPlusFactory::InitFactory();
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
        dk_DicomBaseElem* study = Add<dk_Study>(Add<dk_Patient>(tree.patientTreeRoot()));
        for (const SeriesForm& form : forms)
            sequences.push_back(AddSequence(Add<dk_Series>(study), form));
    }
    dk_Sequence* AddSequence(dk_DicomBaseElem* series, const SeriesForm& form)
    {
        auto* sequence = Add<dk_Sequence>(series);
        for (int frame = 1; frame <= form.frames; ++frame) {
            const std::string name = std::to_string(sequences.size()) + "_" + std::to_string(frame);
            EXPECT_EQ(
                Add<dk_ImageFile>(sequence)->SetSourceFile(
                    FileRef{folder.WriteFile(name, FrameFile(form, frame).Bytes())}, kImportDicom),
                kQvxOK);
        }
        zel_QTViewerDoc document;
        for (int frame = 1; frame <= form.frames; ++frame)
            EXPECT_EQ(U_LoadFrameContentToViewerDoc(sequence, frame, &document), kQvxOK);
        return sequence;
    }
    template <typename Elem>
    static Elem* Add(dk_DicomBaseElem* parent)
    {
        auto made = std::make_unique<Elem>();
        Elem* elem = made.get();
        parent->AddChild(std::move(made));
        return elem;
    }
    TempFolder folder;
    ZELDcmTree tree;
    std::vector<dk_Sequence*> sequences;
};

// A measurement: a box in frame pixels.
class Box final : public CKAdornedGraphic {
public:
    enum class Kind { Plain, Line, Crop, Calibration };

    explicit Box(const QRectF& place = {10, 10, 20, 20}, Kind kind = Kind::Plain) : fKind(kind)
    {
        setShapeStart(place.topLeft());
        setShapeEnd(place.bottomRight());
    }
    std::uint32_t shapeType() const override { return 0; }
    QString shapeInitial() const override { return QStringLiteral("B"); }
    QString shapeName() const override { return QStringLiteral("Box"); }
    QString displayImage() const override { return QStringLiteral("box"); }
    QString measuredValueText() const override { return {}; }
    bool isStraight() const override { return fKind == Kind::Line; }
    bool isCrop() const override { return fKind == Kind::Crop; }
    bool isCalibrationLine() const override { return fKind == Kind::Calibration; }
    bool supportsEraserMode() const override { return fKind == Kind::Plain; }
    CKShapePtr newOfSameClass() const override { return std::make_shared<Box>(); }

private:
    Kind fKind;
};

inline std::shared_ptr<Box> NewBox(const QRectF& place = {10, 10, 20, 20},
                                   Box::Kind kind = Box::Kind::Plain)
{
    return std::make_shared<Box>(place, kind);
}

// A window of two grids, A the active one, with the first two sequences of a tree (B empty where
// there is only one). Cells hold frames at 100 percent: 64 by 48 within their borders.
struct Window {
    explicit Window(MadeTree* made) : host(&made->tree)
    {
        host.grids = {&a, &b};
        host.active = &a;
        a.setGridView(&viewA);
        b.setGridView(&viewB);
        host.scope.setToolScope(ToolScope::kFrame);
        a.setCurrZELSequence(host.proxyOf(made->sequences[0]));
        if (made->sequences.size() > 1)
            b.setCurrZELSequence(host.proxyOf(made->sequences[1]));
        for (Grid* grid : {&a, &b})
            grid->U_UpdateGridSizeAndFrame({kColumns + 2 * kCellInset, kRows + 2 * kCellInset}, 1);
    }
    FakeHost host;
    FakeSurface viewA{"A", &host.log}, viewB{"B", &host.log};
    Grid a{&host}, b{&host};
};

// The notifications of one name, for as long as it lives.
struct Posted {
    explicit Posted(std::string_view name)
        : observation(NotificationCenter::Default().AddObserver(
              name, [this](const Notification& note) { notes.push_back(note); }))
    {
    }
    [[nodiscard]] int Number(const char* key, std::size_t note = 0) const
    {
        return note < notes.size() ? notes[note].userInfo.value(QLatin1String(key), -77).toInt()
                                   : -99;
    }
    std::vector<Notification> notes;
    NotificationCenter::Observation observation;
};

// The frames for which `has` holds, as digits.
template <typename Has>
std::string FramesWith(dk_SequenceBase* sequence, Has has)
{
    std::string frames;
    for (std::int32_t frame = 1; frame <= sequence->GetNumberOfFrames(); ++frame) {
        if (has(*sequence->GetImageFrameInfo(frame)))
            frames += std::to_string(frame);
    }
    return frames;
}
