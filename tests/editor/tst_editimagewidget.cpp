#include "editor/EditImageWidget.h"
#include "support/Rows.h"

#include <QApplication>
#include <QMenu>
#include <QSignalSpy>
#include <QWheelEvent>

#include <array>
#include <span>

using Signals = QList<QVariantList>;

namespace {

// The colour of each pixel encodes its position.
QImage positionImage(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x / 256) * 16 + y / 256));
    return image;
}

} // namespace

class TestEditImageWidget : public QObject {
    Q_OBJECT

private slots:
    void init() {
        _view = std::make_unique<EditImageWidget>();
        _view->resize(400, 300);
        _view->show();
        QVERIFY(QTest::qWaitForWindowExposed(_view.get()));
        _view->setImage(positionImage(400, 300), {});
    }
    void cleanup() { _view.reset(); }

    void dragPansAndLocksToAxis() {
        QTest::keyPress(_view.get(), Qt::Key_Shift, Qt::ShiftModifier);
        drag({100, 100}, {120, 130});
        QTest::keyRelease(_view.get(), Qt::Key_Shift);
        QCOMPARE(imagePositionAt({120, 100}), QPoint(100, 100));
        QTest::keyPress(_view.get(), Qt::Key_Control, Qt::ControlModifier);
        drag({100, 100}, {120, 130});
        QCOMPARE(imagePositionAt({120, 130}), QPoint(100, 100));
        // Any key ends the lock.
        QTest::keyRelease(_view.get(), Qt::Key_X);
        drag({100, 100}, {90, 100});
        QCOMPARE(imagePositionAt({110, 130}), QPoint(100, 100));
    }

    void wheelZoomsWithinBounds() {
        QSignalSpy zooms(_view.get(), &EditImageWidget::zoomChanged);
        const auto zoom = [&zooms] { return zooms.takeLast().first().toPointF().x(); };
        wheel({0, 120});
        QCOMPARE(zoom(), 1.0625);
        wheel({0, -120}, Qt::ShiftModifier);
        QCOMPARE(zoom(), 1.03125);
        for (const auto& [angle, bound] : {std::pair(120, 5.0), std::pair(-120, 0.1)}) {
            for (int i = 0; i < 100; ++i)
                wheel({0, angle});
            QCOMPARE(zoom(), bound);
        }
        key(Qt::Key_R);
        QCOMPARE(zoom(), 1.0);
        QCOMPARE(imagePositionAt({200, 150}), QPoint(200, 150));
    }

    void wheelWithCtrlAsksForNeighbours() {
        QSignalSpy requests(_view.get(), &EditImageWidget::requestImage);
        QSignalSpy zooms(_view.get(), &EditImageWidget::zoomChanged);
        for (const QPoint& angle : {QPoint(0, -120), QPoint(0, 120), QPoint(-120, 0)})
            wheel(angle, Qt::ControlModifier);
        QCOMPARE(requests, (Signals{{true}, {false}, {false}}));
        QVERIFY(zooms.isEmpty());
    }

