#include "imaging/ImageDSP.h"

#include "imaging/PixelBuffer.h"
#include "imaging/PixelLanes.h"

#include <QDebug>

#include <limits>
#include <vector>

namespace {

constexpr double weightOne = 65536.0;
constexpr double lowestWeight = std::numeric_limits<qint32>::min();
constexpr double highestWeight = std::numeric_limits<qint32>::max();
constexpr int lanePixels = 4;

// A kernel in 16.16 fixed point, row-major.
struct FixedKernel {
    int width = 0;
    int height = 0;
    std::vector<qint32> weights;
};

// Two taps of a pixel: where they lie relative to it, in bytes, and the halves of their weights.
struct TapPair {
    qsizetype first = 0;
    qsizetype second = 0;
    WeightPair high;
    WeightPair low;
};

struct Channels {
    int blue;
    int green;
    int red;
    int alpha;
};

FixedKernel fixedKernel(std::span<const double> kernel, int width, int height) {
    FixedKernel fixed{width, height, std::vector<qint32>(kernel.size())};
    std::transform(kernel.begin(), kernel.end(), fixed.weights.begin(), [](double w) {
        return static_cast<qint32>(std::clamp(weightOne * w, lowestWeight, highestWeight));
    });
    return fixed;
}

// weight = high * 65536 + low with both signed, so that 16-bit multiplications can carry either.
qint16 weightLow(qint32 weight) {
    return static_cast<qint16>(weight & 0xffff);
}

qint16 weightHigh(qint32 weight) {
    return static_cast<qint16>((qint64{weight} - weightLow(weight)) >> 16);
}

// Whether the highest halves fit 16 bits; a weight of 32767.5 or more would not.
bool weightsFitHalves(const FixedKernel& kernel) {
    return std::ranges::all_of(kernel.weights, [](qint32 w) { return w < 0x7fff8000; });
}

// The taps with a weight, two by two; an odd last one has a partner without weight.
std::vector<TapPair> tapPairs(const FixedKernel& kernel, qsizetype stride) {
    std::vector<TapPair> pairs;
    bool open = false;
    for (int index = 0; index < kernel.width * kernel.height; ++index) {
        const qint32 weight = kernel.weights[static_cast<size_t>(index)];
        if (weight == 0)
            continue;
        const qsizetype row = index / kernel.width - kernel.height / 2;
        const qsizetype column = index % kernel.width - kernel.width / 2;
        const qsizetype offset = row * stride + column * 4;
        if (!open)
            pairs.push_back({offset, offset, {}, {}});
        TapPair& pair = pairs.back();
        pair.second = offset;
        // Even lanes belong to the first tap of a pair, odd ones to the second.
        for (size_t lane = open ? 1 : 0; lane < 8; lane += 2) {
            pair.high.weights[lane] = weightHigh(weight);
            pair.low.weights[lane] = weightLow(weight);
        }
        open = !open;
    }
    return pairs;
}

// Convolves lanePixels pixels at a time; returns how many of the pixels it did. All their taps lie inside.
template <bool High, bool Low>
int convolveInterior(const std::vector<TapPair>& pairs, const uchar* in, uchar* out, int pixels) {
    int x = 0;
    for (; x + lanePixels <= pixels; x += lanePixels) {
        const uchar* const at = in + qsizetype{4} * x;
        TapSums high;
        TapSums low;
        for (const TapPair& pair : pairs) {
            if constexpr (High)
                high.addTaps(at + pair.first, at + pair.second, pair.high);
            if constexpr (Low)
                low.addTaps(at + pair.first, at + pair.second, pair.low);
        }
        high.raiseAndAdd(low);
        high.storeClamped(out + qsizetype{4} * x);
    }
    return x;
}

using InteriorStep = int (*)(const std::vector<TapPair>&, const uchar*, uchar*, int);

InteriorStep interiorStep(const FixedKernel& kernel) {
    // A half that is zero in all weights, as in kernels of whole numbers, costs no multiplications.
    const bool high = std::ranges::any_of(kernel.weights, [](qint32 w) { return weightHigh(w) != 0; });
    const bool low = std::ranges::any_of(kernel.weights, [](qint32 w) { return weightLow(w) != 0; });
    if (high && low)
        return convolveInterior<true, true>;
    return low ? convolveInterior<false, true> : convolveInterior<true, false>;
}

// The four sums of one pixel over the taps that lie inside the source, shifted and clamped.
Channels convolvePixel(const QImage& source, const FixedKernel& kernel, int x, int y) {
    const int left = x - kernel.width / 2;
    const int top = y - kernel.height / 2;
    const int lastTap = std::min(kernel.width, source.width() - left);
    const int lastRow = std::min(kernel.height, source.height() - top);
    const uchar* const bits = source.constBits();
    // Unsigned, so that sums wrap around as 32-bit registers do.
    std::array<quint32, 4> sums{};
    for (int j = std::max(0, -top); j < lastRow; ++j) {
        const uchar* const row = bits + (top + j) * source.bytesPerLine();
        const auto* const weights = kernel.weights.data() + qsizetype{j} * kernel.width;
        for (int i = std::max(0, -left); i < lastTap; ++i) {
            const auto weight = static_cast<quint32>(weights[i]);
            for (size_t c = 0; c < sums.size(); ++c)
                sums[c] += row[qsizetype{4} * (left + i) + static_cast<qsizetype>(c)] * weight;
        }
    }
    const auto channel = [&sums](size_t c) { return std::clamp(static_cast<qint32>(sums[c]) >> 16, 0, 255); };
    return {channel(0), channel(1), channel(2), channel(3)};
}

// Added, not combined bit by bit: a channel above 255 carries into the next one, on which results depend.
QRgb packedChannels(const Channels& c) {
    return (static_cast<QRgb>(c.alpha) << 24) + (static_cast<QRgb>(c.red) << 16) +
           (static_cast<QRgb>(c.green) << 8) + static_cast<QRgb>(c.blue);
}

QRgb blendedChannels(QRgb under, const Channels& c) {
    const auto blend = [a = c.alpha](int below, int above) { return ((below * (255 - a)) >> 8) + above; };
    return packedChannels({blend(qBlue(under), c.blue), blend(qGreen(under), c.green),
                           blend(qRed(under), c.red), blend(qAlpha(under), c.alpha)});
}

// The target rectangle in the destination and the source pixel that belongs to its top left corner.
struct ConvolutionArea {
    QRect target;
    QPoint sourceStart;
};

ConvolutionArea convolutionArea(const QRectF& region, const QPointF& position, const QRect& destination,
                                int kernelWidth, int kernelHeight) {
    const QMargins reach(kernelWidth / 2, kernelHeight / 2, (kernelWidth - 1) / 2, (kernelHeight - 1) / 2);
    const auto grown = [&reach](const QRectF& rect) { return rect.marginsAdded(reach).toAlignedRect(); };
    // Grown by the reach of the kernel: pixels beside the region get colour from inside it.
    const QRect moved = grown(QRectF(position, region.size()));
    const QRect target = moved & destination;
    // What the destination cuts off at the left and the top is skipped in the source as well.
    return {target, grown(region).topLeft() + (target.topLeft() - moved.topLeft())};
}

// One call of convolute() with all that is computed before its first pixel.
class Convolution {
public:
    Convolution(const QImage& source, FixedKernel kernel)
        : _source(source)
        , _kernel(std::move(kernel))
        , _pairs(tapPairs(_kernel, source.bytesPerLine()))
        , _interior(weightsFitHalves(_kernel) ? interiorStep(_kernel) : nullptr) {}

