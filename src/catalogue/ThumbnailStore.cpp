#include "catalogue/ThumbnailStore.h"

#include <QDebug>
#include <QDir>
#include <QTemporaryFile>

#include <algorithm>
#include <utility>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

constexpr qint64 mebibyte = qint64(1024) * 1024;
constexpr qint64 segmentBytes = 64 * mebibyte;
constexpr qint64 pixelAlignment = 64; // bytes

// An image that uses the bytes of an owner, which is deleted with the last copy of the image.
template <typename Owner>
QImage imageOver(const uchar* bytes, const QImage& like, Owner&& owner) {
    using Held = std::decay_t<Owner>;
    return QImage(
        bytes, like.width(), like.height(), like.bytesPerLine(), like.format(),
        [](void* held) { delete static_cast<Held*>(held); }, new Held(std::forward<Owner>(owner)));
}

// Pixels in memory, whose size is part of the total as long as they exist.
struct CountedImage {
    CountedImage(const QImage& pixels, std::shared_ptr<std::atomic<qint64>> total)
        : image(pixels), count(std::move(total)) {
        *count += image.sizeInBytes();
    }
    CountedImage(CountedImage&& other) noexcept
        : image(std::move(other.image)), count(std::move(other.count)) {}
    ~CountedImage() {
        if (count)
            *count -= image.sizeInBytes();
    }
    Q_DISABLE_COPY(CountedImage)
    CountedImage& operator=(CountedImage&&) = delete;

    QImage image;
    std::shared_ptr<std::atomic<qint64>> count;
};

} // namespace

// A file that is mapped as a whole and filled from its start.
struct ThumbnailStore::Segment {
    QTemporaryFile file;
    const uchar* bytes = nullptr;
    qint64 size = 0;
    qint64 used = 0;
};

qint64 ThumbnailStore::usualBudget() {
    // Below a gibibyte, as the rows of a large directory use some hundred megabytes besides.
    constexpr qint64 most = 800 * mebibyte;
#ifdef _SC_PHYS_PAGES
    return std::min(most, static_cast<qint64>(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE) / 4);
#else
    return most;
#endif
}

QImage ThumbnailStore::keep(const QImage& image) {
    // The stored form has no device pixel ratio, so the rare images with one are returned as they are.
    if (image.isNull() || image.devicePixelRatio() != 1)
        return image;
    if (*_inMemory + image.sizeInBytes() > _budget && !_hasFailed) {
        if (QImage kept = inFile(image); !kept.isNull())
            return kept;
        _hasFailed = true;
    }
    return inMemory(image);
}

QImage ThumbnailStore::inMemory(const QImage& image) const {
    return imageOver(image.constBits(), image, CountedImage(image, _inMemory));
}

QImage ThumbnailStore::inFile(const QImage& image) {
    const qint64 size = image.sizeInBytes();
    if ((!_segment || _segment->used + size > _segment->size) && !openSegment(size))
        return {};
    // Written to the file: copying into the mapping would end the program by a signal if the disk is full.
    QTemporaryFile& file = _segment->file;
    if (!file.seek(_segment->used) ||
        file.write(reinterpret_cast<const char*>(image.constBits()), size) != size) {
        qWarning() << "Error, unable to write thumbnails to the cache, they stay in memory:"
                   << file.errorString();
        return {};
    }
    const uchar* bytes = _segment->bytes + _segment->used;
    _segment->used += (size + pixelAlignment - 1) / pixelAlignment * pixelAlignment;
    return imageOver(bytes, image, std::shared_ptr(_segment));
}

bool ThumbnailStore::openSegment(qint64 leastBytes) {
    auto segment = std::make_shared<Segment>();
    // The file has its full size before it is mapped; being sparse, it takes disk space only as it fills.
    segment->size = std::max(segmentBytes, leastBytes);
    QDir().mkpath(_directory);
    segment->file.setFileTemplate(QDir(_directory).filePath(QStringLiteral("thumbnails-XXXXXX")));
    QFile& file = segment->file;
    // Unbuffered, as the mapping shows only what has reached the file.
    if (file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) && file.resize(segment->size))
        segment->bytes = file.map(0, segment->size);
    if (!segment->bytes) {
        qWarning() << "Error, unable to make a file for thumbnails, they stay in memory:" << _directory
                   << file.errorString();
        return false;
    }
    // A file without a name is freed when the program ends, even by a crash. Where the system cannot remove
    // the name of an open file, QTemporaryFile removes it at the end.
    segment->file.setAutoRemove(!QFile::remove(file.fileName()));
    _segment = std::move(segment);
    return true;
}
