// Every level of a directory's records, and the words in them.
#include "FuzzInput.h"

#include "Qvx2Parser/QvxDirectory.h"
#include "Qvx2Parser/QvxDirectoryNames.h"
#include <cstdlib>
#include <string>
#include <unordered_set>
#include <vector>

namespace {

// Path and type of a record; nothing that they hold may grow.
void ReadWords(QvxParserRec* reader, QvxElementRef record)
{
    QvxElementRef element{};
    QvxHandle text;
    if (!Qvx2Reader_FindElement(reader, record, {0x0004, 0x1500}, &element) &&
        !Qvx2Reader_GetElementDataAsText(reader, element, 1, &text)) {
        std::string path, name;
        DicomUtil_RefFileIDToPath(text.Text(), &path);
        if (path.size() > text.Text().size() + 1)
            std::abort();
        DicomUtil_SplitFilenameFromRelPathToParent(&path, &name);
    }
    if (!Qvx2Reader_FindElement(reader, record, {0x0004, 0x1430}, &element) &&
        !Qvx2Reader_GetElementDataAsText(reader, element, 1, &text)) {
        const std::int32_t type = DicomUtil_DirRecordType(text.Text());
        if (type < 1 || type > kDirRecordOther)
            std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QvxReaderPtr reader = OpenFuzzInput(data, size);
    if (!reader)
        return 0;
    std::unordered_set<QvxElementRef> taken;
    std::vector<QvxElementRef> open{QvxElementRef::None};
    while (!open.empty()) {
        const QvxElementRef parent = open.back();
        open.pop_back();
        QvxElementRefArray records;
        if (Qvx2Reader_GetDIRElementRefs(reader.get(), parent, &records))
            continue;
        // A level never lists a record twice.
        std::unordered_set<QvxElementRef> level;
        for (const QvxElementRef record : QvxRefsOf(records)) {
            if (!level.insert(record).second)
                std::abort();
            if (!taken.insert(record).second)
                continue;
            ReadWords(reader.get(), record);
            open.push_back(record);
        }
    }
    std::uint32_t count = 0;
    QvxHandle map;
    (void)ParserGetNumDICOMDIRImages(reader.get(), &count);
    (void)Qvx2Reader_GetDICOMDIRImageOffsetsAndSizes(reader.get(), &map);
    return 0;
}
