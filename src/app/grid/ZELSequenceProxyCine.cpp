// What a proxy answers of playing its sequence.
#include "app/grid/ZELSequenceProxy.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "prefs/Prefs.h"

#include <algorithm>

namespace {

constexpr float kUsualSpeed = 15;                   // frames a second
constexpr std::int32_t kNoCineType = -2;            // of the file
constexpr std::uint32_t kHindersCine = 0xFFFFFFDF;  // all handicaps but 0x20

CineMovieMaker& Maker()
{
    static CineMovieMaker maker;
    return maker;
}

float FactorOf(std::int32_t fixed)
{
    return static_cast<float>(fixed) / dk_SequenceFrameInfo::kRateOne;
}

}  // namespace

void SetCineMovieMaker(CineMovieMaker maker) { Maker() = std::move(maker); }

std::unique_ptr<CineMovie> MakeCineMovie(ZELSequenceProxy& proxy)
{
    return Maker() ? Maker()(proxy) : nullptr;
}

std::int32_t ZELSequenceProxy::cineLoopMode()
{
    if (!_theSequence)
        return 0;
    if (_cineLoopMode == kLoopModeUnknown) {
        const std::int32_t type = _theSequence->GetDefaultCineType();
        _cineLoopMode =
            type != kNoCineType && type != kLoopModeUnknown ? type : prefs_GetCineLoopMode();
    }
    return _cineLoopMode;
}

void ZELSequenceProxy::setCineLoopMode(std::int32_t mode)
{
    if (_theSequence)
        Announce({"cineLoopMode"}, [&] { _cineLoopMode = mode; });
}

float ZELSequenceProxy::cineRate() const
{
    return _theSequence ? FactorOf(_theSequence->GetCurrentCineRate()) : 1;
}

float ZELSequenceProxy::adjustedCineRate() const
{
    return _theSequence ? FactorOf(_theSequence->GetCurrentAdjustedCineRate()) : 1;
}

void ZELSequenceProxy::setCineRate(float rate)
{
    if (!table())
        return;
    const double fixed =
        std::clamp(double{rate} * dk_SequenceFrameInfo::kRateOne, 0.0, 2147483647.0);
    Announce({"cineRate"}, [&] { table()->fCineRate = static_cast<std::int32_t>(fixed); });
}

float ZELSequenceProxy::cineSpeed() const
{
    return _theSequence ? _theSequence->GetCurrentCineSpeed() : kUsualSpeed;
}

float ZELSequenceProxy::adjustedCineSpeed() const
{
    if (_theSequence && prefs_HasCineEnforceSpeed())
        return static_cast<float>(prefs_CineDefaultSpeed());
    return cineSpeed();
}

float ZELSequenceProxy::storedCineSpeed() const
{
    const float builtIn = _theSequence ? _theSequence->GetBuiltInSequenceFPS() : 0;
    return builtIn > 0 ? builtIn : kUsualSpeed;
}

void ZELSequenceProxy::setCineSpeed(float speed)
{
    if (_theSequence)
        Announce({"cineSpeed"}, [&] { _theSequence->SetCurrentCineSpeed(speed); });
}

void ZELSequenceProxy::setCanCreateMovie(std::int32_t can)
{
    if (can != fCanCreateMovie)
        Announce({"canCreateMovie", "canPlayCine"}, [&] { fCanCreateMovie = can; });
}

bool ZELSequenceProxy::canPlayCine() const
{
    if (!_theSequence)
        return false;
    return fCanCreateMovie == 1 || (isDICOM() && totalFrames() >= 2 && fCanCreateMovie != 0 &&
                                    _theSequence->CountHandicaps(kHindersCine) == 0);
}

std::unique_ptr<CineMovie> ZELSequenceProxy::theCineMovie()
{
    return _theSequence ? MakeCineMovie(*this) : nullptr;
}

std::int32_t ZELSequenceProxy::currentFrameForMovie(const CineMovie& movie) const
{
    double time = 0, duration = 0;
    if (!_theSequence)
        return 0;
    if (movie.GetCurrentTime(&time) || movie.GetDuration(&duration))
        return 1;
    const std::int32_t frame = time == duration
                                   ? totalFrames()
                                   : _theSequence->GetFrameForTimePos(static_cast<float>(time));
    return std::clamp(frame, 1, std::max(totalFrames(), 1));
}
