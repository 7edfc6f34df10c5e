#include "imaging/ImageDSP.h"

#include <QRandomGenerator>
#include <QThreadPool>
#include <QtTest>

#include <cmath>
#include <functional>

using Kernel = QList<double>;

namespace {

const QList<QSize> sizes{{1, 1},  {1, 2},  {2, 1},  {1, 37},  {41, 1}, {2, 2},   {3, 3},
                         {7, 16}, {17, 9}, {64, 8}, {33, 35}, {5, 24}, {129, 67}};

QImage randomImage(QSize size, QImage::Format format, quint32 seed = 1) {
    QRandomGenerator random(seed);
    QImage image(size, format);
    auto* const words = reinterpret_cast<quint32*>(image.bits());
    std::generate_n(words, size.width() * size.height(), [&random] { return random.generate(); });
    return image;
}

void addImageRows() {
    QTest::addColumn<QImage>("image");
    for (const QSize& size : sizes) {
        for (const auto format :
             {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied})
            QTest::addRow("%d by %d in format %d", size.width(), size.height(), format)
                << randomImage(size, format);
    }
}

// Words, not colours: a comparison of QImage would pass over the alpha of RGB32.
bool sameWords(const QImage& a, const QImage& b) {
    if (a.size() != b.size() || a.format() != b.format())
        return false;
    for (int y = 0; y < a.height(); ++y) {
        if (memcmp(a.constScanLine(y), b.constScanLine(y), size_t(4) * size_t(a.width())) != 0)
            return false;
    }
    return true;
}

QImage mapped(const QImage& image, const std::function<int(int)>& channel) {
    QImage result = image.copy();
    for (int y = 0; y < image.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = qRgba(channel(qRed(row[x])), channel(qGreen(row[x])), channel(qBlue(row[x])), 255);
    }
    return result;
}

int bright(int c, double factor, int offset) {
    return int(std::clamp(c * factor + offset, 0.0, 255.0));
}

// --- blur ----------------------------------------------------------------------------------------

void walk(QImage& image, QPoint at, QPoint step, QPoint last, int alpha, int firstByte) {
    const auto value = [&](int byte) -> uchar& { return image.scanLine(at.y())[4 * at.x() + byte]; };
    int state[4] = {};
    for (int byte = firstByte; byte < 4; ++byte)
        state[byte] = value(byte) * 16;
    while (at != last) {
        at += step;
        for (int byte = firstByte; byte < 4; ++byte) {
            int d = (value(byte) * 16 - state[byte]) * alpha;
            if (d < 0)
                d += 15;
            state[byte] += d >> 4;
            value(byte) = uchar(state[byte] >> 4);
        }
    }
}

QImage slowBlur(const QImage& image, const QRect& r, int radius, bool alphaOnly) {
    static const int table[] = {14, 10, 8, 6, 5, 5, 4, 3, 3, 3, 3, 2, 2, 2, 2, 2, 2};
    const int alpha = radius < 1 ? 16 : radius > 17 ? 1 : table[radius - 1];
    const int first = alphaOnly ? 3 : 0;
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int x = r.left(); x <= r.right(); ++x)
        walk(result, {x, r.top()}, {0, 1}, {x, r.bottom()}, alpha, first);
    for (int y = r.top(); y <= r.bottom(); ++y)
        walk(result, {r.left(), y}, {1, 0}, {r.right(), y}, alpha, first);
    for (int x = r.left(); x <= r.right(); ++x)
        walk(result, {x, r.bottom()}, {0, -1}, {x, r.top()}, alpha, first);
    for (int y = r.top(); y <= r.bottom(); ++y)
        walk(result, {r.right(), y}, {-1, 0}, {r.left(), y}, alpha, first);
    return result;
}

// --- convolution ---------------------------------------------------------------------------------

struct ConvolutionCall {
    Kernel kernel;
    int width = 3;
    int height = 3;
    QPainter::CompositionMode mode = QPainter::CompositionMode_Source;
};

QRgb convolvedWord(const QImage& process, const ConvolutionCall& call, QPoint at, QRgb under) {
    int channels[4];
    for (int byte = 0; byte < 4; ++byte) {
        qint64 sum = 0;
        for (int j = 0; j < call.height; ++j) {
            for (int i = 0; i < call.width; ++i) {
                const QPoint tap(at.x() - call.width / 2 + i, at.y() - call.height / 2 + j);
                const auto weight = qint32(65536 * call.kernel[j * call.width + i]);
                if (process.rect().contains(tap))
                    sum += qint64(weight) * process.constScanLine(tap.y())[4 * tap.x() + byte];
            }
        }
        channels[byte] = std::clamp(qint32(sum) >> 16, 0, 255);
    }
    const int a = channels[3];
    quint32 word = 0;
    for (int byte = 3; byte >= 0; --byte) {
        const int below = int(under >> (8 * byte) & 255);
        const bool replace = call.mode == QPainter::CompositionMode_Source;
        word += quint32(replace ? channels[byte] : ((below * (255 - a)) >> 8) + channels[byte]) << (8 * byte);
    }
    return word;
}

