#include "dicom_core/annotations/PrepareSequenceAnnotations.h"

#include "dicom_core/annotations/SequenceFieldAnnotation.h"
#include "prefs/Prefs.h"

#include <utility>

namespace {

AnnotationTemplates& InstalledTemplates()
{
    static AnnotationTemplates sTemplates;
    return sTemplates;
}

QvxElementTag TagOf(std::int32_t group, std::int32_t element)
{
    return {static_cast<std::uint16_t>(group), static_cast<std::uint16_t>(element)};
}

std::unique_ptr<ImageAnnotation> AnnotationOf(const ZELBasicDemografic& item)
{
    const TextPosition position = TextPositionOf(item.position);
    std::unique_ptr<ImageAnnotation> made;
    if (const auto* two = dynamic_cast<const ZELDoubleDemografic*>(&item))
        made = std::make_unique<DoubleFieldAnnotation>(
            position, TagOf(two->dcmGroup, two->dcmElement), two->prefix,
            TagOf(two->dcmGroup2, two->dcmElement2), two->prefix2, two->separator);
    else if (const auto* one = dynamic_cast<const ZELDemografic*>(&item))
        made = std::make_unique<TextFieldAnnotation>(
            position, TagOf(one->dcmGroup, one->dcmElement), one->prefix);
    else if (const auto* fact = dynamic_cast<const ZELBuiltInDemographic*>(&item))
        made = std::make_unique<SequenceFieldAnnotation>(position,
                                                         SequenceFieldTypeOf(fact->elemType));
    if (made)
        made->fShowWhenNoFit = item.showWhenNoFit;
    return made;
}

}  // namespace

std::unique_ptr<AnnotationManagerX> NewAnnotationManager(const AnnotationTemplates& templates)
{
    auto manager = std::make_unique<AnnotationManagerX>();
    for (const auto& item : templates)
        if (item)
            manager->AddAnnotation(AnnotationOf(*item));
    manager->AddAnnotation(std::make_unique<OrientationAnnotation>());
    manager->AddRuler(std::make_unique<RulerAnnotation>());
    manager->SetFontName(prefs_Get_AnnotationsFontName());
    manager->SetFontSize(prefs_Get_AnnotationsFontSize());
    return manager;
}

void InstallSequenceAnnotations(AnnotationTemplates templates)
{
    InstalledTemplates() = std::move(templates);
    SetSequenceAnnotationsMaker(
        [](ModalityType) { return NewAnnotationManager(InstalledTemplates()); });
}

void PrepareSequenceAnnotations(ModalityType, dk_SequenceViewState* state)
{
    if (!state)
        return;
    auto manager = NewAnnotationManager(InstalledTemplates());
    manager->SetShowsDemographics(state->fShowsDemographics);
    manager->SetShowsScale(state->fShowsScale);
    state->SetTextAnnotations(std::move(manager));
}

AnnotationManagerX* AnnotationManagerOf(dk_SequenceBase& sequence)
{
    auto* manager = dynamic_cast<AnnotationManagerX*>(sequence.GetViewState()->TextAnnotations());
    if (manager)
        manager->SetCurrentSequence(&sequence);
    return manager;
}