    // Replaces count pixels by those that belong to the source pixels from (x, y) on.
    void replaceRow(QRgb* out, int count, int x, int y) const {
        int done = 0;
        // Only rows and columns with all taps inside the source take the fast path.
        if (_interior && y >= _kernel.height / 2 && y + (_kernel.height - 1) / 2 < _source.height()) {
            const int begin = std::clamp(_kernel.width / 2 - x, 0, count);
            const int end = std::clamp(_source.width() - (_kernel.width - 1) / 2 - x, begin, count);
            replacePixels(out, begin, x, y);
            const uchar* const in = _source.constBits() + y * _source.bytesPerLine();
            done = begin + _interior(_pairs, in + qsizetype{4} * (x + begin),
                                     reinterpret_cast<uchar*>(out + begin), end - begin);
        }
        replacePixels(out + done, count - done, x + done, y);
    }

    void blendRow(QRgb* out, int count, int x, int y) const {
        for (int i = 0; i < count; ++i)
            out[i] = blendedChannels(out[i], convolvePixel(_source, _kernel, x + i, y));
    }

private:
    void replacePixels(QRgb* out, int count, int x, int y) const {
        for (int i = 0; i < count; ++i)
            out[i] = packedChannels(convolvePixel(_source, _kernel, x + i, y));
    }

    const QImage& _source;
    FixedKernel _kernel;
    std::vector<TapPair> _pairs;
    InteriorStep _interior;
};

} // namespace

void ImageDSP::convolute(QImage& destination, const QPointF& position, const QImage& source,
                         const QRectF& sourceRect, QPainter::CompositionMode mode,
                         std::span<const double> kernel, int kernelWidth, int kernelHeight) {
    qDebug() << "ImageDSP::convolute";
    const QImage process = source.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QRectF region = sourceRect.isNull() ? QRectF(process.rect()) : sourceRect;
    const Convolution convolution(process, fixedKernel(kernel, kernelWidth, kernelHeight));
    const auto [target, start] =
        convolutionArea(region, position, destination.rect(), kernelWidth, kernelHeight);
    const bool replace = mode == QPainter::CompositionMode_Source;
    // scanLine() would copy the pixels of a shared image, although each of them is replaced.
    if (replace && target == destination.rect() && !destination.isDetached())
        destination = blankLike(destination);
    for (int y = 0; y < target.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(destination.scanLine(target.top() + y)) + target.left();
        if (replace)
            convolution.replaceRow(row, target.width(), start.x(), start.y() + y);
        else
            convolution.blendRow(row, target.width(), start.x(), start.y() + y);
    }
}
