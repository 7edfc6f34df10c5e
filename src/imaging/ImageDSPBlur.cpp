#include "imaging/ImageDSP.h"

#include "imaging/PixelLanes.h"

#include <QDebug>

#include <vector>

namespace {

// Feedback weights in sixteenths for the radii 1 to 17.
constexpr std::array<quint16, 17> blurWeights{14, 10, 8, 6, 5, 5, 4, 3, 3, 3, 3, 2, 2, 2, 2, 2, 2};
constexpr quint16 noBlurWeight = 16;
constexpr quint16 strongestBlurWeight = 1;

// Rows of a band: the walks along and across handle them while they are in the cache.
constexpr int bandRows = 8;

quint16 blurWeight(int radius) {
    if (radius < 1)
        return noBlurWeight;
    if (radius > static_cast<int>(blurWeights.size()))
        return strongestBlurWeight;
    return blurWeights[static_cast<size_t>(radius) - 1];
}

// Filters all columns at once, row by row. The states start with the first row, which stays unchanged.
class ColumnWalk {
public:
    ColumnWalk(qsizetype pixels, quint16 alpha) : _states(static_cast<size_t>(pixels * 4)), _alpha(alpha) {}

    void start(const uchar* row) {
        for (size_t i = 0; i < _states.size(); ++i)
            _states[i] = static_cast<quint16>(row[i] << 4);
    }

    void step(uchar* row) {
        const size_t channels = _states.size();
        size_t i = 0;
        for (; i + 8 <= channels; i += 8) {
            BlurLanes lanes = BlurLanes::fromStates(&_states[i]);
            lanes.feed(BlurLanes::fromChannels(row + i), _alpha);
            lanes.storeStates(&_states[i]);
            lanes.storeChannels(row + i);
        }
        // A register holds two pixels; an odd width leaves one.
        if (i < channels)
            stepSinglePixel(row + i, &_states[i]);
    }

private:
    void stepSinglePixel(uchar* pixel, quint16* states) const {
        // The second half of the registers is unused.
        std::array<quint16, 8> both{};
        std::copy_n(states, 4, both.begin());
        BlurLanes lanes = BlurLanes::fromStates(both.data());
        lanes.feed(BlurLanes::fromPixels(pixel, pixel), _alpha);
        lanes.storeStates(both.data());
        std::copy_n(both.begin(), 4, states);
        std::array<uchar, 4> rest{};
        lanes.storePixels(pixel, rest.data());
    }

    std::vector<quint16> _states;
    quint16 _alpha;
};

// Walks 2 * Pairs rows side by side: a single walk would wait for its own result at every pixel. The rows
// begin at the first pixel of the walk; the step is 4 or -4 bytes.
template <size_t Pairs>
void walkRows(const std::array<uchar*, bandRows>& rows, qsizetype pixels, qsizetype step, quint16 alpha) {
    const auto walks = [&rows]<size_t... I>(std::index_sequence<I...>) {
        return std::array{BlurLanes::fromPixels(rows[2 * I], rows[2 * I + 1])...};
    };
    auto lanes = walks(std::make_index_sequence<Pairs>());
    // The first pixel is the initial state and keeps its value.
    for (qsizetype x = 1; x < pixels; ++x) {
        const qsizetype at = x * step;
        for (size_t i = 0; i < Pairs; ++i) {
            lanes[i].feed(BlurLanes::fromPixels(rows[2 * i] + at, rows[2 * i + 1] + at), alpha);
            lanes[i].storePixels(rows[2 * i] + at, rows[2 * i + 1] + at);
        }
    }
}

void walkBand(std::array<uchar*, bandRows> rows, int count, qsizetype pixels, qsizetype step, quint16 alpha) {
    if (count == bandRows) {
        walkRows<bandRows / 2>(rows, pixels, step, alpha);
        return;
    }
    for (size_t i = 0; i < static_cast<size_t>(count); i += 2) {
        // A last row without a partner fills both halves of a register; both write the same pixels.
        rows[0] = rows[i];
        rows[1] = i + 1 < static_cast<size_t>(count) ? rows[i + 1] : rows[i];
        walkRows<1>(rows, pixels, step, alpha);
    }
}

// The part of an image that is blurred. Rows are numbered in the direction of the walk.
struct BlurArea {
    uchar* firstRow;
    qsizetype rowStep;
    int rows;
    qsizetype pixels;
};

// Filters along the columns and along the rows in one pass, band by band, as no row depends on a later one.
void blurBothWays(const BlurArea& area, bool backward, quint16 alpha) {
    ColumnWalk columns(area.pixels, alpha);
    const qsizetype firstPixel = backward ? (area.pixels - 1) * 4 : 0;
    for (int done = 0; done < area.rows; done += bandRows) {
        const int count = std::min(bandRows, area.rows - done);
        std::array<uchar*, bandRows> starts{};
        // Down the columns first: the walk along a row reads what they have written.
        for (int i = 0; i < count; ++i) {
            uchar* const row = area.firstRow + (done + i) * area.rowStep;
            if (done + i == 0)
                columns.start(row);
            else
                columns.step(row);
            starts[static_cast<size_t>(i)] = row + firstPixel;
        }
        walkBand(starts, count, area.pixels, backward ? -4 : 4, alpha);
    }
}

void walkOneChannel(uchar* first, qsizetype step, qsizetype count, int alpha) {
    // Same arithmetic as the lanes: a state has 4 fractional bits.
    int state = *first * 16;
    for (qsizetype i = 1; i < count; ++i) {
        uchar& value = first[i * step];
        state += (value * 16 - state) * alpha / 16;
        value = static_cast<uchar>(state >> 4);
    }
}

void blurAlpha(uchar* topLeft, qsizetype stride, qsizetype width, qsizetype height, int alpha) {
    uchar* const channel = topLeft + 3;
    // The same four walks as in blurBothWays(), one after the other.
    for (qsizetype x = 0; x < width; ++x)
        walkOneChannel(channel + x * 4, stride, height, alpha);
    for (qsizetype y = 0; y < height; ++y)
        walkOneChannel(channel + y * stride, 4, width, alpha);
    for (qsizetype x = 0; x < width; ++x)
        walkOneChannel(channel + x * 4 + (height - 1) * stride, -stride, height, alpha);
    for (qsizetype y = 0; y < height; ++y)
        walkOneChannel(channel + y * stride + (width - 1) * 4, -4, width, alpha);
}

} // namespace

QImage ImageDSP::blurred(const QImage& image, const QRect& rect, int radius, bool alphaOnly) {
    qDebug() << "ImageDSP::blurred";
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QRect area = rect & result.rect();
    const quint16 alpha = blurWeight(radius);
    if (area.isEmpty() || alpha == noBlurWeight)
        return result;
    // bits() first: it detaches an image over foreign memory, and the copy may have rows of another length.
    uchar* const bits = result.bits();
    const qsizetype stride = result.bytesPerLine();
    uchar* const topLeft = bits + area.top() * stride + qsizetype{4} * area.left();
    if (alphaOnly) {
        blurAlpha(topLeft, stride, area.width(), area.height(), alpha);
        return result;
    }
    uchar* const bottomLeft = topLeft + (area.height() - 1) * stride;
    // First down and to the right, then up and to the left over the result: the order is part of it.
    blurBothWays({topLeft, stride, area.height(), area.width()}, false, alpha);
    blurBothWays({bottomLeft, -stride, area.height(), area.width()}, true, alpha);
    return result;
}
