#include "editor/CutGeometry.h"

#include <algorithm>
#include <limits>

namespace {

int cutTruncated(double value) {
    constexpr double low = std::numeric_limits<int>::min();
    constexpr double high = std::numeric_limits<int>::max();
    // Clamped first, as converting a number beyond the range of int is undefined.
    return static_cast<int>(std::clamp(value, low, high));
}

QRectF draggedFreely(const QRectF& rect, int part, double dx, double dy) {
    switch (part) {
    case CutPartCentre:
        return rect.translated(dx, dy);
    case CutPartLeft:
        return rect.adjusted(dx, 0, 0, 0);
    case CutPartRight:
        return rect.adjusted(0, 0, dx, 0);
    case CutPartTop:
        return rect.adjusted(0, dy, 0, 0);
    case CutPartBottom:
        return rect.adjusted(0, 0, 0, dy);
    case CutPartTopLeft:
        return rect.adjusted(dx, dy, 0, 0);
    case CutPartTopRight:
        return rect.adjusted(0, dy, dx, 0);
    case CutPartBottomLeft:
        return rect.adjusted(dx, 0, 0, dy);
    case CutPartBottomRight:
        return rect.adjusted(0, 0, dx, dy);
    default:
        return rect;
    }
}

// A dragged edge changes the other axis by as much at both ends, a corner both axes by the same distance. So
// the ratio is not kept exactly, on purpose.
QRectF draggedSymmetrically(const QRectF& rect, int part, double dx, double dy) {
    switch (part) {
    case CutPartLeft:
        return rect.adjusted(dx, dx, 0, -dx);
    case CutPartRight:
        return rect.adjusted(0, -dx, dx, dx);
    case CutPartTop:
        return rect.adjusted(dy, dy, -dy, 0);
    case CutPartBottom:
        return rect.adjusted(-dy, 0, dy, dy);
    case CutPartTopLeft:
    case CutPartBottomRight:
        return draggedFreely(rect, part, dx, dx);
    case CutPartTopRight:
    case CutPartBottomLeft:
        return draggedFreely(rect, part, dx, -dx);
    default:
        return draggedFreely(rect, part, dx, dy);
    }
}

} // namespace

std::array<CutRegion, 9> cutRegions(const QRectF& cutRect) {
    // The centre covers two thirds of each side; the regions around it share the rest.
    const int centreWidth = cutTruncated(cutRect.width() / 1.5);
    const int centreHeight = cutTruncated(cutRect.height() / 1.5);
    const int sideWidth = cutTruncated((cutRect.width() - centreWidth) * 0.5);
    const int sideHeight = cutTruncated((cutRect.height() - centreHeight) * 0.5);
    const QSizeF centre(centreWidth, centreHeight);
    const QSizeF vertical(sideWidth, centreHeight);
    const QSizeF horizontal(centreWidth, sideHeight);
    const QSizeF corner(sideWidth, sideHeight);
    const QPointF right(-sideWidth, 0);
    const QPointF down(0, sideHeight);
    return {{
        {CutPartCentre, {cutRect.center() - QPointF(QPoint(centreWidth / 2, centreHeight / 2)), centre}},
        {CutPartLeft, {cutRect.topLeft() + down, vertical}},
        {CutPartRight, {cutRect.topRight() + right + down, vertical}},
        {CutPartTop, {cutRect.topLeft() - right, horizontal}},
        {CutPartBottom, {cutRect.bottomLeft() - right - down, horizontal}},
        {CutPartTopLeft, {cutRect.topLeft(), corner}},
        {CutPartTopRight, {cutRect.topRight() + right, corner}},
        {CutPartBottomLeft, {cutRect.bottomLeft() - down, corner}},
        {CutPartBottomRight, {cutRect.bottomRight() + right - down, corner}},
    }};
}

CutRegion cutRegionAt(const QRectF& cutRect, const QTransform& imageToWidget, double zoom,
                      QPointF widgetPosition) {
    for (const CutRegion& region : cutRegions(cutRect)) {
        // The view only scales and moves, so a mapped corner and the zoom give the whole rectangle.
        const QRectF onWidget(imageToWidget.map(region.rect.topLeft()), region.rect.size() * zoom);
        if (onWidget.contains(widgetPosition))
            return region;
    }
    return {};
}

QRectF draggedCutRect(const QRectF& cutRect, int part, QPointF delta, bool keepAspectRatio) {
    const auto drag = keepAspectRatio ? draggedSymmetrically : draggedFreely;
    const QRectF dragged = drag(cutRect, part, delta.x(), delta.y());
    // Otherwise the rectangle would be empty or turned inside out.
    return dragged.isValid() ? dragged : cutRect;
}

QRectF alignedCutRect(const QRectF& cutRect, CutAlignment alignment, const QRect& imageRect) {
    // QRect's right() and bottom() are a pixel short of its size, and so are the edges aligned to them, on
    // purpose.
    QRectF aligned = cutRect;
    switch (alignment) {
    case CutAlignment::Fit:
        return imageRect;
    case CutAlignment::Height:
        aligned.setTop(imageRect.top());
        aligned.setBottom(imageRect.bottom());
        break;
    case CutAlignment::Width:
        aligned.setLeft(imageRect.left());
        aligned.setRight(imageRect.right());
        break;
    case CutAlignment::Center:
        aligned.moveCenter(imageRect.center());
        break;
    case CutAlignment::SameWidth:
        aligned.setWidth(aligned.height());
        break;
    case CutAlignment::SameHeight:
        aligned.setHeight(aligned.width());
        break;
    case CutAlignment::EdgeLeft:
        aligned.setLeft(0.0);
        break;
    case CutAlignment::EdgeRight:
        aligned.setRight(imageRect.right());
        break;
    case CutAlignment::EdgeTop:
        aligned.setTop(0.0);
        break;
    case CutAlignment::EdgeBottom:
        aligned.setBottom(imageRect.bottom());
        break;
    }
    return aligned;
}

CutShift shiftAfterCut(const QRectF& cutRect) {
    // A cut that begins outside the picture removes nothing on that side.
    const QPoint translation(cutTruncated(std::max(cutRect.left(), 0.0)),
                             cutTruncated(std::max(cutRect.top(), 0.0)));
    return {translation, cutRect.translated(-translation)};
}
