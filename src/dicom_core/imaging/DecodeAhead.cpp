#include "dicom_core/imaging/DecodeAhead.h"

#include "dicom_core/imaging/BufferedFacts.h"
#include "dicom_core/imaging/DecodeFrame.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/store/TempFolder.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "util/SignalStack.h"

#include "qpix/OffscreenForFrame.h"
#include "qpix/zelImageSource.h"
#include <algorithm>
#include <exception>
#include <tuple>

namespace {

// Frames finished and not fetched: with more the thread waits, as nobody pages.
constexpr std::size_t kMostFrames = 6;
constexpr std::size_t kBlockBytes = std::size_t{1} << 18;  // more than a row of any image

}  // namespace

// Leaves the offscreen where they can't be written: with less kept, they may be.
void DecodeAhead::WritePixels(const std::string& path, Opened* opened, Frame* frame)
{
    const Port& port = *frame->offscreen->GetGWorldPtr();
    opened->block.resize(kBlockBytes);
    if (!frame->pixels.Write(port, port.bounds, path, opened->block))
        frame->offscreen.reset();
}

DecodeAhead::~DecodeAhead()
{
    {
        const std::lock_guard lock(fMutex);
        fStop = true;
    }
    fWanted.notify_all();
    if (fThread.joinable())
        fThread.join();
}

std::optional<DecodeAhead::Key> DecodeAhead::KeyOf(dk_SequenceBase* sequence, std::int32_t frame)
{
    Key key;
    if (!sequence ||
        sequence->GetBaseBufferIDsForSequenceFrame(frame, &key.primary, &key.secondary))
        return std::nullopt;
    return key;
}

void DecodeAhead::Request(dk_SequenceBase* sequence, std::span<const std::int32_t> frames)
{
    std::deque<Job> jobs;
    for (const std::int32_t frame : frames) {
        const auto key = KeyOf(sequence, frame);
        if (!key || !gAppBaseBuffer || !SequenceCanUseBaseBuffer(*sequence) ||
            CheckIfCellInBaseBuffer(sequence, frame))
            continue;
        auto source = std::make_unique<zelImageSource>();
        source->ImportFromSource(*sequence->GetImageFrameInfo(frame)->fSource);
        std::string path;
        if (gAppBaseBuffer->IsOnDisk())
            std::ignore = NewTempFile(&path);
        jobs.push_back({*key, std::move(source), std::move(path)});
    }
    const std::lock_guard lock(fMutex);
    std::erase_if(jobs, [this](const Job& job) {
        return job.key == fInWork ||
               std::ranges::find(fFrames, job.key, &Frame::key) != fFrames.end();
    });
    fJobs = std::move(jobs);
    if (!fJobs.empty() && StartThread())
        fWanted.notify_one();
}

// Without a thread frames are decoded when they are shown, as ever.
bool DecodeAhead::StartThread()
{
    if (fThread.joinable())
        return true;
    try {
        fThread = std::thread([this] { Work(); });
    } catch (const std::exception&) {
        fJobs.clear();
    }
    return fThread.joinable();
}

void DecodeAhead::Collect(dk_SequenceBase* sequence, std::int32_t frame)
{
    std::deque<Frame> frames;
    {
        const auto key = KeyOf(sequence, frame);
        std::unique_lock lock(fMutex);
        std::erase_if(fJobs, [&](const Job& job) { return job.key == key; });  // too late for it
        fDone.wait(lock, [&] { return !key || fInWork != key; });
        frames.swap(fFrames);
    }
    fWanted.notify_one();
    for (Frame& each : frames) {
        const auto [primary, secondary] = each.key;
        const zelDPIFRecord* facts = each.facts ? &*each.facts : nullptr;
        if (each.pixels && gAppBaseBuffer)
            std::ignore =
                StoreWrittenFrame(gAppBaseBuffer, std::move(each.pixels), primary, secondary,
                                  kStorePriorityShown, kInsertLimitShown, facts);
        else if (each.offscreen && gAppBaseBuffer)
            std::ignore =
                StoreDecodedFrame(gAppBaseBuffer, each.offscreen.get(), primary, secondary,
                                  kStorePriorityShown, kInsertLimitShown, facts);
    }
}

bool DecodeAhead::IsPending(dk_SequenceBase* sequence, std::int32_t frame)
{
    const auto key = KeyOf(sequence, frame);
    const std::lock_guard lock(fMutex);
    return key && (fInWork == key || std::ranges::find(fJobs, *key, &Job::key) != fJobs.end());
}

void DecodeAhead::Forget()
{
    const std::lock_guard lock(fMutex);
    fJobs.clear();
    fFrames.clear();
    ++fForgotten;
}

void DecodeAhead::Work()
{
    const SignalStack stack;
    Opened opened;
    std::unique_lock lock(fMutex);
    for (;;) {
        fWanted.wait(lock,
                     [this] { return fStop || (!fJobs.empty() && fFrames.size() < kMostFrames); });
        if (fStop)
            return;
        Job job = std::move(fJobs.front());
        fJobs.pop_front();
        fInWork = job.key;
        const unsigned forgotten = fForgotten;
        lock.unlock();
        Frame frame = Decode(&opened, std::move(job));
        lock.lock();
        fInWork.reset();
        if (forgotten == fForgotten)
            fFrames.push_back(std::move(frame));
        fDone.notify_all();
    }
}

DecodeAhead::Frame DecodeAhead::Decode(Opened* opened, Job job)
{
    Frame failed{job.key, {}, nullptr, std::nullopt}, frame{job.key, {}, nullptr, std::nullopt};
    if (opened->secondary != job.key.secondary || !opened->source) {
        opened->codec.reset();
        opened->source = std::move(job.source);
        opened->secondary = job.key.secondary;
    }
    std::uint32_t properties = 0;
    try {
        CImporterPlus* importer = opened->source->GetImporter();
        if (!importer || importer->SetCurrentImage(job.key.primary) ||
            U_NewOffscreenForFrame(*importer, job.key.primary, &frame.offscreen, nullptr,
                                   &properties) ||
            frame.offscreen->SaveColorTable())
            return failed;
        if (!opened->codec)
            opened->codec = std::make_unique<DicomCodec>();
        if (DecodeFrame(importer, properties, opened->codec.get(), frame.offscreen.get()))
            return failed;
        zelDPIFRecord facts;
        if (IsDicomGrayFrame(properties)) {
            // Without them the frame would be decoded again.
            if (FactsFromCodec(*opened->codec, properties, &facts))
                return failed;
            frame.facts = facts;
        }
        if (!job.path.empty())
            WritePixels(job.path, opened, &frame);
    } catch (const std::exception&) {  // of memory, or of a library
        return failed;
    }
    return frame;
}
