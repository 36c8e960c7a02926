// What the tests of menus share: measurements with chosen abilities, and a click in a window.
#pragma once
#include "app/grid/GridFixture.h"
#include "app/tools/ContextualMenus.h"
#include "util/FourCC.h"

using Forms = std::vector<SeriesForm>;

// A measurement whose abilities a test chooses.
class Shape final : public CKAdornedGraphic {
public:
    Shape()
    {
        setShapeStart({10, 10});
        setShapeEnd({30, 30});
    }
    std::uint32_t shapeType() const override { return FourCC("rect"); }
    QString shapeInitial() const override { return QStringLiteral("R"); }
    QString shapeName() const override { return QStringLiteral("Shape"); }
    QString displayImage() const override { return {}; }
    QString measuredValueText() const override { return {}; }
    bool canSetStroke() const override { return stroke; }
    bool canSetFill() const override { return fill; }
    CKShapePtr newOfSameClass() const override { return std::make_shared<Shape>(); }
    bool stroke = true, fill = true;
};

// With a region and an overlay plane.
inline DicomBuilder UltrasoundFile()
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle)
        .CommonHeader("US")
        .Sequence(0x0018, 0x6011,
                  {Item()
                       .Element(0x0018, 0x6012, "US", 1)
                       .Element(0x0018, 0x6014, "US", 1)
                       .Element(0x0018, 0x6018, "UL", 4)
                       .Element(0x0018, 0x601A, "UL", 4)
                       .Element(0x0018, 0x601C, "UL", 29)
                       .Element(0x0018, 0x601E, "UL", 13)})
        .Image({.rows = 20, .columns = 40, .bits = 8})
        .Element(0x6000, 0x0010, "US", 20)
        .Element(0x6000, 0x0011, "US", 40)
        .Element(0x6000, 0x0040, "CS", "G")
        .Element(0x6000, 0x0050, "SS", {1, 1})
        .Element(0x6000, 0x0100, "US", 1)
        .Element(0x6000, 0x0102, "US", 0)
        .Element(0x6000, 0x3000, "OB", std::string(100, '\xFF'));
    return file.NativePixels(std::string(800, '\0'), "OB");
}

inline const MenuEntry* Find(const std::vector<MenuEntry>& entries, const QString& title)
{
    for (const MenuEntry& entry : entries) {
        if (entry.kind == MenuEntry::Kind::Command && entry.title == title)
            return &entry;
        if (const MenuEntry* found = Find(entry.children, title))
            return found;
    }
    return nullptr;
}

// A window of two grids whose first shows the third frame of seven, and a click on its fifth.
struct Scene {
    explicit Scene(const Forms& forms = {{}, {.frames = 3}}) : made(forms), window(&made)
    {
        prefs_Set_ShowsUSRegions(true);
        if (proxy().totalFrames() >= 3)
            proxy().setCurrentFrame(3);
    }
    [[nodiscard]] ZELSequenceProxy& proxy() { return *window.a.currZELSequence(); }
    [[nodiscard]] FakeHost& host() { return window.host; }
    [[nodiscard]] zel_TransformRec& Record(int frame)
    {
        return made.sequences[0]->GetImageFrameInfo(frame)->fTransform;
    }
    void ShowUltrasound()
    {
        made.sequences.push_back(MadeTree::Add<dk_Sequence>(MadeTree::Add<dk_Series>(
            MadeTree::Add<dk_Study>(MadeTree::Add<dk_Patient>(made.tree.patientTreeRoot())))));
        dk_Sequence* sequence = made.sequences.back();
        const std::string path = made.folder.WriteFile("us", UltrasoundFile().Bytes());
        ASSERT_EQ(MadeTree::Add<dk_ImageFile>(sequence)->SetSourceFile(FileRef{path}, kImportDicom),
                  kQvxOK);
        sequence->fModalityStr.Assign("US");
        window.a.setCurrZELSequence(host().proxyOf(sequence));
        target.frame = 1;
    }
    std::shared_ptr<Shape> Measure(int frame)
    {
        auto shape = std::make_shared<Shape>();
        const std::int32_t current = proxy().currentFrame();
        proxy().setCurrentFrame(frame);
        proxy().addNewMeasurement(shape, true);
        proxy().setCurrentFrame(current);
        return shape;
    }
    // In the fifth frame, the lowest but one of three.
    Shape& MeasureTarget()
    {
        Measure(5);
        const auto shape = Measure(5);
        Measure(5);
        target.measurement = shape;
        host().Take();
        return *shape;
    }
    [[nodiscard]] MenuEntry Menu()
    {
        return target.measurement ? viewContextualForShape(window.a, window.host, actions, target)
                                  : viewContextualGeneric(window.a, window.host, actions, target);
    }
    void Choose(const char* title, bool option = false)
    {
        const MenuEntry menu = Menu();
        const MenuEntry* entry = Find(menu.children, QLatin1String(title));
        ASSERT_TRUE(entry) << title;
        entry->perform(option);
    }
    MadeTree made;
    Window window;
    ViewerActions actions{&window.host};
    ContextualTarget target{5, nullptr};
};
