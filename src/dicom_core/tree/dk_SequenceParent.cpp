#include "dicom_core/tree/dk_SequenceParent.h"

#include "dicom_core/tree/dk_SequenceBase.h"

void dk_SequenceParent::GetRepresentativeFrame(std::int32_t n, zelImageSource** source,
                                               std::int32_t* frame)
{
    *source = nullptr;
    *frame = 0;
    dk_SequenceBase* sequence = GetIndexedSequence(n);
    if (const dk_ImageFrameInfo* info =
            sequence ? sequence->GetRepresentativeImageFrameInfo() : nullptr) {
        *source = info->fSource;
        *frame = info->fFrameInFile;
    }
}

std::string dk_SequenceParent::GetRepresentativeFrameTitle(std::int32_t n)
{
    dk_SequenceBase* sequence = GetIndexedSequence(n);
    return sequence ? sequence->GetDKTitle() : std::string();
}

ModalityType dk_SequenceParent::GetRepresentativeFrameModality(std::int32_t n)
{
    dk_SequenceBase* sequence = GetIndexedSequence(n);
    return sequence ? sequence->GetModality() : kModalityUnknown;
}
