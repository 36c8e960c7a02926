// Rescale slope and intercept of a file, PS3.3 C.11.1.1.2 and C.7.6.16.2.9. Internal.
#pragma once
#include "QvxToolkit/QvxFrameRecord.h"

// From the top level; of an enhanced image from its shared groups, or from the frames' own groups
// when all of them agree. Frames that differ keep their stored values: one scale serves the file.
void QvxReadRescale(QvxParserRec* reader, QvxFrameRecord* record);