    void cutByMouseAndKeyboardAndUndo() {
        QSignalSpy undo(_view.get(), &EditImageWidget::undoAvailableChanged);
        _view->setTool(EditImageWidget::ToolCut);
        QCOMPARE(_view->cutRect(), QRectF(0, 0, 400, 300));
        drag({1, 150}, {101, 150});
        key(Qt::Key_Right);
        key(Qt::Key_Down, Qt::ControlModifier);
        key(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(_view->cutRect(), QRectF(108, 39, 300, 300));

        key(Qt::Key_Return);
        QCOMPARE(_view->imageSizeText(), "292x261");
        QCOMPARE(_view->cutRect(), QRectF(0, 0, 300, 300));
        QTest::mouseDClick(_view.get(), Qt::LeftButton, {}, {300, 200});
        QCOMPARE(_view->imageSize(), QSize(292, 261));
        // The user may release Ctrl first.
        QTest::keyPress(_view.get(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyRelease(_view.get(), Qt::Key_Z);
        _view->setTool(EditImageWidget::ToolPan);
        QCOMPARE(imagePositionAt({150, 100}), QPoint(150, 100)); // the same position as before the cut

        _view->undoLastAction();
        QCOMPARE(_view->imageSize(), QSize(400, 300));
        QCOMPARE(imagePositionAt({150, 100}), QPoint(42, 61)); // still moved by the cut
        QVERIFY(!_view->undoAvailable());
        _view->undoLastAction();
        QCOMPARE(undo, (Signals{{true}, {true}, {true}, {false}, {false}}));

        _view->setTool(EditImageWidget::ToolCut);
        for (const QRectF& nothing : {QRectF(10, 10, 0, 20), QRectF(400, 0, 9, 9), QRectF(5, 5, 0.4, 9)}) {
            _view->onCutRectSet(nothing);
            key(Qt::Key_Space);
            QVERIFY(!_view->undoAvailable());
        }
        _view->onCutRectSet({-34, 20, 100, 1000});
        hold(Qt::Key_Enter, false); // pressed in a dialog, released after it has closed
        QVERIFY(!_view->undoAvailable());
        hold(Qt::Key_Left);
        hold(Qt::Key_Enter);
        QCOMPARE(_view->imageSize(), QSize(50, 280));
        QCOMPARE(_view->cutRect(), QRectF(-50, 0, 100, 1000));
        _view->undoLastAction();
        QVERIFY(!_view->undoAvailable());
    }

    void dragOfRegionReportsOnRelease() {
        _view->setTool(EditImageWidget::ToolCut);
        QSignalSpy sizes(_view.get(), &EditImageWidget::cutSizeChanged);
        const auto middle = [this] { return _view->grab().toImage().pixel(200, 150); };
        const QRgb unpressed = middle();
        QTest::mousePress(_view.get(), Qt::LeftButton, {}, {200, 150});
        QVERIFY(middle() != unpressed);
        QTest::mouseMove(_view.get(), {210, 155});
        QCOMPARE(middle(), unpressed);
        QVERIFY(sizes.isEmpty());
        QTest::mouseRelease(_view.get(), Qt::LeftButton, {}, {210, 155});
        QCOMPARE(sizes, (Signals{{QRectF(10, 5, 400, 300)}}));
        key(Qt::Key_B);
        QCOMPARE(sizes.count(), 2);
        // A double click cuts, and as a press it may start a drag.
        _view->onCutRectSet({0, 0, 100, 100});
        const auto mouse = [this](QEvent::Type type, QPointF at, Qt::MouseButton button) {
            QMouseEvent event(type, at, _view->mapToGlobal(at), button, Qt::LeftButton, {});
            QApplication::sendEvent(_view.get(), &event);
        };
        mouse(QEvent::MouseButtonDblClick, {50, 50}, Qt::LeftButton);
        mouse(QEvent::MouseMove, {55, 57}, Qt::NoButton);
        QCOMPARE(_view->imageSize(), QSize(100, 100));
        QCOMPARE(_view->cutRect(), QRectF(5, 7, 100, 100));
        _view->setImage(positionImage(400, 300), {});
        // A press outside the regions pans.
        _view->onCutRectSet({0, 0, 100, 100});
        drag({300, 250}, {290, 240});
        QCOMPARE(_view->cutRect(), QRectF(0, 0, 100, 100));
        QCOMPARE(imagePositionAt({290, 240}), QPoint(300, 250));
    }

    void menuAligns_data() {
        addRows<QString, QRectF>({
            {"fit", "F&it", {0, 0, 400, 300}},
            {"height", "Align &height", {10, 0, 100, 299}},
            {"centre", "Align c&enter", {149, 124, 100, 50}},
            {"same width", "Same width", {10, 20, 50, 50}},
            {"left", "Align edge &left", {0, 20, 110, 50}},
            {"bottom", "Align edge &bottom", {10, 20, 100, 279}},
        });
    }
    void menuAligns() {
        const auto& [text, result] = row<QString, QRectF>();
        _view->setTool(EditImageWidget::ToolCut);
        _view->onCutRectSet({10, 20, 100, 50});
        QAction* action = menuEntry(text);
        QVERIFY(action);
        action->trigger();
        QCOMPARE(_view->cutRect(), result);
    }

private:
    // The image position that the view shows under a widget position.
    QPoint imagePositionAt(QPoint position) {
        const QRgb pixel = _view->grab().toImage().pixel(position);
        return {qRed(pixel) + (qBlue(pixel) / 16) * 256, qGreen(pixel) + (qBlue(pixel) % 16) * 256};
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(_view.get(), Qt::LeftButton, {}, from);
        QTest::mouseMove(_view.get(), to);
        QTest::mouseRelease(_view.get(), Qt::LeftButton, {}, to);
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(_view.get(), code, modifiers);
    }
    // A press, a repeat and the release, or without the press.
    void hold(Qt::Key code, bool isPressedHere = true) {
        const std::array events{std::pair(QEvent::KeyPress, false), std::pair(QEvent::KeyRelease, true),
                                std::pair(QEvent::KeyPress, true), std::pair(QEvent::KeyRelease, false)};
        for (const auto& [type, isRepeat] : std::span(events).subspan(isPressedHere ? 0 : 1)) {
            QKeyEvent event(type, code, {}, {}, isRepeat);
            QApplication::sendEvent(_view.get(), &event);
        }
    }
    void wheel(QPoint angle, Qt::KeyboardModifiers modifiers = {}) {
        QWheelEvent event(QPointF(5, 5), _view->mapToGlobal(QPointF(5, 5)), {}, angle, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(_view.get(), &event);
    }
    QAction* menuEntry(const QString& text) {
        emit _view->customContextMenuRequested({});
        const auto menus = _view->findChildren<QMenu*>();
        for (QAction* action : menus.isEmpty() ? QList<QAction*>() : menus.last()->actions())
            if (action->text() == text)
                return action;
        return nullptr;
    }

    std::unique_ptr<EditImageWidget> _view;
};

QTEST_MAIN(TestEditImageWidget)
#include "tst_editimagewidget.moc"
