#pragma once

#include <QImage>
#include <QString>

#include <atomic>
#include <limits>
#include <memory>

// Keeps the pixels of thumbnails: in memory up to a budget, beyond it in memory-mapped files, whose unused
// pages the system can drop. The files have no name; each is freed with the last image in it.
class ThumbnailStore {
public:
    // Keeps all pixels in memory.
    ThumbnailStore() = default;
    // The budget in bytes; the directory of the files is made when the first is needed.
    ThumbnailStore(qint64 budget, const QString& directory) : _budget(budget), _directory(directory) {}

    // Returns an image of the same pixels, which stays valid when the store is destroyed. After a failure to
    // write a file, which is logged once, all further pixels stay in memory.
    [[nodiscard]] QImage keep(const QImage& image);
    [[nodiscard]] qint64 bytesInMemory() const { return *_inMemory; }

    // A quarter of the machine's memory, at most 800 MiB.
    [[nodiscard]] static qint64 usualBudget();

private:
    struct Segment;

    [[nodiscard]] QImage inMemory(const QImage& image) const;
    // Null where the pixels cannot be written.
    [[nodiscard]] QImage inFile(const QImage& image);
    [[nodiscard]] bool openSegment(qint64 leastBytes);

    qint64 _budget = std::numeric_limits<qint64>::max();
    QString _directory;
    std::shared_ptr<std::atomic<qint64>> _inMemory = std::make_shared<std::atomic<qint64>>(0);
    std::shared_ptr<Segment> _segment; // receives the next pixels
    bool _hasFailed = false;
};
