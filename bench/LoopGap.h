#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

// The longest time for which the event loop did not come round while this lives, by a heartbeat of a
// millisecond. An operation that blocks shows with its whole length.
class LoopGap {
public:
    LoopGap() {
        _heart.setTimerType(Qt::PreciseTimer);
        QObject::connect(&_heart, &QTimer::timeout, &_heart, [this] { beat(); });
        _heart.start(1);
        _sinceBeat.start();
    }

    // Forgets what has been seen; the next gap begins here.
    void restart() {
        _longest = 0;
        _sinceBeat.restart();
    }

    [[nodiscard]] double longestMs() const { return std::max(_longest, sinceBeatMs()); }

private:
    [[nodiscard]] double sinceBeatMs() const { return static_cast<double>(_sinceBeat.nsecsElapsed()) / 1e6; }
    void beat() {
        _longest = longestMs();
        _sinceBeat.restart();
    }

    QTimer _heart;
    QElapsedTimer _sinceBeat;
    double _longest = 0;
};
