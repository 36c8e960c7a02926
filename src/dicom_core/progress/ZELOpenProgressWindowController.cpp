#include "dicom_core/progress/ZELOpenProgressWindowController.h"

#include "platform/Words.h"

namespace {

constexpr double kWidth = 420, kHeight = 90;  // points

void PlaceWindow(ProgressWindow* window)
{
    double width = 0, height = 0;
    if (window->screenSize(&width, &height))
        // A quarter of the free height above it, three quarters below.
        window->place((width - kWidth) / 2, (height - kHeight) / 4, kWidth, kHeight);
    else
        window->place(-kWidth / 2, -kHeight * 3 / 4, kWidth, kHeight);
}

}  // namespace

void ZELOpenProgressWindowController::initOpenProgress(ExportLevelSettings* context)
{
    fModalStopped = false;
    context->progressSession = this;
    PlaceWindow(fWindow);
    fWindow->orderOut();
    context->exportIsWorking = processMessage(context->progressMessage, context) != 0;
}

int ZELOpenProgressWindowController::processMessage(ZELProgressMessageID message,
                                                    ExportLevelSettings* context,
                                                    Clock::time_point now)
{
    switch (message) {
        case kProgressNone:
            return 1;
        case kProgressInit:
            initProgress(context, now);
            break;
        case kProgressStop:
            stopProgress();
            break;
        case kProgressBeginCounted:
            setIndeterminate(false);
            setLimits(context);
            setValue(context->mainValue);
            break;
        case kProgressSetLimits:
            setLimits(context);
            break;
        case kProgressSetLimitsAndValue:
            setLimits(context);
            setValue(context->mainValue);
            break;
        case kProgressIndeterminate:
            setIndeterminate(true);
            break;
        case kProgressSubLabel:
            if (!fUserCancelled)
                fWindow->setSubLabel(context->subMessageStr);
            break;
        case kProgressLabelThrottled:
            setLabelThrottled(context->messageStr, now);
            break;
        case kProgressStep:
            stepTotalValue(context->steps);
            break;
        case kProgressLabelAndStep:
            setLabel(context->messageStr);
            stepTotalValue(context->steps);
            break;
        default:  // redraw only
            break;
    }
    fWindow->redraw();
    context->progressMessage = kProgressNone;
    return 1;
}

void ZELOpenProgressWindowController::initProgress(const ExportLevelSettings* context,
                                                   Clock::time_point now)
{
    fUserCancelled = false;
    fLastLabel = {};
    fWindow->setTitle(context->messageStr);
    fIndeterminate = false;
    setIndeterminate(true);
    fWindow->setLimits(1, 100);
    setValue(10);
    fWindow->setLabel({});
    fWindow->setSubLabel({});
    fShowPending = true;
    fShowAt = now + kHiddenFor;
}

void ZELOpenProgressWindowController::showTheWindow(const ExportLevelSettings* context)
{
    fShowPending = false;
    if (!context->exportIsWorking)
        return;
    fWindow->orderFront();
    fWindow->setAnimated(true);
}

bool ZELOpenProgressWindowController::runModalSession(const ExportLevelSettings* context,
                                                      Clock::time_point now)
{
    if (fShowPending && now >= fShowAt)
        showTheWindow(context);
    fWindow->processEvents();
    return !fModalStopped;
}

void ZELOpenProgressWindowController::endModalSession(ExportLevelSettings* context)
{
    fShowPending = false;
    context->progressSession = nullptr;
}

void ZELOpenProgressWindowController::stopProgress()
{
    fShowPending = false;
    fWindow->setAnimated(false);
    fWindow->orderOut();
}

void ZELOpenProgressWindowController::cancelProcessing()
{
    fWindow->setAnimated(false);
    fWindow->setLabel(ZelWord(kWordsMain, "progress_Cancelling"));
    fUserCancelled = true;  // from here on the label stays
    fModalStopped = true;
}

void ZELOpenProgressWindowController::stepTotalValue(std::int32_t steps)
{
    setValue(fValue + steps);
}

void ZELOpenProgressWindowController::setLimits(const ExportLevelSettings* context)
{
    if (!fUserCancelled)
        fWindow->setLimits(context->mainMin, context->mainMax);
}

void ZELOpenProgressWindowController::setIndeterminate(bool indeterminate)
{
    if (fIndeterminate != indeterminate)
        fWindow->setIndeterminate(indeterminate);
    fIndeterminate = indeterminate;
}

void ZELOpenProgressWindowController::setValue(double value)
{
    if (fUserCancelled)
        return;
    fValue = value;
    fWindow->setValue(value);
}

void ZELOpenProgressWindowController::setLabel(const QString& text)
{
    if (!fUserCancelled)
        fWindow->setLabel(text);
}

void ZELOpenProgressWindowController::setLabelThrottled(const QString& text, Clock::time_point now)
{
    if (now - fLastLabel < kLabelPause && fLastLabel != Clock::time_point{})
        return;  // the time of the last label that was shown stays
    fLastLabel = now;
    setLabel(text);
}
