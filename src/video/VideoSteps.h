#pragma once

#include <QStringList>
#include <QVariant>
#include <Qt>
#include <QtTypes>

#include <optional>

// Where the video windows seek to. Positions and durations are milliseconds.

// A frame rate cut to a whole number; none for a value that is no number.
[[nodiscard]] std::optional<double> wholeFrameRate(const QVariant& value);

// One frame step: as many milliseconds as the frame rate has frames, times the modifier; 0 means a
// single millisecond.
[[nodiscard]] double frameStep(double fps, int speedModifier, bool shiftHeld);

// Cut to whole milliseconds toward zero.
[[nodiscard]] qint64 steppedPosition(qint64 position, double step);

// The modifier that a key chooses.
[[nodiscard]] std::optional<int> speedModifierOfKey(int key);

// The position that a digit key seeks to, in tenths of the duration.
[[nodiscard]] std::optional<qint64> positionOfKey(int key, qint64 duration);

[[nodiscard]] int wheelSpeedFactor(Qt::KeyboardModifiers modifiers);

// The entry before or after the current one, wrapping around, compared in any case; empty if the current one
// is not in the list.
[[nodiscard]] QString neighbourFile(const QStringList& files, const QString& current, bool backward);

// What follows a frame of an even series.
struct SeriesStep {
    enum Kind {
        Seek,
        // The duration is not known.
        Wait,
        EndOfFile
    };
    Kind kind = EndOfFile;
    qint64 position = 0;

    bool operator==(const SeriesStep&) const = default;
};

// The step after the frame that raised the counter to frameCounter.
[[nodiscard]] SeriesStep nextSeriesStep(qint64 duration, qint64 start, qint64 count, qint64 frameCounter);
