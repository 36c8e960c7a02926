// What the commands of a window ask of it beside its grids: its panes and bars, its list of
// sequences, and what the program can do at all. Main thread only.
#pragma once
#include "app/grid/MultiGridViewController.h"

#include <vector>

// What stands in menus and tool bars before it is there: its entries wait disabled.
enum class Feature { Export, Anonymize, ExportMetadata, Print, Measurements, MetadataPalette };

class WindowPanes {
public:
    virtual ~WindowPanes() = default;
    [[nodiscard]] virtual bool hasFeature(Feature feature) const = 0;
    [[nodiscard]] virtual MultiGridViewController& multiGridController() const = 0;

    [[nodiscard]] virtual bool isInFullScreen() const = 0;
    virtual void zelToggleFullScreen() = 0;
    [[nodiscard]] virtual bool showsToolbar() const = 0;
    virtual void zelToggleToolbar() = 0;
    virtual void customizeToolbar() = 0;  // by a sheet
    [[nodiscard]] virtual bool showsPatientList() const = 0;
    virtual void showHidePatientList() = 0;
    [[nodiscard]] virtual bool showsStudyInfo() const = 0;  // unfolded, in a pane that shows
    virtual void showHideStudyInfo() = 0;
    [[nodiscard]] virtual bool showsZELToolbar() const = 0;  // the secondary one
    virtual void showHideZELToolbar() = 0;
    [[nodiscard]] virtual bool showsMeasurementInfoBox() const = 0;
    virtual void showHideMeasurementInfoBox() = 0;

    [[nodiscard]] virtual bool showsMetadataPalette() const = 0;
    [[nodiscard]] virtual bool windowHasSheetOpen() const = 0;

    // Of the rows that are selected in the list, those of sequences.
    [[nodiscard]] virtual std::vector<dk_SequenceBase*> selectedSequences() const = 0;
    // Where a list has the keys its rows can be selected, all of them.
    [[nodiscard]] virtual bool canSelectAllRows() const = 0;
    virtual void selectAllRows() = 0;
    virtual void openAdjustColorsDialog() = 0;
    virtual void updateToolbarElements() = 0;
};
