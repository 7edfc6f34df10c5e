#include "editor/ViewGeometry.h"
#include "support/Rows.h"

class TestViewGeometry : public QObject {
    Q_OBJECT

private slots:
    void wheel_data() {
        const QPoint none;
        addRows<QPoint, QPoint, bool, double>({
            {"a notch up", {0, 120}, none, false, 0.0625},
            {"a notch down, fine", {0, -120}, none, true, -0.03125},
            {"half a notch rounds up", {0, 60}, none, false, 0.0625},
            {"less than half a notch goes down", {0, 48}, none, false, -0.0625},
            {"a horizontal turn goes down", {120, 0}, none, false, -0.0625},
            {"too little for a degree", {0, 3}, none, false, 0.0},
            {"half a degree counts", {0, -4}, none, false, -0.0625},
            {"pixels go first", {0, -120}, {0, 1}, false, 0.0625},
            {"horizontal pixels go down", {0, 120}, {5, 0}, false, -0.0625},
            {"nothing at all", none, none, false, 0.0},
        });
    }
    void wheel() {
        const auto& [angle, pixel, fine, change] = row<QPoint, QPoint, bool, double>();
        QCOMPARE(wheelZoomChange(angle, pixel, fine), change);
    }

    void zoomIsClamped() {
        QCOMPARE(clampedViewZoom(5.0625), 5.0);
        QCOMPARE(clampedViewZoom(0.0375), 0.1);
        QCOMPARE(clampedViewZoom(4.9), 4.9);
    }

    void imagesAreFittedAndCentred() {
        QCOMPARE(fittingZoom({400, 300}, {800, 200}), 0.5);
        QCOMPARE(centredOffset({400, 300}, {800, 200}, 0.5), QPoint(0, 100));
        QCOMPARE(fittingZoom({401, 300}, {100, 600}), 0.5);
        QCOMPARE(centredOffset({401, 300}, {100, 600}, 0.5), QPoint(175, 0));
        QCOMPARE(fittingZoom({100, 100}, {4000, 2000}), 0.025); // beyond the wheel's reach
        // An image larger than the view: the offset is cut toward zero.
        QCOMPARE(centredOffset({10, 10}, {13, 15}, 1.0), QPoint(-1, -2));
    }

    void zoomGoesAroundAPosition() {
        const QTransform before(2, 0, 0, 2, 30, 40);
        // The anchor is the position times the new zoom, rounded: (6, 9) of (2.5, 3.5) times 2.5.
        QCOMPARE(zoomedAround(before, {10, 20}, 2.5),
                 QTransform(2.5, 0, 0, 2.5, 30 + 25 * -0.5, 40 + 50 * -0.5));
        QCOMPARE(zoomedAround(before, {0, 0}, 0.5), QTransform(0.5, 0, 0, 0.5, 30, 40));
    }
};

QTEST_GUILESS_MAIN(TestViewGeometry)
#include "tst_viewgeometry.moc"
