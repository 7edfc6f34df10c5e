// The image view: pan steps of a picture of 24 megapixels, and stepping to the next photograph.

#include "Ratio.h"
#include "editor/EditImageWidget.h"
#include "reference/PlainView.h"

#include <QApplication>
#include <QCursor>
#include <QImageReader>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWheelEvent>

namespace {

constexpr QPoint panStep(-5, -3); // in pixels of the view
constexpr int panSteps = 30;

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

// Zooms by the wheel from 1 to about the wanted zoom; returns the zoom that was reached.
double zoomTo(EditImageWidget& view, double zoom) {
    double reached = 1;
    const auto connection = QObject::connect(&view, &EditImageWidget::zoomChanged, &view,
                                             [&](QPointF now) { reached = now.x(); });
    view.resetZoom();
    const int notches = qRound((zoom - 1.0) * 16);
    for (int i = 0; i < std::abs(notches); ++i) {
        const QPoint angle(0, notches > 0 ? 120 : -120);
        QWheelEvent event({}, {}, {}, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    }
    QObject::disconnect(connection);
    return reached;
}

void pan(EditImageWidget& view, QImage& screen) {
    QPoint mouse(800, 500);
    sendMouse(view, QEvent::MouseButtonPress, mouse);
    for (int step = 0; step < panSteps; ++step) {
        mouse += panStep;
        sendMouse(view, QEvent::MouseMove, mouse);
        view.render(&screen);
    }
    sendMouse(view, QEvent::MouseButtonRelease, mouse);
}

void panning(const QString& what, const QImage& picture) {
    EditImageWidget view;
    view.resize(1600, 1000);
    view.setImage(picture, {});
    view.setTool(EditImageWidget::ToolPan);
    reference::PlainView bound(QPixmap::fromImage(picture));
    bound.resize(view.size());
    QImage screen(view.size(), QImage::Format_ARGB32_Premultiplied);
    QImage boundScreen = screen;
    for (const double zoom : {0.1, 0.25, 0.5, 1.0, 2.0, 5.0}) {
        const auto prepare = [&] { bound.zoomTo(zoomTo(view, zoom)); };
        const auto ours = [&] { pan(view, screen); };
        const auto other = [&] {
            for (int step = 0; step < panSteps; ++step) {
                bound.moveBy(panStep);
                bound.render(&boundScreen);
            }
        };
        Ratio::report(QString("%1 pan steps, %2, zoom %3").arg(panSteps).arg(what).arg(zoom), ours, other,
                      prepare);
        prepare();
        ours();
        other();
        if (screen != boundScreen)
            qFatal("different pictures");
    }
}

void stepping() {
    const QTemporaryDir directory;
    const QImage photo = photograph(4000, 3000, QImage::Format_RGB32);
    EditImageWidget view;
    view.setAutoFit(true);
    QString path;
    int number = 0;
    Ratio::report(
        "step to a photograph of 12 megapixels", [&] { view.setImageFilePath(path); },
        [&] {
            if (QImageReader(path).read().isNull())
                qFatal("no photograph");
        },
        [&] {
            // Each side of a run gets the same file.
            path = directory.filePath(QString("%1.jpg").arg(number++ / 2));
            photo.save(path, "jpg", 90);
        });
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    silenceLog();
    QCursor::setPos(0, 0); // the view zooms around the cursor
    const QImage opaque = photograph(6000, 4000, QImage::Format_RGB32);
    QImage translucent = opaque.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    translucent.setPixel(0, 0, 0);
    Ratio::header();
    panning("opaque", opaque);
    panning("translucent", translucent);
    stepping();
    return 0;
}
