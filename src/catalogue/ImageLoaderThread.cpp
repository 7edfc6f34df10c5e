#include "catalogue/ImageLoaderThread.h"

#include "catalogue/MediaFormats.h"
#include "catalogue/MediaModel.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QImageReader>

PreviewResult decodePreview(const QString& filePath, const QSize& size) {
    QImageReader reader(filePath);
    // An image of the thumbnail's size is made and dropped: where not even that can be allocated, the file is
    // not decoded.
    if (QImage(size, QImage::Format_ARGB32_Premultiplied).isNull()) {
        qDebug() << "Error, unable to allocate image.";
        return {{}, QCoreApplication::translate("ImageLoaderThread", "Unable to allocate image.")};
    }
    PreviewResult result;
    // Opening a named pipe would block until a process writes to it. Missing files and directories are left
    // to the reader, whose error is reported.
    if (const QFileInfo info(filePath); info.isFile() || info.isDir() || !info.exists()) {
        bufferHead(reader);
        result.resolution = reader.size();
        result.image = reader.read();
    }
    // Scaling a null image would only log a warning of its own.
    if (!result.image.isNull())
        result.image = result.image.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
    if (result.image.isNull()) {
        qDebug() << "Image read error:" << reader.errorString();
        result.error = QCoreApplication::translate("ImageLoaderThread", "Image read error: %1")
                           .arg(reader.errorString());
    }
    return result;
}

ImageLoaderThread::ImageLoaderThread() {
    setObjectName(QLatin1StringView("ImageLoaderThread"));
}

void ImageLoaderThread::begin(const QString& imgFilePath, const QSize& size) {
    _imgFilePath = imgFilePath;
    _size = size;
    _busy = true;
    // Releasing and acquiring the semaphore also makes the fields above visible to the thread.
    _jobs.release();
    if (!isRunning())
        start(QThread::InheritPriority);
}

void ImageLoaderThread::requestStop() {
    _stop = true;
    _jobs.release();
}

void ImageLoaderThread::run() {
    for (;;) {
        _jobs.acquire();
        if (_stop)
            return;
        load();
        if (!_stop)
            emit imageLoaded();
    }
}

void ImageLoaderThread::load() {
    _image = {};
    _resolution.reset();
    _error.clear();
    if (_imgFilePath.isEmpty()) {
        _error = tr("Image file path empty.");
    } else if (supportedImageFormats().contains(QFileInfo(_imgFilePath).suffix().toLower())) {
        PreviewResult result = decodePreview(_imgFilePath, _size);
        _image = std::move(result.image);
        _resolution = result.resolution;
        _error = std::move(result.error);
    } else {
        qDebug() << "Unsupported file format:" << _imgFilePath;
    }
}
