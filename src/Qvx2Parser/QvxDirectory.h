// A DICOMDIR's records (PS3.3 F.3): the items of (0004,1220), linked by file offsets. A link names
// the first byte of a record's Item tag, in the inflated form of a deflated file; 0 is none.
// Records are looked up in a table that is made once for a reader: a level costs time in
// proportion to its records.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"

// The records of one level in the order of their links: of the root for None, else those below
// `parent`. `refs` becomes null first and stays so with every status but kQvxOK:
//   kQvxNoSuchElement  (0004,1200), or (0004,1420) of the parent, is missing; a record has no
//                      (0004,1400), or a next offset that no record bears
//   kQvxMalformed      a next offset that isn't UL
// With kQvxOK `refs` is null too when the first offset isn't UL or is no record's, or when there
// are no records at all; a first offset of 0 gives a count of 0. A link back to a record that the
// level has listed ends the level with those found. In a reader with kWalkKeepCutLevels a next link
// that leads nowhere ends it likewise, and a missing (0004,1420) gives a count of 0.
// Levels may still name each other in a circle: who descends must remember where it has been.
[[nodiscard]] QvxStatus Qvx2Reader_GetDIRElementRefs(QvxParserRec* reader, QvxElementRef parent,
                                                     QvxElementRefArray* refs);

// (0004,1400) of a record; 0 with `error` set when it is missing, or kQvxMalformed when it isn't
// UL.
[[nodiscard]] std::uint32_t OffsetOfNextDirRecord(QvxParserRec* reader, QvxElementRef record,
                                                  QvxStatus* error);

// How many records hold an Icon Image Sequence.
[[nodiscard]] QvxStatus ParserGetNumDICOMDIRImages(QvxParserRec* reader, std::uint32_t* count);
// A frame map as of Qvx2Reader_GetImageOffsetsAndSizes with one row for each record with an icon:
// value offset and size of its pixels as the file states them, one fragment. An icon without an
// item or without pixels gives kQvxNoSuchElement.
[[nodiscard]] QvxStatus Qvx2Reader_GetDICOMDIRImageOffsetsAndSizes(QvxParserRec* reader,
                                                                   QvxHandle* map);
