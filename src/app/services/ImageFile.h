#pragma once

#include <QByteArray>
#include <QString>

class QImage;
class QSizeF;

struct ImageFileOptions {
    // That of the file's suffix if empty.
    QByteArray format;
    // From 0 to 100; -1 leaves the choice to the format.
    int quality = -1;
    int compression = -1;
};

// Writes the image whole or not at all: format and image are checked and the image is encoded before the file
// is opened, and its old bytes stay until all new ones are on the disk. Links and permissions are kept. A
// failure sets `error`.
[[nodiscard]] bool writeImageFile(const QImage& image, const QString& filePath,
                                  const ImageFileOptions& options = {}, QString* error = nullptr);

// The bytes that writeImageFile would write to a file of that name; empty after a failure, which sets
// `error`.
[[nodiscard]] QByteArray encodedImageFile(const QImage& image, const QString& filePath,
                                          const ImageFileOptions& options = {}, QString* error = nullptr);

// The largest image to decode, in MiB, on a machine with so many bytes of memory: a quarter, at least 1 GiB.
[[nodiscard]] int imageAllocationLimit(quint64 memory);

// Sets that limit, for this machine's memory, on all image decoders of the process.
void raiseImageAllocationLimit();
// Whether an image of 32 bits a pixel would exceed the limit. Allocating one that does not fit into the
// memory would end the program.
[[nodiscard]] bool exceedsImageAllocationLimit(const QSizeF& size);
