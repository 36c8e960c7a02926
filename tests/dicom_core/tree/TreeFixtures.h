// Small trees and files for the tests of this folder.
#pragma once
#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/tree/dk_Patient.h"
#include "dicom_core/tree/dk_PatientListRoot.h"
#include "dicom_core/tree/dk_Series.h"
#include "dicom_core/tree/dk_Study.h"
#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"

#include <algorithm>
#include <functional>
#include <vector>

// Adds a new element of a class to its parent and answers it.
template <typename Elem, typename... Arguments>
Elem* Added(dk_DicomBaseElem* parent, const Arguments&... arguments)
{
    auto made = std::make_unique<Elem>(arguments...);
    Elem* elem = made.get();
    parent->AddChild(std::move(made));
    return elem;
}

// A file that exists only as a record: no source, `frames` frames.
inline dk_ImageFile* AddedRecord(dk_DicomBaseElem* parent, std::string_view modality, int frames)
{
    DicomImageFileRec record;
    record.recModality.Assign(modality);
    record.recNumFrames = frames;
    return Added<dk_ImageFile>(parent, record);
}

// A sequence of one file without a source.
inline dk_Sequence* AddedSequence(dk_DicomBaseElem* series, int frames,
                                  std::string_view modality = "XA")
{
    auto* sequence = Added<dk_Sequence>(series);
    sequence->fModalityStr.Assign(modality);
    AddedRecord(sequence, modality, frames);
    return sequence;
}

// Null for `value`: there is no such element.
struct Element {
    std::uint16_t group, element;
    const char *vr, *value;
};

// An image of `frames` pictures with elements of its own.
struct FileWords {
    const char* modality = "CT";
    int frames = 1;
    std::vector<Element> elements = {};
    std::uint16_t rows = 1, columns = 2;
};

inline DicomBuilder HeaderOf(const FileWords& words)
{
    std::vector<Element> elements = words.elements;
    elements.push_back({0x0008, 0x0060, "CS", words.modality});
    std::ranges::sort(elements, {}, [](const Element& e) { return e.group << 16 | e.element; });
    DicomBuilder file;
    file.Meta(kUidExplicitLittle);
    for (const Element& e : elements)
        if (e.value)
            file.Element(e.group, e.element, e.vr, e.value);
    return file.Image({.rows = words.rows, .columns = words.columns, .frames = words.frames});
}

inline FileRef WriteImage(const TempFolder& folder, std::string_view name, const FileWords& words)
{
    const auto count = static_cast<std::size_t>(words.frames) * words.rows * words.columns;
    const DicomValue pixels(std::vector<int>(count, 7));
    return {folder.WriteFile(name, HeaderOf(words).NativePixels(pixels).Bytes())};
}

// A file of the tree whose source was imported, but is opened on demand only.
inline dk_ImageFile* AddedFile(dk_DicomBaseElem* parent, const FileRef& file,
                               FileImportMode mode = kImportDicom)
{
    auto* added = Added<dk_ImageFile>(parent);
    if (added->SetSourceFile(file, mode))
        throw std::runtime_error("can't import " + file.fPath);
    return added;
}
