#pragma once

#include <QPoint>
#include <QRect>
#include <QTransform>

#include <array>

// The cut rectangle of the image view: its nine drag regions, and how it is moved and resized. In image
// coordinates, unless a name contains another.

// Numbered by rows from the top left corner, except for the centre, which comes first.
enum CutPart {
    CutPartNone = 0,
    CutPartCentre = 1,
    CutPartTopLeft = 2,
    CutPartTop = 3,
    CutPartTopRight = 4,
    CutPartLeft = 5,
    CutPartRight = 6,
    CutPartBottomLeft = 7,
    CutPartBottom = 8,
    CutPartBottomRight = 9
};

struct CutRegion {
    int part = CutPartNone;
    QRectF rect;

    bool operator==(const CutRegion&) const = default;
};

enum class CutAlignment {
    Fit,
    Height,
    Width,
    Center,
    SameWidth,
    SameHeight,
    EdgeLeft,
    EdgeRight,
    EdgeTop,
    EdgeBottom
};

// What keeps the picture in its position on the screen after a cut: the translation of the image in the view,
// and the cut rectangle in coordinates of the new image.
struct CutShift {
    QPoint translation;
    QRectF cutRect;

    bool operator==(const CutShift&) const = default;
};

// In the order in which they are tested for a hit.
[[nodiscard]] std::array<CutRegion, 9> cutRegions(const QRectF& cutRect);

// The region under a widget position; its part is CutPartNone where there is none.
[[nodiscard]] CutRegion cutRegionAt(const QRectF& cutRect, const QTransform& imageToWidget, double zoom,
                                    QPointF widgetPosition);

// The rectangle after a drag of one part; a drag that would leave no area returns it unchanged.
[[nodiscard]] QRectF draggedCutRect(const QRectF& cutRect, int part, QPointF delta, bool keepAspectRatio);

[[nodiscard]] QRectF alignedCutRect(const QRectF& cutRect, CutAlignment alignment, const QRect& imageRect);

[[nodiscard]] CutShift shiftAfterCut(const QRectF& cutRect);
