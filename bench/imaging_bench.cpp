// Pixel operations on a picture of 24 megapixels.

#include "Ratio.h"
#include "imaging/ImageDSP.h"
#include "reference/PlainPixels.h"

#include <QImage>
#include <QThread>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <array>
#include <random>
#include <span>

namespace {

constexpr int photoWidth = 6000;
constexpr int photoHeight = 4000;

const QImage& photo() {
    static const QImage image = [] {
        QImage made(photoWidth, photoHeight, QImage::Format_ARGB32_Premultiplied);
        std::mt19937 random(7);
        for (int y = 0; y < photoHeight; ++y) {
            auto* const row = reinterpret_cast<QRgb*>(made.scanLine(y));
            for (int x = 0; x < photoWidth; ++x) {
                const QRgb noise = random();
                row[x] = qRgb((x / 24 + static_cast<int>(noise & 15)) & 255,
                              (y / 16 + static_cast<int>(noise >> 8 & 15)) & 255,
                              ((x + y) / 40 + static_cast<int>(noise >> 16 & 15)) & 255);
            }
        }
        return made;
    }();
    return image;
}

using Kernel = std::array<double, 9>;

constexpr Kernel sharpenKernel{-1, -1, -1, -1, 9, -1, -1, -1, -1};
constexpr Kernel unevenKernel{-0.7, 0.3, -1.1, 0.9, 2.6, -0.4, 0.15, -0.8, 0.05};

// The image's pixels as a matrix of the other library; nothing is copied.
cv::Mat matOf(const QImage& image) {
    return cv::Mat(image.height(), image.width(), CV_8UC4, const_cast<uchar*>(image.constBits()),
                   static_cast<size_t>(image.bytesPerLine()));
}

// Alpha is left out: only our side keeps the picture opaque.
void requireEqual(const QImage& ours, const QImage& other, int tolerance = 0) {
    for (int y = 0; y < ours.height(); ++y) {
        const std::span ourRow(ours.constScanLine(y), size_t(4) * static_cast<size_t>(ours.width()));
        const uchar* otherRow = other.constScanLine(y);
        for (size_t i = 0; i < ourRow.size(); ++i) {
            if (i % 4 != 3 && std::abs(ourRow[i] - otherRow[i]) > tolerance)
                qFatal("different pictures");
        }
    }
}

QImage imageOf(const cv::Mat& mat) {
    return QImage(mat.data, mat.cols, mat.rows, static_cast<qsizetype>(mat.step),
                  QImage::Format_ARGB32_Premultiplied);
}

using Routine = std::function<QImage()>;
using Peer = std::function<void(const cv::Mat& source, cv::Mat& result)>;

// Every run allocates a fresh result, on both sides.
void againstPeer(const char* what, const Routine& ours, int threads, const Peer& peer, int tolerance = 0) {
    cv::setNumThreads(threads);
    const cv::Mat source = matOf(photo());
    QImage result;
    cv::Mat other;
    Ratio::report(
        what, [&] { result = ours(); }, [&] { peer(source, other); },
        [&] {
            result = {};
            other.release();
        });
    peer(source, other);
    requireEqual(ours(), imageOf(other), tolerance);
}

cv::Mat tableOf(const std::function<int(int)>& channel) {
    cv::Mat table(1, 256, CV_8U);
    for (int value = 0; value < 256; ++value)
        table.at<uchar>(value) = static_cast<uchar>(std::clamp(channel(value), 0, 255));
    return table;
}

void againstTable(const char* what, const Routine& ours, const std::function<int(int)>& channel) {
    const cv::Mat table = tableOf(channel);
    againstPeer(what, ours, QThread::idealThreadCount(),
                [&](const cv::Mat& source, cv::Mat& result) { cv::LUT(source, table, result); });
}

void convolution(const char* what, const Kernel& kernel, int tolerance) {
    againstPeer(
        what,
        [&] {
            QImage result = photo();
            ImageDSP::convolute(result, QPointF(0, 0), photo(), QRectF(), QPainter::CompositionMode_Source,
                                kernel, 3, 3);
            return result;
        },
        1,
        [&](const cv::Mat& source, cv::Mat& result) {
            const cv::Mat weights(3, 3, CV_64F, const_cast<double*>(kernel.data()));
            cv::filter2D(source, result, -1, weights, cv::Point(-1, -1), 0, cv::BORDER_CONSTANT);
        },
        tolerance);
}

void blur() {
    QImage ours;
    QImage bound;
    Ratio::report(
        "blur, one thread; whole columns",
        [&] { ours = ImageDSP::blurred(photo(), photo().rect(), 5, false); },
        [&] { bound = reference::blurredByColumns(photo(), 5); });
    if (ours != bound)
        qFatal("different pictures");
}

void points() {
    againstTable(
        "brightness, all cores; LUT", [] { return ImageDSP::brightness(photo(), 1.0, 10); },
        [](int c) { return c + 10; });
    againstTable(
        "contrast, all cores; LUT", [] { return ImageDSP::brightness(photo(), 10.0 / 17, 1); },
        [](int c) { return static_cast<int>(c * (10.0 / 17) + 1); });
    const Routine whitePointed = [] { return ImageDSP::whitePointed(photo(), 200); };
    const Routine blackPointed = [] { return ImageDSP::blackPointed(photo(), 40); };
    // The other library has no white point; its threshold at the other end takes as long.
    Ratio::report(
        "white point, all cores; threshold", [&] { (void)whitePointed(); },
        [source = matOf(photo())] {
            cv::Mat result;
            cv::threshold(source, result, 39, 255, cv::THRESH_TOZERO);
        });
    requireEqual(whitePointed(), reference::mapped(photo(), [](int c) { return c > 200 ? 255 : c; }));
    againstPeer("black point, all cores; threshold", blackPointed, QThread::idealThreadCount(),
                [](const cv::Mat& source, cv::Mat& result) {
                    cv::threshold(source, result, 39, 255, cv::THRESH_TOZERO);
                });
}

} // namespace

int main() {
    silenceLog();
    std::printf("24 megapixels; the bound is an OpenCV routine, and for the blur a plain loop.\n\n");
    Ratio::header();
    points();
    convolution("sharpen, one thread; filter2D", sharpenKernel, 0);
    // The other library rounds, ours truncates toward zero.
    convolution("uneven kernel, one thread; filter2D", unevenKernel, 1);
    blur();
    return 0;
}
