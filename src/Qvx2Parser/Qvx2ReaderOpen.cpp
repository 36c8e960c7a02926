// Opening, closing, validating, walking; what the file says of itself.
#include "Qvx2Parser/QvxReaderRec.h"
#include "Qvx2Parser/QvxTransferSyntax.h"
#include <atomic>
#include <cstdio>
#include <cstring>
#include <new>

namespace {

QvxStatus SetStream(QvxParserRec* reader, std::unique_ptr<ByteSource> stream, std::uint32_t options)
{
    // Offsets are 32 bits, and the largest number means "undefined".
    if (stream->Size() == 0 || stream->Size() >= UINT32_MAX)
        return kQvxMalformed;
    reader->fFileSize = static_cast<std::uint32_t>(stream->Size());
    reader->fStream = std::move(stream);
    reader->fOptions = options;
    return kQvxOK;
}

void DropWalk(QvxParserRec* reader)
{
    reader->fSideList.clear();
    reader->fDirectoryRecords = 0;
    reader->fDirectoryList.clear();
    reader->fState.reset();
    reader->fWalked = false;
    QvxRenewSalt(reader);
}

// (0028,0103), which is signed or not, asked of a file that may not have been walked.
QvxStatus ResolvePixelRepresentation(QvxParserRec* reader)
{
    QvxElementRef found{};
    if (Qvx2Reader_GetElementRef(reader, QvxElementRef::None, {0x0028, 0x0103}, &found) != kQvxOK)
        return kQvxMalformed;
    QvxElementValue value;
    if (const QvxStatus status = Qvx2Reader_GetElementDataAsValue(reader, found, 1, &value))
        return status;
    if (value.fType == QvxNumericValueType::UInt16)
        reader->fState->fPixelRepresentation = value.fUInt16;
    return kQvxOK;
}

QvxStatus ResolveTransferSyntax(QvxParserRec* reader)
{
    QvxHandle text;
    const QvxStatus status =
        ParserGetElementDataAsText(reader, QvxElementRef::None, 0x0002, 0x0010, 1, &text);
    if (reader->fState && reader->fState->fTransferSyntax != kUnknownState)
        return kQvxOK;  // the walk that the search caused has settled it
    if (status != kQvxOK)
        return status;
    std::string_view uid = text.Text();
    if (uid.ends_with(' '))
        uid.remove_suffix(1);
    uid = uid.substr(0, uid.find('\0'));
    if (const int index = TransferSyntaxIndex(uid); index >= 0)
        reader->fState->fTransferSyntax = static_cast<std::uint32_t>(index);
    return kQvxOK;
}

}  // namespace

void QvxReaderClose::operator()(QvxParserRec* reader) const noexcept { Qvx2Reader_Close(reader); }

QvxReaderUse::QvxReaderUse(QvxParserRec* reader) : fUse(reader ? reader->fStream.get() : nullptr) {}

void QvxRenewSalt(QvxParserRec* reader)
{
    static std::atomic<std::uint32_t> sNextSalt{0};
    constexpr std::uint32_t kSalts = UINT32_MAX / kMaxElements;  // never 0
    reader->fSalt = sNextSalt.fetch_add(1, std::memory_order_relaxed) % (kSalts - 1) + 1;
}

QvxStatus Qvx2Reader_OpenBase(QvxReaderPtr* reader)
{
    if (!reader)
        return kQvxBadArgument;
    QvxReaderPtr made(new (std::nothrow) QvxParserRec);
    if (!made)
        return kQvxNoMemory;
    made->fCallbacks = QvxStandardCallbacks();
    made->fMemoryEnv = NoxMemEnvInit();
    QvxRenewSalt(made.get());
    *reader = std::move(made);
    return kQvxOK;
}