// Of a whole image over itself.
QImage slowConvolution(const QImage& image, const ConvolutionCall& call) {
    const QImage process = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage result = image.copy();
    for (int y = 0; y < image.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = convolvedWord(process, call, QPoint(x, y), row[x]);
    }
    return result;
}

QImage convolution(const QImage& image, const ConvolutionCall& call) {
    QImage result = image;
    ImageDSP::convolute(result, {}, image, {}, call.mode, call.kernel, call.width, call.height);
    return result;
}

Kernel randomKernel(int entries, double reach) {
    QRandomGenerator random(99);
    Kernel kernel;
    for (int i = 0; i < entries; ++i)
        kernel.append((random.generateDouble() * 2 - 1) * reach);
    return kernel;
}

} // namespace

// Each routine against the plain arithmetic, over images of all shapes.
class TestImageDSP : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }

    void pointRoutinesMatchTheirArithmetic_data() {
        addImageRows();
        QImage all(256, 256, QImage::Format_ARGB32);
        for (int y = 0; y < 256; ++y)
            for (int x = 0; x < 256; ++x)
                all.setPixel(x, y, qRgba(x, y, 255 - x, y));
        QTest::newRow("every channel value and alpha") << all;
        QTest::newRow("padded rows") << QImage(all.constBits(), 9, 5, all.bytesPerLine(),
                                               QImage::Format_ARGB32);
    }
    void pointRoutinesMatchTheirArithmetic() {
        QFETCH(QImage, image);
        QThreadPool* const pool = QThreadPool::globalInstance();
        const int before = pool->maxThreadCount();
        for (const int threads : {1, 2, 16}) {
            pool->setMaxThreadCount(threads);
            for (const double factor : {1.0, 0.5, 10.0 / 11, 10.0 / 30, 0.0, -0.9, 2.7, 1e300, -1e300}) {
                for (const int offset : {0, 1, -1, 10, -10, 255, -255, 300, -300, 70000, -70000})
                    QVERIFY2(sameWords(ImageDSP::brightness(image, factor, offset),
                                       mapped(image, [&](int c) { return bright(c, factor, offset); })),
                             qPrintable(QString("factor %1 offset %2").arg(factor).arg(offset)));
            }
            for (const int point : {-70000, -1, 0, 1, 40, 127, 128, 200, 254, 255, 256, 70000}) {
                QVERIFY(sameWords(ImageDSP::whitePointed(image, point),
                                  mapped(image, [=](int c) { return c > point ? 255 : c; })));
                QVERIFY(sameWords(ImageDSP::blackPointed(image, point),
                                  mapped(image, [=](int c) { return c < point ? 0 : c; })));
            }
        }
        pool->setMaxThreadCount(before);
    }

    void blurMatchesTheWalks_data() { addImageRows(); }
    void blurMatchesTheWalks() {
        QFETCH(QImage, image);
        const QImage before = image.copy();
        for (int radius = -1; radius <= 20; ++radius) {
            for (const bool alphaOnly : {false, true})
                QVERIFY2(sameWords(ImageDSP::blurred(image, image.rect(), radius, alphaOnly),
                                   slowBlur(image, image.rect(), radius, alphaOnly)),
                         qPrintable(QString("radius %1 alpha only %2").arg(radius).arg(alphaOnly)));
        }
        QVERIFY(sameWords(image, before));
    }

    void convolutionMatchesTheTaps_data() { addImageRows(); }
    void convolutionMatchesTheTaps() {
        QFETCH(QImage, image);
        const ConvolutionCall calls[] = {
            {{-1, -1, -1, -1, 9, -1, -1, -1, -1}},
            {{0, 0, 0, 0, 1, 0, 0, 0, 0}},
            {Kernel(9, 0.0)},
            {Kernel(9, 1.0 / 9)},
            {{0, 0.1, 0, 0.2, 0.3, 0.1, 0, 0.2, 0}},
            {randomKernel(9, 2)},
            {randomKernel(9, 30000)},
            {{32767.75, 0, 0, 0, 0, 0, 0, 0, -32768}},
            {{1.5}, 1, 1},
            {randomKernel(4, 1), 2, 2},
            {randomKernel(20, 0.4), 4, 5},
            {randomKernel(7, 0.4), 7, 1},
            {randomKernel(9, 0.5), 3, 3, QPainter::CompositionMode_SourceOver},
        };
        for (const ConvolutionCall& call : calls)
            QVERIFY2(
                sameWords(convolution(image, call), slowConvolution(image, call)),
                qPrintable(QString("%1 by %2 from %3").arg(call.width).arg(call.height).arg(call.kernel[0])));
    }
};

QTEST_GUILESS_MAIN(TestImageDSP)
#include "tst_imagedsp.moc"
