// A proxy's life, frames, facts and view switches.
#include "app/grid/ZELSequenceProxy.h"

#include "app/grid/GridSetups.h"
#include "app/grid/SequenceProxyKeys.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "platform/Words.h"

#include "qpix/OffscreenForFrame.h"
#include "qpix/zelImageSource.h"
#include <algorithm>

namespace {

constexpr std::string_view kTheSequence = "theSequence";

std::vector<ZELSequenceProxy*>& LiveProxies()
{
    static std::vector<ZELSequenceProxy*> proxies;
    return proxies;
}

}  // namespace

ZELSequenceProxy::ZELSequenceProxy(dk_SequenceBase* sequence)
    : ObservableKeys(SequenceProxyDerivedKeys())
{
    LiveProxies().push_back(this);
    attach(sequence);
}

ZELSequenceProxy::~ZELSequenceProxy()
{
    std::erase(LiveProxies(), this);
    if (_theSequence && _theSequence->GetSequenceProxy() == this)
        _theSequence->SetSequenceProxy(nullptr);
}

void ZELSequenceProxy::attach(dk_SequenceBase* sequence)
{
    if (_theSequence && _theSequence->GetSequenceProxy() == this)
        _theSequence->SetSequenceProxy(nullptr);
    _theSequence = sequence;
    if (sequence)
        sequence->SetSequenceProxy(this);
    _frameViewStates.setThedkSequence(sequence);
    if (sequence && sequence->GetCurrentFrameIndex() == 0)
        sequence->SetCurrentFrameIndex(1);
    bufHasCrops = fCanCreateMovie = -1;
}

void ZELSequenceProxy::setTheSequence(dk_SequenceBase* sequence)
{
    if (sequence == _theSequence)
        return;
    Announce({kTheSequence}, [&] {
        attach(sequence);
        _cineLoopMode = kLoopModeUnknown;
    });
}

QVariantMap ZELSequenceProxy::encodeWithCoder() const
{
    return {{QLatin1String(kTheSequence.data()),
             QVariant::fromValue(reinterpret_cast<quintptr>(_theSequence))}};
}

std::unique_ptr<ZELSequenceProxy> ZELSequenceProxy::initWithCoder(const QVariantMap& coded)
{
    const auto handle = coded.value(QLatin1String(kTheSequence.data())).value<quintptr>();
    for (const ZELSequenceProxy* proxy : LiveProxies()) {
        if (handle != 0 && reinterpret_cast<quintptr>(proxy->_theSequence) == handle)
            return proxy->copyWithZone();
    }
    return std::make_unique<ZELSequenceProxy>(nullptr);
}

// The copy doesn't take the sequence's link: that stays with the proxy that everyone knows.
std::unique_ptr<ZELSequenceProxy> ZELSequenceProxy::copyWithZone() const
{
    ZELSequenceProxy* linked = _theSequence ? _theSequence->GetSequenceProxy() : nullptr;
    auto copy = std::make_unique<ZELSequenceProxy>(_theSequence);
    if (linked)
        _theSequence->SetSequenceProxy(linked);
    return copy;
}

void ZELSequenceProxy::setNilValueForKey(std::string_view key)
{
    if (key == kTheSequence)
        setTheSequence(nullptr);
}

dk_SequenceFrameInfo* ZELSequenceProxy::table() const
{
    return _theSequence ? _theSequence->GetSequenceFrameInfo() : nullptr;
}

dk_ImageFrameInfo* ZELSequenceProxy::frameInfo(std::int32_t frame) const
{
    dk_SequenceFrameInfo* frames = table();
    return frames ? frames->GetImageFrameInfo(frame) : nullptr;
}

const zel_TransformRec* ZELSequenceProxy::recordOf(std::int32_t frame) const
{
    const dk_ImageFrameInfo* info = frameInfo(frame);
    return info ? &info->fTransform : nullptr;
}

bool ZELSequenceProxy::touchesCurrentFrame(std::int32_t selector) const
{
    return selector == kCurrentFrame || selector == kAllFrames || selector == currentFrame();
}

std::int32_t ZELSequenceProxy::currentFrame() const
{
    return _theSequence ? _theSequence->GetCurrentFrameIndex() : 0;
}

std::int32_t ZELSequenceProxy::totalFrames() const
{
    return _theSequence ? std::max(_theSequence->GetNumberOfFrames(), 0) : 0;
}

void ZELSequenceProxy::setCurrentFrame(std::int32_t frame)
{
    if (!_theSequence || frame == currentFrame())
        return;
    Announce({"currentMeasurementIsLast", "currentMeasurementIsTopmost", "currentMeasurement",
              "currentFrame"},
             [&] { _theSequence->SetCurrentFrameIndex(frame); });
}

QString ZELSequenceProxy::currentFrameString() const
{
    if (!_theSequence)
        return {};
    return ZelWord(kWordsMain, "ff of nn").arg(currentFrame()).arg(totalFrames());
}

bool ZELSequenceProxy::isDICOMGray() const { return _theSequence && _theSequence->IsDICOMGray(); }

