#include "editor/CutGeometry.h"
#include "support/Rows.h"

// The rules of the cut rectangle; the alignments are tested through their menu.
class TestCutGeometry : public QObject {
    Q_OBJECT

private slots:
    void regionsStandInHitOrder() {
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

    void hit_data() {
        const QRectF rect(0, 0, 300, 150);
        addRows<QRectF, QPointF, int>({
            {"the centre wins where regions touch", rect, {110, 60}, 1},
            {"an edge wins over a corner it touches", rect, {60, 60}, 5},
            {"the far corner, at its last point", rect, {610, 310}, 9},
            {"outside, with no tolerance", rect, {611, 300}, 0},
            {"one pixel has no regions", {0, 0, 1, 1}, {10, 10}, 0},
        });
    }
    void hit() {
        const auto& [cutRect, position, part] = row<QRectF, QPointF, int>();
        QCOMPARE(cutRegionAt(cutRect, QTransform(2, 0, 0, 2, 10, 10), 2.0, position).part, part);
    }

    void drag_data() {
        const QPointF d(3, 5);
        // The last cell tells the moves of left, top, right and bottom.
        addRows<int, bool, QPointF, QMargins>({
            {"centre", 1, false, d, {3, 5, 3, 5}},
            {"top left", 2, false, d, {3, 5, 0, 0}},
            {"top", 3, false, d, {0, 5, 0, 0}},
            {"top right", 4, false, d, {0, 5, 3, 0}},
            {"left", 5, false, d, {3, 0, 0, 0}},
            {"right", 6, false, d, {0, 0, 3, 0}},
            {"bottom left", 7, false, d, {3, 0, 0, 5}},
            {"bottom", 8, false, d, {0, 0, 0, 5}},
            {"bottom right", 9, false, d, {0, 0, 3, 5}},
            {"centre, kept", 1, true, d, {3, 5, 3, 5}},
            {"top left, kept", 2, true, d, {3, 3, 0, 0}},
            {"top, kept", 3, true, d, {5, 5, -5, 0}},
            {"top right, kept", 4, true, d, {0, -3, 3, 0}},
            {"left, kept", 5, true, d, {3, 3, 0, -3}},
            {"right, kept", 6, true, d, {0, -3, 3, 3}},
            {"bottom left, kept", 7, true, d, {3, 0, 0, -3}},
            {"bottom, kept", 8, true, d, {-5, 0, 5, 5}},
            {"bottom right, kept", 9, true, d, {0, 0, 3, 3}},
            {"the last pixel may stay", 5, false, {299, 0}, {299, 0, 0, 0}},
            {"no width is refused", 5, false, {300, 0}, {0, 0, 0, 0}},
            {"no height on the other axis is refused", 5, true, {100, 0}, {0, 0, 0, 0}},
            {"turning inside out is refused", 9, false, {-400, -300}, {0, 0, 0, 0}},
        });
    }
    void drag() {
        const auto& [part, keep, delta, moves] = row<int, bool, QPointF, QMargins>();
        QCOMPARE(
            draggedCutRect({100, 100, 300, 200}, part, delta, keep),
            QRectF(100, 100, 300, 200).adjusted(moves.left(), moves.top(), moves.right(), moves.bottom()));
    }

    void theCutStaysInPlace() {
        QCOMPARE(shiftAfterCut({100, 50, 300, 200}), (CutShift{{100, 50}, {0, 0, 300, 200}}));
        QCOMPARE(shiftAfterCut({1.75, 2.5, 9, 9}), (CutShift{{1, 2}, {0.75, 0.5, 9, 9}}));
        QCOMPARE(shiftAfterCut({-7, 4, 20, 20}), (CutShift{{0, 4}, {-7, 0, 20, 20}}));
    }
};

QTEST_GUILESS_MAIN(TestCutGeometry)
#include "tst_cutgeometry.moc"
