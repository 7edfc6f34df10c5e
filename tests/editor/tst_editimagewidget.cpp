#include "editor/EditImageWidget.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFileDialog>
#include <QImageReader>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

namespace {

// Every pixel tells its place.
QImage placeImage(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x / 256) * 16 + y / 256));
    return image;
}

QByteArray fileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class EditImageWidgetTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void paintsPixelsAtTheirPlaces();
    void dragPansAndLocksToAxis();
    void wheelZoomsWithinBounds();
    void wheelWithCtrlAsksForNeighbours();
    void cutByMouseAndKeyboardAndUndo();
    void dragOfRegionReportsOnRelease();
    void pressOutsideRegionsPans();
    void cutReachingOutsideKeepsInside();
    void hundredCutsUndo();
    void keysToggleFlags();
    void autoFlagsFollowEachImage();
    void undecodableAndVanishedFiles();
    void saveFailuresLeaveFileWhole();
    void saveAsKeepsPath();
    void menu_data();
    void menu();
    void menuTogglesUpdateOnResize();

private:
    // What the view shows, as far as it can be seen: the image position under a widget position.
    QPoint imagePositionAt(QPoint position);
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {});
    void wheel(QPoint angle, Qt::KeyboardModifiers modifiers = {});
    QAction* menuEntry(const QString& text);

    std::unique_ptr<EditImageWidget> _view;
    std::unique_ptr<QTemporaryDir> _directory;
};

void EditImageWidgetTest::init() {
    _directory = std::make_unique<QTemporaryDir>();
    _view = std::make_unique<EditImageWidget>();
    _view->resize(400, 300);
    _view->show();
    QVERIFY(QTest::qWaitForWindowExposed(_view.get()));
    _view->setImage(placeImage(400, 300), {});
}

void EditImageWidgetTest::cleanup() {
    _view.reset();
}

QPoint EditImageWidgetTest::imagePositionAt(QPoint position) {
    const QRgb pixel = _view->grab().toImage().pixel(position);
    return {qRed(pixel) + (qBlue(pixel) / 16) * 256, qGreen(pixel) + (qBlue(pixel) % 16) * 256};
}

void EditImageWidgetTest::drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers) {
    QTest::mousePress(_view.get(), Qt::LeftButton, modifiers, from);
    QTest::mouseMove(_view.get(), to);
    QTest::mouseRelease(_view.get(), Qt::LeftButton, modifiers, to);
}

