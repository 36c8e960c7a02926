// What a sequence is called: by modality, from its first file.
#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/UniText.h"
#include "util/Log.h"

namespace {

// Numbers and texts that a title is made of. `Text` is std::string (bytes) or QString.
template <typename Text>
struct TitleParts {
    std::string modality;
    std::int32_t instance = 0, frames = 0, files = 0, position = 0;
    std::string plane;  // " A", " B" or nothing
    Text comments;

    [[nodiscard]] static Text Number(std::int32_t number)
    {
        const std::string digits = std::to_string(number);
        return Text(digits.c_str());
    }
    // "1 frame", "3 frames".
    [[nodiscard]] static Text Counted(std::int32_t count, const char* what)
    {
        return Number(count) + Text(" ") + Text(what) + Text(count == 1 ? "" : "s");
    }
    // "Clip 4", or "Clip #2" by the place in the branch.
    [[nodiscard]] Text Clip(bool byInstance) const
    {
        return byInstance && instance != 0 ? Text("Clip ") + Number(instance)
                                           : Text("Clip #") + Number(position);
    }
    [[nodiscard]] bool HasComments() const { return comments != Text(); }

    [[nodiscard]] Text Radiograph(bool padded) const
    {
        Text title;
        if (instance > 0)
            title = Text(padded && instance <= 9 ? " " : "") + Number(instance) + Text(": ");
        return title + Counted(frames, "image");
    }
    [[nodiscard]] Text Ultrasound() const
    {
        if (HasComments())
            return Text("Clip ") + Number(instance) + Text(": ") + comments;
        if (files != 1)
            return Clip(false) + Text(": ") + Number(files) + Text(" files");
        return Clip(true) + Text(": ") + Counted(frames, "frame");
    }
    [[nodiscard]] Text Angiography() const
    {
        const Text head = Clip(true) + Text(plane.c_str()) + Text(": ");
        return HasComments() ? head + comments + Text(", ") + Counted(frames, "frame")
                             : head + Counted(frames, "frame");
    }
    [[nodiscard]] Text Title(bool padded) const
    {
        if (modality == "CR" || modality == "DX")
            return Radiograph(padded);
        if (modality == "CT")
            return (HasComments() ? comments + Text(", ") : Text()) + Counted(files, "file");
        if (modality == "US" || modality == "IVUS")
            return Ultrasound();
        if (modality == "XA")
            return Angiography();
        if (Modality_HasSingleFileSequences(modality))
            return Counted(frames, "frame");
        return Counted(files, "file");
    }
};

// " A" or " B" of a biplane image, by the third value of Image Type.
std::string PlaneOf(dk_ImageFile& file)
{
    std::string value;
    const zelParserVisit visit(file.GetSource());
    if (!visit.Parser() || Parser_GetElementValueInCString(visit.Parser(), QvxElementRef::None,
                                                           0x0008, 0x0008, 3, 64, &value) != kQvxOK)
        return {};
    return value == "BIPLANE A" ? " A" : value == "BIPLANE B" ? " B" : "";
}

bool IsOfClips(const std::string& modality)
{
    return modality == "US" || modality == "IVUS" || modality == "XA";
}

bool TakesComments(const std::string& modality) { return modality == "CT" || IsOfClips(modality); }

std::string TextOfModality(ModalityType modality)
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(modality >> shift & 0xFF);
    return text.starts_with("  ") ? text.substr(2) : text;  // two letters stand at the end
}

template <typename Text>
TitleParts<Text> PartsOf(dk_Sequence& sequence, dk_ImageFile* file)
{
    TitleParts<Text> parts;
    parts.modality = TextOfModality(sequence.GetModality());
    parts.files = sequence.GetNumChildren();
    if (IsOfClips(parts.modality))
        parts.position = sequence.GetIndexInBranch();  // a walk past all before it
    if (!file)
        return parts;
    // Only what the title shows is read: each may open the file.
    if (parts.modality != "CT") {
        parts.instance = file->GetInstanceNumber();
        parts.frames = file->GetNumberOfFrames();
    }
    if (parts.modality == "XA")
        parts.plane = PlaneOf(*file);
    return parts;
}

}  // namespace

std::string dk_Sequence::GetDKTitle()
{
    auto* file = static_cast<dk_ImageFile*>(GetFirstChild());
    auto parts = PartsOf<std::string>(*this, file);
    if (file && TakesComments(parts.modality))
        parts.comments = std::string(file->GetImageComments());
    return parts.Title(true);
}

QString dk_Sequence::CopyDKTitle()
{
    auto* file = static_cast<dk_ImageFile*>(GetFirstChild());
    auto parts = PartsOf<QString>(*this, file);
    if (file && TakesComments(parts.modality) && !file->GetImageComments().empty())
        parts.comments = UniTextWithBytes(file->GetImageComments(), file->GetCharacterEncoding());
    return parts.Title(false);
}

std::string dk_SequenceBase::GetExportTitle()
{
    if (auto* file = GetNumChildren() == 1 ? GetFirstChild() : nullptr)
        return file->GetExportTitle();
    return dk_ModalityBaseElem::GetExportTitle();
}

namespace {

// The folder's name, for an angiographic file that is called "STILL" as all others on its disc are.
std::string FolderOfStill(dk_Sequence& sequence)
{
    auto* file = static_cast<dk_ImageFile*>(sequence.GetFirstChild());
    if (sequence.GetNumChildren() != 1 || !file->GetSource() ||
        sequence.GetModality() != DicomUtil_ModalityFromString("XA") ||
        file->GetSource()->GetFileName() != "STILL")
        return {};
    const std::string& path = file->GetSource()->GetDataPath();
    const std::size_t end = path.rfind('/');
    if (end == std::string::npos || end == 0)
        return {};
    const std::size_t begin = path.rfind('/', end - 1);
    return path.substr(begin == std::string::npos ? 0 : begin + 1,
                       end - (begin == std::string::npos ? 0 : begin + 1));
}

}  // namespace

std::string dk_Sequence::GetExportTitle()
{
    const std::string folder = FolderOfStill(*this);
    return folder.empty() ? dk_SequenceBase::GetExportTitle() : folder;
}

QString dk_Sequence::Copy_DK_ExportTitle()
{
    if (const std::string folder = FolderOfStill(*this); !folder.empty())
        return QString::fromStdString(EscapedText(folder));
    if (auto* file = GetNumChildren() == 1 ? GetFirstChild() : nullptr)
        return file->Copy_DK_ExportTitle();
    return dk_SequenceBase::Copy_DK_ExportTitle();
}

std::string dk_Sequence::GetDisplayTitle()
{
    if (!Modality_HasSingleFileSequences(GetModality()) && GetParent())
        return GetParent()->GetExportTitle();
    return GetExportTitle();
}

QString dk_Sequence::Copy_DK_DisplayTitle()
{
    if (!Modality_HasSingleFileSequences(GetModality()) && GetParent())
        return GetParent()->Copy_DK_ExportTitle();
    return Copy_DK_ExportTitle();
}
