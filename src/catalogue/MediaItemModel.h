#pragma once

#include "catalogue/MediaModel.h"
#include "catalogue/ThumbnailStore.h"

#include <QHash>
#include <QSet>
#include <QStandardItemModel>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

// The catalogue: a row for each media file, found by its key. Rows that are inserted by the thousand are
// announced as one change.
class MediaItemModel : public QStandardItemModel {
    Q_OBJECT

public:
    explicit MediaItemModel(QObject* parent = nullptr);

    // While it lives, appended rows are not announced one by one; at its end the model is reset.
    class BulkInsert {
    public:
        explicit BulkInsert(MediaItemModel& model) : _model(model) {
            _model.beginResetModel();
            // The views read the model anew after the reset; signals for single rows would only take time.
            _model.blockSignals(true);
        }
        ~BulkInsert() {
            _model.blockSignals(false);
            _model.endResetModel();
        }
        Q_DISABLE_COPY_MOVE(BulkInsert)

    private:
        MediaItemModel& _model;
    };

    // Removes all rows and captions the columns.
    void clearFiles(const QStringList& captions);
    // Appends a row; the two texts are the values of columns that state whether a file has something.
    void appendFile(const MediaRecord& record, const QString& yes, const QString& no);
    // Removes the rows of the files, compared regardless of case. False where a row could not be removed.
    bool removeFiles(const QStringList& keys);

    [[nodiscard]] bool contains(const QString& key) const { return _itemsByPath.contains(key); }
    // The ColName item of a file; null without a row.
    [[nodiscard]] MediaItem* itemOf(const QString& key) const { return _itemsByPath.value(key); }
    [[nodiscard]] MediaItem* itemAt(int row) const { return static_cast<MediaItem*>(item(row, ColName)); }
    // -1 without a row.
    [[nodiscard]] int rowOf(const QString& key) const;
    [[nodiscard]] QString fileAt(int row) const { return itemAt(row)->data(RoleValue).toString(); }
    // The keys of all rows in their order.
    [[nodiscard]] QStringList files() const;

    // Flags the rows that a predicate of row and file key hides. Emits no change: the caller makes the proxy
    // filter all rows once, as a signal for each row would take far longer. Returns the number of hidden
    // rows.
    int hideRows(const std::function<bool(int row, const QString& key)>& isHidden);

    // Where the pixels of thumbnails that are set later are kept.
    void setThumbnailStore(const ThumbnailStore& store) { _thumbnails = store; }
    // Emits no change; see announceThumbnail.
    void setThumbnail(MediaItem& item, const QImage& image, const QSize& canvasSize) {
        item.setThumbnail(_thumbnails.keep(compactThumbnail(image)), canvasSize);
    }
    // Announces the changed thumbnail of a row, together with others and at most 30 times a second.
    void announceThumbnail(const QString& key);

private:
    void announceThumbnails();

    QHash<QString, MediaItem*> _itemsByPath;
    ThumbnailStore _thumbnails;
    QSet<QString> _freshThumbnails;
    QTimer _announcing;
};
