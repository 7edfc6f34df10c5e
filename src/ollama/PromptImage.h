#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

// Scales to a width and a height. A side of -1 follows from the other; both -1 leave the image as it is. The
// aspect ratio is kept or not only where both are given. Null where the result would exceed the allocation
// limit.
[[nodiscard]] QImage scaledPromptImage(const QImage& image, QSize size, bool keepAspectRatio);

// The image as a PNG file in memory. A failure is logged and returns the bytes written so far.
[[nodiscard]] QByteArray pngBytes(const QImage& image);
