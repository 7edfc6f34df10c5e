#include "app/MainWindow.h"

#include "app/services/Settings.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/VideoMeta.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QFileInfo>
#include <QImageReader>

#include <optional>

namespace {

constexpr QMargins gridMargins(11, 11, 11, 11);

// Opening a named pipe would block until a process writes to it.
QSize imageSize(const QString& filePath) {
    return QFileInfo(filePath).isFile() ? QImageReader(filePath).size() : QSize();
}

} // namespace

QSize MainWindow::previewSize() const {
    return ui->listView->gridSize().shrunkBy(gridMargins);
}

void MainWindow::queuePreview(const QString& filePath, const QSize& size) {
    if (MediaItem* item = enqueuePreview(filePath, size))
        item->notifyChanged();
}

void MainWindow::queuePreviews(const QStringList& filePaths) {
    const QSize size = previewSize();
    for (const QString& filePath : filePaths)
        enqueuePreview(filePath, size);
}

MediaItem* MainWindow::enqueuePreview(const QString& filePath, const QSize& size) {
    if (!_imageLoader) {
        _imageLoader = new ImageLoaderThreaded(this);
        connect(_imageLoader, &ImageLoaderThreaded::loadedImage, this, &MainWindow::onItemImageLoaded);
        connect(_imageLoader, &ImageLoaderThreaded::loadedVideoImageMeta, this,
                &MainWindow::onItemVideoImageMetaLoaded);
        connect(_imageLoader, &ImageLoaderThreaded::showMessage, this, &MainWindow::onShowMessage);
        // This size serves all loads until the program ends. A larger grid only enlarges the canvas.
        _imageLoader->setImageThreadCount(Settings::instance()->get(keys::imagePreviewThreadCount));
        _imageLoader->setPreviewSize(size);
    }
    _imageLoader->enqueue(filePath, false);
    // The null thumbnail gives the row its final size at once. The tool tip is set together with the real
    // one: reading the header of every queued file here would double the time of a scan.
    MediaItem* item = _itemModel->itemOf(filePath);
    if (item)
        item->setThumbnail({}, size);
    else
        qDebug() << "Error, unable to find model item for:" << filePath;
    return item;
}

void MainWindow::setItemImage(const QString& filePath, const QSize& size, const QImage& image) {
    MediaItem* item = _itemModel->itemOf(filePath);
    if (!item) {
        qDebug() << "Error, unable to find model item for:" << filePath;
        return;
    }
    _itemModel->setThumbnail(*item, image, size);
    const std::optional<QSize> resolution =
        _imageLoader ? _imageLoader->resolutionOf(filePath) : std::nullopt;
    item->setData(mediaToolTip(resolution ? *resolution : imageSize(filePath), filePath), Qt::ToolTipRole);
    _itemModel->announceThumbnail(filePath);
}

void MainWindow::onItemImageLoaded(const QString& fileName, const QImage& img) {
    if (img.isNull())
        qDebug() << "--- null image from thread:" << fileName;
    setItemImage(fileName, previewSize(), img);
}

void MainWindow::onItemVideoImageMetaLoaded(const QString& fileName,
                                            const QHash<QString, QVariant>& videoMeta) {
    MediaItem* item = _itemModel->itemOf(fileName);
    if (!item) {
        qDebug() << "Error, unable to find model item for:" << fileName;
        return;
    }
    item->setData(videoMeta, RoleVideoMeta);
    item->setData(mediaToolTip(videoResolution(videoMeta), fileName), Qt::ToolTipRole);
    const int row = item->row();
    const auto cellItem = [&](MediaColumn column) {
        QStandardItem* cell = _itemModel->item(row, column);
        if (!cell)
            qDebug() << "Error, unable to get item for column" << int(column) << "for:" << fileName;
        return cell;
    };
    const auto cells = videoMetaCells(videoMeta);
    for (const VideoMetaCell& cell : cells) {
        if (QStandardItem* target = cellItem(cell.column)) {
            target->setData(cell.display, Qt::DisplayRole);
            target->setData(cell.value, RoleValue);
        }
    }
    if (QStandardItem* comment = cellItem(ColComment)) {
        const QString text = videoMeta.value(QStringLiteral("Comment")).toString();
        // The raw value, by which the column is sorted, stays as the scan has set it.
        comment->setData(text.isEmpty() ? tr("No") : tr("Yes"), Qt::DisplayRole);
        comment->setData(text, RoleComment);
    }
}
