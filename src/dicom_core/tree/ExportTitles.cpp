#include "dicom_core/tree/ExportTitles.h"

namespace {

// `replacement(c)` is what `c` becomes, or 0 for one that stays.
template <typename Text, typename Replacement>
Text Rewritten(const Text& title, Replacement replacement)
{
    Text name;
    bool dropBlanks = false;
    for (const auto c : title) {
        const char written = replacement(c);
        if (written != 0)
            name += static_cast<decltype(c)>(written);
        else if (!dropBlanks || c != decltype(c){' '})
            name += c;
        else
            continue;
        dropBlanks = written != 0;
    }
    return name;
}

}  // namespace

std::string NarrowExportTitle(std::string title)
{
    return Rewritten(title, [](char c) {
        return c == '/' || c == '\\' ? '-' : c == ':' ? '_' : '\0';
    });
}

QString WideExportTitle(QString title)
{
    return Rewritten(title, [](QChar c) { return c == '/' || c == '\\' || c == ':' ? '_' : '\0'; });
}
