// Writes the seed corpus of the fuzzers into a folder: one small file of each form that the reader
// knows, each with both option bytes in front.
#include "fixtures/DicomBuilder.h"
#include "fixtures/DicomDirectory.h"

#include <cstdio>
#include <fstream>

namespace {

DicomBuilder Base(std::string_view syntax)
{
    DicomBuilder file;
    file.Meta(syntax).CommonHeader();
    file.Sequence(0x0008, 0x1140, {Item().Element(0x0008, 0x1150, "UI", "1.2")});
    file.Sequence(0x0008, 0x1115,
                  {Item(Undefined).Sequence(0x0008, 0x1199, {Item(Undefined)}, Undefined)},
                  Undefined);
    file.Element(0x0009, 0x1001, "UN", "private").Element(0x0018, 0x1063, "DS", "33.3\\40");
    file.Element(0x0018, 0x9073, "FD", 1.5).Element(0x0028, 0x0009, "AT", {0x18, 0x1063});
    return file;
}

DicomBuilder Native(std::string_view syntax, int frames)
{
    DicomBuilder file = Base(syntax);
    file.GroupLength(0x0028).Image({.rows = 2, .columns = 2, .frames = frames});
    file.NativePixels(std::string(24, 'p'));
    return file;
}

DicomBuilder Encapsulated(std::string_view syntax, DicomOffsetTable table)
{
    DicomBuilder file = Base(syntax);
    file.Image({.rows = 8, .columns = 8, .bits = 8});
    file.Encapsulated({{"\xFF\xD8 one", "more"}, {"\xFF\xD8 two"}, {"\xFF\xD8 three"}}, table);
    return file;
}

// Two patients of which the second is out of reach, and a level that leads back to the first
// record.
std::string Directory()
{
    DirectoryRecord image, patient, other;
    image.type = "IMAGE";
    image.fileID = "DIR\\IM1";
    image.lower = 0;
    patient.type = other.type = "PATIENT";
    patient.below = {image, image};
    patient.next = 0;
    other.below = {image};
    return DirectoryFile({patient, other});
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_corpus FOLDER\n");
        return 2;
    }
    const std::string seeds[] = {
        Native(kUidExplicitLittle, 3).Bytes(),
        Native(kUidImplicitLittle, 0).Bytes(),
        Native(kUidExplicitBig, 9).Bytes(),
        Native(kUidExplicitLittle, 0).NoPreamble().Bytes(),
        Native(kUidDeflated, 0).Deflated().Bytes(),
        Native(kUidExplicitLittle, 0).MetaImplicit().Bytes(),
        DicomBuilder().NoPreamble().CommonHeader().Implicit().Bytes(),
        Encapsulated(kUidJpegBaseline, DicomOffsetTable::Filled).Bytes(),
        Encapsulated(kUidJpegBaseline, DicomOffsetTable::Empty).Bytes(),
        Encapsulated(kUidJpeg2000, DicomOffsetTable::Empty).Bytes(),
        Encapsulated(kUidRle, DicomOffsetTable::Empty).NoEnd().Bytes(),
        Base("1.2.840.10008.1.2.1").Sequence(0x0004, 0x1220, {Item(Undefined)}, Undefined).Bytes(),
        DirectoryOfImages(3),
        Directory(),
    };
    int number = 0;
    for (const std::string& seed : seeds) {
        for (const char option : {'\0', '\1'}) {
            const std::string path = std::string(argv[1]) + "/seed" + std::to_string(number++);
            std::ofstream file(path, std::ios::binary);
            file << option << seed;
            if (!file.flush()) {
                std::fprintf(stderr, "make_corpus: can't write %s\n", path.c_str());
                return 1;
            }
        }
    }
    return 0;
}
