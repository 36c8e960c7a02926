// Colour and font of the text over frames, when the user chooses others: on every sequence of the
// window's tree, and its grids are painted anew. Main thread only.
#pragma once
#include "app/grid/GridHost.h"
#include "platform/NotificationCenter.h"

#include <array>

// Posted by the preferences.
inline constexpr std::string_view kNoteAnnotationColorChanged = "Pref_AnnotationColorChanged";
inline constexpr std::string_view kNoteAnnotationFontChanged = "Pref_AnnotationFontChanged";
inline constexpr std::string_view kNoteUSRegionsColorChange = "USRegionsColorChange";
inline constexpr const char* kKeyNewAnnotationColor = "NewAnnotationColor";  // a QColor
inline constexpr const char* kKeyNewAnnotationFontName = "NewAnnotationFontName";
inline constexpr const char* kKeyNewAnnotationFontSize = "NewAnnotationFontSize";  // points

class AnnotationLook {
public:
    explicit AnnotationLook(GridHost* host);  // outlives it

private:
    void changeColorForDemographics(const Notification& note);
    void changeFontForDemographics(const Notification& note);
    void redrawGrids();

    GridHost* fHost;
    std::array<NotificationCenter::Observation, 4> fChanges;
};
