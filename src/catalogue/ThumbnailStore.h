#pragma once

#include <QImage>
#include <QString>

#include <atomic>
#include <limits>
#include <memory>

// Keeps the pixels of thumbnails: in memory up to a budget, beyond it in files that are mapped, of which the
// system drops what nobody looks at. The files have no name and go with the last image that lies in them.
class ThumbnailStore {
public:
    // Keeps all pixels in memory.
    ThumbnailStore() = default;
    // The budget in bytes; the directory of the files is made when the first is needed.
    ThumbnailStore(qint64 budget, const QString& directory) : _budget(budget), _directory(directory) {}

    // An image of the same pixels, which outlives the store if need be. Where a file takes no more it is in
    // memory again, with a log line for the first.
    [[nodiscard]] QImage keep(const QImage& image);
    [[nodiscard]] qint64 bytesInMemory() const { return *_inMemory; }

    // A quarter of the machine's memory, at most 800 MiB.
    [[nodiscard]] static qint64 usualBudget();

private:
    struct Segment;

    [[nodiscard]] QImage inMemory(const QImage& image) const;
    // Null where the file takes no more.
    [[nodiscard]] QImage inFile(const QImage& image);
    [[nodiscard]] bool openSegment(qint64 leastBytes);

    qint64 _budget = std::numeric_limits<qint64>::max();
    QString _directory;
    std::shared_ptr<std::atomic<qint64>> _inMemory = std::make_shared<std::atomic<qint64>>(0);
    std::shared_ptr<Segment> _segment; // where the next pixels go
    bool _hasFailed = false;
};
