// The observable face of one sequence: all that is interactive reads and changes a sequence through
// it. It turns what people see (percent, whole window values, degrees) into the frames' records,
// announces each change under its key, and is the one place where measurements and crops come and
// go. It owns no pixels. Every operation on a proxy without sequence answers neutrally.
//
// Frames count from 1. A frame selector is a frame, 0 for the current one or -1 for all; any other
// number selects none. Operations for one frame announce their keys only where the selector
// touches the current frame, as the keys speak of that. Main thread only.
#pragma once
#include "Graphics/ShapeSequence.h"
#include "app/grid/CineStage.h"
#include "app/grid/ZELFrameViewState.h"
#include "dicom_core/look/zel_TransformRec.h"
#include "pixels/zel_Offscreen.h"
#include "platform/ObservableKeys.h"

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVariantMap>

class dk_ImageFrameInfo;
class dk_SequenceFrameInfo;

class ZELSequenceProxy final : public ObservableKeys, public ShapeSequence {
public:
    static constexpr std::int32_t kCurrentFrame = 0, kAllFrames = -1;
    static constexpr std::int32_t kLoopModeUnknown = 65535;

    explicit ZELSequenceProxy(dk_SequenceBase* sequence);
    ~ZELSequenceProxy() override;  // the sequence's link to it goes, if it is still to this one

    // ---- life ----

    [[nodiscard]] dk_SequenceBase* theSequence() const { return _theSequence; }
    void setTheSequence(dk_SequenceBase* sequence);
    [[nodiscard]] bool isDICOM() const { return true; }
    [[nodiscard]] bool isGood() const { return totalFrames() > 0; }
    // What of a proxy is copied and coded: its sequence, as a number that is good for as long as
    // some proxy shows that sequence.
    [[nodiscard]] QVariantMap encodeWithCoder() const;
    [[nodiscard]] static std::unique_ptr<ZELSequenceProxy> initWithCoder(const QVariantMap& coded);
    [[nodiscard]] std::unique_ptr<ZELSequenceProxy> copyWithZone() const;
    void setNilValueForKey(std::string_view key);

    // ---- frames ----

    [[nodiscard]] std::int32_t currentFrame() const override;
    [[nodiscard]] std::int32_t totalFrames() const;
    // Announced also for a number that the sequence refuses.
    void setCurrentFrame(std::int32_t frame);
    [[nodiscard]] bool hasNextFrame() const { return currentFrame() < totalFrames(); }
    [[nodiscard]] bool hasPrevFrame() const { return currentFrame() > 1; }
    [[nodiscard]] bool hasManyFrames() const { return totalFrames() > 1; }
    [[nodiscard]] QString currentFrameString() const;

    // ---- zoom and pan ----

    [[nodiscard]] float currentZoom() const;  // percent, of the record
    [[nodiscard]] QString currentZoomString() const;
    [[nodiscard]] bool zoomIsAutoFit() const;
    void changeZoomForFrame(std::int32_t selector, double percent);
    void zoomAutofitForFrame(std::int32_t selector);
    [[nodiscard]] bool hasNextZoom() const;
    [[nodiscard]] bool hasPrevZoom() const;
    [[nodiscard]] QPointF currentScroll() const { return scrollForFrame(kCurrentFrame); }
    [[nodiscard]] QPointF scrollForFrame(std::int32_t frame) const;  // frame pixels
    void changeScrollPositionForAllFrames(bool all, const QPointF& scroll);

    // ---- window and level, or brightness and contrast ----

    [[nodiscard]] std::int32_t theWWBrightnessForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t theOriginalWWBrightnessForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t theMinWWBrightnessForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t theMaxWWBrightnessForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t theWLContrastForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t theOriginalWLContrastForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t theMinWLContrastForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t theMaxWLContrastForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t currentWWBrightness() const { return theWWBrightnessForFrame(0); }
    [[nodiscard]] std::int32_t minWWBrightness() const { return theMinWWBrightnessForFrame(0); }
    [[nodiscard]] std::int32_t maxWWBrightness() const { return theMaxWWBrightnessForFrame(0); }
    [[nodiscard]] std::int32_t currentWLContrast() const { return theWLContrastForFrame(0); }
    [[nodiscard]] std::int32_t minWLContrast() const { return theMinWLContrastForFrame(0); }
    [[nodiscard]] std::int32_t maxWLContrast() const { return theMaxWLContrastForFrame(0); }
    // Windows of a scale with steps below 1 have decimals.
    [[nodiscard]] QString brightnessString() const;
    [[nodiscard]] QString contrastString() const;
    void setCurrentWWBrightness(std::int32_t value);
    void setCurrentWLContrast(std::int32_t value);
    void changeBnCForAllFrames(bool all, std::int32_t brightness, std::int32_t contrast);
    void changeVOIForAllFrames(bool all, float width, float level);
    void changeVOITableForAllFrames(bool all, const std::shared_ptr<const zelVOITable>& table);

