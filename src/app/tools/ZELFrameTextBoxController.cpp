#include "app/tools/ZELFrameTextBoxController.h"

#include "platform/Words.h"

#include <utility>

ZELFrameTextBoxController::ZELFrameTextBoxController(GridHost* host, std::function<void()> changed)
    : _gridsController(host),
      fChanged(std::move(changed)),
      fCine(NotificationCenter::Default().AddObserver(
          kNoteFrameDidChangeCine,
          [this](const Notification& note) { changeCurrentFrameCine(note); })),
      fWatch(host, {"currentFrameString"}, [this] { fChanged(); })
{
}

void ZELFrameTextBoxController::changeCurrentFrameCine(const Notification& note)
{
    const ZELSequenceGridViewModelController* grid =
        _gridsController->activeSequenceGridController();
    if (!grid || !note.object || note.object != static_cast<const void*>(grid->view()))
        return;
    fCineFrame = note.userInfo.value(QLatin1String(kKeyNewCellIndex)).toInt() + 1;
    fChanged();
}

QString ZELFrameTextBoxController::text() const
{
    const ZELSequenceProxy* proxy = TargetWatch::SequenceOf(*_gridsController);
    if (!proxy)
        return {};
    const bool plays = _gridsController->activeSequenceGridController()->cineModeIsON();
    return plays && fCineFrame > 0
               ? ZelWord(kWordsMain, "ff of nn").arg(fCineFrame).arg(proxy->totalFrames())
               : proxy->currentFrameString();
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
