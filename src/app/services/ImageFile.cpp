#include "app/services/ImageFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <QSizeF>

#include <algorithm>
#include <limits>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <unistd.h>
#endif

namespace {

// In bytes; 0 where the system does not report it.
quint64 physicalMemory() {
#ifdef Q_OS_WIN
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    return GlobalMemoryStatusEx(&status) ? status.ullTotalPhys : 0;
#else
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    return pages > 0 && pageSize > 0 ? static_cast<quint64>(pages) * static_cast<quint64>(pageSize) : 0;
#endif
}

// Returns the error text; empty on success.
QString encodeImage(const QImage& image, const QByteArray& format, const ImageFileOptions& options,
                    QBuffer& encoded) {
    QImageWriter writer(&encoded, format);
    writer.setQuality(options.quality);
    writer.setCompression(options.compression);
    return writer.canWrite() && writer.write(image) ? QString() : writer.errorString();
}

QString replaceFile(const QString& filePath, const QByteArray& bytes) {
    QSaveFile file(filePath);
    // For a writable file in a read-only directory, where no temporary file can be created beside it.
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return QImageWriter::tr("Device not writable");
    // A full disk accepts the first bytes without an error; only writing the rest reports the reason.
    qint64 written = 0;
    for (qint64 count = 1; count > 0 && written < bytes.size(); written += count)
        count = file.write(bytes.constData() + written, bytes.size() - written);
    return written == bytes.size() && file.commit() ? QString() : file.errorString();
}

} // namespace

bool writeImageFile(const QImage& image, const QString& filePath, const ImageFileOptions& options,
                    QString* error) {
    QString failure;
    const QByteArray bytes = encodedImageFile(image, filePath, options, &failure);
    if (failure.isEmpty())
        failure = replaceFile(filePath, bytes);
    if (error)
        *error = failure;
    return failure.isEmpty();
}

QByteArray encodedImageFile(const QImage& image, const QString& filePath, const ImageFileOptions& options,
                            QString* error) {
    const QByteArray format =
        options.format.isEmpty() ? QFileInfo(filePath).suffix().toLower().toLatin1() : options.format;
    QBuffer encoded;
    const QString failure = encodeImage(image, format, options, encoded);
    if (error)
        *error = failure;
    return failure.isEmpty() ? encoded.data() : QByteArray();
}

int imageAllocationLimit(quint64 memory) {
    constexpr quint64 leastMiB = 1024;
    constexpr quint64 mostMiB = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(memory / 4 / (quint64{1024} * 1024), leastMiB, mostMiB));
}

bool exceedsImageAllocationLimit(const QSizeF& size) {
    constexpr double bytesPerPixel = 4;
    constexpr double bytesPerMiB = 1024 * 1024;
    // In floating point, as sides that a user types may exceed any integer.
    return size.width() * size.height() * bytesPerPixel > QImageReader::allocationLimit() * bytesPerMiB;
}

void raiseImageAllocationLimit() {
    QImageReader::setAllocationLimit(imageAllocationLimit(physicalMemory()));
}
