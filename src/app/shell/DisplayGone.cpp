#include "app/shell/DisplayGone.h"

#include <QString>
#include <QtGlobal>
#include <atomic>
#include <cstdlib>
#include <unistd.h>

namespace {

QtMessageHandler gBefore = nullptr;

// The toolkit tells of it in no other way. A connection that ends by an error in what was said
// there ("experienced a fatal error") is a crash.
void EndIfDisplayWent(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    gBefore(type, context, text);
    if (!text.startsWith(QLatin1String("The Wayland connection broke")))
        return;
    static std::atomic_flag sEnds;
    while (sEnds.test_and_set())
        pause();  // two threads are told; by returning one would end the other's work
    std::quick_exit(1);
}

}  // namespace

void EndInOrderWithoutDisplay() { gBefore = qInstallMessageHandler(EndIfDisplayWent); }
