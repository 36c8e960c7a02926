// What a worker says of its progress, and how it learns of a cancel. Each call that shows something
// waits for the main thread to have handled it; steps that follow one another within a few
// milliseconds are handed over together, so that a step costs no change of threads.
#pragma once
#include "dicom_core/opening/OpenSettings.h"
#include "util/StatusCodes.h"

#include <functional>

// The caller tests `progressIsON` first.
void CreateTheOpenProgressDialog(OpenSettings* settings);
// Each answers kQvxOK, or kQvxUserCanceled once the user has cancelled. There is no cancelling
// before the progress dialog exists.
QvxStatus U_ProgressUpdate(OpenSettings* settings, ZELProgressMessageID message,
                           std::int32_t minimum, std::int32_t maximum, std::int32_t value,
                           const QString& text, const QString& subText);
// One step; with a text also the main label. `text` is made only when it is going to be shown.
QvxStatus U_StepTheOpenProgressDialog(OpenSettings* settings,
                                      const std::function<QString()>& text = nullptr);
[[nodiscard]] QvxStatus U_ProgressCheckForCancel(const OpenSettings* settings);
