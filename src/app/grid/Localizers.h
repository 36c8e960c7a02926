// Reference lines: grids of one frame of reference show where the active grid's current frame lies.
// The switch belongs to a window's layout of grids. Main thread only.
#pragma once
#include <QLineF>
#include <cstdint>
#include <vector>

class GridHost;
class ZELSequenceGridViewModelController;

// The outlines of the active grid's current frame, and of its first and last where the preference
// says so, as they lie on `frame` of `grid`; frame points. None unless both sequences have spatial
// data and the two frames the same frame of reference.
[[nodiscard]] std::vector<QLineF> LocalizerLinesOf(ZELSequenceGridViewModelController& active,
                                                   ZELSequenceGridViewModelController& grid,
                                                   std::int32_t frame);

class LocalizerSwitch {
public:
    explicit LocalizerSwitch(GridHost* host) : fHost(host) {}

    [[nodiscard]] bool showLocalizers() const { return fShows; }
    void setShowLocalizers(bool shows) { fShows = shows; }
    // More than one grid shows a sequence of a modality with reference lines.
    [[nodiscard]] bool canShowLocalizers() const;
    void showHideLocalizers();  // turns the switch over
    // The active grid has gone to another frame, or the colour of lines has changed.
    void updateLocalizers();
    // Another grid, or sequence of it, has become the active one.
    void redrawOthers();

    struct Item {  // of a menu or tool bar
        bool enabled = false, on = false;
        const char* title = nullptr;  // key of "MenuItems"
    };
    [[nodiscard]] Item menuItem() const;
    [[nodiscard]] Item toolbarSegment() const;

private:
    void redrawAllOthers();

    GridHost* fHost;  // not owned
    bool fShows = false;
};
