#pragma once

#include <QElapsedTimer>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

// Times two sides in alternating runs and prints one line of the table with the median of each and their
// ratio.
class Ratio {
public:
    static constexpr int runs = 5;

    // A side prepares nothing that is timed but its own call.
    using Side = std::function<void()>;

    static double report(const QString& what, const Side& ours, const Side& bound, const Side& before = {}) {
        std::vector<double> ourTimes;
        std::vector<double> boundTimes;
        for (int run = 0; run < runs; ++run) {
            if (before)
                before();
            ourTimes.push_back(milliseconds(ours));
            if (before)
                before();
            boundTimes.push_back(milliseconds(bound));
        }
        const double our = median(ourTimes);
        const double other = median(boundTimes);
        std::printf("| %-44s | %9.1f | %9.1f | %5.2f |\n", qPrintable(what), our, other, our / other);
        std::fflush(stdout);
        return our / other;
    }

    static void header() {
        std::printf("| %-44s | %9s | %9s | %5s |\n|---|---|---|---|\n", "operation", "ours ms", "bound ms",
                    "ratio");
    }

    static double milliseconds(const Side& side) {
        QElapsedTimer timer;
        timer.start();
        side();
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }

private:
    static double median(std::vector<double> values) {
        std::ranges::sort(values);
        return values[values.size() / 2];
    }
};
