#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

// Scales to a width and a height of which -1 leaves a side to follow the other; both -1 leave the image as it
// is. The aspect ratio is kept or not only where both are given. A null image where that is too large.
[[nodiscard]] QImage scaledPromptImage(const QImage& image, QSize size, bool keepAspectRatio);

// The image as a PNG file in memory. A failed save logs and gives what had been written.
[[nodiscard]] QByteArray pngBytes(const QImage& image);
