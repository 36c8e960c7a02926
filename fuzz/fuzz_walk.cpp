// The walk in all five modes, validation, and what the file says of itself.
#include "FuzzInput.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QvxReaderPtr reader = OpenFuzzInput(data, size);
    if (!reader)
        return 0;
    bool valid = false;
    (void)Qvx2Reader_ValidateDataRef(reader.get(), &valid);
    std::uint32_t value = 0;
    QvxElementRef found{};
    (void)Qvx2Reader_GetFileMetaInformation(reader.get(), kMetaTransferSyntax, &value);
    (void)Qvx2Reader_GetElementRef(reader.get(), QvxElementRef::None, {0x0028, 0x0010}, &found);
    for (const auto mode : {QvxParseMode::Validate, QvxParseMode::Full, QvxParseMode::Lazy,
                            QvxParseMode::Graphics, QvxParseMode::SingleElement}) {
        (void)Qvx2Reader_ReadDICOMHeader(reader.get(), mode);
        QvxElementRefArray refs;
        (void)Qvx2Reader_GetTopLevelElementRefs(reader.get(), &refs);
        // Whatever the bytes: every element lies in the file that was walked.
        const ExtraHeaderDataRec* state = Qvx2Reader_State(reader.get());
        for (const QvxElementRef ref : QvxRefsOf(refs)) {
            std::uint32_t offset = 0;
            if (Qvx2Reader_GetTagOffset(reader.get(), ref, &offset) != kQvxOK ||
                offset >= state->fFileSize)
                std::abort();
        }
    }
    return 0;
}
