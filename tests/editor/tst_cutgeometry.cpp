#include "editor/CutGeometry.h"

#include <QTest>

class CutGeometryTest : public QObject {
    Q_OBJECT

private slots:
    void regionsStandInHitOrder();
    void hit_data();
    void hit();
    void drag_data();
    void drag();
    void align_data();
    void align();
    void shift_data();
    void shift();
};

void CutGeometryTest::regionsStandInHitOrder() {
    const std::array<CutRegion, 9> expected{{
        {1, {60, 45, 200, 100}},
        {5, {10, 45, 50, 100}},
        {6, {260, 45, 50, 100}},
        {3, {60, 20, 200, 25}},
        {8, {60, 145, 200, 25}},
        {2, {10, 20, 50, 25}},
        {4, {260, 20, 50, 25}},
        {7, {10, 145, 50, 25}},
        {9, {260, 145, 50, 25}},
    }};
    QCOMPARE(cutRegions({10, 20, 300, 150}), expected);
    // 10.9 / 1.5 and what is left are cut to whole pixels, and so is the half of the centre.
    QCOMPARE(cutRegions({0, 0, 10.9, 10.9}).front(), (CutRegion{1, {2.45, 2.45, 7, 7}}));
    QCOMPARE(cutRegions({0, 0, 10.9, 10.9}).back(), (CutRegion{9, {9.9, 9.9, 1, 1}}));
}

void CutGeometryTest::hit_data() {
    QTest::addColumn<QRectF>("cutRect");
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<int>("part");

    const QRectF rect(0, 0, 300, 150);
    QTest::newRow("the centre wins where regions touch") << rect << QPointF(110, 60) << 1;
    QTest::newRow("an edge wins over a corner it touches") << rect << QPointF(60, 60) << 5;
    QTest::newRow("a corner") << rect << QPointF(11, 11) << 2;
    QTest::newRow("the far corner, at its last point") << rect << QPointF(610, 310) << 9;
    QTest::newRow("outside, with no tolerance") << rect << QPointF(611, 300) << 0;
    QTest::newRow("one pixel has no regions") << QRectF(0, 0, 1, 1) << QPointF(10, 10) << 0;
}

void CutGeometryTest::hit() {
    QFETCH(QRectF, cutRect);
    QFETCH(QPointF, position);
    const QTransform twiceAsLarge(2, 0, 0, 2, 10, 10);
    QTEST(cutRegionAt(cutRect, twiceAsLarge, 2.0, position).part, "part");
}

void CutGeometryTest::drag_data() {
    QTest::addColumn<int>("part");
    QTest::addColumn<bool>("keep");
    QTest::addColumn<QPointF>("delta");
    QTest::addColumn<QRectF>("result");

    // Each row tells the moves of left, top, right and bottom.
    const auto row = [](const char* name, int part, bool keep, QPointF d, double l, double t, double r,
                        double b) {
        QTest::newRow(name) << part << keep << d << QRectF(100, 100, 300, 200).adjusted(l, t, r, b);
    };
    const QPointF d(3, 5);
    row("centre", 1, false, d, 3, 5, 3, 5);
    row("top left", 2, false, d, 3, 5, 0, 0);
    row("top", 3, false, d, 0, 5, 0, 0);
    row("top right", 4, false, d, 0, 5, 3, 0);
    row("left", 5, false, d, 3, 0, 0, 0);
    row("right", 6, false, d, 0, 0, 3, 0);
    row("bottom left", 7, false, d, 3, 0, 0, 5);
    row("bottom", 8, false, d, 0, 0, 0, 5);
    row("bottom right", 9, false, d, 0, 0, 3, 5);
    row("centre, kept", 1, true, d, 3, 5, 3, 5);
    row("top left, kept", 2, true, d, 3, 3, 0, 0);
    row("top, kept", 3, true, d, 5, 5, -5, 0);
    row("top right, kept", 4, true, d, 0, -3, 3, 0);
    row("left, kept", 5, true, d, 3, 3, 0, -3);
    row("right, kept", 6, true, d, 0, -3, 3, 3);
    row("bottom left, kept", 7, true, d, 3, 0, 0, -3);
    row("bottom, kept", 8, true, d, -5, 0, 5, 5);
    row("bottom right, kept", 9, true, d, 0, 0, 3, 3);
    row("the last pixel may stay", 5, false, {299, 0}, 299, 0, 0, 0);
    row("no width is refused", 5, false, {300, 0}, 0, 0, 0, 0);
    row("no height on the other axis is refused", 5, true, {100, 0}, 0, 0, 0, 0);
    row("turning inside out is refused", 9, false, {-400, -300}, 0, 0, 0, 0);
}

void CutGeometryTest::drag() {
    QFETCH(int, part);
    QFETCH(bool, keep);
    QFETCH(QPointF, delta);
    QTEST(draggedCutRect({100, 100, 300, 200}, part, delta, keep), "result");
}

void CutGeometryTest::align_data() {
    QTest::addColumn<CutAlignment>("alignment");
    QTest::addColumn<QRectF>("result");

    QTest::newRow("fit") << CutAlignment::Fit << QRectF(0, 0, 640, 480);
    QTest::newRow("height") << CutAlignment::Height << QRectF(100, 0, 300, 479);
    QTest::newRow("width") << CutAlignment::Width << QRectF(0, 100, 639, 200);
    QTest::newRow("centre") << CutAlignment::Center << QRectF(169, 139, 300, 200);
    QTest::newRow("same width") << CutAlignment::SameWidth << QRectF(100, 100, 200, 200);
    QTest::newRow("same height") << CutAlignment::SameHeight << QRectF(100, 100, 300, 300);
    QTest::newRow("left edge") << CutAlignment::EdgeLeft << QRectF(0, 100, 400, 200);
    QTest::newRow("right edge") << CutAlignment::EdgeRight << QRectF(100, 100, 539, 200);
    QTest::newRow("top edge") << CutAlignment::EdgeTop << QRectF(100, 0, 300, 300);
    QTest::newRow("bottom edge") << CutAlignment::EdgeBottom << QRectF(100, 100, 300, 379);
}

void CutGeometryTest::align() {
    QFETCH(CutAlignment, alignment);
    QTEST(alignedCutRect({100, 100, 300, 200}, alignment, {0, 0, 640, 480}), "result");
}

void CutGeometryTest::shift_data() {
    QTest::addColumn<QRectF>("cutRect");
    QTest::addColumn<QPoint>("translation");
    QTest::addColumn<QRectF>("result");

    QTest::newRow("inside the image")
        << QRectF(100, 50, 300, 200) << QPoint(100, 50) << QRectF(0, 0, 300, 200);
    QTest::newRow("fractions stay") << QRectF(1.75, 2.5, 9, 9) << QPoint(1, 2) << QRectF(0.75, 0.5, 9, 9);
    QTest::newRow("negative sides stay") << QRectF(-7, 4, 20, 20) << QPoint(0, 4) << QRectF(-7, 0, 20, 20);
    QTest::newRow("at the corner") << QRectF(0, 0, 20, 20) << QPoint(0, 0) << QRectF(0, 0, 20, 20);
}

void CutGeometryTest::shift() {
    QFETCH(QRectF, cutRect);
    QFETCH(QPoint, translation);
    QFETCH(QRectF, result);
    QCOMPARE(shiftAfterCut(cutRect), (CutShift{translation, result}));
}

QTEST_GUILESS_MAIN(CutGeometryTest)
#include "tst_cutgeometry.moc"
