#include "catalogue/MediaItemModel.h"

#include "catalogue/FileNaming.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds announcingInterval{33};

} // namespace

MediaItemModel::MediaItemModel(QObject* parent) : QStandardItemModel(parent) {
    _announcing.setSingleShot(true);
    _announcing.setInterval(announcingInterval);
    connect(&_announcing, &QTimer::timeout, this, &MediaItemModel::announceThumbnails);
}

void MediaItemModel::clearFiles(const QStringList& captions) {
    _itemsByPath.clear();
    clear();
    // The captions extend the four columns to sixteen; the views are notified of these two steps.
    setColumnCount(4);
    setHorizontalHeaderLabels(captions);
}

void MediaItemModel::appendFile(const MediaRecord& record, const QString& yes, const QString& no) {
    const QList<QStandardItem*> row = makeMediaRow(record, yes, no);
    appendRow(row);
    // The first item of a row is always a MediaItem, see makeMediaRow().
    _itemsByPath.insert(record.filePath, static_cast<MediaItem*>(row.first()));
}

bool MediaItemModel::removeFiles(const QStringList& keys) {
    QSet<QString> unwanted;
    for (const QString& key : keys)
        unwanted.insert(foldedCase(key));
    bool isDone = true;
    // Adjacent rows are removed together, as each removal shifts all rows behind it.
    int last = -1;
    // The step to -1 ends a block that reaches the first row.
    for (int row = rowCount() - 1; row >= -1; --row) {
        const QString key = row < 0 ? QString() : fileAt(row);
        if (row >= 0 && unwanted.contains(foldedCase(key))) {
            _itemsByPath.remove(key);
            if (last < 0)
                last = row;
        } else if (last >= 0) {
            isDone = removeRows(row + 1, last - row) && isDone;
            last = -1;
        }
    }
    return isDone;
}

int MediaItemModel::rowOf(const QString& key) const {
    const MediaItem* found = itemOf(key);
    return found ? found->row() : -1;
}

QStringList MediaItemModel::files() const {
    QStringList keys;
    keys.reserve(rowCount());
    for (int row = 0; row < rowCount(); ++row)
        keys.append(fileAt(row));
    return keys;
}

int MediaItemModel::hideRows(const std::function<bool(int row, const QString& key)>& isHidden) {
    int hidden = 0;
    for (int row = 0; row < rowCount(); ++row) {
        MediaItem* file = itemAt(row);
        file->setHidden(isHidden(row, file->data(RoleValue).toString()));
        hidden += file->isHidden() ? 1 : 0;
    }
    return hidden;
}

void MediaItemModel::announceThumbnail(const QString& key) {
    _freshThumbnails.insert(key);
    if (!_announcing.isActive())
        _announcing.start();
}

void MediaItemModel::announceThumbnails() {
    QList<int> rows;
    const QSet<QString> fresh = std::exchange(_freshThumbnails, {});
    for (const QString& key : fresh) {
        if (const int row = rowOf(key); row >= 0)
            rows.append(row);
    }
    std::ranges::sort(rows);
    for (auto first = rows.cbegin(); first != rows.cend();) {
        auto last = first;
        while (last + 1 != rows.cend() && *(last + 1) == *last + 1)
            ++last;
        emit dataChanged(index(*first, ColName), index(*last, ColName), {Qt::DecorationRole});
        first = last + 1;
    }
}
