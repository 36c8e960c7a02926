#include "app/tools/ZELFrameTextBoxController.h"

ZELFrameTextBoxController::ZELFrameTextBoxController(GridHost* host, std::function<void()> changed)
    : _gridsController(host), fWatch(host, {"currentFrameString"}, std::move(changed))
{
}

QString ZELFrameTextBoxController::text() const
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*_gridsController);
    return proxy ? proxy->currentFrameString() : QString();
}

bool ZELFrameTextBoxController::mayEdit() const
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*_gridsController);
    return proxy && proxy->hasManyFrames();
}

int ZELFrameTextBoxController::frameOf(const QString& typed) const
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*_gridsController);
    const double frame = NumberAtStart(CutAt(typed, kDigits));
    return proxy && frame >= 1 && frame <= proxy->totalFrames() ? static_cast<int>(frame) : 0;
}

EditEnd ZELFrameTextBoxController::textShouldEndEditing(const QString& typed) const
{
    return {true, frameOf(typed) > 0 ? QString() : text()};
}

void ZELFrameTextBoxController::dothething(const QString& typed)
{
    if (const int frame = frameOf(typed); frame > 0)
        _gridsController->activeSequenceGridController()->U_SendNotificationForNewFrame(
            frame, CellChangeType::Jump);
}
