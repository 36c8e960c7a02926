// What identifies one file, or one record of a directory: the data that an open sorts and groups
// by.
#pragma once
#include "util/SharedText.h"

#include "Qvx2Parser/QvxDirectoryNames.h"
#include "Qvx2Parser/QvxRecords.h"
#include "Qvx2Parser/QvxValue.h"
#include <cstdint>

struct DicomImageFileRec {
    std::int32_t recType = 0;                    // (0004,1430) kDirRecordOther: also a plain file
    QvxElementRef recRef = QvxElementRef::None;  // the directory's record
    BoundedText<1024> recRelPath;                // (0004,1500) ":" separates; the folder
    BoundedText<256> recFileName;                // split off that path
    BoundedText<128> recSOPInstanceUID;          // (0008,0018)
    BoundedText<64> recModality;                 // (0008,0060)
    BoundedText<256> recPatientName;             // (0010,0010) carets and blanks trimmed
    BoundedText<256> recPatientID;               // (0010,0020)
    BoundedText<16> recPatientSex;               // (0010,0040)
    BoundedText<256> recStudyUID;                // (0020,000D)
    BoundedText<32> recAccessionNumber;          // (0008,0050)
    BoundedText<64> recStudyID;                  // (0020,0010) one of digits 0 alone is empty
    BoundedText<64> recStudyDate;                // (0008,0020)
    BoundedText<64> recStudyTime;                // (0008,0030)
    BoundedText<256> recStudyDescription;        // not filled by an open
    BoundedText<256> recSeriesUID;               // (0020,000E)
    std::int32_t recSeriesNumber = 0;            // (0020,0011)
    BoundedText<256> recSeriesDescription;       // (0008,103E)
    std::int32_t recInstanceNumber = 0;          // (0020,0013)
    BoundedText<256> recBodyPart;                // (0018,0015)
    std::int32_t recNumFrames = 0;               // (0028,0008), else the source's count

    // Lets every text of the record share its bytes with that of `like`, if it is the same, else
    // with equal ones of the pool. `like`, of the same pool, may be null.
    void ShareTexts(TextPool* pool, const DicomImageFileRec* like);
};
