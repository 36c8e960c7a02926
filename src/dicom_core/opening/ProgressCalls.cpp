#include "dicom_core/opening/ProgressCalls.h"

#include "dicom_core/opening/PathNames.h"
#include "dicom_core/progress/ProgressHandshake.h"
#include "platform/Words.h"

#include <chrono>
#include <utility>

namespace {

// Steps that come faster than a screen shows them are handed over together.
constexpr std::chrono::milliseconds kStepPause{16};

// What the request's title names: the folder of a directory file, else the target itself.
std::string TitledPath(const OpenSettings& settings)
{
    const bool inFolder = settings.actionFlavor == kOpenFlavorFolderDICOMDIR ||
                          settings.actionFlavor == kOpenFlavorDICOMDIRFile;
    if ((settings.actionType == kOpenActionPlain && inFolder) ||
        (settings.actionType == kOpenActionCD && settings.actionFlavor == kOpenFlavorCDDICOMDIR))
        return ParentFolder(settings.openTargetPath);
    if (inFolder && settings.actionType == kOpenActionRecent)
        return settings.openTargetPath;
    if (settings.actionFlavor >= kOpenFlavorFile &&
        settings.actionFlavor <= kOpenFlavorFolderRecursive)
        return settings.openTargetPath;
    return {};
}

void SendMessage(OpenSettings* settings, ZELProgressMessageID message)
{
    settings->progressMessage = message;
    if (settings->handshake)
        settings->handshake->Send(settings);
}

// Hands over the steps that were held back.
void FlushSteps(OpenSettings* settings)
{
    if (settings->heldSteps == 0)
        return;
    settings->steps = std::exchange(settings->heldSteps, 0);
    SendMessage(settings, kProgressStep);
}

}  // namespace

void CreateTheOpenProgressDialog(OpenSettings* settings)
{
    if (const std::string named = TitledPath(*settings); !named.empty())
        settings->messageStr = QStringLiteral("%1%2...").arg(
            ZelWord(kWordsMain, "progrOpenOpening"), DisplayName(named));
    settings->progressMessage = kProgressInit;
    settings->mainValue = settings->mainMin = settings->mainMax = 0;
    settings->auxValue = settings->auxMin = 0;
    settings->progressIsON = true;
    if (settings->handshake)
        settings->handshake->Begin(settings);
}

QvxStatus U_ProgressUpdate(OpenSettings* settings, ZELProgressMessageID message,
                           std::int32_t minimum, std::int32_t maximum, std::int32_t value,
                           const QString& text, const QString& subText)
{
    if (!settings->progressIsON)
        return kQvxOK;
    FlushSteps(settings);
    settings->messageStr = text;
    settings->mainValue = value;
    settings->mainMin = minimum;
    settings->mainMax = maximum;
    settings->subMessageStr = subText;
    settings->auxMin = settings->auxMax = settings->auxValue = 0;
    settings->steps = 1;
    SendMessage(settings, message);
    return U_ProgressCheckForCancel(settings);
}

QvxStatus U_StepTheOpenProgressDialog(OpenSettings* settings, const std::function<QString()>& text)
{
    if (!settings->progressIsON)
        return kQvxOK;
    ++settings->heldSteps;
    const auto now = std::chrono::steady_clock::now();
    if (now - settings->lastStepSent < kStepPause)
        return U_ProgressCheckForCancel(settings);
    settings->lastStepSent = now;
    settings->steps = std::exchange(settings->heldSteps, 0);
    settings->messageStr = text ? text() : QString();
    SendMessage(settings, text ? kProgressLabelAndStep : kProgressStep);
    return U_ProgressCheckForCancel(settings);
}

QvxStatus U_ProgressCheckForCancel(const OpenSettings* settings)
{
    return settings->progressIsON && settings->userCancelled ? kQvxUserCanceled : kQvxOK;
}
