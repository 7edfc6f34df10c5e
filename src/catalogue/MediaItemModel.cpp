#include "catalogue/MediaItemModel.h"

#include "catalogue/FileNaming.h"

#include <QSet>

void MediaItemModel::clearFiles(const QStringList& captions) {
    _itemsByPath.clear();
    clear();
    setColumnCount(4);
    setHorizontalHeaderLabels(captions);
}

void MediaItemModel::appendFile(const MediaRecord& record, const QString& yes, const QString& no) {
    const QList<QStandardItem*> row = makeMediaRow(record, yes, no);
    appendRow(row);
    _itemsByPath.insert(record.filePath, static_cast<MediaItem*>(row.first()));
}

bool MediaItemModel::removeFiles(const QStringList& keys) {
    QSet<QString> unwanted;
    for (const QString& key : keys)
        unwanted.insert(foldedCase(key));
    bool isDone = true;
    // Neighbouring rows are removed in one step: each removal moves all rows behind it.
    int last = -1;
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
