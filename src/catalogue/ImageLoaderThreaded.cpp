#include "catalogue/ImageLoaderThreaded.h"

#include "catalogue/ImageLoaderThread.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/VideoImageLoader.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDebug>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace {

constexpr int stopDeadlineMs = 250;

QString queueSuffix(const QString& filePath) {
    return QFileInfo(filePath).suffix().toLower();
}

} // namespace

ImageLoaderThreaded::ImageLoaderThreaded(QObject* parent)
    : QObject(parent), _videoFormats(supportedVideoFormats()), _imageFormats(supportedImageFormats()) {}

ImageLoaderThreaded::~ImageLoaderThreaded() {
    stop();
    for (ImageLoaderThread* worker : std::as_const(_abandonedThreads)) {
        // Without a deadline: destroying a QThread that still runs would end the process.
        worker->wait();
        delete worker;
    }
}

void ImageLoaderThreaded::enqueue(const QString& filePath, bool startNow) {
    _queue.append(filePath);
    if (startNow)
        processQueue();
}

void ImageLoaderThreaded::start() {
    _startTime = QDateTime::currentMSecsSinceEpoch();
    processQueue();
}

void ImageLoaderThreaded::stop() {
    _queue.clear();
    destroyPools();
}

void ImageLoaderThreaded::processQueue() {
    qDebug() << "ImageLoaderThreaded::processQueue" << _queue.size();
    const auto isMedia = [this](const QString& filePath) {
        const QString suffix = queueSuffix(filePath);
        return _videoFormats.contains(suffix) || _imageFormats.contains(suffix);
    };
    // An import queues any file, also a text.
    while (!_queue.isEmpty() && !isMedia(_queue.constFirst()))
        qDebug() << "Error, neither image nor video:" << _queue.takeFirst();
    if (_queue.isEmpty()) {
        if (!isAnythingRunning())
            finishLoad();
        return;
    }
    // Only the kind of the first file is started. Files of the other kind follow when one of them is the
    // first.
    if (_videoFormats.contains(queueSuffix(_queue.constFirst()))) {
        createVideoThreads();
        dispatch(_videoThreads, _videoFormats, "video", &VideoImageLoader::isRunning,
                 [](VideoImageLoader* loader, const QString& filePath) {
                     loader->setRunning(true);
                     loader->grabFrame(filePath, 0);
                 });
    } else {
        createImageThreads();
        dispatch(_imageThreads, _imageFormats, "image", &ImageLoaderThread::isBusy,
                 [this](ImageLoaderThread* worker, const QString& filePath) {
                     worker->begin(filePath, _previewSize);
                 });
    }
}

std::optional<QSize> ImageLoaderThreaded::resolutionOf(const QString& fileName) const {
    // A slot that stops the load deletes the worker, so the pool is searched before the pointer is used.
    if (!_reporting || !_imageThreads.contains(_reporting) || _reporting->imgFilePath() != fileName)
        return std::nullopt;
    return _reporting->resolution();
}

bool ImageLoaderThreaded::isAnythingRunning() const {
    return std::ranges::any_of(_imageThreads, &ImageLoaderThread::isBusy) ||
           std::ranges::any_of(_videoThreads, &VideoImageLoader::isRunning);
}

void ImageLoaderThreaded::finishLoad() {
    qDebug() << "Loaded all media previews.";
    const double seconds = static_cast<double>(QDateTime::currentMSecsSinceEpoch() - _startTime) / 1000.0;
    emit showMessage(tr("Loaded all media previews in: %1 s").arg(seconds));
    destroyPools();
}

void ImageLoaderThreaded::createImageThreads() {
    if (_imageThreads.size() == _imageThreadCount)
        return;
    while (_imageThreads.size() < _imageThreadCount) {
        // Without a parent, as abandon() may have to keep the worker beyond its pool.
        auto* worker = new ImageLoaderThread;
        // Emitted in the worker's thread, so the slot runs queued on the GUI thread.
        connect(worker, &ImageLoaderThread::imageLoaded, this, &ImageLoaderThreaded::onImageLoaded);
        _imageThreads.append(worker);
    }
    qDebug() << "Created image threads:" << _imageThreads.size();
}

void ImageLoaderThreaded::createVideoThreads() {
    if (_videoThreads.size() == _videoThreadCount)
        return;
    while (_videoThreads.size() < _videoThreadCount) {
        auto* loader = new VideoImageLoader;
        loader->setSize(_previewSize);
        connect(loader, &VideoImageLoader::imageFrame, this, &ImageLoaderThreaded::onVideoImageLoaded);
        connect(loader, &VideoImageLoader::failed, this, &ImageLoaderThreaded::onVideoImageFailed);
        _videoThreads.append(loader);
    }
    qDebug() << "Created video threads:" << _videoThreads.size();
}