QvxStatus Qvx2Reader_SetInputFileURL(QvxParserRec* reader, const char* path, std::uint32_t options,
                                     const FileIdentity* expected)
{
    if (!reader)
        return kQvxBadArgument;
    if (!path)
        return kQvxNoDataRef;
    reader->fAttachment.reset();
    DropWalk(reader);
    reader->fStream.reset();
    if (std::strlen(path) >= kMaxPathBytes)
        return kQvxFileNotFound;
    std::unique_ptr<FileSource> source;
    if (const QvxStatus status = FileSource::Open(path, &source, expected))
        return status;
    return SetStream(reader, std::move(source), options);
}

QvxStatus Qvx2Parser_Open(QvxReaderPtr* reader, const char* path, std::uint32_t options,
                          const FileIdentity* expected)
{
    if (!reader || !path)
        return kQvxBadArgument;
    QvxReaderPtr made;
    if (const QvxStatus status = Qvx2Reader_OpenBase(&made))
        return status;
    if (const QvxStatus status = Qvx2Reader_SetInputFileURL(made.get(), path, options, expected))
        return status;
    *reader = std::move(made);
    return kQvxOK;
}

QvxStatus Qvx2Parser_OpenBytes(QvxReaderPtr* reader, std::vector<std::byte> bytes,
                               std::uint32_t options)
{
    if (!reader)
        return kQvxBadArgument;
    QvxReaderPtr made;
    if (const QvxStatus status = Qvx2Reader_OpenBase(&made))
        return status;
    if (const QvxStatus status =
            SetStream(made.get(), std::make_unique<MemorySource>(std::move(bytes)), options))
        return status;
    *reader = std::move(made);
    return kQvxOK;
}

QvxStatus Qvx2Reader_Close(QvxParserRec* reader)
{
    if (!reader)
        return kQvxOK;
    if (reader->fSignature != kSignatureReader)
        return kQvxMalformed;
    reader->fSignature = 0;
    NoxMemEnvClear(&reader->fMemoryEnv);
    delete reader;
    return kQvxOK;
}

QvxStatus Qvx2Reader_ValidateDataRef(QvxParserRec* reader, bool* valid)
{
    if (!reader || !valid)
        return kQvxBadArgument;
    if (!reader->fStream)
        return kQvxNoDataRef;
    const ByteSourceUse use(reader->fStream.get());
    // The marker alone makes a file DICOM: no walk need begin for it.
    if (HasMarker(reader->fCallbacks, reader->fStream.get(), valid) == kQvxOK && *valid) {
        reader->fDictHits = 5;
        return kQvxOK;
    }
    QvxStatePtr state;
    const QvxStatus status =
        Read_DICOM_Header(reader->fCallbacks, reader->fStream.get(), &state, QvxParseMode::Validate,
                          0, reader->fMemoryEnv, reader->fOptions);
    reader->fDictHits = state ? state->fDictHits : 0;
    *valid = status == kQvxOK && reader->fDictHits >= 5;
    return kQvxOK;
}

QvxStatus Qvx2Reader_ReadDICOMHeader(QvxParserRec* reader, QvxParseMode mode)
{
    if (!reader)
        return kQvxBadArgument;
    if (!reader->fStream)
        return kQvxNoDataRef;
    DropWalk(reader);
    const std::uint32_t mapFlag =
        (reader->fReaderFlags & kReaderWantsFrames) != 0 ? kWalkMapFrames : 0;
    const QvxStatus status =
        Read_DICOM_Header(reader->fCallbacks, reader->fStream.get(), &reader->fState, mode, 0,
                          reader->fMemoryEnv, reader->fOptions | mapFlag);
    reader->fWalked = reader->fState != nullptr;
    return status;
}

QvxStatus Qvx2Reader_SetParserFlags(QvxParserRec* reader, std::uint32_t flags)
{
    if (!reader)
        return kQvxNullReader;
    reader->fParserFlags = flags;
    return kQvxOK;
}

QvxStatus Qvx2Reader_GetParserFlags(const QvxParserRec* reader, std::uint32_t* flags)
{
    if (!reader)
        return kQvxNullReader;
    *flags = reader->fParserFlags;
    return kQvxOK;
}

