#include "editor/CutGeometry.h"
#include "editor/ViewGeometry.h"
#include "support/Rows.h"

// Drags of the cut rectangle; the rest of the geometry is tested through the view.
class TestEditorGeometry : public QObject {
    Q_OBJECT

private slots:
    void drag_data() {
        const QPointF d(3, 5);
        // The last cell has the moves of the left, top, right and bottom edges.
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
};

QTEST_GUILESS_MAIN(TestEditorGeometry)
#include "tst_editorgeometry.moc"
