#pragma once

#include <QElapsedTimer>
#include <QMessageLogContext>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

// The terminal is no part of what is measured: only what ends the run is printed.
inline void silenceLog() {
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type == QtFatalMsg) {
            std::printf("%s\n", qPrintable(message));
            std::fflush(stdout);
        }
    });
}

// Times two sides in alternating runs and prints one line of the table with the median of each and their
// ratio, besides that of the processor time that all threads together took.
class Ratio {
public:
    static constexpr int runs = 5;

    // A side prepares nothing that is timed but its own call.
    using Side = std::function<void()>;

    static double report(const QString& what, const Side& ours, const Side& bound, const Side& before = {}) {
        Times our;
        Times other;
        for (int run = 0; run < runs; ++run) {
            if (before)
                before();
            our.measure(ours);
            if (before)
                before();
            other.measure(bound);
        }
        print(what, median(our.wall), median(other.wall), median(our.processor) / median(other.processor));
        return median(our.wall) / median(other.wall);
    }

    static void header() {
        std::printf("| %-44s | %9s | %9s | %5s | %5s |\n|---|--:|--:|--:|--:|\n", "operation", "ours ms",
                    "bound ms", "ratio", "CPU");
    }

    // A line whose figures have been taken elsewhere; without a ratio of processor times if that is 0.
    static void print(const QString& what, double our, double other, double processorRatio = 0) {
        std::printf("| %-44s | %9.1f | %9.1f | %5.2f |", qPrintable(what), our, other, our / other);
        if (processorRatio > 0)
            std::printf(" %5.2f |\n", processorRatio);
        else
            std::printf(" %5s |\n", "");
        std::fflush(stdout);
    }

    static double milliseconds(const Side& side) {
        QElapsedTimer timer;
        timer.start();
        side();
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }

    static double processorMs() {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    static double median(std::vector<double> values) {
        std::ranges::sort(values);
        return values[values.size() / 2];
    }

private:
    struct Times {
        std::vector<double> wall;
        std::vector<double> processor;

        void measure(const Side& side) {
            const double start = processorMs();
            wall.push_back(milliseconds(side));
            processor.push_back(processorMs() - start);
        }
    };
};
