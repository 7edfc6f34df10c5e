#pragma once

#include <QList>
#include <QString>

// "captions 3/40, 2 min left", the time from the mean of the last answers in milliseconds; without an answer
// or with nothing left the counts alone.
[[nodiscard]] QString promptProgressText(qsizetype done, qsizetype total, const QList<qint64>& answerTimes);
