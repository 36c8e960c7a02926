// Does a file hold graphics beside its pixels? What they are is the business of those who draw
// them.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"

// An overlay group, an even one from 6000 to 601E, holds Overlay Type (60xx,0040) at the top level
// (PS3.3 C.9.2): its bits then stand in Overlay Data or in unused bits of the pixels. Reads no
// pixels. False without a parser.
[[nodiscard]] bool Parser_FileHasOverlays(ParserHandle parser);
