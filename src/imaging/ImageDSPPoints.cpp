#include "imaging/ImageDSP.h"

#include "imaging/ParallelLoop.h"
#include "imaging/PixelBuffer.h"

#include <QDebug>
#include <QThread>

#include <algorithm>
#include <array>

namespace {

using ChannelTable = std::array<quint32, 256>;

constexpr quint32 opaqueAlpha = 0xff000000;

// Pixels a block: small enough for the second pass over it to stay in the first-level cache.
constexpr qsizetype blockPixels = 256;

// Runs a step(const quint32* in, quint32* out, qsizetype pixels) over all pixels on all processors.
template <typename Step>
QImage mapPixels(const QImage& image, const Step& step) {
    // The copy of an image over foreign memory has rows without padding.
    const QImage source = isFlat32Bit(image) ? image : image.copy();
    QImage result = blankLike(source);
    // Short of memory: a batch then reports that the file cannot be written.
    if (result.isNull())
        return result;
    const auto* in = reinterpret_cast<const quint32*>(source.constBits());
    auto* out = reinterpret_cast<quint32*>(result.bits());
    const qsizetype pixels = qsizetype{source.width()} * source.height();
    // All threads use the same step, which therefore only reads what it holds.
    parallelLoop(pixels, QThread::idealThreadCount(), [in, out, &step](qsizetype begin, qsizetype end) {
        step(in + begin, out + begin, end - begin);
    });
    return result;
}

// Maps every byte alike, then makes alpha 255: two plain loops a block, which compilers turn into vector
// code.
template <typename ByteMap>
void mapBytesOpaque(const quint32* in, quint32* out, qsizetype pixels, const ByteMap& map) {
    for (qsizetype done = 0; done < pixels; done += blockPixels) {
        const qsizetype block = std::min(blockPixels, pixels - done);
        const auto* from = reinterpret_cast<const uchar*>(in + done);
        quint32* const words = out + done;
        auto* const to = reinterpret_cast<uchar*>(words);
        for (qsizetype i = 0; i < block * 4; ++i)
            to[i] = map(from[i]);
        for (qsizetype i = 0; i < block; ++i)
            words[i] |= opaqueAlpha;
    }
}

ChannelTable brightnessTable(double factor, int offset) {
    ChannelTable table;
    for (int c = 0; c < 256; ++c) {
        const double x = c * factor + offset;
        // The conversion of a negative number to an unsigned one is undefined.
        table[static_cast<size_t>(c)] = x > 0.0 ? static_cast<quint32>(std::min(x, 255.0)) : 0;
    }
    return table;
}

void mapThroughTable(const quint32* in, quint32* out, qsizetype pixels, const ChannelTable& table) {
    for (qsizetype i = 0; i < pixels; ++i) {
        const quint32 p = in[i];
        out[i] = opaqueAlpha | table[p >> 16 & 255] << 16 | table[p >> 8 & 255] << 8 | table[p & 255];
    }
}

} // namespace

QImage ImageDSP::brightness(const QImage& image, double factor, int offset) {
    qDebug() << "ImageDSP::brightness";
    // Without a factor the sums stay whole numbers, which compilers vectorise.
    if (factor == 1.0) {
        // A larger offset makes every channel 0 or 255 as well, and these sums fit 16 bits.
        const auto shift = static_cast<qint16>(std::clamp(offset, -255, 255));
        return mapPixels(image, [shift](const quint32* in, quint32* out, qsizetype pixels) {
            mapBytesOpaque(in, out, pixels, [shift](uchar c) {
                const auto sum = static_cast<qint16>(c + shift);
                return static_cast<uchar>(sum < 0 ? 0 : sum > 255 ? 255 : sum);
            });
        });
    }
    return mapPixels(
        image, [table = brightnessTable(factor, offset)](const quint32* in, quint32* out, qsizetype pixels) {
            mapThroughTable(in, out, pixels, table);
        });
}

QImage ImageDSP::whitePointed(const QImage& image, int point) {
    qDebug() << "ImageDSP::whitePointed";
    // Every channel is above a negative point, also 0.
    const bool all = point < 0;
    const auto limit = static_cast<uchar>(std::clamp(point, 0, 255));
    return mapPixels(image, [all, limit](const quint32* in, quint32* out, qsizetype pixels) {
        if (all)
            std::fill_n(out, pixels, 0xffffffffU);
        else
            mapBytesOpaque(in, out, pixels,
                           [limit](uchar c) { return static_cast<uchar>(c > limit ? 255 : c); });
    });
}

QImage ImageDSP::blackPointed(const QImage& image, int point) {
    qDebug() << "ImageDSP::blackPointed";
    // No channel reaches a point above 255.
    const bool all = point > 255;
    const auto limit = static_cast<uchar>(std::clamp(point, 0, 255));
    return mapPixels(image, [all, limit](const quint32* in, quint32* out, qsizetype pixels) {
        if (all)
            std::fill_n(out, pixels, opaqueAlpha);
        else
            mapBytesOpaque(in, out, pixels,
                           [limit](uchar c) { return static_cast<uchar>(c < limit ? 0 : c); });
    });
}
