#include "dicom_core/tree/DicomImageFileRec.h"

namespace {

template <std::size_t Capacity>
void Share(BoundedText<Capacity>* text, const BoundedText<Capacity>* like, TextPool* pool)
{
    if (like && *text == *like)
        *text = *like;
    else
        pool->Share(text);
}

}  // namespace

void DicomImageFileRec::ShareTexts(TextPool* pool, const DicomImageFileRec* like)
{
    const auto share = [&](auto DicomImageFileRec::* text) {
        Share(&(this->*text), like ? &(like->*text) : nullptr, pool);
    };
    share(&DicomImageFileRec::recRelPath);
    share(&DicomImageFileRec::recFileName);
    share(&DicomImageFileRec::recSOPInstanceUID);
    share(&DicomImageFileRec::recModality);
    share(&DicomImageFileRec::recPatientName);
    share(&DicomImageFileRec::recPatientID);
    share(&DicomImageFileRec::recPatientSex);
    share(&DicomImageFileRec::recStudyUID);
    share(&DicomImageFileRec::recAccessionNumber);
    share(&DicomImageFileRec::recStudyID);
    share(&DicomImageFileRec::recStudyDate);
    share(&DicomImageFileRec::recStudyTime);
    share(&DicomImageFileRec::recStudyDescription);
    share(&DicomImageFileRec::recSeriesUID);
    share(&DicomImageFileRec::recSeriesDescription);
    share(&DicomImageFileRec::recBodyPart);
}
