#include "ollama/PromptProgress.h"

#include <QCoreApplication>

#include <cmath>
#include <numeric>

namespace {

constexpr qsizetype lastAnswers = 10;

QString progressText(const char* text) {
    return QCoreApplication::translate("PromptProgress", text);
}

QString leftText(double seconds) {
    if (seconds < 90)
        return progressText(QT_TRANSLATE_NOOP("PromptProgress", "%1 s left")).arg(std::ceil(seconds));
    if (seconds < 90 * 60)
        return progressText(QT_TRANSLATE_NOOP("PromptProgress", "%1 min left")).arg(std::round(seconds / 60));
    return progressText(QT_TRANSLATE_NOOP("PromptProgress", "%1 h left")).arg(std::round(seconds / 3600));
}

} // namespace

QString promptProgressText(qsizetype done, qsizetype total, const QList<qint64>& answerTimes) {
    QString counts = progressText(QT_TRANSLATE_NOOP("PromptProgress", "captions %1/%2")).arg(done).arg(total);
    if (answerTimes.isEmpty() || done >= total)
        return counts;
    const QList<qint64> last = answerTimes.last(qMin(answerTimes.size(), lastAnswers));
    const double mean = std::accumulate(last.cbegin(), last.cend(), 0.0) / static_cast<double>(last.size());
    return progressText(QT_TRANSLATE_NOOP("PromptProgress", "%1, %2"))
        .arg(counts, leftText(mean / 1000 * static_cast<double>(total - done)));
}
