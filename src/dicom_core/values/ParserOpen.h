// How the program opens a DICOM file: with the program's reader options, and a check on demand.
#pragma once
#include "util/FileRef.h"

#include "Qvx2Parser/Qvx2Reader.h"
#include <optional>
#include <string>

// A reader on the file at `path` (bytes). With `validate` the file must also pass the reader's
// check. The file is idle afterwards. `parser` is null unless the result is kQvxOK; kQvxNotOfKind
// for a file that the check refuses, other codes as of Qvx2Parser_Open, of which `expected` is too.
[[nodiscard]] QvxStatus U_NewDicomParserForFile(const std::string& path, QvxReaderPtr* parser,
                                                bool validate,
                                                const FileIdentity* expected = nullptr);
// The same; kQvxBadArgument for an empty reference.
[[nodiscard]] QvxStatus U_NewDicomParserForFileSpec(const FileRef& file, QvxReaderPtr* parser,
                                                    bool validate,
                                                    const FileIdentity* expected = nullptr);
// The same for a reader that is used at once: the file stays open and read ahead until the first
// use of it ends, which begins with `use`. `use` is empty unless the result is kQvxOK, and must end
// before the reader does.
[[nodiscard]] QvxStatus U_NewDicomParserInUse(const FileRef& file, QvxReaderPtr* parser,
                                              std::optional<QvxReaderUse>* use, bool validate,
                                              const FileIdentity* expected = nullptr);

// Walks the header unless it has been walked. A walk counts as long as it met an element that the
// dictionary knows, even if it breaks off: what stands in front of the damage is there to be used.
// Else its code; kQvxNotOfKind for a walk without a fault, over a few zero bytes say.
[[nodiscard]] QvxStatus Parser_WalkHeader(ParserHandle parser);
