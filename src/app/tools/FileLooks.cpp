#include "app/tools/FileLooks.h"

#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/values/CharacterEncoding.h"
#include "dicom_core/values/FrameGroups.h"

#include "qpix/zelImageSource.h"
#include <tuple>

namespace {

// Null where there is no gray frame.
dk_ImageFrameInfo* GrayFrame(const ZELSequenceProxy& proxy, std::int32_t frame)
{
    dk_SequenceBase* sequence = proxy.theSequence();
    dk_ImageFrameInfo* info =
        sequence ? sequence->GetImageFrameInfo(frame == 0 ? proxy.currentFrame() : frame) : nullptr;
    return info && info->fSource && proxy.isDICOMGray() ? info : nullptr;
}

// The choices of one image; the importer stands at the image at which it stood.
std::vector<QvxVOIChoice> ChoicesOf(CImporterPlus* importer, std::int32_t image)
{
    std::vector<QvxVOIChoice> choices;
    std::int32_t before = 0;
    if (!importer || importer->GetCurrentImage(&before) || importer->SetCurrentImage(image))
        return choices;
    if (importer->GetVOIChoices(&choices))
        choices.clear();
    std::ignore = importer->SetCurrentImage(before);
    return choices;
}

}  // namespace

std::vector<FileWindow> FileWindowsOf(const ZELSequenceProxy& proxy, std::int32_t frame)
{
    std::vector<FileWindow> windows;
    dk_ImageFrameInfo* info = GrayFrame(proxy, frame);
    if (!info)
        return windows;
    const zelParserVisit visit(info->fSource);
    if (!visit.Parser())
        return windows;
    const zelFrameGroups groups(visit.Parser());
    const dk_DicomCharacterEncoding characters(visit.Parser());
    const std::int32_t image = info->fFrameInFile;
    const std::int32_t count = Parser_GetNumberOfUniqueWindowingPresets(groups, image);
    for (std::int32_t i = 1; i <= count; ++i) {
        FileWindow window;
        std::string name;
        if (Parser_GetUniqueWindowingPreset(groups, image, i, &window.width, &window.level, &name))
            break;
        window.name = characters.DecodeText(name).trimmed();
        windows.push_back(std::move(window));
    }
    return windows;
}

std::vector<FileTable> FileTablesOf(const ZELSequenceProxy& proxy, std::int32_t frame)
{
    std::vector<FileTable> tables;
    dk_ImageFrameInfo* info = GrayFrame(proxy, frame);
    if (!info)
        return tables;
    const zelParserVisit visit(info->fSource);
    const dk_DicomCharacterEncoding characters(visit.Parser());
    for (const QvxVOIChoice& choice : ChoicesOf(info->fSource->GetImporter(), info->fFrameInFile)) {
        if (choice.fTable)
            tables.push_back({choice.fTable, characters.DecodeText(choice.fExplanation).trimmed()});
    }
    return tables;
}
