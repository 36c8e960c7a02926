#include "app/nodes/IconWorkQueue.h"

#include "app/nodes/DicomElemChildNode.h"

#include <algorithm>

void IconWorkQueue::start(int sequences)
{
    fIconWorkArray.clear();
    fIconWorkDoneCounter = 2 * sequences;
    _weCanStillCalculate = true;
}

void IconWorkQueue::checkItemIconAndMoveToTop(DicomElemChildNode* node)
{
    if (node->iconMissing())
        moveToTop(node, kIconWork);
}

// A text waits for its thumbnail.
void IconWorkQueue::checkItemTextAndMoveToTop(DicomElemChildNode* node)
{
    if (node->textMissing() && !node->iconMissing())
        moveToTop(node, kTextWork);
}

void IconWorkQueue::moveToTop(DicomElemChildNode* node, int level)
{
    ZELIconWorkerData job{node, node->sequence(), level, false};
    const auto there = std::ranges::find_if(fIconWorkArray, [&](const ZELIconWorkerData& each) {
        return each._sequenceNode == node && each._workLevel == level;
    });
    if (there != fIconWorkArray.end()) {
        fIconWorkArray.erase(there);
        job._cellVisible = true;
    }
    fIconWorkArray.push_front(job);
}

IconWorkQueue::Tick IconWorkQueue::prepareNodeIcon(const Surroundings& now)
{
    if (fIconWorkDoneCounter < 1 || !_weCanStillCalculate)
        return Tick::Stopped;
    if (fIconWorkArray.empty())
        return Tick::Idle;
    if (now.modal)
        return Tick::Waiting;
    return doWorkQuantumWithObject(chosenJob(now.fastStart), now.textOnly);
}

std::size_t IconWorkQueue::chosenJob(bool fastStart) const
{
    const auto first = [this](auto fits) { return std::ranges::find_if(fIconWorkArray, fits); };
    auto job = first([fastStart](const ZELIconWorkerData& each) {
        return each._sequenceNode->iconMissing() && (each._cellVisible || !fastStart);
    });
    for (int level = kIconWork; level <= kTextWork && job == fIconWorkArray.end(); ++level)
        job = first([level](const ZELIconWorkerData& each) { return each._workLevel == level; });
    return job == fIconWorkArray.end() ? 0 : static_cast<std::size_t>(job - fIconWorkArray.begin());
}

IconWorkQueue::Tick IconWorkQueue::doWorkQuantumWithObject(std::size_t index, bool textOnly)
{
    const auto place = fIconWorkArray.begin() + static_cast<std::ptrdiff_t>(index);
    const ZELIconWorkerData job = *place;
    if (!job._sequenceNode || !job._dicomSequence)
        return Tick::Idle;
    const bool icon = job._workLevel == kIconWork && job._sequenceNode->iconMissing();
    const bool text = job._workLevel == kTextWork && job._sequenceNode->textMissing();
    if (!icon && !text)
        return Tick::Idle;  // it stays
    if (icon && !textOnly && pixelsAreReady && !pixelsAreReady(job._sequenceNode))
        return Tick::Preparing;
    fIconWorkArray.erase(place);
    if (icon && textOnly) {
        fIconWorkArray.push_back(job);
        return Tick::Idle;
    }
    --fIconWorkDoneCounter;
    const auto& work = icon ? createPreviewIconFor : updateTextsFor;
    if (work)
        work(job._sequenceNode);
    return Tick::Worked;
}

void IconWorkQueue::removeAllPendingIconWorkers()
{
    std::erase_if(fIconWorkArray,
                  [](const ZELIconWorkerData& job) { return job._workLevel == kIconWork; });
}

void IconWorkQueue::clear()
{
    fIconWorkArray.clear();
    fIconWorkDoneCounter = 0;
}

void IconWorkQueue::restart(int expected)
{
    fIconWorkDoneCounter = expected > 0 ? expected : pending();
    _weCanStillCalculate = true;
}
