#include "dicom_core/values/ParserOpen.h"

namespace {

QvxStatus OpenInUse(const std::string& path, QvxReaderPtr* parser, std::optional<QvxReaderUse>* use,
                    bool validate, const FileIdentity* expected)
{
    // A path ends at its first NUL for the system: refused rather than opened as another file.
    if (path.find('\0') != std::string::npos)
        return kQvxFileNotFound;
    QvxReaderPtr opened;
    if (const QvxStatus status =
            Qvx2Parser_Open(&opened, path.c_str(), kQvxProgramOptions, expected))
        return status;
    // Opening leaves the descriptor for the first use; the end of this one closes it.
    const QvxReaderUse first(opened.get());
    if (validate) {
        bool valid = false;
        if (const QvxStatus status = Qvx2Reader_ValidateDataRef(opened.get(), &valid))
            return status;
        if (!valid)
            return kQvxNotOfKind;
    }
    use->emplace(opened.get());
    *parser = std::move(opened);
    return kQvxOK;
}

}  // namespace

QvxStatus U_NewDicomParserForFile(const std::string& path, QvxReaderPtr* parser, bool validate,
                                  const FileIdentity* expected)
{
    if (!parser)
        return kQvxBadArgument;
    parser->reset();
    std::optional<QvxReaderUse> use;
    return OpenInUse(path, parser, &use, validate, expected);
}

QvxStatus U_NewDicomParserForFileSpec(const FileRef& file, QvxReaderPtr* parser, bool validate,
                                      const FileIdentity* expected)
{
    std::optional<QvxReaderUse> use;
    return U_NewDicomParserInUse(file, parser, &use, validate, expected);
}

QvxStatus U_NewDicomParserInUse(const FileRef& file, QvxReaderPtr* parser,
                                std::optional<QvxReaderUse>* use, bool validate,
                                const FileIdentity* expected)
{
    if (!parser || !use)
        return kQvxBadArgument;
    use->reset();
    parser->reset();
    if (file.Empty())
        return kQvxBadArgument;
    return OpenInUse(file.fPath, parser, use, validate, expected);
}

QvxStatus Parser_WalkHeader(ParserHandle parser)
{
    const QvxStatus status = CheckAndFillDICOMHeaderPointers(parser, QvxParseMode::Lazy, 0);
    const ExtraHeaderDataRec* state = Qvx2Reader_State(parser);
    if (!state || status == kQvxNoMemory || status == kQvxOutOfMemory)
        return status;
    for (QvxIndex i = state->fListHead; i; i = state->fArena.At(i).fNext) {
        const QvxElementTag tag = state->fArena.At(i).Tag();
        if (PositionInDictionary(tag.group, tag.element) >= 0)
            return kQvxOK;
    }
    return status != kQvxOK ? status : kQvxNotOfKind;
}
