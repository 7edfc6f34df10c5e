#include "catalogue/MediaModel.h"

#include "catalogue/FileNaming.h"
#include "catalogue/MediaFormats.h"

#include <QDebug>
#include <QFileInfo>
#include <QIODevice>
#include <QImageReader>
#include <QPainter>

#include <array>

using namespace Qt::StringLiterals;

namespace {

QStandardItem* mediaCell(const QVariant& display, const QVariant& value) {
    auto* item = new QStandardItem;
    item->setData(display, Qt::DisplayRole);
    item->setData(value, RoleValue);
    return item;
}

bool isFullyOpaque(const QImage& image) {
    if (!image.hasAlphaChannel())
        return true;
    const QImage words = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < words.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(words.constScanLine(y));
        for (int x = 0; x < words.width(); ++x) {
            if (qAlpha(line[x]) != 255)
                return false;
        }
    }
    return true;
}

// Wraps around from 2^31 pixels on, which only a damaged header reports.
int pixelCount(const QSize& size) {
    return static_cast<int>(static_cast<qint64>(size.width()) * size.height());
}

} // namespace

QString embeddedComment(const QImageReader& reader) {
    constexpr std::array commentKeys{"Comment"_L1, "parameters"_L1, "Description"_L1};
    for (const QLatin1StringView key : commentKeys) {
        if (const QString text = reader.text(key); !text.isEmpty())
            return text;
    }
    return {};
}

void bufferHead(QImageReader& reader) {
    if (QIODevice* file = reader.device(); file->open(QIODevice::ReadOnly))
        // One byte makes the file fill its whole buffer.
        file->peek(1);
}

MediaRecord readMediaRecord(const QString& filePath) {
    const QFileInfo info(filePath);
    MediaRecord record;
    record.filePath = filePath;
    // Opening a named pipe would block until a process writes to it.
    if (info.isFile()) {
        QImageReader reader(filePath);
        bufferHead(reader);
        record.resolution = reader.size();
        record.comment = embeddedComment(reader);
    }
    record.fileName = info.fileName();
    record.path = info.path();
    record.suffix = info.suffix();
    record.size = info.size();
    record.lastModified = info.fileTime(QFile::FileModificationTime);
    record.hasTxtFile = hasFilledTxtFile(filePath);
    return record;
}

bool hasFilledTxtFile(const QString& filePath) {
    const QString sidecar = imgFilePathToTxtFilePath(filePath);
    // A file that does not exist has the size 0.
    return !sidecar.isEmpty() && QFileInfo(sidecar).size() != 0;
}

QString resolutionText(const QSize& resolution) {
    return u"%1x%2"_s.arg(resolution.width()).arg(resolution.height());
}

QSize resolutionFromText(const QString& text) {
    const qsizetype cross = text.indexOf(u'x');
    if (cross < 0)
        return {};
    // "-1x-1" of an unknown resolution gives an invalid size.
    return {QStringView(text).first(cross).toInt(), QStringView(text).sliced(cross + 1).toInt()};
}

QString mediaToolTip(const QSize& resolution, const QString& filePath) {
    const QFileInfo info(filePath);
    return resolutionText(resolution) + u' ' + info.suffix().toUpper() + u'\n' + info.fileName() + u'\n' +
           info.path();
}

QImage centredOnCanvas(const QImage& image, const QSize& canvasSize) {
    QImage canvas(canvasSize, QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull()) {
        qDebug() << "Error, unable to allocate image.";
        return canvas;
    }
    canvas.fill(Qt::transparent);
    if (!image.isNull()) {
        const QPoint origin((canvas.width() - image.width()) / 2, (canvas.height() - image.height()) / 2);
        QPainter painter(&canvas);
        // A source rectangle beyond the image is clipped together with the target, so the scale stays 1.
        painter.drawImage(canvas.rect(), image, QRect(-origin, canvasSize));
    }
    return canvas;
}

QImage compactThumbnail(const QImage& image) {
    if (image.isNull())
        return image;
    return image.convertToFormat(isFullyOpaque(image) ? QImage::Format_RGB888
                                                      : QImage::Format_ARGB32_Premultiplied);
}

QList<QStandardItem*> makeMediaRow(const MediaRecord& record, const QString& yes, const QString& no) {
    QList<QStandardItem*> row;
    // Filled in the order of MediaColumn.
    row.reserve(MediaColumnCount);

    auto* name = new MediaItem;
    name->setData(mediaToolTip(record.resolution, record.filePath), Qt::ToolTipRole);
    name->setData(record.fileName, Qt::DisplayRole);
    name->setData(record.filePath, RoleValue);
    row.append(name);

    QStandardItem* path = mediaCell(record.path, record.path);
    // A plain item: GCC would inline the override of MediaItem here and warn of its members.
    path->QStandardItem::setData(record.path, Qt::ToolTipRole);
    row.append(path);

    row.append(mediaCell(formatSize(record.size, 1), record.size));
    row.append(mediaCell(resolutionText(record.resolution), pixelCount(record.resolution)));
    row.append(mediaCell(record.lastModified, record.lastModified));
    // The cells of videos have items from the start, which the metadata of a clip fills later.
    for (int column = ColDuration; column <= ColVideoFrameRate; ++column)
        row.append(new QStandardItem);

    const QString hasComment = record.comment.isEmpty() ? no : yes;
    QStandardItem* comment = mediaCell(hasComment, hasComment);
    comment->QStandardItem::setData(record.comment, RoleComment);
    row.append(comment);

    row.append(mediaCell(record.suffix, record.suffix));
    row.append(mediaCell(record.hasTxtFile ? yes : no, record.hasTxtFile));
    return row;
}
