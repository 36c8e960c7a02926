// What exists for each frame of a sequence beside its record: its measurements and its crop. Made
// all at once when a proxy takes a sequence, dropped with it. Main thread only.
#pragma once
#include "Graphics/CKFrameShapesMgr.h"

#include <QVariant>
#include <cstdint>
#include <memory>
#include <vector>

class dk_ImageFrameInfo;
class dk_SequenceBase;

class ZELFrameViewState {
public:
    ZELFrameViewState(const dk_ImageFrameInfo& info, bool isDICOMGray);

    [[nodiscard]] CKFrameShapesMgr& shapesMgr();  // made on first use
    [[nodiscard]] bool hasMeasurements() const { return totalMeasurements() > 0; }
    [[nodiscard]] std::int32_t totalMeasurements() const;
    // The selected one; the one that commands act on.
    [[nodiscard]] CKShapePtr currentMeasurement() const;
    [[nodiscard]] CKShapePtr theCurrentMeasurement() const;
    [[nodiscard]] std::vector<CKShapePtr> theMeasurements() const;
    void deleteCurrentMeasurement();
    void addMeasurement(const CKShapePtr& shape) { shapesMgr().AppendMeasurement(shape); }
    void deselectCurrentMeasurement();
    void setTheCurrentMeasurementIndex(std::int32_t position);  // selects it, from 1

    [[nodiscard]] const CKShapePtr& frameCrop() const { return _frameCrop; }  // or null
    void setFrameCrop(CKShapePtr crop) { _frameCrop = std::move(crop); }
    // The frame was turned or flipped when the state was made.
    [[nodiscard]] bool hasGeometricTransformation() const
    {
        return _rotationAngle != 0 || _horizFlip || _vertFlip;
    }

    // The frame's record as it was when the state was made; the record itself is what counts.
    bool _autoFitIsON = true;
    float _zoom = 100;  // percent
    bool _horizFlip = false, _vertFlip = false;
    float _rotationAngle = 0;
    std::int32_t _clutID = 0;
    bool _invertColors = false;
    float _ww_brightness = 0, _wl_contrast = 0;

private:
    CKShapePtr _frameCrop;
    std::unique_ptr<CKFrameShapesMgr> _shapesMgr;
};

// The states of a sequence's frames, frame 1 first.
class ZELSequenceViewState {
public:
    // Null for none. The same one again changes nothing; another drops all measurements and crops.
    void setThedkSequence(dk_SequenceBase* sequence);
    [[nodiscard]] dk_SequenceBase* thedkSequence() const { return _thedkSequence; }

    [[nodiscard]] bool hasMeasurements() const;  // some frame has one
    // From 1. Beyond the frames that there were when the states were made: false, none, null.
    [[nodiscard]] bool frameHasMeasurements(std::int32_t frame) const;
    [[nodiscard]] std::vector<CKShapePtr> measurementsOfFrame(std::int32_t frame) const;
    [[nodiscard]] ZELFrameViewState* viewStateForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t countOfZELFrameViewStates() const;  // the sequence's frames
    [[nodiscard]] ZELFrameViewState* objectInZELFrameViewStatesAtIndex(std::int32_t index) const;
    [[nodiscard]] std::int32_t count() const
    {
        return static_cast<std::int32_t>(_frameViewStatesArr.size());
    }

private:
    dk_SequenceBase* _thedkSequence = nullptr;
    std::vector<std::unique_ptr<ZELFrameViewState>> _frameViewStatesArr;
};
