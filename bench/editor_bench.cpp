// Processor time of the image view: pan steps of a 24 megapixel picture, and stepping to the next photograph.

#include "editor/EditImageWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImageReader>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

double processorMs() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

QImage photograph(int width, int height, QImage::Format format) {
    QImage image(width, height, format);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x)
            line[x] = qRgb((x * y) >> 12, (x + y) >> 3, (x * 7 ^ y * 3) & 0x3f);
    }
    return image;
}

void sendMouse(QWidget& view, QEvent::Type type, QPointF position) {
    const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, position, view.mapToGlobal(position), Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
}

// Zooms by the wheel from 1 to about the wanted zoom.
void zoomTo(EditImageWidget& view, double zoom) {
    view.resetZoom();
    const int notches = qRound((zoom - 1.0) * 16);
    for (int i = 0; i < std::abs(notches); ++i) {
        const QPoint angle(0, notches > 0 ? 120 : -120);
        QWheelEvent event({}, {}, {}, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    }
}

double panStepMs(EditImageWidget& view, QImage& screen) {
    constexpr int kSteps = 30;
    sendMouse(view, QEvent::MouseButtonPress, {800, 500});
    const double start = processorMs();
    for (int i = 1; i <= kSteps; ++i) {
        sendMouse(view, QEvent::MouseMove, QPointF(800 - i * 5, 500 - i * 3));
        view.render(&screen);
    }
    const double spent = processorMs() - start;
    sendMouse(view, QEvent::MouseButtonRelease, {650, 410});
    return spent / kSteps;
}

void measurePanning(const char* name, const QImage& picture, EditImageWidget::Tool tool) {
    EditImageWidget view;
    view.resize(1600, 1000);
    view.setImage(picture, {});
    view.setTool(tool);
    view.onCutRectSet({100, 100, 5000, 3500});
    QImage screen(view.size(), QImage::Format_ARGB32_Premultiplied);
    for (const double zoom : {0.1, 0.25, 0.5, 1.0, 2.0, 5.0}) {
        zoomTo(view, zoom);
        std::printf("pan step, %s, zoom %.2f: %6.2f ms\n", name, zoom, panStepMs(view, screen));
    }
}

void measureStepping() {
    const QTemporaryDir directory;
    const QImage photo = photograph(4000, 3000, QImage::Format_RGB32);
    std::vector<double> ratios;
    EditImageWidget view;
    view.setAutoFit(true);
    for (int i = 0; i < 9; ++i) {
        const QString path = directory.filePath(QStringLiteral("%1.jpg").arg(i));
        photo.save(path, "jpg", 90);
        QElapsedTimer timer;
        timer.start();
        const QImage decoded = QImageReader(path).read();
        const qint64 decode = timer.nsecsElapsed();
        timer.restart();
        view.setImageFilePath(path);
        ratios.push_back(static_cast<double>(timer.nsecsElapsed()) / static_cast<double>(decode));
    }
    std::ranges::sort(ratios);
    std::printf("step to a 12 megapixel JPEG: %.2f of its decode\n", ratios[ratios.size() / 2]);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QImage opaque = photograph(6000, 4000, QImage::Format_RGB32);
    measurePanning("opaque", opaque, EditImageWidget::ToolPan);
    measurePanning("opaque with cut rectangle", opaque, EditImageWidget::ToolCut);
    QImage translucent = opaque.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    translucent.setPixel(0, 0, 0);
    measurePanning("translucent", translucent, EditImageWidget::ToolPan);
    measureStepping();
}