std::string Qvx2Reader_FaultText(const QvxParserRec* reader)
{
    if (!reader || !reader->fState || reader->fState->fFaultOffset == 0)
        return {};
    const ExtraHeaderDataRec& state = *reader->fState;
    char text[64];
    std::snprintf(text, sizeof text, "at (%04x,%04x), offset %u", state.fFaultTag.group,
                  state.fFaultTag.element, state.fFaultOffset);
    return text;
}

const ExtraHeaderDataRec* Qvx2Reader_State(const QvxParserRec* reader)
{
    return reader ? reader->fState.get() : nullptr;
}

std::uint32_t Qvx2Reader_FileSize(const QvxParserRec* reader)
{
    return reader ? reader->fFileSize : 0;
}

FileIdentity Qvx2Reader_FileIdentity(const QvxParserRec* reader)
{
    return reader && reader->fStream ? reader->fStream->Identity() : FileIdentity{};
}

std::shared_ptr<void>* Qvx2Reader_Attachment(QvxParserRec* reader)
{
    return reader ? &reader->fAttachment : nullptr;
}

std::string_view QvxTransferSyntaxUID(std::uint32_t index)
{
    static const auto kUIDs = [] {
        std::array<std::string, kTransferSyntaxSuffixes.size()> uids;
        for (std::size_t i = 0; i < uids.size(); ++i)
            uids[i] = std::string(kTransferSyntaxRoot) + std::string(kTransferSyntaxSuffixes[i]);
        return uids;
    }();
    return index < kUIDs.size() ? std::string_view(kUIDs[index]) : std::string_view();
}

QvxStatus QvxEnsureState(QvxParserRec* reader)
{
    if (reader->fState)
        return kQvxOK;
    QvxStatus error = kQvxOK;
    reader->fState = SetupNewExtraHeaderDataStruct(reader->fCallbacks, reader->fStream.get(),
                                                   reader->fMemoryEnv, reader->fOptions, &error);
    return error;
}

QvxStatus Qvx2Reader_GetFileMetaInformation(QvxParserRec* reader, std::uint32_t selector,
                                            std::uint32_t* value)
{
    if (!reader || !value)
        return kQvxBadArgument;
    if (!reader->fStream)
        return kQvxNoDataRef;
    if (const QvxStatus status = QvxEnsureState(reader))
        return status;
    QvxStatus status = kQvxOK;
    if (selector == kMetaTransferSyntax && reader->fState->fTransferSyntax == kUnknownState)
        status = ResolveTransferSyntax(reader);
    if (selector == kMetaPixelRepresentation &&
        reader->fState->fPixelRepresentation == kUnknownState)
        status = ResolvePixelRepresentation(reader);
    if (status != kQvxOK)
        return status;
    const ExtraHeaderDataRec& state = *reader->fState;
    switch (selector) {
        case kMetaByteOrder:
            *value = state.fByteOrder;
            return kQvxOK;
        case kMetaExplicitVR:
            *value = state.fExplicitVR;
            return kQvxOK;
        case kMetaTransferSyntax:
            *value = state.fTransferSyntax;
            return kQvxOK;
        case kMetaPixelRepresentation:
            *value = state.fPixelRepresentation;
            return kQvxOK;
        case kMetaOffsetTable:
            *value = state.fOffsetTableState;
            return kQvxOK;
        case kMetaPixelDataUndefined:
            *value = state.fPixelDataUndefined;
            return kQvxOK;
        default:
            return kQvxBadArgument;
    }
}

QvxStatus Qvx2Reader_ReadData(QvxParserRec* reader, void* dest, std::uint32_t offset,
                              std::uint32_t count)
{
    if (!reader || !dest)
        return kQvxBadArgument;
    if (!reader->fStream)
        return kQvxNoDataRef;
    ByteSource* source = reader->fState ? reader->fState->fDataRef : reader->fStream.get();
    return reader->fCallbacks->fReadData(source, dest, &offset, count);
}
