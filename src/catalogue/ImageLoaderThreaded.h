#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSize>
#include <QStringList>
#include <QVariant>

#include <optional>

class ImageLoaderThread;
class VideoImageLoader;

// Coordinates the preview load on the GUI thread: one queue of files, a pool of image workers and a pool of
// video loaders. The pools exist while a load runs.
class ImageLoaderThreaded : public QObject {
    Q_OBJECT

public:
    explicit ImageLoaderThreaded(QObject* parent = nullptr);
    ~ImageLoaderThreaded() override;

    // Takes effect for threads made later; at least one.
    void setImageThreadCount(int count) { _imageThreadCount = qMax(1, count); }
    void setPreviewSize(const QSize& size) { _previewSize = size; }
    void enqueue(const QString& filePath, bool startNow);
    void start();
    // Empties both pools; no result is emitted afterwards. A worker that is still decoding finishes in the
    // background.
    void stop();
    void processQueue();
    // Only while loadedImage is emitted: the image size that the decode of this file has read.
    [[nodiscard]] std::optional<QSize> resolutionOf(const QString& fileName) const;

signals:
    void loadedImage(QString fileName, QImage img);
    void loadedVideoImageMeta(QString fileName, QHash<QString, QVariant> videoMeta);
    void showMessage(QString msg);

public slots:
    void onImageLoaded();
    void onVideoImageLoaded(const QString& videoFilePath, const QImage& frame);
    // A file without a frame keeps its placeholder, and the next file is started.
    void onVideoImageFailed(const QString& videoFilePath);

private:
    [[nodiscard]] bool isAnythingRunning() const;
    void finishLoad();
    void createImageThreads();
    void createVideoThreads();
    template <typename Worker, typename IsBusy, typename Begin>
    void dispatch(const QList<Worker*>& pool, const QStringList& suffixes, const char* kind, IsBusy isBusy,
                  Begin begin);
    [[nodiscard]] QString takeFirstOf(const QStringList& suffixes);
    void destroyPools();
    void destroyImageThreads();
    void destroyVideoThreads();
    void abandon(ImageLoaderThread* worker);

    QStringList _queue;
    const ImageLoaderThread* _reporting = nullptr; // the worker whose result is being emitted
    QList<ImageLoaderThread*> _imageThreads;
    QList<VideoImageLoader*> _videoThreads;
    // Workers that were still decoding after a stop; each is deleted when its decode ends, at the latest by
    // the destructor.
    QList<ImageLoaderThread*> _abandonedThreads;
    QSize _previewSize;
    int _imageThreadCount = 4;
    int _videoThreadCount = 4;
    qint64 _startTime = 0;
    QStringList _videoFormats;
    QStringList _imageFormats;
};
