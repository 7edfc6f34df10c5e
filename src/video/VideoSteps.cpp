#include "video/VideoSteps.h"

#include <algorithm>
#include <cmath>

std::optional<double> wholeFrameRate(const QVariant& value) {
    bool ok = false;
    const double rate = value.toDouble(&ok);
    if (!ok || !std::isfinite(rate))
        return std::nullopt;
    return std::trunc(rate);
}

double frameStep(double fps, int speedModifier, bool shiftHeld) {
    if (shiftHeld)
        return 10 * fps;
    return speedModifier != 0 ? speedModifier * fps : 1.0;
}

qint64 steppedPosition(qint64 position, double step) {
    return static_cast<qint64>(static_cast<double>(position) + step);
}

std::optional<int> speedModifierOfKey(int key) {
    switch (key) {
    case Qt::Key_Z:
        return 0;
    case Qt::Key_X:
        return 1;
    case Qt::Key_C:
        return 5;
    case Qt::Key_V:
        return 10;
    case Qt::Key_B:
        return 15;
    default:
        return std::nullopt;
    }
}

std::optional<qint64> positionOfKey(int key, qint64 duration) {
    if (key < Qt::Key_0 || key > Qt::Key_9)
        return std::nullopt;
    return duration / 10 * (key - Qt::Key_0);
}

int wheelSpeedFactor(Qt::KeyboardModifiers modifiers) {
    if (modifiers.testFlag(Qt::ShiftModifier))
        return 15;
    return modifiers.testFlag(Qt::ControlModifier) ? 25 : 1;
}

QString neighbourFile(const QStringList& files, const QString& current, bool backward) {
    const auto isCurrent = [&current](const QString& file) {
        return QString::compare(file, current, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::ranges::find_if(files, isCurrent);
    if (found == files.end())
        return {};
    // Adding count - 1 instead of -1 keeps the remainder from becoming negative.
    const qsizetype count = files.size();
    return files.at((found - files.begin() + (backward ? count - 1 : 1)) % count);
}

SeriesStep nextSeriesStep(qint64 duration, qint64 start, qint64 count, qint64 frameCounter) {
    if (duration <= 0)
        return {SeriesStep::Wait, start};
    const qint64 interval = (duration - start) / count;
    // The start shortens the interval but does not shift the positions, which count from the start of the
    // file.
    const qint64 next = interval * frameCounter;
    // A series that does not advance would seek forever.
    if (interval <= 0 || next > duration)
        return {SeriesStep::EndOfFile};
    return {SeriesStep::Seek, next};
}
