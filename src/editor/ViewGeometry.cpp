#include "editor/ViewGeometry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double degreesPerAngleUnit = 0.125;
constexpr double degreesPerNotch = 15.0;
constexpr double zoomStep = 1.0 / 16;
constexpr double fineZoomStep = 1.0 / 32;

// Halves are rounded away from zero.
QPoint viewRounded(QPoint point, double factor) {
    return {static_cast<int>(std::round(point.x() * factor)),
            static_cast<int>(std::round(point.y() * factor))};
}

} // namespace

double clampedViewZoom(double zoom) {
    return std::clamp(zoom, minimumViewZoom, maximumViewZoom);
}

QPoint wheelDegrees(QPoint angleDelta) {
    return viewRounded(angleDelta, degreesPerAngleUnit);
}

double wheelZoomChange(QPoint angleDelta, QPoint pixelDelta, bool fineStep) {
    const double step = fineStep ? fineZoomStep : zoomStep;
    if (!pixelDelta.isNull())
        return pixelDelta.y() < 1 ? -step : step;
    // Anything but a turn up by at least half a notch zooms out.
    const QPoint degrees = wheelDegrees(angleDelta);
    if (degrees.isNull())
        return 0.0;
    return std::round(degrees.y() / degreesPerNotch) > 0 ? step : -step;
}

double fittingZoom(QSize view, QSize image) {
    return std::min(static_cast<double>(view.width()) / image.width(),
                    static_cast<double>(view.height()) / image.height());
}

QPoint centredOffset(QSize view, QSize image, double zoom) {
    return {static_cast<int>(view.width() * 0.5 - image.width() * 0.5 * zoom),
            static_cast<int>(view.height() * 0.5 - image.height() * 0.5 * zoom)};
}

QTransform withScale(const QTransform& transform, double zoom) {
    // QTransform has no setter for a single element.
    QTransform scaled = transform;
    scaled.setMatrix(zoom, transform.m12(), transform.m13(), transform.m21(), zoom, transform.m23(),
                     transform.m31(), transform.m32(), transform.m33());
    return scaled;
}

QTransform withOffset(const QTransform& transform, QPoint offset) {
    QTransform moved = transform;
    moved.setMatrix(transform.m11(), transform.m12(), transform.m13(), transform.m21(), transform.m22(),
                    transform.m23(), offset.x(), offset.y(), transform.m33());
    return moved;
}

QTransform zoomedAround(const QTransform& transform, QPoint viewPosition, double zoom) {
    const QPoint anchor = viewRounded(viewPosition, zoom);
    QTransform zoomed = transform;
    zoomed.translate(anchor.x(), anchor.y());
    zoomed = withScale(zoomed, zoom);
    zoomed.translate(-anchor.x(), -anchor.y());
    return zoomed;
}
