// The translations that are built into the program, one for each
// resources/translations/zelora_*.ts.
#pragma once
#include <span>

struct WordFile {
    const char* fLanguage;                  // as in the file's name, for example "en"
    std::span<const unsigned char> fBytes;  // a compiled translation
};

[[nodiscard]] std::span<const WordFile> WordFiles();
