// Fills the view states of sequences with what stands over their frames.
#pragma once
#include "dicom_core/annotations/AnnotationManagerX.h"

// The application's list, from which every view state that is made from now on prepares its
// annotations. Once, at the start, before the first sequence; and with another list when that
// changes, after which the view states there are must be prepared anew. Main thread only.
void InstallSequenceAnnotations(AnnotationTemplates templates = loadDefaultAnnotations());

// Gives a view state new annotations by the list, in place of those it has. They show what it
// shows. No sequence has been set on them yet.
void PrepareSequenceAnnotations(ModalityType modality, dk_SequenceViewState* state);

// A manager with one annotation for each item, in their order, then letters and ruler.
[[nodiscard]] std::unique_ptr<AnnotationManagerX> NewAnnotationManager(
    const AnnotationTemplates& templates);

// The annotations of a sequence, set to that sequence; null if its view state has none.
[[nodiscard]] AnnotationManagerX* AnnotationManagerOf(dk_SequenceBase& sequence);