bool ZELSequenceProxy::hasDicomOverlays() const
{
    return _theSequence && _theSequence->HasDICOMOverlays();
}

bool ZELSequenceProxy::hasScale() const
{
    return _theSequence && (_theSequence->HasBuiltInScaleInfo() ||
                            _theSequence->GetViewState()->fManualPixelScale != 0);
}

bool ZELSequenceProxy::hasUSRegions() const
{
    return _theSequence && _theSequence->GetROINumber() > 0;
}

const std::vector<US_ROIRegDataRec>* ZELSequenceProxy::usRegions() const
{
    return _theSequence ? _theSequence->GetROIData() : nullptr;
}

bool ZELSequenceProxy::supportsUSRegions() const
{
    if (!_theSequence)
        return false;
    const ModalityType modality = _theSequence->GetModality();
    return modality == DicomUtil_ModalityFromString("US") ||
           modality == DicomUtil_ModalityFromString("IVUS");
}

bool ZELSequenceProxy::currentImageIsValid() const
{
    const zelImageSource* source = _theSequence ? _theSequence->GetCurrentSource() : nullptr;
    return source && totalFrames() >= 1 && source->IsValid();
}

bool ZELSequenceProxy::framesAreInBuffer() const
{
    return _theSequence && AllCellsInBaseBuffer(_theSequence);
}

bool ZELSequenceProxy::allFilesOnDisk() const
{
    return _theSequence && _theSequence->AllFilesOnDisk();
}

bool ZELSequenceProxy::userMarked() const { return _theSequence && _theSequence->fMarked; }

void ZELSequenceProxy::setUserMarked(bool marked)
{
    if (_theSequence && marked != userMarked())
        Announce({"userMarked"}, [&] { _theSequence->fMarked = marked; });
}

std::unique_ptr<zel_Offscreen> ZELSequenceProxy::offscreenForFrame(std::int32_t frame,
                                                                   std::uint32_t* flags) const
{
    std::uint32_t properties = 0;
    std::unique_ptr<zel_Offscreen> offscreen;
    const dk_ImageFrameInfo* info = frameInfo(frame);
    CImporterPlus* importer = info && info->fSource ? info->fSource->GetImporter() : nullptr;
    if (importer &&
        (U_NewOffscreenForFrame(*importer, info->fFrameInFile, &offscreen, nullptr, &properties) ||
         offscreen->SaveColorTable()))
        offscreen.reset();
    if (flags)
        *flags = properties;
    return offscreen;
}

bool ZELSequenceProxy::viewShowsDemographics() const
{
    return _theSequence && _theSequence->GetViewState()->fShowsDemographics;
}

void ZELSequenceProxy::setViewShowsDemographics(int shows)
{
    if (_theSequence && (shows == 1) != viewShowsDemographics())
        Announce({"viewShowsDemographics"},
                 [&] { _theSequence->GetViewState()->SetShowsDemographics(shows == 1); });
}

bool ZELSequenceProxy::viewShowsScale() const
{
    return _theSequence && _theSequence->GetViewState()->fShowsScale;
}

void ZELSequenceProxy::setViewShowsScale(bool shows)
{
    if (_theSequence && shows != viewShowsScale())
        Announce({"viewShowsScale"}, [&] { _theSequence->GetViewState()->SetShowsScale(shows); });
}

bool ZELSequenceProxy::viewShowsMeasurements() const
{
    return _theSequence && _theSequence->GetViewState()->fShowsMeasurements;
}

void ZELSequenceProxy::setViewShowsMeasurements(bool shows)
{
    if (_theSequence && shows != viewShowsMeasurements())
        Announce({"viewShowsMeasurements"},
                 [&] { _theSequence->GetViewState()->fShowsMeasurements = shows; });
}

bool ZELSequenceProxy::viewShowsDicomOverlays() const
{
    return hasDicomOverlays() && _theSequence->GetViewState()->fShowsDICOMOverlays;
}

void ZELSequenceProxy::setViewShowsDicomOverlays(bool shows)
{
    if (_theSequence && shows != viewShowsDicomOverlays())
        Announce({"viewShowsDicomOverlays"},
                 [&] { _theSequence->GetViewState()->fShowsDICOMOverlays = shows; });
}

int ZELSequenceProxy::viewGridSetupID() const
{
    if (!_theSequence)
        return 0;
    const dk_SequenceViewState& state = *_theSequence->GetViewState();
    return GridSetupOfRows(state.fCurrRows, state.fCurrColumns).value_or(0);
}

void ZELSequenceProxy::setViewGridSetupID(int setup)
{
    if (!_theSequence)
        return;
    Announce({"viewGridSetupID"}, [&] {
        if (const GridShape* shape = GridShapeOf(setup))
            _theSequence->GetViewState()->SetCurrGridDims(shape->rows, shape->columns);
    });
}

ZELFrameViewState* ZELSequenceProxy::currentFrameViewState() const
{
    return viewStateForFrame(currentFrame());
}

ZELFrameViewState* ZELSequenceProxy::viewStateForFrame(std::int32_t frame) const
{
    return _frameViewStates.viewStateForFrame(frame);
}
