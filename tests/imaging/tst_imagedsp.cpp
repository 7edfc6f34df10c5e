#include "imaging/ImageDSP.h"
#include "support/Rows.h"

#include <QCryptographicHash>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QThreadPool>

#include <functional>

namespace {

using Kernel = QList<double>;
using Routine = std::function<QImage(const QImage&)>;

// The results of a routine for images of all shapes. Compared as words, as colours would ignore the alpha of
// RGB32.
QByteArray digest(const Routine& routine) {
    QRandomGenerator random(1);
    QCryptographicHash words(QCryptographicHash::Md5);
    for (const QSize size : {QSize(1, 1), QSize(1, 2), QSize(2, 1), QSize(1, 37), QSize(41, 1), QSize(3, 3),
                             QSize(7, 16), QSize(17, 9), QSize(64, 8), QSize(33, 35), QSize(129, 67)}) {
        for (const auto format :
             {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
            // Its rows are longer than its width.
            QImage wide(size.width() + 3, size.height(), format);
            random.generate(reinterpret_cast<quint32*>(wide.bits()),
                            reinterpret_cast<quint32*>(wide.bits() + wide.sizeInBytes()));
            const QImage image(wide.constBits(), size.width(), size.height(), wide.bytesPerLine(), format);
            const QImage result = routine(image);
            words.addData(QByteArray::number(result.format()));
            for (int y = 0; y < result.height(); ++y)
                words.addData({reinterpret_cast<const char*>(result.constScanLine(y)), result.width() * 4});
        }
    }
    return words.result().toHex().first(8);
}

Routine brightness(double factor, int offset) {
    return [=](const QImage& image) { return ImageDSP::brightness(image, factor, offset); };
}

Routine blur(int radius, bool alphaOnly) {
    return [=](const QImage& image) { return ImageDSP::blurred(image, image.rect(), radius, alphaOnly); };
}

// A sum, as one blur of another would level out the differences.
QImage blurredByAll(const QImage& image) {
    QImage sum = image.copy();
    for (int radius = -1; radius <= 20; ++radius) {
        const QImage blurred = ImageDSP::blurred(image, image.rect(), radius, false);
        for (int y = 0; y < sum.height(); ++y) {
            auto* words = reinterpret_cast<quint32*>(sum.scanLine(y));
            for (int x = 0; x < sum.width(); ++x)
                words[x] = 31 * words[x] + reinterpret_cast<const quint32*>(blurred.constScanLine(y))[x];
        }
    }
    return sum;
}

Routine convolution(const Kernel& kernel, int width, int height,
                    QPainter::CompositionMode mode = QPainter::CompositionMode_Source) {
    return [=](const QImage& image) {
        QImage result = image;
        ImageDSP::convolute(result, {}, image, {}, mode, kernel, width, height);
        return result;
    };
}

} // namespace

// The pixels of each routine, which neither a faster implementation nor more threads may change.
class TestImageDSP : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }

    void pixelsStay_data() {
        const Kernel odd{0.4, -0.3, 0.1, 1.5, -0.9, 0.2, 0.6, -0.1, 0.3, -0.4,
                         0.2, 0.5,  0.1, 0.3, -0.2, 0.4, 0.1, -0.6, 0.7, 0.2};
        addRows<Routine, QByteArray>({
            {"as it is", brightness(1, 0), "9a5acbf3"},
            {"brighter", brightness(1, 10), "5ba84df1"},
            {"darker than black", brightness(0.5, -300), "46b7d101"},
            {"contrast", brightness(10.0 / 30, 1), "88111fbc"},
            {"beyond all numbers", brightness(1e300, -70000), "61a15c5e"},
            {"negative", brightness(-0.9, 255), "c81c0a5a"},
            {"white point", [](const QImage& image) { return ImageDSP::whitePointed(image, 128); },
             "959477f9"},
            {"black point", [](const QImage& image) { return ImageDSP::blackPointed(image, 128); },
             "93388065"},
            {"blur", blur(1, false), "dcb0547f"},
            {"each blur", blurredByAll, "a588e02d"},
            {"most blur", blur(20, false), "631140b5"},
            {"blur of alpha", blur(3, true), "fe36f107"},
            {"sharpen", convolution({-1, -1, -1, -1, 9, -1, -1, -1, -1}, 3, 3), "08e47e2e"},
            {"mean", convolution(Kernel(9, 1.0 / 9), 3, 3), "291e6574"},
            {"overflow", convolution({32767.75, 0, 0, 0, 0, 0, 0, 0, -32768}, 3, 3), "6cfe6c89"},
            {"one tap", convolution({1.5}, 1, 1), "8dd5fe12"},
            {"even and high", convolution(odd, 4, 5), "260833ee"},
            {"one row", convolution(odd.first(7), 7, 1), "1ec9d149"},
            {"drawn over", convolution(odd.first(9), 3, 3, QPainter::CompositionMode_SourceOver), "8b1798bb"},
        });
    }
    void pixelsStay() {
        const auto& [routine, expected] = row<Routine, QByteArray>();
        QThreadPool* const pool = QThreadPool::globalInstance();
        const int before = pool->maxThreadCount();
        for (const int threads : {1, 2, 16}) {
            pool->setMaxThreadCount(threads);
            QCOMPARE(digest(routine), expected);
        }
        pool->setMaxThreadCount(before);
    }
};

QTEST_GUILESS_MAIN(TestImageDSP)
#include "tst_imagedsp.moc"
