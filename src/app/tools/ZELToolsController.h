// With which tool the mouse acts. One for each window; key "currentTool". Main thread only.
#pragma once
#include "platform/ObservableKeys.h"

#include <cstdint>

inline constexpr std::string_view kNoteSelectedToolDidChange = "ZELSelectedToolDidChange";
inline constexpr const char* kKeyOldTool = "ZELOldTool";

// Identifiers: a button in row r and column c of the matrix of tools is 100 x (r + 1) + c; those
// above 900 come from the tool bar.
enum ZELTool : std::int32_t {
    kToolSelection = 100,
    kToolLine = 101,
    kToolAngle = 102,
    kToolRectangle = 103,
    kToolEllipse = 104,
    kToolPolygon = 105,
    kToolArrow = 106,
    kToolCalibration = 200,
    kToolText = 205,
    kToolEyedropper = 206,
    kToolWindow = 901,
    kToolPan = 902,
    kToolZoom = 903,
    // 904 is kToolCrop of ToolBox.h.
};

class ZELToolsController final : public ObservableKeys {
public:
    ZELToolsController() : ObservableKeys({}) {}

    [[nodiscard]] std::int32_t currentTool() const { return toolID; }
    // By the matrix, whose cell stays selected; the tool doesn't go back by itself any more.
    void selectTool(std::int32_t tool);
    void changeToolTo(std::int32_t tool);  // no cell of the matrix is selected then
    // One level: to the tool, and back to the one before it.
    void pushTool(std::int32_t tool);
    void popTool();

    [[nodiscard]] static bool IsDrawTool(std::int32_t tool);
    [[nodiscard]] static bool IsToolbarTool(std::int32_t tool);
    [[nodiscard]] bool currentToolIsDrawTool() const { return IsDrawTool(toolID); }
    [[nodiscard]] bool currentToolIsToolbarTool() const { return IsToolbarTool(toolID); }

    bool _automaticallyRevertsToSelectionTool = false;

private:
    void U_ChangeToolTo(std::int32_t tool);

    std::int32_t toolID = kToolSelection;
    std::int32_t prevToolID = 0;
};
