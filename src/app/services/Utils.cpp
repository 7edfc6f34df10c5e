#include "app/services/Utils.h"

#include <array>

using namespace Qt::StringLiterals;

Utils* Utils::instance(QObject* parent) {
    static auto* const utils = new Utils(parent);
    return utils;
}

Utils::Utils(QObject* parent) : QObject(parent) {}

QString Utils::formatBitRate(quint64 bitsPerSecond) const {
    constexpr std::array units{"b/s", "Kb/s", "Mb/s", "Gb/s"};
    quint64 value = bitsPerSecond;
    std::size_t step = 0;
    while (step < units.size() && value >= 1000) {
        value /= 1000;
        ++step;
    }
    const QString unit = step < units.size() ? QString::fromLatin1(units.at(step)) : QString();
    return u"%1 %2"_s.arg(QString::number(static_cast<double>(value), 'f', step == 0 ? 0 : 1), unit);
}

QString Utils::formatDuration(quint64 milliseconds, bool showMilliseconds, int hourPadding,
                              bool hideEmptyHours) const {
    const quint64 hours = milliseconds / 3'600'000;
    const quint64 minutes = milliseconds % 3'600'000 / 60'000;
    const quint64 seconds = milliseconds / 1000 % 60;
    QString text = u"%1:%2"_s.arg(minutes, 2, 10, u'0').arg(seconds, 2, 10, u'0');
    if (hours > 0 || !hideEmptyHours)
        text.prepend(u"%1:"_s.arg(hours, hourPadding + 1, 10, u'0'));
    if (showMilliseconds)
        text += u".%1"_s.arg(milliseconds % 1000);
    return text;
}
