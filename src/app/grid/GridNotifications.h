// Names and keys of the notifications that grids post and observe.
#pragma once
#include <cstdint>
#include <string_view>

inline constexpr std::string_view kNoteFrameShouldChange =
    "ZELNotification_CurrentFrame_ShouldChange";
inline constexpr std::string_view kNoteFrameDidChange = "ZELNotification_CurrentFrame_DidChange";
inline constexpr std::string_view kNoteFrameDidChangeCine =
    "ZELNotification_CurrentFrame_DidChangeCine";
inline constexpr std::string_view kNoteZoomDidChange = "ZELNotification_CellZoom_DidChange";
inline constexpr std::string_view kNoteGridDidChange = "ZELNotification_ActiveGrid_DidChange";
inline constexpr std::string_view kNoteGridDidChangeSequence =
    "ZELNotification_ActiveGrid_DidChangeSequence";
inline constexpr std::string_view kNoteMainWindowChange = "ZELNotification_MainWindowChange";
inline constexpr std::string_view kNoteMeasurementChange = "ZELMeasurementChange";
inline constexpr std::string_view kNoteVOIChanged = "Tool_VOI_Changed";
inline constexpr std::string_view kNoteBnCChanged = "Tool_BnC_Changed";
inline constexpr std::string_view kNoteImageCenterChanged = "Tool_ImageCenter_Changed";
inline constexpr std::string_view kNoteUSRegionsShowHide = "USRegionsShowHide";

inline constexpr const char* kKeyNewCellIndex = "NewCellIndex";  // frame less 1
inline constexpr const char* kKeyCellChangeType = "CellChangeType";
inline constexpr const char* kKeyTargetMeasurement = "ZELTargetMeasurement";
inline constexpr const char* kKeyTargetFrame = "ZELTargetFrame";  // -1 all
inline constexpr const char* kKeyMeasurementAction = "ZELMeasurementAction";
inline constexpr const char* kKeyPreviousPosition = "ZELMeasurementPreviousPosition";
inline constexpr const char* kKeyNewDkSequence = "New_dkSequence";
inline constexpr const char* kKeyNewSequence = "NewSequence";
inline constexpr const char* kKeyNewGridController = "NewGridController";
inline constexpr const char* kKeyWindow = "TheWindowKey";
inline constexpr const char* kKeyMovingOut = "MovingOutKey";  // the window closes
inline constexpr const char* kKeyWWidth = "WWidth";
inline constexpr const char* kKeyWLevel = "WLevel";
inline constexpr const char* kKeyBrightness = "Brightness";
inline constexpr const char* kKeyContrast = "Contrast";
inline constexpr const char* kKeyPositionX = "PPositionX";
inline constexpr const char* kKeyPositionY = "PPositionY";

// Why another frame is asked for.
enum class CellChangeType : std::int32_t { Step = 1, Row = 2, Page = 3, Jump = 4, Click = 5 };

enum class MeasurementAction : std::int32_t {
    Added = 1,
    Deleted = 2,
    DeletedAll = 3,
    Changed = 4,
    Moved = 5,  // to a given position
    ToFront = 6,
    Forward = 7,
    ToBack = 8,
    Backwards = 9,
    RegionChanged = 10,
    SelectionChanged = 11,
    SequenceExchanged = 13,
};
