// What a row says. Words stand in the main table; formats there are numbered.
#include "app/nodes/DicomElemChildNode.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "platform/Words.h"
#include "util/Log.h"

namespace {

QString Word(const char* key) { return ZelWord(kWordsMain, key); }

bool HasSingleFiles(dk_SequenceBase* sequence)
{
    return Modality_HasSingleFileSequences(sequence->GetModality());
}

QString CountText(dk_SequenceBase* sequence, const char* one, const char* many)
{
    const std::int32_t frames = sequence->GetNumberOfFrames();
    return frames < 2 ? Word(one) : Word(many).arg(frames);
}

QString ExtractedText(dk_SequenceBase* sequence)
{
    return CountText(sequence, "Extracted Localizer", "Extracted Localizers");
}

QString FramesText(dk_SequenceBase* sequence) { return CountText(sequence, "1 frame", "N frames"); }

// `first` and the sides of the largest frame; nothing where they can't be had.
QString WithSize(dk_SequenceBase* sequence, const char* format, const QString& first)
{
    Point size;
    if (sequence->GetMaxFrameSize(&size))
        return {};
    return Word(format).arg(first, QString::number(size.h), QString::number(size.v));
}

QString FileSubtitle(dk_SequenceBase* sequence, bool lines3, bool fast)
{
    const bool extracted = sequence->IsExtracted();
    if (lines3)
        return extracted ? ExtractedText(sequence) : QString();
    if (fast)
        return extracted ? Word("%@, ... pixels").arg(ExtractedText(sequence))
                         : Word("... frames, ... pixels");
    return WithSize(sequence, "%@, %dx%d pixels",
                    extracted ? ExtractedText(sequence) : FramesText(sequence));
}

QString ClipSubtitle(dk_SequenceBase* sequence, bool lines3, bool fast)
{
    if (fast)
        return Word(lines3 ? "... sec" : "... sec, ... pixels");
    constexpr double kMillisecondsPerSecond = 1000;
    const QString seconds = QString::number(
        static_cast<double>(sequence->GetTotalSequenceDuration()) / kMillisecondsPerSecond, 'f', 2);
    return lines3 ? Word("%.2f sec").arg(seconds)
                  : WithSize(sequence, "%.2f sec, %dx%d pixels", seconds);
}

QString TitleOf(dk_DicomBaseElem* element)
{
    constexpr std::int32_t kSequenceLevel = 3;
    if (element->GetDicomTreeLevel() > kSequenceLevel)
        return QString::fromStdString(element->GetDKTitle());
    if (element->GetDicomTreeLevel() == kSequenceLevel &&
        !HasSingleFiles(static_cast<dk_SequenceBase*>(element)) && element->GetFirstChild())
        return element->GetFirstChild()->CopyDKTitle();
    return element->CopyDKTitle();
}

}  // namespace

const QString& DicomElemChildNode::description()
{
    if (!_described && dicomTreeElem()) {
        const QString title = TitleOf(dicomTreeElem()).simplified();
        _description = QString::fromStdString(EscapedText(title.toStdString()));
        if (_description.isEmpty())
            _description = Word("Untitled");
        setNodeTitle(_description);
        _described = true;
    }
    return _description;
}

QString DicomElemChildNode::subtitleString(bool lines3, bool lines2, bool fast) const
{
    dk_SequenceBase* shown = sequence();
    if (!lines2 || !shown)
        return {};
    const bool placeholders = fast && textMissing();
    return HasSingleFiles(shown) ? ClipSubtitle(shown, lines3, placeholders)
                                 : FileSubtitle(shown, lines3, placeholders);
}

QString DicomElemChildNode::dimensionStringFast(bool fast) const
{
    dk_SequenceBase* shown = sequence();
    if (!shown)
        return {};
    const bool countsFrames = !HasSingleFiles(shown) && !shown->IsExtracted();
    if (fast && textMissing())
        return Word(countsFrames ? "... frames, ... pixels" : "... pixels");
    Point size;
    if (shown->GetMaxFrameSizeFast(&size))
        return {};
    const QString width = QString::number(size.h), height = QString::number(size.v);
    return countsFrames ? Word("%@, %d x %d pixels").arg(FramesText(shown), width, height)
                        : Word("%d x %d pixels").arg(width, height);
}
