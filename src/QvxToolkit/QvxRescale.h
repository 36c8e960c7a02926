// From stored to user values: slope, intercept and modality table of a file, PS3.3 C.11.1 and
// C.7.6.16.2.9. Internal.
#pragma once
#include "QvxToolkit/QvxFrameRecord.h"

// Fills in the functional groups of an enhanced image, slope and intercept of its first frame and
// whether those of others differ, and the modality table. A table holds where the functional groups
// say nothing. May throw std::bad_alloc.
void QvxReadRescale(QvxParserRec* reader, QvxFrameRecord* record);
