#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QThread>

#include <atomic>

struct PreviewResult {
    QImage image; // null on failure
    QString error;
};

// Decodes a file at full size and scales it into the given size, keeping its aspect ratio.
[[nodiscard]] PreviewResult decodePreview(const QString& filePath, const QSize& size);

// Decodes one file per run. The coordinator on the GUI thread hands out the job before start and takes the
// result after finished; only the stop flag is shared while it runs.
class ImageLoaderThread : public QThread {
    Q_OBJECT

public:
    ImageLoaderThread();

    void setJob(const QString& imgFilePath, const QSize& size);
    void requestStop() { _stop = true; }
    [[nodiscard]] bool isBusy() const { return _busy; }
    void setBusy(bool busy) { _busy = busy; }
    [[nodiscard]] QString imgFilePath() const { return _imgFilePath; }
    [[nodiscard]] QImage image() const { return _image; }
    [[nodiscard]] QString error() const { return _error; }

signals:
    void imageLoaded();

protected:
    void run() override;

private:
    QString _imgFilePath;
    QString _error;
    QSize _size;
    QImage _image;
    bool _busy = false;
    std::atomic<bool> _stop = false;
};
