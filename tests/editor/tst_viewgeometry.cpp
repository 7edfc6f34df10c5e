#include "editor/ViewGeometry.h"

#include <QTest>

class ViewGeometryTest : public QObject {
    Q_OBJECT

private slots:
    void wheel_data();
    void wheel();
    void clamp();
    void fitAndCentre_data();
    void fitAndCentre();
    void zoomAroundPosition();
};

void ViewGeometryTest::wheel_data() {
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<bool>("fine");
    QTest::addColumn<double>("change");

    const QPoint none;
    QTest::newRow("a notch up") << QPoint(0, 120) << none << false << 0.0625;
    QTest::newRow("a notch down, fine") << QPoint(0, -120) << none << true << -0.03125;
    QTest::newRow("half a notch rounds up") << QPoint(0, 60) << none << false << 0.0625;
    QTest::newRow("less than half a notch goes down") << QPoint(0, 48) << none << false << -0.0625;
    QTest::newRow("a horizontal turn goes down") << QPoint(120, 0) << none << false << -0.0625;
    QTest::newRow("too little for a degree") << QPoint(0, 3) << none << false << 0.0;
    QTest::newRow("half a degree counts") << QPoint(0, -4) << none << false << -0.0625;
    QTest::newRow("pixels go first") << QPoint(0, -120) << QPoint(0, 1) << false << 0.0625;
    QTest::newRow("horizontal pixels go down") << QPoint(0, 120) << QPoint(5, 0) << false << -0.0625;
    QTest::newRow("nothing at all") << none << none << false << 0.0;
}

void ViewGeometryTest::wheel() {
    QFETCH(QPoint, angle);
    QFETCH(QPoint, pixel);
    QFETCH(bool, fine);
    QTEST(wheelZoomChange(angle, pixel, fine), "change");
}

void ViewGeometryTest::clamp() {
    QCOMPARE(clampedViewZoom(5.0625), 5.0);
    QCOMPARE(clampedViewZoom(0.0375), 0.1);
    QCOMPARE(clampedViewZoom(4.9), 4.9);
}

void ViewGeometryTest::fitAndCentre_data() {
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QSize>("image");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPoint>("offset");

    QTest::newRow("wide image") << QSize(400, 300) << QSize(800, 200) << 0.5 << QPoint(0, 100);
    QTest::newRow("tall image") << QSize(401, 300) << QSize(100, 600) << 0.5 << QPoint(175, 0);
    QTest::newRow("beyond the wheel's reach")
        << QSize(100, 100) << QSize(4000, 2000) << 0.025 << QPoint(0, 25);
}

void ViewGeometryTest::fitAndCentre() {
    QFETCH(QSize, view);
    QFETCH(QSize, image);
    QFETCH(double, zoom);
    QCOMPARE(fittingZoom(view, image), zoom);
    QTEST(centredOffset(view, image, zoom), "offset");
    // An image larger than the view: the offset is cut toward zero.
    QCOMPARE(centredOffset({10, 10}, {13, 15}, 1.0), QPoint(-1, -2));
}

void ViewGeometryTest::zoomAroundPosition() {
    const QTransform before(2, 0, 0, 2, 30, 40);
    // The anchor is the position times the new zoom, rounded: (6, 9) of (2.5, 3.5) times 2.5.
    QCOMPARE(zoomedAround(before, {10, 20}, 2.5), QTransform(2.5, 0, 0, 2.5, 30 + 25 * -0.5, 40 + 50 * -0.5));
    QCOMPARE(zoomedAround(before, {0, 0}, 0.5), QTransform(0.5, 0, 0, 0.5, 30, 40));
}

QTEST_GUILESS_MAIN(ViewGeometryTest)
#include "tst_viewgeometry.moc"
