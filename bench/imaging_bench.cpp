#include "imaging/ImageDSP.h"

#include <QImage>
#include <QLoggingCategory>
#include <QThread>

#include <benchmark/benchmark.h>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <array>
#include <random>

namespace {

constexpr int kWidth = 6000;
constexpr int kHeight = 4000;

const QImage& photo() {
    static const QImage image = [] {
        QImage made(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
        std::mt19937 random(7);
        for (int y = 0; y < kHeight; ++y) {
            auto* const row = reinterpret_cast<QRgb*>(made.scanLine(y));
            for (int x = 0; x < kWidth; ++x) {
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

// The photo's pixels as the other library sees them; nothing is copied.
cv::Mat photoMat() {
    const QImage& image = photo();
    return cv::Mat(kHeight, kWidth, CV_8UC4, const_cast<uchar*>(image.constBits()),
                   static_cast<size_t>(image.bytesPerLine()));
}

template <typename Routine>
void runRoutine(benchmark::State& state, const Routine& routine) {
    photo();
    for (auto _ : state) {
        QImage result = routine();
        benchmark::DoNotOptimize(result.constBits());
    }
}

// Every run allocates a fresh result, as the routines do.
template <typename Routine>
void runPeer(benchmark::State& state, int threads, const Routine& routine) {
    const cv::Mat source = photoMat();
    cv::setNumThreads(threads);
    for (auto _ : state) {
        cv::Mat result;
        routine(source, result);
        benchmark::DoNotOptimize(result.data);
    }
}

const std::array kSharpen{-1.0, -1.0, -1.0, -1.0, 9.0, -1.0, -1.0, -1.0, -1.0};
const std::array kSmooth{0.0625, 0.125, 0.0625, 0.125, 0.25, 0.125, 0.0625, 0.125, 0.0625};
const std::array kUneven{-0.7, 0.3, -1.1, 0.9, 2.6, -0.4, 0.15, -0.8, 0.05};

QImage convolved(const std::array<double, 9>& kernel) {
    QImage result = photo();
    ImageDSP::convolute(result, QPointF(0, 0), photo(), QRectF(), QPainter::CompositionMode_Source, kernel, 3,
                        3);
    return result;
}

void filtered2D(const cv::Mat& source, cv::Mat& result, const std::array<double, 9>& kernel) {
    const cv::Mat weights(3, 3, CV_64F, const_cast<double*>(kernel.data()));
    cv::filter2D(source, result, -1, weights, cv::Point(-1, -1), 0, cv::BORDER_CONSTANT);
}

void feedWalk(uchar* first, qsizetype step, int count, int alpha) {
    std::array<int, 4> state{};
    for (size_t c = 0; c < 4; ++c)
        state[c] = first[c] * 16;
    for (int i = 1; i < count; ++i) {
        uchar* const pixel = first + i * step;
        for (size_t c = 0; c < 4; ++c) {
            state[c] += (pixel[c] * 16 - state[c]) * alpha / 16;
            pixel[c] = static_cast<uchar>(state[c] >> 4);
        }
    }
}

// The same blur walking whole columns one after the other.
QImage blurredByColumns(QImage image, int alpha) {
    uchar* const bits = image.bits();
    const qsizetype stride = image.bytesPerLine();
    for (int x = 0; x < image.width(); ++x)
        feedWalk(bits + 4 * x, stride, image.height(), alpha);
    for (int y = 0; y < image.height(); ++y)
        feedWalk(bits + y * stride, 4, image.width(), alpha);
    for (int x = 0; x < image.width(); ++x)
        feedWalk(bits + 4 * x + (image.height() - 1) * stride, -stride, image.height(), alpha);
    for (int y = 0; y < image.height(); ++y)
        feedWalk(bits + y * stride + 4 * (image.width() - 1), -4, image.width(), alpha);
    return image;
}

void brightnessShift(benchmark::State& state) {
    runRoutine(state, [] { return ImageDSP::brightness(photo(), 1.0, 10); });
}
void brightnessFactor(benchmark::State& state) {
    runRoutine(state, [] { return ImageDSP::brightness(photo(), 10.0 / 17, 1); });
}
void peerLut(benchmark::State& state) {
    cv::Mat table(1, 256, CV_8U);
    for (int i = 0; i < 256; ++i)
        table.at<uchar>(i) = static_cast<uchar>(std::min(i + 10, 255));
    runPeer(state, QThread::idealThreadCount(),
            [&table](const cv::Mat& source, cv::Mat& result) { cv::LUT(source, table, result); });
}
void whitePoint(benchmark::State& state) {
    runRoutine(state, [] { return ImageDSP::whitePointed(photo(), 200); });
}
void blackPoint(benchmark::State& state) {
    runRoutine(state, [] { return ImageDSP::blackPointed(photo(), 40); });
}
void peerThreshold(benchmark::State& state) {
    runPeer(state, QThread::idealThreadCount(), [](const cv::Mat& source, cv::Mat& result) {
        cv::threshold(source, result, 40, 255, cv::THRESH_TOZERO);
    });
}
void sharpen(benchmark::State& state) {
    runRoutine(state, [] { return convolved(kSharpen); });
}
void smooth(benchmark::State& state) {
    runRoutine(state, [] { return convolved(kSmooth); });
}
void uneven(benchmark::State& state) {
    runRoutine(state, [] { return convolved(kUneven); });
}
void peerFilter2D(benchmark::State& state) {
    runPeer(state, 1, [](const cv::Mat& source, cv::Mat& result) { filtered2D(source, result, kSharpen); });
}
void peerFilter2DUneven(benchmark::State& state) {
    runPeer(state, 1, [](const cv::Mat& source, cv::Mat& result) { filtered2D(source, result, kUneven); });
}
void blur(benchmark::State& state) {
    runRoutine(state, [] { return ImageDSP::blurred(photo(), photo().rect(), 5, false); });
}
void peerBlurByColumns(benchmark::State& state) {
    runRoutine(state, [] { return blurredByColumns(photo(), 5); });
}

} // namespace

BENCHMARK(brightnessShift)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(brightnessFactor)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(peerLut)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(whitePoint)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(blackPoint)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(peerThreshold)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(sharpen)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(smooth)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(uneven)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(peerFilter2D)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(peerFilter2DUneven)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(blur)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(peerBlurByColumns)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv) {
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