void EditImageWidgetTest::wheel(QPoint angle, Qt::KeyboardModifiers modifiers) {
    QWheelEvent event(QPointF(5, 5), _view->mapToGlobal(QPointF(5, 5)), {}, angle, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(_view.get(), &event);
}

QAction* EditImageWidgetTest::menuEntry(const QString& text) {
    emit _view->customContextMenuRequested({});
    const auto menus = _view->findChildren<QMenu*>();
    for (QAction* action : menus.isEmpty() ? QList<QAction*>() : menus.last()->actions())
        if (action->text() == text)
            return action;
    return nullptr;
}

void EditImageWidgetTest::paintsPixelsAtTheirPlaces() {
    QCOMPARE(imagePositionAt({0, 0}), QPoint(0, 0));
    QCOMPARE(imagePositionAt({399, 299}), QPoint(399, 299));
    drag({100, 100}, {130, 90});
    QCOMPARE(imagePositionAt({130, 90}), QPoint(100, 100));
    // Partial exposure paints the same as a whole one.
    const QImage whole = _view->grab().toImage();
    QCOMPARE(_view->grab({37, 41, 200, 100}).toImage(), whole.copy(37, 41, 200, 100));
}

void EditImageWidgetTest::dragPansAndLocksToAxis() {
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

void EditImageWidgetTest::wheelZoomsWithinBounds() {
    QSignalSpy zooms(_view.get(), &EditImageWidget::zoomChanged);
    const auto zoom = [&zooms] { return zooms.takeLast().first().toPointF(); };
    wheel({0, 120});
    QCOMPARE(zoom(), QPointF(1.0625, 1.0625));
    wheel({0, -120}, Qt::ShiftModifier);
    QCOMPARE(zoom(), QPointF(1.03125, 1.03125));
    for (int i = 0; i < 80; ++i)
        wheel({0, 120});
    QCOMPARE(zoom(), QPointF(5.0, 5.0));
    for (int i = 0; i < 100; ++i)
        wheel({0, -120});
    QCOMPARE(zoom(), QPointF(0.1, 0.1));
    QTest::keyClick(_view.get(), Qt::Key_R);
    QCOMPARE(zoom(), QPointF(1.0, 1.0));
    QCOMPARE(imagePositionAt({200, 150}), QPoint(200, 150));
}

void EditImageWidgetTest::wheelWithCtrlAsksForNeighbours() {
    QSignalSpy requests(_view.get(), &EditImageWidget::requestImage);
    QSignalSpy zooms(_view.get(), &EditImageWidget::zoomChanged);
    wheel({0, -120}, Qt::ControlModifier);
    wheel({0, 120}, Qt::ControlModifier);
    wheel({-120, 0}, Qt::ControlModifier);
    QCOMPARE(requests, (QList<QVariantList>{{true}, {false}, {false}}));
    QVERIFY(zooms.isEmpty());
}

void EditImageWidgetTest::cutByMouseAndKeyboardAndUndo() {
    QSignalSpy undo(_view.get(), &EditImageWidget::undoAvailableChanged);
    _view->setTool(EditImageWidget::ToolCut);
    QCOMPARE(_view->cutRect(), QRectF(0, 0, 400, 300));
    drag({1, 150}, {101, 150});
    QTest::keyClick(_view.get(), Qt::Key_Right);
    QTest::keyClick(_view.get(), Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(_view.get(), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(_view->cutRect(), QRectF(108, 39, 300, 300));

    QTest::keyClick(_view.get(), Qt::Key_Return);
    QCOMPARE(_view->imageSizeText(), "292x261");
    QCOMPARE(_view->cutRect(), QRectF(0, 0, 300, 300));
    QTest::mouseDClick(_view.get(), Qt::LeftButton, {}, {300, 200});
    QCOMPARE(_view->imageSize(), QSize(292, 261));
    QTest::keyClick(_view.get(), Qt::Key_Z, Qt::ControlModifier);
    _view->setTool(EditImageWidget::ToolPan);
    QCOMPARE(imagePositionAt({150, 100}), QPoint(150, 100)); // stands where it stood before the cut

    _view->undoLastAction();
    QCOMPARE(_view->imageSize(), QSize(400, 300));
    QCOMPARE(imagePositionAt({150, 100}), QPoint(42, 61)); // still moved by the cut
    QVERIFY(!_view->undoAvailable());
    _view->undoLastAction();
    QCOMPARE(undo, (QList<QVariantList>{{true}, {true}, {true}, {false}, {false}}));

    _view->onCutRectSet({10, 10, 0, 20});
    _view->setTool(EditImageWidget::ToolCut);
    _view->onCutRectSet({10, 10, 0, 20});
    QTest::keyClick(_view.get(), Qt::Key_Space);
    QVERIFY(!_view->undoAvailable());
}

void EditImageWidgetTest::dragOfRegionReportsOnRelease() {
    _view->setTool(EditImageWidget::ToolCut);
    QSignalSpy sizes(_view.get(), &EditImageWidget::cutSizeChanged);
    const QImage unpressed = _view->grab().toImage();
    QTest::mousePress(_view.get(), Qt::LeftButton, {}, {200, 150});
    QVERIFY(_view->grab().toImage().pixel(200, 150) != unpressed.pixel(200, 150));
    QTest::mouseMove(_view.get(), {210, 155});
    QCOMPARE(_view->grab().toImage().pixel(200, 150), unpressed.pixel(200, 150));
    QVERIFY(sizes.isEmpty());
    QTest::mouseRelease(_view.get(), Qt::LeftButton, {}, {210, 155});
    QCOMPARE(sizes, (QList<QVariantList>{{QRectF(10, 5, 400, 300)}}));
    QTest::keyClick(_view.get(), Qt::Key_B);
    QCOMPARE(sizes.count(), 2);
}

void EditImageWidgetTest::pressOutsideRegionsPans() {
    _view->setTool(EditImageWidget::ToolCut);
    _view->onCutRectSet({0, 0, 100, 100});
    drag({300, 250}, {290, 240});
    QCOMPARE(_view->cutRect(), QRectF(0, 0, 100, 100));
    QCOMPARE(imagePositionAt({290, 240}), QPoint(300, 250));
}

void EditImageWidgetTest::cutReachingOutsideKeepsInside() {
    _view->setTool(EditImageWidget::ToolCut);
    _view->onCutRectSet({-50, 20, 100, 1000});
    QTest::keyClick(_view.get(), Qt::Key_Enter);
    QCOMPARE(_view->imageSize(), QSize(50, 280));
    QCOMPARE(_view->cutRect(), QRectF(-50, 0, 100, 1000));
}

void EditImageWidgetTest::hundredCutsUndo() {
    _view->setTool(EditImageWidget::ToolCut);
    for (int i = 0; i < 100; ++i) {
        _view->onCutRectSet({1, 1, 399.0 - i, 299.0 - i});
        QTest::keyClick(_view.get(), Qt::Key_Return);
    }
    QCOMPARE(_view->imageSize(), QSize(300, 200));
    while (_view->undoAvailable())
        _view->undoLastAction();
    QCOMPARE(_view->imageSize(), QSize(400, 300));
}

void EditImageWidgetTest::keysToggleFlags() {
    QSignalSpy centers(_view.get(), &EditImageWidget::autoCenterChanged);
    QSignalSpy fits(_view.get(), &EditImageWidget::autoFitChanged);
    QSignalSpy aspects(_view.get(), &EditImageWidget::aspectRatioKeepChanged);
    _view->setImage(placeImage(200, 100), {});
    QTest::keyClick(_view.get(), Qt::Key_C);
    QCOMPARE(imagePositionAt({100, 100}), QPoint(0, 0));
    QTest::keyClick(_view.get(), Qt::Key_F);
    QCOMPARE(imagePositionAt({0, 50}), QPoint(0, 0));
    QTest::keyClick(_view.get(), Qt::Key_F);
    QTest::keyClick(_view.get(), Qt::Key_A);
    QVERIFY(_view->autoCenter());
    QVERIFY(!_view->autoFit());
    QCOMPARE(centers, (QList<QVariantList>{{true}}));
    QCOMPARE(fits, (QList<QVariantList>{{true}, {false}}));
    QCOMPARE(aspects, (QList<QVariantList>{{true}}));
    _view->setTool(EditImageWidget::ToolCut);
    _view->onCutRectSet({50, 20, 100, 60});
    drag({102, 150}, {112, 150});
    QCOMPARE(_view->cutRect(), QRectF(55, 25, 95, 50));
}

void EditImageWidgetTest::autoFlagsFollowEachImage() {
    QSignalSpy zooms(_view.get(), &EditImageWidget::zoomChanged);
    _view->setAutoFit(true);
    _view->setImage(placeImage(100, 100), {});
    QCOMPARE(zooms.takeLast().first().toPointF(), QPointF(3, 3));
    QCOMPARE(imagePositionAt({50 + 30, 60}), QPoint(10, 20));
    _view->setImage({}, {});
    QCOMPARE(zooms.takeLast().first().toPointF(), QPointF(3, 3));
    _view->setImage(placeImage(200, 100), {});
    QCOMPARE(zooms.takeLast().first().toPointF(), QPointF(2, 2));
}

void EditImageWidgetTest::undecodableAndVanishedFiles() {
    const QString path = _directory->filePath("broken.png");
    QFile broken(path);
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    broken.close();
    _view->setImageFilePath(path);
    QCOMPARE(_view->imageFilePath(), path);
    QCOMPARE(_view->imageSizeText(), "0x0");
    _view->setTool(EditImageWidget::ToolCut);
    QTest::keyClick(_view.get(), Qt::Key_Return);
    QVERIFY(!_view->undoAvailable());

    _view->setImage(placeImage(20, 20), path);
    _view->setTool(EditImageWidget::ToolCut);
    QTest::keyClick(_view.get(), Qt::Key_Return);
    _view->setImageFilePath(_directory->filePath("gone.png"));
    QCOMPARE(_view->imageFilePath(), QString());
    QVERIFY(_view->imageSize().isEmpty());
    QVERIFY(_view->undoAvailable()); // the work before is not lost
}

void EditImageWidgetTest::saveFailuresLeaveFileWhole() {
    QSignalSpy messages(_view.get(), &EditImageWidget::message);
    QSignalSpy saves(_view.get(), &EditImageWidget::savedFile);
    _view->saveImage();
    QCOMPARE(messages.takeFirst().first().toString(), "Error, unable to save image: ");

    const QString unwritable = _directory->filePath("picture.gif"); // read, but not written
    QVERIFY(placeImage(30, 20).save(unwritable, "png"));
    const QByteArray before = fileBytes(unwritable);
    _view->setImageFilePath(unwritable);
    QCOMPARE(_view->imageSize(), QSize(30, 20));
    QTest::keyClick(_view.get(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(messages.takeFirst().first().toString(), "Error, unable to save image: " + unwritable);
    QCOMPARE(fileBytes(unwritable), before);

    const QString path = _directory->filePath("no such directory/a.png");
    _view->setImage(placeImage(30, 20), path);
    _view->saveImage();
    QCOMPARE(messages.takeFirst().first().toString(), "Error, unable to save image: " + path);
    QVERIFY(saves.isEmpty());

    const QString good = _directory->filePath("a.png");
    _view->setImage(placeImage(30, 20), good);
    QTest::keyClick(_view.get(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(messages.takeFirst().first().toString(), "Save image: " + good);
    QCOMPARE(saves, (QList<QVariantList>{{good}}));
    QCOMPARE(QImage(good).convertedTo(QImage::Format_RGB32), placeImage(30, 20));
}

void EditImageWidgetTest::saveAsKeepsPath() {
    QSignalSpy saves(_view.get(), &EditImageWidget::newlySavedFile);
    const QString first = _directory->filePath("a.png");
    QVERIFY(placeImage(30, 20).save(first));
    _view->setImageFilePath(first);
    QString proposed;
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        answer.stop();
        proposed = dialog->selectedFiles().value(0);
        dialog->selectFile(_directory->filePath("other.bmp"));
        static_cast<QDialog*>(dialog)->accept();
    });
    answer.start(0);
    _view->saveImageAs();
    QCOMPARE(proposed, _directory->filePath("a_0.png"));
    QCOMPARE(saves, (QList<QVariantList>{{_directory->filePath("other.bmp")}}));
    QCOMPARE(_view->imageFilePath(), first);
    QCOMPARE(QImageReader(_directory->filePath("other.bmp")).format(), "bmp");
}

void EditImageWidgetTest::menu_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QRectF>("result");

    QTest::newRow("fit") << "F&it" << QRectF(0, 0, 400, 300);
    QTest::newRow("height") << "Align &height" << QRectF(10, 0, 100, 299);
    QTest::newRow("width") << "Align &width" << QRectF(0, 20, 399, 50);
    QTest::newRow("centre") << "Align c&enter" << QRectF(149, 124, 100, 50);
    QTest::newRow("same width") << "Same width" << QRectF(10, 20, 50, 50);
    QTest::newRow("same height") << "Same height" << QRectF(10, 20, 100, 100);
    QTest::newRow("left") << "Align edge &left" << QRectF(0, 20, 110, 50);
    QTest::newRow("right") << "Align edge &right" << QRectF(10, 20, 389, 50);
    QTest::newRow("top") << "Align edge &top" << QRectF(10, 0, 100, 70);
    QTest::newRow("bottom") << "Align edge &bottom" << QRectF(10, 20, 100, 279);
}

void EditImageWidgetTest::menu() {
    QFETCH(QString, entry);
    _view->setTool(EditImageWidget::ToolCut);
    _view->onCutRectSet({10, 20, 100, 50});
    QAction* action = menuEntry(entry);
    QVERIFY(action);
    action->trigger();
    QTEST(_view->cutRect(), "result");
}

void EditImageWidgetTest::menuTogglesUpdateOnResize() {
    QAction own("Own");
    _view->addAction(&own);
    _view->setImage(placeImage(100, 100), {});
    _view->setAutoFit(true);
    QSignalSpy zooms(_view.get(), &EditImageWidget::zoomChanged);
    _view->resize(400, 200);
    QVERIFY(zooms.isEmpty());
    QAction* toggle = menuEntry("Update on resize");
    QVERIFY(toggle && !toggle->isChecked());
    toggle->trigger();
    _view->resize(400, 100);
    QCOMPARE(zooms, (QList<QVariantList>{{QPointF(2, 2)}, {QPointF(1, 1)}}));
    QVERIFY(menuEntry("Auto fit")->isChecked());
    QVERIFY(menuEntry("Own") == &own);
}

QTEST_MAIN(EditImageWidgetTest)
#include "tst_editimagewidget.moc"
