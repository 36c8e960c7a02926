#include "tool/ElementVisit.h"

#include <map>
#include <vector>

namespace {

constexpr bool IsDelimiter(QvxElementTag tag)
{
    return tag.group == 0xFFFE && (tag.element == 0xE00D || tag.element == 0xE0DD);
}

// The reader keeps delimiters in its records but hands out no references to them; they are found
// there by their offsets. Records come as sequences are read, so the index grows with them.
class DelimiterIndex {
public:
    // First delimiter in the file between the two offsets, both exclusive; null when there is none.
    const std::pair<const std::uint32_t, QvxElementTag>* Find(const ExtraHeaderDataRec& state,
                                                              std::uint32_t behind,
                                                              std::uint64_t before)
    {
        for (; fSeen < state.fArena.Count(); ++fSeen) {
            const DicomHeaderDataStruct& record = state.fArena.At(fSeen);
            if (IsDelimiter(record.Tag()))
                fOffsets.emplace(record.fTagOffset, record.Tag());
        }
        const auto next = fOffsets.upper_bound(behind);
        return next != fOffsets.end() && next->first < before ? &*next : nullptr;
    }

private:
    std::map<std::uint32_t, QvxElementTag> fOffsets;
    QvxIndex fSeen = 1;
};

class Visit {
public:
    Visit(QvxParserRec* reader, ElementVisitor* visitor) : fReader(reader), fVisitor(visitor) {}

    void Run()
    {
        Descend({});
        while (!fLevels.empty()) {
            Level& level = fLevels.back();
            const auto refs = QvxRefsOf(level.fRefs);
            if (level.fNext < refs.size())
                One(refs[level.fNext++], level.fParent.fInPixels || IsPixelData(level.fParent));
            else
                Ascend();
        }
    }

private:
    struct Level {
        VisitedElement fParent;  // an empty one at the top
        QvxElementRefArray fRefs;
        std::size_t fNext = 0;
    };

    static bool IsPixelData(const VisitedElement& element)
    {
        return element.fTag == QvxElementTag{0x7FE0, 0x0010};
    }
    static bool IsMainPixelData(const VisitedElement& element)
    {
        return IsPixelData(element) && element.fDepth == 0;
    }

    // A frame's item holds its further fragments. No other item among pixels has children: its
    // bytes are pixels, and must not be taken for elements.
    [[nodiscard]] bool MayHaveChildren(const VisitedElement& element) const
    {
        if (element.fInPixels)
            return IsMainPixelData(fLevels.back().fParent);
        const ExtraHeaderDataRec* state = Qvx2Reader_State(fReader);
        return !IsMainPixelData(element) || !state || state->fImageForm != kImageFormNative;
    }

    [[nodiscard]] int Depth() const { return static_cast<int>(fLevels.size()) - 1; }

    void One(QvxElementRef ref, bool inPixels)
    {
        VisitedElement element;
        element.fRef = ref;
        element.fDepth = Depth();
        element.fInPixels = inPixels;
        if (Qvx2Reader_GetElementTag(fReader, ref, &element.fTag) != kQvxOK ||
            Qvx2Reader_GetTagOffset(fReader, ref, &element.fTagOffset) != kQvxOK)
            return;
        if (IsMainPixelData(element)) {
            std::uint32_t frames = 0;
            element.fStatus = Qvx2Reader_GetNumberOfFrames(fReader, 0, &frames);
        }
        if (element.fStatus == kQvxOK)
            element.fStatus = Qvx2Reader_GetElementDataInfo(fReader, ref, &element.fInfo);
        fLast = element.fTagOffset;
        fVisitor->Element(element);
        if (MayHaveChildren(element))
            Descend(element);
    }

    void Descend(const VisitedElement& parent)
    {
        // Sequences of definite length are read one by one, each as if it were the outermost.
        if (Depth() >= kMaxNesting) {
            fVisitor->Unreadable(kQvxUnsupported, Depth() + 1);
            return;
        }
        QvxElementRefArray refs;
        const QvxStatus status = Qvx2Reader_GetElementRefs(fReader, parent.fRef, &refs);
        if (status == kQvxNotASequence)
            return;
        if (status != kQvxOK)
            fVisitor->Unreadable(status, Depth() + 1);
        fLevels.push_back({parent, std::move(refs), 0});
    }

    void Ascend()
    {
        const VisitedElement& parent = fLevels.back().fParent;
        const bool open = parent.fRef == QvxElementRef::None ||
                          parent.fInfo.fDataSize == kUndefinedLength || parent.fStatus != kQvxOK;
        const std::uint64_t end =
            open ? UINT64_MAX : std::uint64_t{parent.fInfo.fValueOffset} + parent.fInfo.fDataSize;
        const ExtraHeaderDataRec* state = Qvx2Reader_State(fReader);
        if (const auto* delimiter = state ? fDelimiters.Find(*state, fLast, end) : nullptr) {
            fLast = delimiter->first;
            fVisitor->Delimiter(delimiter->second, delimiter->first, Depth());
        }
        fLevels.pop_back();
    }

    QvxParserRec* fReader;
    ElementVisitor* fVisitor;
    std::vector<Level> fLevels;
    DelimiterIndex fDelimiters;
    std::uint32_t fLast = 0;  // offset of the last tag that was visited
};

}  // namespace

void VisitElements(QvxParserRec* reader, ElementVisitor* visitor)
{
    const QvxReaderUse use(reader);
    Visit(reader, visitor).Run();
}