    // ---- colours and turns ----

    [[nodiscard]] std::int32_t currentClutID() const;  // 0 none
    void setClutIDTo(std::int32_t table, bool all);
    void invertColorsForFrame(std::int32_t selector);
    [[nodiscard]] bool currentFrameIsInverted() const;
    void setCurrentFrameIsInverted(bool inverted);  // logs; a frame is inverted by the above
    [[nodiscard]] float currentRotation() const { return rotationForFrame(kCurrentFrame); }
    [[nodiscard]] float rotationForFrame(std::int32_t frame) const;            // degrees
    void changeRotationForFrame(std::int32_t selector, std::int16_t degrees);  // by 90 or 270
    void originalColorsForAllFrames(bool all);
    void resetColorsForAllFrames(bool all);
    void resetCLUTsForAllFrames(bool all);
    void resetOrientationForAllFrames(bool all);
    void resetAllForAllFrames(bool all);

    // ---- the view as a whole ----

    [[nodiscard]] bool viewShowsDemographics() const;
    void setViewShowsDemographics(int shows);  // 1 shows, anything else hides
    [[nodiscard]] bool viewShowsScale() const;
    void setViewShowsScale(bool shows);
    [[nodiscard]] bool viewShowsMeasurements() const;
    void setViewShowsMeasurements(bool shows);
    [[nodiscard]] bool viewShowsDicomOverlays() const;
    void setViewShowsDicomOverlays(bool shows);
    // 0 to 9 for 1x1, 1x2, 2x1, 2x2, 2x3, 3x2, 3x3, 3x4, 4x3 and 4x4 (rows by columns). Computed
    // from the rows, whatever the columns are; gridSetupIDFromRows is the strict form.
    [[nodiscard]] int viewGridSetupID() const;
    void setViewGridSetupID(int setup);

    // ---- facts ----

    [[nodiscard]] bool isDICOMGray() const;
    [[nodiscard]] bool hasDicomOverlays() const;
    [[nodiscard]] bool hasScale() const;
    [[nodiscard]] bool hasUSRegions() const override;
    [[nodiscard]] const std::vector<US_ROIRegDataRec>* usRegions() const override;
    [[nodiscard]] bool supportsUSRegions() const;
    [[nodiscard]] bool currentImageIsValid() const;
    [[nodiscard]] bool framesAreInBuffer() const;
    [[nodiscard]] bool allFilesOnDisk() const;
    [[nodiscard]] bool userMarked() const;
    void setUserMarked(bool marked);
    // A new offscreen of the frame's full size, as its importer gives it. `flags` takes the
    // properties of OffscreenForFrame.h, may be null. Null for a frame that can't be had.
    [[nodiscard]] std::unique_ptr<zel_Offscreen> offscreenForFrame(std::int32_t frame,
                                                                   std::uint32_t* flags) const;

    // ---- cine ----

    [[nodiscard]] std::int32_t cineLoopMode();
    void setCineLoopMode(std::int32_t mode);
    [[nodiscard]] float cineRate() const;  // factor
    [[nodiscard]] float adjustedCineRate() const;
    void setCineRate(float rate);
    [[nodiscard]] float cineSpeed() const;  // frames a second
    [[nodiscard]] float adjustedCineSpeed() const;
    [[nodiscard]] float storedCineSpeed() const;
    void setCineSpeed(float speed);
    // -1 unknown, else whether a movie of it could be made; decided by who makes movies.
    [[nodiscard]] std::int32_t canCreateMovie() const { return fCanCreateMovie; }
    void setCanCreateMovie(std::int32_t can);
    [[nodiscard]] bool canPlayCine() const;
    // Without loop; null while nobody makes movies.
    [[nodiscard]] std::unique_ptr<CineMovie> theCineMovie();
    [[nodiscard]] std::int32_t currentFrameForMovie(const CineMovie& movie) const;
    std::int32_t _postCineFrameIndex = 0;  // shown when a cine has ended

