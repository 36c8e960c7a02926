// Names and keys of the browser's notifications. Of the first the object is the window's key, of
// the second the data source.
#pragma once
#include <string_view>

inline constexpr std::string_view kNotePatientSelectionDidChange = "PatientView_SelectionDidChange";
inline constexpr std::string_view kNoteCellImageCalcFinished = "PatientView_CellImageCalcFinished";

// With kKeyNewDkSequence and kKeyNewSequence (a shared pointer) of app/grid/GridNotifications.h.
inline constexpr const char* kKeyMultiSeqsSelected = "MultiSeqsSelected";

inline constexpr const char* kKeyCellNode = "CellNode";
inline constexpr const char* kKeyCellImage = "CellImage";  // missing: only the text is ready
inline constexpr const char* kKeyCellImageHeight = "CellImageHeight";
