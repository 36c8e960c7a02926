#include "dicom_core/values/ParserOpen.h"

QvxStatus U_NewDicomParserForFile(const std::string& path, QvxReaderPtr* parser, bool validate)
{
    if (!parser)
        return kQvxBadArgument;
    parser->reset();
    QvxReaderPtr opened;
    // A path ends at its first NUL for the system: refused rather than opened as another file.
    if (path.find('\0') != std::string::npos)
        return kQvxFileNotFound;
    if (const QvxStatus status = Qvx2Parser_Open(&opened, path.c_str(), kQvxProgramOptions))
        return status;
    // Opening leaves the descriptor for the first use; the end of this one closes it.
    const QvxReaderUse use(opened.get());
    if (validate) {
        bool valid = false;
        if (const QvxStatus status = Qvx2Reader_ValidateDataRef(opened.get(), &valid))
            return status;
        if (!valid)
            return kQvxNotOfKind;
    }
    *parser = std::move(opened);
    return kQvxOK;
}

QvxStatus U_NewDicomParserForFileSpec(const FileRef& file, QvxReaderPtr* parser, bool validate)
{
    if (!parser)
        return kQvxBadArgument;
    parser->reset();
    if (file.Empty())
        return kQvxBadArgument;
    return U_NewDicomParserForFile(file.fPath, parser, validate);
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
