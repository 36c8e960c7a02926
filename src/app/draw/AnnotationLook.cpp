#include "app/draw/AnnotationLook.h"

#include "app/grid/GridNotifications.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "dicom_core/annotations/PrepareSequenceAnnotations.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_SequenceBase.h"

#include <QColor>

namespace {

ZELRGBColor RGBColorOf(const QColor& color)
{
    const auto part = [](int value) { return static_cast<std::uint16_t>(value * 257); };
    return {part(color.red()), part(color.green()), part(color.blue())};
}

template <typename Change>
void OnAllAnnotations(const GridHost& host, Change change)
{
    const ZELDcmTree* tree = host.tree();
    for (dk_SequenceBase* sequence = tree ? tree->firstGoodSequence_DICOM() : nullptr; sequence;
         sequence = tree->nextGoodSequence_DICOMFrom(sequence)) {
        if (AnnotationManagerX* manager = AnnotationManagerOf(*sequence))
            change(manager);
    }
}

}  // namespace

AnnotationLook::AnnotationLook(GridHost* host)
    : fHost(host),
      fChanges{NotificationCenter::Default().AddObserver(
                   kNoteAnnotationColorChanged,
                   [this](const Notification& note) { changeColorForDemographics(note); }),
               NotificationCenter::Default().AddObserver(
                   kNoteAnnotationFontChanged,
                   [this](const Notification& note) { changeFontForDemographics(note); }),
               NotificationCenter::Default().AddObserver(
                   kNoteUSRegionsColorChange, [this](const Notification&) { redrawGrids(); }),
               NotificationCenter::Default().AddObserver(
                   kNoteUSRegionsShowHide, [this](const Notification&) { redrawGrids(); })}
{
}

void AnnotationLook::changeColorForDemographics(const Notification& note)
{
    const auto color = note.userInfo.value(QLatin1String(kKeyNewAnnotationColor)).value<QColor>();
    if (!color.isValid())
        return;
    OnAllAnnotations(
        *fHost, [color](AnnotationManagerX* manager) { manager->SetForeColor(RGBColorOf(color)); });
    redrawGrids();
}

void AnnotationLook::changeFontForDemographics(const Notification& note)
{
    const QString name = note.userInfo.value(QLatin1String(kKeyNewAnnotationFontName)).toString();
    const float size = note.userInfo.value(QLatin1String(kKeyNewAnnotationFontSize)).toFloat();
    OnAllAnnotations(*fHost, [&](AnnotationManagerX* manager) {
        if (!name.isEmpty())
            manager->SetFontName(name);
        if (size > 0)
            manager->SetFontSize(size);
    });
    redrawGrids();
}

void AnnotationLook::redrawGrids()
{
    for (ZELSequenceGridViewModelController* grid : fHost->gridControllers()) {
        if (grid->view() && !grid->cineModeIsON())
            grid->view()->setNeedsDisplay();
    }
}
