// What the patient browser asks of the window around it. Main thread only.
#pragma once
#include <string>
#include <vector>

class dk_SequenceBase;

class BrowserHost {
public:
    virtual ~BrowserHost() = default;

    [[nodiscard]] virtual const void* windowKey() const = 0;            // as notifications name it
    [[nodiscard]] virtual dk_SequenceBase* activeSequence() const = 0;  // or null
    // What stands in the window's grids, from the first grid on; null for an empty one.
    [[nodiscard]] virtual std::vector<dk_SequenceBase*> sequencesInGrids() const = 0;
    [[nodiscard]] virtual bool windowHasSheetOpen() const = 0;
    // Until the window is ready, rows make do with what the tree knows without reading files.
    [[nodiscard]] virtual bool fastPatientListStartON() const = 0;
    [[nodiscard]] virtual bool inQTModalMode() const = 0;
    virtual void doubleClickOnPatientListRow(dk_SequenceBase* sequence) = 0;
    // Paths are bytes; never empty.
    virtual void revealFiles(const std::vector<std::string>& paths) = 0;
};
