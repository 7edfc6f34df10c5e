#pragma once

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QStandardItem>
#include <QString>

class QImageReader;

enum MediaColumn {
    ColName = 0,
    ColPath,
    ColSize,
    ColResolution,
    ColLastModified,
    ColDuration,
    ColMediaType,
    ColFileFormat,
    ColAudioBitRate,
    ColAudioCodec,
    ColVideoBitRate,
    ColVideoCodec,
    ColVideoFrameRate,
    ColComment,
    ColSuffix,
    ColHasTxtFile,
    MediaColumnCount
};

enum MediaRole {
    RoleValue = Qt::UserRole + 1,       // raw value of a cell; on ColName the file key
    RoleHidden = Qt::UserRole + 3,      // on ColName
    RoleComment = Qt::UserRole + 3,     // on ColComment; the number of RoleHidden, in another column
    RoleVideoMeta = Qt::UserRole + 11,  // on ColName
    RoleCanvasSize = Qt::UserRole + 64, // size of the decoration, on ColName
};

// What a scan reads of one file: its image header and its directory entry, each once.
struct MediaRecord {
    QString filePath; // the file key, as the directory iterator gave it
    QString fileName;
    QString path;
    QString suffix; // case as on disk
    qint64 size = 0;
    QSize resolution; // invalid for an unknown format
    QDateTime lastModified;
    QString comment;
    bool hasTxtFile = false;

    bool operator==(const MediaRecord&) const = default;
};

// A file that cannot be read still gives a record, with an invalid resolution.
[[nodiscard]] MediaRecord readMediaRecord(const QString& filePath);

// Opens the reader's file and buffers its first bytes. QImageReader recognises a format under a lock of the
// whole process; afterwards no thread reads the disk while it holds that lock.
void bufferHead(QImageReader& reader);

// The first of the texts "Comment", "parameters" and "Description" that is not empty.
[[nodiscard]] QString embeddedComment(const QImageReader& reader);

[[nodiscard]] QString resolutionText(const QSize& resolution);
// The size of such a text; invalid for any other.
[[nodiscard]] QSize resolutionFromText(const QString& text);
[[nodiscard]] QString mediaToolTip(const QSize& resolution, const QString& filePath);

// Whether the sidecar of a media file exists and holds anything.
[[nodiscard]] bool hasFilledTxtFile(const QString& filePath);

// The image centred on a transparent canvas, at its own scale.
[[nodiscard]] QImage centredOnCanvas(const QImage& image, const QSize& canvasSize);

// The smallest format in which a thumbnail is still drawn the same: opaque ones lose their alpha byte.
[[nodiscard]] QImage compactThumbnail(const QImage& image);

// The ColName item of a row. It keeps the thumbnail in its own size and composes the canvas when a view
// requests it, since a canvas of its own for each of ten thousand rows would take gigabytes.
class MediaItem : public QStandardItem {
public:
    using QStandardItem::QStandardItem;

    [[nodiscard]] QVariant data(int role = Qt::UserRole + 1) const override;
    void setData(const QVariant& value, int role = Qt::UserRole + 1) override;
    [[nodiscard]] int type() const override { return UserType + 1; }
    [[nodiscard]] QStandardItem* clone() const override { return new MediaItem(*this); }

    // A null image leaves the canvas transparent. Emits no change, for bulk work; see emitDataChanged.
    void setThumbnail(const QImage& image, const QSize& canvasSize);
    [[nodiscard]] bool isHidden() const { return _hidden; }
    // Emits no change: after hiding many rows, the caller makes the proxy filter all of them once.
    void setHidden(bool hidden) { _hidden = hidden; }
    void notifyChanged() { emitDataChanged(); }
    // The display text of ColLastModified, cached by the file filter; null until then.
    [[nodiscard]] const QString& lastModifiedText() const { return _lastModifiedText; }
    void setLastModifiedText(const QString& text) { _lastModifiedText = text; }

private:
    QImage _thumbnail;
    QSize _canvasSize;
    QString _lastModifiedText;
    bool _hidden = false;
};

// The items of one row, in column order, owned by the caller until they are added to a model.
[[nodiscard]] QList<QStandardItem*> makeMediaRow(const MediaRecord& record, const QString& yes,
                                                 const QString& no);
