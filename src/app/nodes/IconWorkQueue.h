// What rows of the browser wait for: thumbnails and texts, one job after the other, the rows that
// the user sees first. Knows no timer and no window. Main thread only.
#pragma once
#include <cstddef>
#include <deque>
#include <functional>

class DicomElemChildNode;
class dk_SequenceBase;

inline constexpr int kIconWork = 1, kTextWork = 2;

struct ZELIconWorkerData {
    DicomElemChildNode* _sequenceNode = nullptr;  // not owned; goes after its jobs
    dk_SequenceBase* _dicomSequence = nullptr;
    int _workLevel = 0;
    bool _cellVisible = false;  // its row has been displayed again since
};

class IconWorkQueue {
public:
    // How things are when a tick comes.
    struct Surroundings {
        bool fastStart = false;  // the window shows placeholders still
        bool modal = false;      // a dialog runs that must not be disturbed
        bool textOnly = false;   // rows have no thumbnails
    };
    enum class Tick {
        Stopped,    // nothing is expected any more, or work is paused
        Idle,       // nothing to do until a job comes
        Waiting,    // jobs are there, for a later tick
        Preparing,  // a thumbnail's pixels are on their way
        Worked,     // one job is done
    };
    // Asked before a thumbnail is made: false, and its job keeps its place until another tick. May
    // be left empty.
    std::function<bool(DicomElemChildNode*)> pixelsAreReady;
    // Called for a job that is done; the first must set the node's icon, the second its text flag.
    std::function<void(DicomElemChildNode*)> createPreviewIconFor, updateTextsFor;

    // Empties the queue; a thumbnail and a text are expected of each sequence.
    void start(int sequences);
    // Of icons that were there and have been dropped.
    void expectIcons(int icons) { fIconWorkDoneCounter += icons; }
    // A job for the node's row, which is being displayed, at the front. A job that is there already
    // is marked visible. Nothing for a node that has its icon (its text, or no icon yet).
    void checkItemIconAndMoveToTop(DicomElemChildNode* node);
    void checkItemTextAndMoveToTop(DicomElemChildNode* node);
    // Does at most one job.
    Tick prepareNodeIcon(const Surroundings& now);

    void removeAllPendingIconWorkers();  // of thumbnails
    void clear();
    void pause() { _weCanStillCalculate = false; }
    // With this many jobs expected; 0: those in the queue.
    void restart(int expected);
    [[nodiscard]] bool weCanStillCalculate() const { return _weCanStillCalculate; }
    [[nodiscard]] int fIconWorkDone() const { return fIconWorkDoneCounter; }
    [[nodiscard]] int pending() const { return static_cast<int>(fIconWorkArray.size()); }
    [[nodiscard]] const std::deque<ZELIconWorkerData>& jobs() const { return fIconWorkArray; }

private:
    void moveToTop(DicomElemChildNode* node, int level);
    [[nodiscard]] std::size_t chosenJob(bool fastStart) const;  // of a queue that isn't empty
    Tick doWorkQuantumWithObject(std::size_t index, bool textOnly);

    std::deque<ZELIconWorkerData> fIconWorkArray;
    int fIconWorkDoneCounter = 0;  // jobs still expected
    bool _weCanStillCalculate = true;
};
