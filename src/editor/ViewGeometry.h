#pragma once

#include <QPoint>
#include <QSize>
#include <QTransform>

// Zoom and position of an image in a view. The transforms map image to view coordinates.

// Bounds of the zoom by wheel; fitting an image to its view may exceed them.
inline constexpr double minimumViewZoom = 0.1;
inline constexpr double maximumViewZoom = 5.0;

[[nodiscard]] double clampedViewZoom(double zoom);

// A wheel turn in degrees, from eighths of a degree.
[[nodiscard]] QPoint wheelDegrees(QPoint angleDelta);

// What a wheel event adds to the zoom; a pixel delta takes precedence over an angle delta.
[[nodiscard]] double wheelZoomChange(QPoint angleDelta, QPoint pixelDelta, bool fineStep);

// The largest zoom at which the whole image is in view. The image must not be empty.
[[nodiscard]] double fittingZoom(QSize view, QSize image);

// Whole pixels from the view's corner to the image's, for an image in the middle of the view.
[[nodiscard]] QPoint centredOffset(QSize view, QSize image, double zoom);

[[nodiscard]] QTransform withScale(const QTransform& transform, double zoom);
[[nodiscard]] QTransform withOffset(const QTransform& transform, QPoint offset);

// Scales around a view position.
[[nodiscard]] QTransform zoomedAround(const QTransform& transform, QPoint viewPosition, double zoom);
