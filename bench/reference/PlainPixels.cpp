#include "reference/PlainPixels.h"

#include <algorithm>

namespace reference {

namespace {

void feedWalk(uchar* first, qsizetype step, int count, int weight) {
    std::array<int, 4> state{};
    for (size_t c = 0; c < 4; ++c)
        state[c] = first[c] * 16;
    for (int i = 1; i < count; ++i) {
        uchar* const pixel = first + i * step;
        for (size_t c = 0; c < 4; ++c) {
            state[c] += (pixel[c] * 16 - state[c]) * weight / 16;
            pixel[c] = static_cast<uchar>(state[c] >> 4);
        }
    }
}

QRgb convolvedPixel(const QImage& image, const std::array<int, 9>& kernel, int x, int y) {
    std::array<int, 4> sums{};
    for (int j = std::max(0, y - 1); j <= std::min(image.height() - 1, y + 1); ++j) {
        const uchar* const row = image.constScanLine(j);
        for (int i = std::max(0, x - 1); i <= std::min(image.width() - 1, x + 1); ++i) {
            const int tap = kernel[static_cast<size_t>((j - y + 1) * 3 + i - x + 1)];
            for (size_t c = 0; c < 4; ++c)
                sums[c] += tap * row[4 * i + static_cast<int>(c)];
        }
    }
    for (int& sum : sums)
        sum = std::clamp(sum, 0, 255);
    return qRgba(sums[2], sums[1], sums[0], sums[3]);
}

} // namespace

QImage mapped(QImage image, const std::function<int(int)>& channel) {
    std::array<uchar, 256> table{};
    for (int value = 0; value < 256; ++value)
        table[static_cast<size_t>(value)] = static_cast<uchar>(std::clamp(channel(value), 0, 255));
    for (int y = 0; y < image.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb word = row[x];
            row[x] = 0xff000000U | static_cast<QRgb>(table[word >> 16 & 255]) << 16 |
                     static_cast<QRgb>(table[word >> 8 & 255]) << 8 | table[word & 255];
        }
    }
    return image;
}

QImage blurredByColumns(const QImage& source, int weight) {
    QImage image = source.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    uchar* const bits = image.bits();
    const qsizetype stride = image.bytesPerLine();
    const int width = image.width();
    const int height = image.height();
    for (int x = 0; x < width; ++x)
        feedWalk(bits + 4 * x, stride, height, weight);
    for (int y = 0; y < height; ++y)
        feedWalk(bits + y * stride, 4, width, weight);
    for (int x = 0; x < width; ++x)
        feedWalk(bits + 4 * x + (height - 1) * stride, -stride, height, weight);
    for (int y = 0; y < height; ++y)
        feedWalk(bits + y * stride + 4 * (width - 1), -4, width, weight);
    return image;
}

QImage convolved(const QImage& image, const std::array<int, 9>& kernel) {
    QImage result(image.size(), image.format());
    for (int y = 0; y < image.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = convolvedPixel(image, kernel, x, y);
    }
    return result;
}

} // namespace reference
