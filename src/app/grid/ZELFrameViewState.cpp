#include "app/grid/ZELFrameViewState.h"

#include "dicom_core/tree/dk_SequenceBase.h"

ZELFrameViewState::ZELFrameViewState(const dk_ImageFrameInfo& info, bool isDICOMGray)
    : _autoFitIsON(info.fTransform.autoFit),
      _zoom(static_cast<float>(info.fTransform.zoom) / kZoomOne * 100),
      _horizFlip(info.fTransform.horzFlip),
      _vertFlip(info.fTransform.vertFlip),
      _rotationAngle(info.fTransform.rotation),
      _clutID(info.fColorTable),
      _invertColors(info.fTransform.invert)
{
    const zel_TransformRec& record = info.fTransform;
    _ww_brightness = isDICOMGray ? record.voiWidth : static_cast<float>(record.brightness);
    _wl_contrast = isDICOMGray ? record.voiLevel : static_cast<float>(record.contrast);
}

CKFrameShapesMgr& ZELFrameViewState::shapesMgr()
{
    if (!_shapesMgr)
        _shapesMgr = std::make_unique<CKFrameShapesMgr>();
    return *_shapesMgr;
}

std::int32_t ZELFrameViewState::totalMeasurements() const
{
    return _shapesMgr ? _shapesMgr->CountMeasurements() : 0;
}

CKShapePtr ZELFrameViewState::currentMeasurement() const
{
    return _shapesMgr ? _shapesMgr->GetSelectedMeasurement() : nullptr;
}

CKShapePtr ZELFrameViewState::theCurrentMeasurement() const
{
    return _shapesMgr ? _shapesMgr->GetCurrentMeasurement() : nullptr;
}

std::vector<CKShapePtr> ZELFrameViewState::theMeasurements() const
{
    return _shapesMgr ? _shapesMgr->AllMeasurementsArray() : std::vector<CKShapePtr>{};
}

void ZELFrameViewState::deleteCurrentMeasurement()
{
    if (_shapesMgr)
        _shapesMgr->RemoveCurrentMeasurement(true);
}

void ZELFrameViewState::deselectCurrentMeasurement()
{
    if (const CKShapePtr shape = currentMeasurement())
        _shapesMgr->DeSelectShape(shape.get());
}

void ZELFrameViewState::setTheCurrentMeasurementIndex(std::int32_t position)
{
    const CKShapePtr shape = _shapesMgr ? _shapesMgr->GetNthMeasurement(position) : nullptr;
    if (!shape)
        return;
    _shapesMgr->SetCurrentMeasurement(shape.get());
    _shapesMgr->SelectShape(shape.get());
}

void ZELSequenceViewState::setThedkSequence(dk_SequenceBase* sequence)
{
    if (sequence == _thedkSequence)
        return;
    _frameViewStatesArr.clear();
    _thedkSequence = sequence;
    dk_SequenceFrameInfo* table = sequence ? sequence->GetSequenceFrameInfo() : nullptr;
    if (!table)
        return;
    const bool gray = sequence->IsDICOMGray();
    _frameViewStatesArr.reserve(table->fFrames.size());
    for (const dk_ImageFrameInfo& info : table->fFrames)
        _frameViewStatesArr.push_back(std::make_unique<ZELFrameViewState>(info, gray));
}

bool ZELSequenceViewState::hasMeasurements() const
{
    return std::ranges::any_of(_frameViewStatesArr,
                               [](const auto& state) { return state->hasMeasurements(); });
}

bool ZELSequenceViewState::frameHasMeasurements(std::int32_t frame) const
{
    const ZELFrameViewState* state = viewStateForFrame(frame);
    return state && state->hasMeasurements();
}

std::vector<CKShapePtr> ZELSequenceViewState::measurementsOfFrame(std::int32_t frame) const
{
    const ZELFrameViewState* state = viewStateForFrame(frame);
    return state ? state->theMeasurements() : std::vector<CKShapePtr>{};
}

ZELFrameViewState* ZELSequenceViewState::viewStateForFrame(std::int32_t frame) const
{
    return objectInZELFrameViewStatesAtIndex(frame - 1);
}

ZELFrameViewState* ZELSequenceViewState::objectInZELFrameViewStatesAtIndex(std::int32_t index) const
{
    return index >= 0 && index < count()
               ? _frameViewStatesArr[static_cast<std::size_t>(index)].get()
               : nullptr;
}

std::int32_t ZELSequenceViewState::countOfZELFrameViewStates() const
{
    return _thedkSequence ? _thedkSequence->GetNumberOfFrames() : 0;
}
