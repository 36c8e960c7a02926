// When the frames of an enhanced object were taken, and how long each is to be shown.
#include "dicom_core/values/FrameGroups.h"
#include "dicom_core/values/ParserText.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <new>
#include <optional>
#include <string_view>

namespace {

constexpr QvxElementTag kTagAcquisitionDateTime{0x0018, 0x9074};
constexpr QvxElementTag kTagReferenceDateTime{0x0018, 0x9151};
constexpr QvxElementTag kTagAcquisitionDuration{0x0018, 0x9220};
constexpr QvxElementTag kTagFrameContent{0x0020, 0x9111};
constexpr QvxElementTag kTagTimeOffset{0x0020, 0x930D};
constexpr QvxElementTag kTagTemporalPosition{0x0020, 0x9310};

constexpr std::size_t kDateTimeSize = 27;  // YYYYMMDDHHMMSS.FFFFFF&ZZXX and a terminator
constexpr double kGreatestTime = 1e9;      // milliseconds: eleven days are no frame's time

using Times = std::vector<double>;  // milliseconds

std::optional<double> NumberOf(const zelFrameGroups& groups, QvxElementRef element)
{
    QvxElementValue value;
    if (Qvx2Reader_GetElementDataAsValue(groups.Parser(), element, 1, &value))
        return std::nullopt;
    double number = 0;
    if (value.fType == QvxNumericValueType::Float64)
        number = value.fFloat64;
    else if (value.fType == QvxNumericValueType::Float32)
        number = value.fFloat32;
    else
        return std::nullopt;
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<int> Digits(std::string_view text, std::size_t start, std::size_t count)
{
    int number = 0;
    if (text.size() < start + count)
        return std::nullopt;
    const char* const first = text.data() + start;
    const auto [end, error] = std::from_chars(first, first + count, number);
    if (error != std::errc() || end != first + count || number < 0)
        return std::nullopt;
    return number;
}

// Milliseconds of a DT value (PS3.5 6.2) that is stated to the second. The offset from UTC at its
// end is that of the whole file and drops out of every difference.
std::optional<double> InstantOf(std::string_view text)
{
    namespace chr = std::chrono;
    const auto year = Digits(text, 0, 4), month = Digits(text, 4, 2), day = Digits(text, 6, 2);
    const auto hour = Digits(text, 8, 2), minute = Digits(text, 10, 2),
               second = Digits(text, 12, 2);
    if (!year || !month || !day || !hour || !minute || !second)
        return std::nullopt;
    const chr::year_month_day date{chr::year(*year), chr::month(static_cast<unsigned>(*month)),
                                   chr::day(static_cast<unsigned>(*day))};
    if (!date.ok())
        return std::nullopt;
    double fraction = 0;
    if (text.size() > 14 && text[14] == '.')
        std::from_chars(text.data() + 14, text.data() + text.size(), fraction);
    const double days = chr::sys_days(date).time_since_epoch().count();
    return (((days * 24 + *hour) * 60 + *minute) * 60 + *second + fraction) * 1000;
}

std::optional<double> DateTimeOf(const zelFrameGroups& groups, QvxElementRef element)
{
    std::string text;
    if (Parser_GetElementValueInCString(groups.Parser(), element, 1, kDateTimeSize, &text))
        return std::nullopt;
    return InstantOf(text);
}

// What `read` makes of the element of each of `count` frames; nothing if one frame has none.
template <typename Read>
Times OfEachFrame(const zelFrameGroups& groups, std::int32_t count, QvxElementTag macro,
                  QvxElementTag element, Read read)
{
    Times numbers;
    for (std::int32_t frame = 1; frame <= count; ++frame) {
        const QvxElementRef found = groups.Find(frame, macro, element);
        const auto number =
            found != QvxElementRef::None ? read(groups, found) : std::optional<double>();
        if (!number)
            return {};
        numbers.push_back(*number);
    }
    return numbers;
}

// From each frame to the next, the last as long as the one before it.
Times StepsOf(const Times& instants)
{
    if (instants.size() < 2)
        return {};
    Times steps(instants.size());
    for (std::size_t i = 0; i + 1 < instants.size(); ++i)
        steps[i] = instants[i + 1] - instants[i];
    steps.back() = steps[steps.size() - 2];
    return steps;
}

// False unless there is a time above 0 for every frame.
bool StoreTimes(const Times& taken, zelFrameTimes* times)
{
    const auto sound = [](double time) { return time > 0 && time <= kGreatestTime; };
    if (taken.empty() || !std::ranges::all_of(taken, sound))
        return false;
    zelFrameTimes made;
    for (const double time : taken)
        made.fVector.push_back(static_cast<float>(time));
    made.fCount = static_cast<std::int32_t>(taken.size());
    if (std::ranges::count(made.fVector, made.fVector.front()) == made.fCount) {
        made.fSingle = made.fVector.front();
        made.fVector.clear();
        made.fCount = 1;
    }
    *times = std::move(made);
    return true;
}

bool StoreSteps(const zelFrameGroups& groups, std::int32_t count, zelFrameTimes* times)
{
    Times offsets = OfEachFrame(groups, count, kTagTemporalPosition, kTagTimeOffset, NumberOf);
    for (double& offset : offsets)
        offset *= 1000;  // from seconds
    if (StoreTimes(StepsOf(offsets), times))
        return true;
    for (const QvxElementTag instant : {kTagReferenceDateTime, kTagAcquisitionDateTime})
        if (StoreTimes(StepsOf(OfEachFrame(groups, count, kTagFrameContent, instant, DateTimeOf)),
                       times))
            return true;
    return false;
}

QvxStatus TimesOf(const zelFrameGroups& groups, zelFrameTimes* times)
{
    std::int32_t count = 0;
    if (Parser_GetNumberOfFrames(groups.Parser(), &count))
        count = 0;
    // Groups for only some of the frames say nothing of the course of all; a shared one alone says
    // the same of each.
    const std::int32_t stated = groups.FrameCount();
    count = stated == 0 ? std::min(count, 1) : (stated < count ? 0 : count);
    float shown = 0;
    if (!Parser_GetDisplayRateTime(groups.Parser(), &shown) && StoreSteps(groups, count, times))
        return kQvxOK;
    const QvxStatus status = Parser_GetFrameTimes(groups.Parser(), times);
    if (!status)
        return kQvxOK;
    const Times durations =
        OfEachFrame(groups, count, kTagFrameContent, kTagAcquisitionDuration, NumberOf);
    return StoreTimes(durations, times) ? kQvxOK : status;
}

}  // namespace

QvxStatus Parser_GetFrameTimes(const zelFrameGroups& groups, zelFrameTimes* times)
{
    if (!groups.Parser() || !times)
        return kQvxBadArgument;
    const QvxReaderUse use(groups.Parser());
    try {
        return TimesOf(groups, times);
    } catch (const std::bad_alloc&) {
        *times = {};
        return kQvxNoMemory;
    }
}
