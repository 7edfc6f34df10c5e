#pragma once

#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QRect>
#include <QRectF>

#include <span>

// The pixel routines of the filters. A pixel is one 32-bit word 0xAARRGGBB; images must have 32 bits a pixel.
// All results are exact: no routine depends on the number of threads or on the processor.
namespace ImageDSP {

// Per channel c * factor + offset, truncated toward zero and clamped to 0 to 255. Keeps the format; alpha
// becomes 255.
[[nodiscard]] QImage brightness(const QImage& image, double factor, int offset);
// Channels above the point become 255. Keeps the format; alpha becomes 255.
[[nodiscard]] QImage whitePointed(const QImage& image, int point);
// Channels below the point become 0. Keeps the format; alpha becomes 255.
[[nodiscard]] QImage blackPointed(const QImage& image, int point);

// Recursive exponential blur of the rectangle, radius 1 to 18; below 1 the pixels stay. The result is
// Format_ARGB32_Premultiplied.
[[nodiscard]] QImage blurred(const QImage& image, const QRect& rect, int radius, bool alphaOnly);

// Convolves sourceRect of the source (null: all of it) into the destination at the position. The kernel is
// row-major. Taps outside the source are left out without renormalising the rest. The destination keeps its
// format and gets premultiplied words.
void convolute(QImage& destination, const QPointF& position, const QImage& source, const QRectF& sourceRect,
               QPainter::CompositionMode mode, std::span<const double> kernel, int kernelWidth,
               int kernelHeight);

} // namespace ImageDSP
