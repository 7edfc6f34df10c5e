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
    // Returns with both pools empty; no result comes after it. A worker that is still decoding finishes
    // alone.
    void stop();
    void processQueue();
    // While loadedImage reports a picture: the size of the file, which its decode has just read.
    [[nodiscard]] std::optional<QSize> resolutionOf(const QString& fileName) const;

signals:
    void loadedImage(QString fileName, QImage img);
    void loadedVideoImageMeta(QString fileName, QHash<QString, QVariant> videoMeta);
    void showMessage(QString msg);

public slots:
    void onImageLoaded();
    void onVideoImageLoaded(const QString& videoFilePath, const QImage& frame);
    // A file without a frame keeps its placeholder, and the queue goes on.
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
    const ImageLoaderThread* _reporting = nullptr;
    QList<ImageLoaderThread*> _imageThreads;
    QList<VideoImageLoader*> _videoThreads;
    // Workers that outlasted a stop; each is deleted when its decode ends, the last ones by the destructor.
    QList<ImageLoaderThread*> _abandonedThreads;
    QSize _previewSize;
    int _imageThreadCount = 4;
    int _videoThreadCount = 4;
    qint64 _startTime = 0;
    QStringList _videoFormats;
    QStringList _imageFormats;
};
