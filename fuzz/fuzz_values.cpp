// Every value of every element, nested, in each of the forms in which it can be asked for.
#include "FuzzInput.h"

namespace {

constexpr int kMaxValues = 20'000;  // of one input: time, not safety, sets it

void VisitValues(QvxParserRec* reader, QvxElementRef element)
{
    QvxElementDataInfo info;
    (void)Qvx2Reader_GetElementDataInfo(reader, element, &info);
    for (std::int32_t index = 0; index <= 3; ++index) {
        QvxElementValue value;
        QvxHandle text;
        (void)Qvx2Reader_GetElementDataAsValue(reader, element, index, &value);
        (void)Qvx2Reader_GetElementDataAsText(reader, element, index, &text);
    }
    std::byte few[16];
    (void)Qvx2Reader_GetElementData(reader, element, sizeof few, few);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QvxReaderPtr reader = OpenFuzzInput(data, size);
    if (!reader)
        return 0;
    (void)Qvx2Reader_SetParserFlags(reader.get(), data[0] >> 1 & 3);
    std::vector<QvxElementRef> waiting{QvxElementRef::None};
    for (int visited = 0; !waiting.empty() && visited < kMaxValues; ++visited) {
        const QvxElementRef parent = waiting.back();
        waiting.pop_back();
        QvxElementRefArray refs;
        (void)Qvx2Reader_GetElementRefs(reader.get(), parent, &refs);
        for (const QvxElementRef ref : QvxRefsOf(refs)) {
            VisitValues(reader.get(), ref);
            waiting.push_back(ref);
        }
    }
    return 0;
}
