// What the tests of this folder share: a window's part around the browser, and trees to list.
#pragma once
#include "app/grid/GridFixture.h"
#include "browser/BrowserHost.h"
#include "browser/BrowserNotifications.h"
#include "browser/PatTreeDataSource.h"

#include <QSignalSpy>
#include <QTest>

struct FakeBrowserHost final : BrowserHost {
    const void* windowKey() const override { return this; }
    dk_SequenceBase* activeSequence() const override { return active; }
    std::vector<dk_SequenceBase*> sequencesInGrids() const override { return inGrids; }
    bool windowHasSheetOpen() const override { return sheet; }
    bool fastPatientListStartON() const override { return fast; }
    bool inQTModalMode() const override { return modal; }
    void doubleClickOnPatientListRow(dk_SequenceBase* sequence) override
    {
        opened.push_back(sequence);
    }
    void revealFiles(const std::vector<std::string>& paths) override { revealed = paths; }

    dk_SequenceBase* active = nullptr;
    std::vector<dk_SequenceBase*> inGrids, opened;
    bool sheet = false, fast = false, modal = false;
    std::vector<std::string> revealed;
};

// A study of a CT series, which is one row, of an ultrasound series, a folder of its two clips, and
// of a file alone.
struct ListedTree : MadeTree {
    ListedTree()
        : MadeTree({{.frames = 3},
                    {.modality = "US", .frames = 1, .color = true},
                    {.modality = "MR", .frames = 2}})
    {
        dk_DicomBaseElem* series = sequences[1]->GetParent();
        sequences.insert(sequences.begin() + 2,
                         AddSequence(series, {.modality = "US", .frames = 1, .color = true}));
    }
};

inline void LetEventsRun(int milliseconds = 50) { QTest::qWait(milliseconds); }
