#include "tags/TagsExport.h"

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

void sortTagsByCount(QStringList& tags, const QHash<QString, qsizetype>& counts) {
    // The count is looked up once a tag, not once a comparison.
    std::vector<std::pair<qsizetype, QString>> counted;
    counted.reserve(static_cast<std::size_t>(tags.size()));
    for (const QString& tag : std::as_const(tags))
        counted.emplace_back(counts.value(tag), tag);
    std::ranges::stable_sort(counted, {}, &std::pair<qsizetype, QString>::first);
    std::ranges::transform(counted, tags.begin(), &std::pair<qsizetype, QString>::second);
}

} // namespace

QStringList exportedTags(const QStringList& tags, const QHash<QString, qsizetype>& counts,
                         const TagsExportOptions& options) {
    QStringList exported = tags;
    if (options.removesDuplicates)
        exported.removeDuplicates();
    if (options.sortsByName) {
        exported.sort(options.nameCase);
        if (options.isReversed)
            std::ranges::reverse(exported);
    } else if (options.sortsByCount) {
        sortTagsByCount(exported, counts);
    }
    return exported;
}

QString exportedTagText(const QStringList& exported, const QHash<QString, qsizetype>& counts,
                        const TagsExportOptions& options) {
    QString text;
    for (const QString& tag : exported) {
        text += tag;
        if (options.appendsCount)
            text += " ["_L1 + QString::number(counts.value(tag)) + u']';
        text += u'\n';
    }
    return text;
}
