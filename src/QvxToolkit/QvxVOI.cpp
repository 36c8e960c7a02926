// The looks that a file offers for its frames: windows and tables, PS3.3 C.11.2 and C.7.6.16.2.10.
#include "util/Log.h"

#include "QvxToolkit/QvxCodec.h"
#include "QvxToolkit/QvxDisplayScale.h"
#include "QvxToolkit/QvxTables.h"
#include <algorithm>
#include <cmath>
#include <new>

namespace {

constexpr QvxElementTag kTagWindowCenter{0x0028, 0x1050};
constexpr QvxElementTag kTagWindowWidth{0x0028, 0x1051};
constexpr QvxElementTag kTagWindowExplanation{0x0028, 0x1055};
constexpr QvxElementTag kTagFunction{0x0028, 0x1056};
constexpr QvxElementTag kTagTables{0x0028, 0x3010};
constexpr QvxElementTag kTagFrameVOI{0x0028, 0x9132};
constexpr std::int32_t kMostChoices = 256;  // of each kind; no list is longer, whatever is said

class VOIReader {
public:
    VOIReader(QvxParserRec* reader, const QvxFrameRecord& record)
        : fReader(reader), fRecord(record), fInfo(QvxCodecPixelInfo(record))
    {
    }
    // Of the first place that offers any.
    std::vector<QvxVOIChoice> Choices(std::uint32_t frameNumber);
    // What the places looked at say of windows.
    [[nodiscard]] QvxVOIFunction Function() const { return fFunction; }

private:
    void TakeFunction(QvxElementRef place);
    void AddWindows(QvxElementRef place, std::vector<QvxVOIChoice>* choices) const;
    void AddTables(QvxElementRef place, std::vector<QvxVOIChoice>* choices) const;
    [[nodiscard]] bool IsWindow(double width) const;
    [[nodiscard]] double LeastUser() const;

    QvxParserRec* fReader;
    const QvxFrameRecord& fRecord;
    QvxPixelInfo fInfo;
    QvxVOIFunction fFunction = QvxVOIFunction::Linear;
};

void VOIReader::TakeFunction(QvxElementRef place)
{
    const std::string name = QvxHeaderWord(fReader, kTagFunction, place);
    if (name == "LINEAR_EXACT")
        fFunction = QvxVOIFunction::LinearExact;
    else if (name == "SIGMOID")
        fFunction = QvxVOIFunction::Sigmoid;
    else
        fFunction = QvxVOIFunction::Linear;
}

// Only a linear window takes one value for its own, so that it can't be narrower.
bool VOIReader::IsWindow(double width) const
{
    if (!(width > 0))
        return false;
    const bool anyWidth =
        fFunction != QvxVOIFunction::Linear || fRecord.fForm != QvxSampleForm::Integer;
    return anyWidth || width >= std::min(1.0, fInfo.fFactor);
}

void VOIReader::AddWindows(QvxElementRef place, std::vector<QvxVOIChoice>* choices) const
{
    for (std::int32_t i = 1; i <= kMostChoices; ++i) {
        const auto level = QvxHeaderNumber(fReader, place, kTagWindowCenter, i);
        const auto width = QvxHeaderNumber(fReader, place, kTagWindowWidth, i);
        if (!level && !width && i > 1)
            break;
        if (!level || !width || !IsWindow(*width))
            continue;
        QvxVOIChoice window;
        window.fWidth = static_cast<float>(*width);
        window.fLevel = static_cast<float>(*level);
        window.fFunction = fFunction;
        if (!std::isfinite(window.fWidth) || !std::isfinite(window.fLevel) || !(window.fWidth > 0))
            continue;
        window.fExplanation = QvxHeaderText(fReader, kTagWindowExplanation, place, i);
        choices->push_back(std::move(window));
    }
}

double VOIReader::LeastUser() const
{
    const QvxPixelInfo& info = fInfo;
    const std::int32_t most = QvxMakeDisplayScale(fRecord, nullptr).fMaximum;
    const double least =
        info.fPhotometric ? info.fPixelShift : info.fPixelRange - most - info.fPixelShift;
    return least * info.fFactor + info.fOffset;
}

void VOIReader::AddTables(QvxElementRef place, std::vector<QvxVOIChoice>* choices) const
{
    auto items = QvxHeaderItems(fReader, place, kTagTables);
    items.resize(std::min(items.size(), std::size_t{kMostChoices}));
    for (const QvxElementRef item : items) {
        std::string why;
        auto table = QvxReadLookupTable(fReader, item, fRecord.fByteOrder, &why);
        if (!table) {
            LogLine("a table of (0028,3010) is left out: " + why);
            continue;
        }
        // Signed as the table's input is, whatever VR was written; but no table lies wholly below
        // all that there is to map.
        QvxLookupTable asSigned = *table;
        QvxReadFirstAsSigned(&asSigned);
        const double least = LeastUser();
        if (least < 0 && static_cast<double>(asSigned.Last()) >= least)
            table->fFirst = asSigned.fFirst;
        QvxVOIChoice choice;
        choice.fWidth = table->Width();
        choice.fLevel = table->Level();
        choice.fFunction = fFunction;
        choice.fExplanation = table->fExplanation;
        choice.fTable = std::make_shared<const QvxLookupTable>(std::move(*table));
        choices->push_back(std::move(choice));
    }
}

std::vector<QvxVOIChoice> VOIReader::Choices(std::uint32_t frameNumber)
{
    std::vector<QvxElementRef> places;
    const auto addItem = [&](QvxElementRef groups) {
        const QvxElementRef item = groups == QvxElementRef::None
                                       ? QvxElementRef::None
                                       : QvxHeaderItem(fReader, groups, kTagFrameVOI);
        if (item != QvxElementRef::None)
            places.push_back(item);
    };
    if (const QvxFrameGroups* groups = fRecord.fGroups.get()) {
        if (frameNumber <= groups->fOfFrame.size())
            addItem(groups->fOfFrame[frameNumber - 1]);
        addItem(groups->fShared);
    }
    places.push_back(QvxElementRef::None);
    std::vector<QvxVOIChoice> choices;
    for (const QvxElementRef place : places) {
        TakeFunction(place);
        AddWindows(place, &choices);
        AddTables(place, &choices);
        if (!choices.empty())
            break;
    }
    return choices;
}

}  // namespace

QvxStatus QvxCodecVOIChoices(QvxParserRec* reader, const QvxFrameRecord& record,
                             std::uint32_t frameNumber, std::vector<QvxVOIChoice>* choices)
{
    if (!reader || !choices || frameNumber < 1)
        return kQvxBadArgument;
    try {
        const QvxReaderUse use(reader);
        *choices = VOIReader(reader, record).Choices(frameNumber);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxDefaultWindow QvxCodecDefaultWindow(QvxParserRec* reader, const QvxFrameRecord& record,
                                       std::uint32_t frameNumber)
{
    if (!reader || frameNumber < 1)
        return {};
    try {
        const QvxReaderUse use(reader);
        VOIReader voi(reader, record);
        const auto choices = voi.Choices(frameNumber);
        QvxDefaultWindow window;
        window.fFunction = voi.Function();
        if (choices.empty())
            return window;
        const QvxVOIChoice& first = choices.front();
        return {true, first.fWidth, first.fLevel, first.fFunction, first.fTable};
    } catch (const std::bad_alloc&) {
        return {};
    }
}