// Starts jobs for queued files of the given kind on the idle workers of a pool.
template <typename Worker, typename IsBusy, typename Begin>
void ImageLoaderThreaded::dispatch(const QList<Worker*>& pool, const QStringList& suffixes, const char* kind,
                                   IsBusy isBusy, Begin begin) {
    for (qsizetype tries = 0; tries < pool.size() && !_queue.isEmpty(); ++tries) {
        const auto idle = std::ranges::find_if_not(pool, isBusy);
        if (idle == pool.end()) {
            qDebug("Info, got null %s thread.", kind);
            return;
        }
        const QString filePath = takeFirstOf(suffixes);
        if (filePath.isEmpty())
            return;
        begin(*idle, filePath);
    }
}

QString ImageLoaderThreaded::takeFirstOf(const QStringList& suffixes) {
    const auto found = std::ranges::find_if(
        _queue, [&](const QString& path) { return suffixes.contains(queueSuffix(path)); });
    return found == _queue.end() ? QString() : _queue.takeAt(found - _queue.begin());
}

void ImageLoaderThreaded::onImageLoaded() {
    // A signal that was queued before stop() may arrive after its sender was deleted; sender() is null then.
    auto* worker = qobject_cast<ImageLoaderThread*>(sender());
    if (!worker) {
        qDebug() << "Error, unable to case to thread!";
        return;
    }
    if (worker->image().isNull()) {
        qDebug() << "Image loaded in thread is empty:"
                 << "_queue.size:" << _queue.size() << "_imgFilePath:" << worker->imgFilePath()
                 << "_image:" << worker->image() << "_error:" << worker->error()
                 << "isFinished:" << worker->isFinished() << "isRunning:" << worker->isRunning();
    }
    // A slot may call stop(), which deletes the worker or removes it from the pool.
    const QPointer<ImageLoaderThread> guard(worker);
    _reporting = worker;
    emit loadedImage(worker->imgFilePath(), worker->image());
    _reporting = nullptr;
    if (!guard || !_imageThreads.contains(worker))
        return;
    worker->setBusy(false);
    processQueue();
}

void ImageLoaderThreaded::onVideoImageLoaded(const QString& videoFilePath, const QImage& frame) {
    qDebug() << "ImageLoaderThreaded::onVideoImageLoaded";
    auto* loader = qobject_cast<VideoImageLoader*>(sender());
    if (!loader) {
        qDebug() << "Error, unable to case to VideoImageLoader thread!";
        return;
    }
    // A slot may call stop(), which removes the loader from the pool.
    const QPointer<VideoImageLoader> guard(loader);
    const auto isStopped = [this, &guard] { return !guard || !_videoThreads.contains(guard.get()); };
    emit loadedImage(videoFilePath, frame);
    if (isStopped())
        return;
    // After the thumbnail, whose tool tip has no resolution yet: QImageReader cannot read clips.
    emit loadedVideoImageMeta(videoFilePath, loader->videoMeta());
    if (isStopped())
        return;
    loader->setRunning(false);
    processQueue();
}

void ImageLoaderThreaded::onVideoImageFailed(const QString& videoFilePath) {
    qDebug() << "Error, no frame from video:" << videoFilePath;
    if (auto* loader = qobject_cast<VideoImageLoader*>(sender())) {
        loader->setRunning(false);
        processQueue();
    }
}

void ImageLoaderThreaded::destroyPools() {
    destroyImageThreads();
    destroyVideoThreads();
}

void ImageLoaderThreaded::destroyImageThreads() {
    for (ImageLoaderThread* worker : std::as_const(_imageThreads)) {
        worker->disconnect(this);
        worker->requestStop();
    }
    // All workers were asked to stop before, so they end side by side within one deadline.
    const QDeadlineTimer deadline(stopDeadlineMs);
    for (ImageLoaderThread* worker : std::as_const(_imageThreads)) {
        if (worker->wait(deadline)) {
            delete worker;
        } else {
            qDebug() << "Waited for thread to finish, terminating.";
            abandon(worker);
        }
    }
    _imageThreads.clear();
}

void ImageLoaderThreaded::destroyVideoThreads() {
    for (VideoImageLoader* loader : std::as_const(_videoThreads)) {
        loader->disconnect(this);
        loader->stopPlayer();
        // This may run inside a signal of the loader, so it is deleted later, at the latest as a child of
        // this object.
        loader->setParent(this);
        loader->deleteLater();
    }
    _videoThreads.clear();
}

// Terminating a thread inside an image decoder could crash the process, so it is left to finish.
void ImageLoaderThreaded::abandon(ImageLoaderThread* worker) {
    _abandonedThreads.append(worker);
    connect(worker, &QThread::finished, this, [this, worker] {
        if (_abandonedThreads.removeOne(worker)) {
            // QThread emits finished() shortly before its thread has really ended.
            worker->wait();
            delete worker;
        }
    });
    // The thread may have ended after the wait and before the connection was made.
    if (worker->isFinished() && _abandonedThreads.removeOne(worker)) {
        worker->wait();
        delete worker;
    }
}
