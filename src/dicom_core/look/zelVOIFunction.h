// How a window becomes gray, and the tables that a file offers in place of windows.
#pragma once
#include "QvxToolkit/QvxCodec.h"

using zelVOIFunction = QvxVOIFunction;
using zelVOITable = QvxLookupTable;  // user values to entries of 8 to 16 bits
