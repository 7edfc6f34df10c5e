#pragma once

#include <QImage>
#include <QSemaphore>
#include <QSize>
#include <QString>
#include <QThread>

#include <atomic>
#include <optional>

struct PreviewResult {
    QImage image; // null on failure
    QString error;
    // Size of the image in the file, if its header was read; invalid for an unknown format.
    std::optional<QSize> resolution = {};
};

// Decodes a file at full size and scales it into the given size, keeping its aspect ratio.
[[nodiscard]] PreviewResult decodePreview(const QString& filePath, const QSize& size);

// Decodes one file after another. The coordinator on the GUI thread begins a job and reads its result after
// imageLoaded; in between only the stop flag is shared. The thread stays alive between jobs, as starting one
// takes as long as decoding a small picture.
class ImageLoaderThread : public QThread {
    Q_OBJECT

public:
    ImageLoaderThread();

    // Precondition: neither busy nor stopped.
    void begin(const QString& imgFilePath, const QSize& size);
    // The thread ends after the running job.
    void requestStop();
    [[nodiscard]] bool isBusy() const { return _busy; }
    void setBusy(bool busy) { _busy = busy; }
    [[nodiscard]] QString imgFilePath() const { return _imgFilePath; }
    [[nodiscard]] QImage image() const { return _image; }
    [[nodiscard]] std::optional<QSize> resolution() const { return _resolution; }
    [[nodiscard]] QString error() const { return _error; }

signals:
    // Emitted in the worker's thread, once per job unless stopped.
    void imageLoaded();

protected:
    void run() override;

private:
    void load();

    QString _imgFilePath;
    QString _error;
    QSize _size;
    QImage _image;
    std::optional<QSize> _resolution;
    bool _busy = false;
    std::atomic<bool> _stop = false;
    QSemaphore _jobs;
};
