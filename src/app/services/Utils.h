#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QWidget;

// What belongs nowhere else: texts of bit rates and durations, and showing a file in the desktop's file
// manager.
class Utils : public QObject {
    Q_OBJECT

public:
    // The object outlives every caller; its pointer is never cleared.
    static Utils* instance(QObject* parent = nullptr);

    // Whole steps of 1000, truncated at each: 1536000 is "1.0 Mb/s".
    [[nodiscard]] QString formatBitRate(quint64 bitsPerSecond) const;
    // Hours stand in a field of hourPadding + 1 digits; milliseconds are not padded.
    [[nodiscard]] QString formatDuration(quint64 milliseconds, bool showMilliseconds, int hourPadding,
                                         bool hideEmptyHours) const;

private:
    explicit Utils(QObject* parent);
};
