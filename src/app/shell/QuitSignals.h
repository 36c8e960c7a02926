// Requests of the system to end (SIGTERM, SIGINT, SIGHUP), told from the event loop so that the
// program ends as by its menu. One at a time; main thread only.
#pragma once
#include <QObject>
#include <functional>

class QSocketNotifier;

class QuitSignals final : public QObject {
public:
    explicit QuitSignals(std::function<void()> quit);
    ~QuitSignals() override;

private:
    std::function<void()> fQuit;
    QSocketNotifier* fNotifier = nullptr;
    int fReadEnd = -1;
};
