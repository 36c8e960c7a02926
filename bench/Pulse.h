// How long the program leaves its events waiting.
#pragma once
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>

// Ticks as often as the event loop comes round, or less often where the processor is needed, and
// keeps the longest pause.
class Pulse {
public:
    explicit Pulse(int interval_ms = 0)
    {
        fTimer.setInterval(interval_ms);
        QObject::connect(&fTimer, &QTimer::timeout, [this] {
            fLongest = std::max(fLongest, static_cast<double>(fSince.nsecsElapsed()) / 1e6);
            fSince.start();
        });
        fSince.start();
        fTimer.start();
    }
    [[nodiscard]] double Longest() const { return fLongest; }

private:
    QTimer fTimer;
    QElapsedTimer fSince;
    double fLongest = 0;  // ms
};
