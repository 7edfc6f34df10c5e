#pragma once

#include <QImage>

// A new image of the same size and format whose pixels are not set. Resolution, texts and colour space are
// copied, as in QImage::copy().
[[nodiscard]] QImage blankLike(const QImage& image);

// Whether the rows follow one another without padding, so that the pixels form one flat array of words.
[[nodiscard]] bool isFlat32Bit(const QImage& image);
