// Decoders whose libraries load slowly are modules, lib/zelora/codec-NAME.so beside the programs'
// folder, opened when the first frame needs them and kept until the program ends.
#pragma once
#include <string>

// The function that module `module` ("dcmtk", "jxl", "ffmpeg") exports with C linkage under the
// name `function`. Null when there is no such module or function; `why` gets the loader's words.
// Any thread may ask.
[[nodiscard]] void* QvxModuleFunction(const char* module, const char* function, std::string* why);