    // ---- measurements ----

    [[nodiscard]] bool hasMeasurements() const { return _frameViewStates.hasMeasurements(); }
    [[nodiscard]] bool currentFrameHasMeasurements() const;
    [[nodiscard]] bool currentFrameHasMoreThan1() const;
    [[nodiscard]] bool currentFrameHasMoreThan1Lines() const;
    [[nodiscard]] std::vector<CKShapePtr> currentFrameMeasurements() const;
    [[nodiscard]] std::vector<CKShapePtr> measurementsForFrame(std::int32_t frame) const;
    [[nodiscard]] std::int32_t totalMeasurementsInFrame(std::int32_t frame) const;
    // Position from 1, -1 for a shape that isn't there.
    [[nodiscard]] std::int32_t measurementIndexForShape(const CKAdornedGraphic* shape,
                                                        std::int32_t frame) const;
    [[nodiscard]] CKShapePtr currentMeasurement() const;
    [[nodiscard]] bool currentMeasurementIsTopmost() const;
    [[nodiscard]] bool currentMeasurementIsLast() const;
    void setCurrentMeasurement(const CKShapePtr& shape);
    void setCurrentAndSelectedMeasurement(const CKShapePtr& shape);
    void addNewMeasurement(const CKShapePtr& shape, bool makeCurrent);
    // A global shape goes from every frame. `dispose` as of CKFrameShapesMgr.
    void removeCurrentMeasurementAndDelete(bool dispose);
    void removeMeasurement(const CKShapePtr& shape, std::int32_t frame, bool dispose);
    void removeAllMeasurementsForFrame(std::int32_t selector);
    void removeAllCurrentFrameMeasurements() { removeAllMeasurementsForFrame(currentFrame()); }
    void removeAllMeasurements();
    // Millimetres a pixel by the user's calibration, 0 takes it back; of all frames.
    void changeScaleForAllFrames(float scale);

    [[nodiscard]] ZELFrameViewState* currentFrameViewState() const;
    [[nodiscard]] ZELFrameViewState* viewStateForFrame(std::int32_t frame) const;
    [[nodiscard]] const ZELSequenceViewState& frameViewStates() const { return _frameViewStates; }

    // ---- crops ----

    [[nodiscard]] CKShapePtr cropForFrame(std::int32_t frame) const;
    [[nodiscard]] QRectF cropRectForFrame(std::int32_t frame) const;  // frame pixels
    // As the last of the three operations below left it, whatever single frames hold.
    [[nodiscard]] bool hasCrops() const { return isGood() && bufHasCrops == 1; }
    void setCropForFrame(const CKShapePtr& crop, std::int32_t selector);
    void setSequenceCrop(const CKShapePtr& crop);  // the same one on every frame
    void clearCrops();

private:
    using Keys = std::span<const std::string_view>;
    using Member = float zel_TransformRec::*;

    void attach(dk_SequenceBase* sequence);
    [[nodiscard]] dk_ImageFrameInfo* frameInfo(std::int32_t frame) const;
    [[nodiscard]] const zel_TransformRec* recordOf(std::int32_t frame) const;
    [[nodiscard]] dk_SequenceFrameInfo* table() const;
    [[nodiscard]] std::int32_t numberOf(std::int32_t frame) const;  // 0 becomes the current one
    [[nodiscard]] bool touchesCurrentFrame(std::int32_t selector) const;
    [[nodiscard]] std::int32_t pairValue(std::int32_t frame, Member window,
                                         std::int32_t otherwise) const;
    [[nodiscard]] QString pairString(Member window, std::int32_t zel_TransformRec::* other) const;
    [[nodiscard]] CKFrameShapesMgr* managerOf(std::int32_t frame) const;
    void makeCurrent(CKFrameShapesMgr* manager, const CKShapePtr& shape);

    template <typename Change>
    void announceIf(bool announced, Keys keys, Change change)
    {
        if (announced)
            Announce(keys, change);
        else
            change();
    }

    dk_SequenceBase* _theSequence = nullptr;  // not owned
    ZELSequenceViewState _frameViewStates;
    std::int32_t _cineLoopMode = kLoopModeUnknown;
    std::int32_t bufHasCrops = -1;  // -1 unknown
    std::int32_t fCanCreateMovie = -1;
};
