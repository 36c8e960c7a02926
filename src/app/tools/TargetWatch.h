// Tells when what a box shows may have changed: another grid or sequence is the active one, or one
// of the sequence's keys. Main thread only.
#pragma once
#include "app/grid/GridHost.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "platform/NotificationCenter.h"

#include <functional>
#include <string_view>
#include <vector>

class TargetWatch {
public:
    // Keys are those of ZELSequenceProxy. The host outlives it.
    TargetWatch(GridHost* host, std::vector<std::string_view> keys, std::function<void()> changed);
    // To whichever sequence is the active one now, and tells of it.
    void retarget();

    // Null where the window has no grid, or the grid no sequence.
    [[nodiscard]] static ZELSequenceProxy* SequenceOf(const GridHost& host);

private:
    void attach();

    GridHost* fHost;  // not owned
    std::vector<std::string_view> fKeys;
    std::function<void()> fChanged;
    std::vector<NotificationCenter::Observation> fNotes;
    std::vector<ObservableKeys::Watch> fWatches;
};
