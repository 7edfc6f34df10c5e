#include "editor/EditImageDialog.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

class EditImageDialogTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void actionsStandInOrder();
    void cutToolShowsFields();
    void titleNamesFile();
    void actionsReportCurrentFile();
    void buttonsAndViewAgree();
    void undoFollowsCuts();
    void closingReportsLayout();

private:
    template <typename T>
    T* child(const char* name) {
        T* found = _dialog->findChild<T*>(name);
        if (!found)
            qFatal("no child %s", name);
        return found;
    }
    QAction* action(int index) { return child<QToolBar>("toolBar")->actions().at(index); }
    QString picture(const QString& name, QSize size);

    QTemporaryDir _directory;
    std::unique_ptr<EditImageDialog> _dialog;
    EditImageWidget* _view = nullptr;
};

void EditImageDialogTest::init() {
    _dialog = std::make_unique<EditImageDialog>();
    _view = child<EditImageWidget>("imgWidget");
    _dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(_dialog.get()));
}

void EditImageDialogTest::cleanup() {
    _dialog.reset();
}

QString EditImageDialogTest::picture(const QString& name, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QString path = _directory.filePath(name);
    return image.save(path) ? path : QString();
}

void EditImageDialogTest::actionsStandInOrder() {
    QStringList texts;
    for (const QAction* entry : child<QToolBar>("toolBar")->actions())
        texts << entry->text() + "|" + entry->iconText();
    const QStringList expected{"&Save image [Save, Ctrl+S]|Save image [Save, Ctrl+S]",
                               "&Save image as [Shift+S]|Save image as [Shift+S]",
                               "&Previous image [PgUp]|Previous image [PgUp]",
                               "&Next image [PgDown]|Next image [PgDown]",
                               "&Pan image [Q]|Pan image [Q]",
                               "&Cut image [W]|Cut image [W]",
                               "&Delete image [Del]|&Delete image [Del]",
                               "&Undo [Undo]|&Undo [Undo]"};
    QCOMPARE(texts, expected);
    QCOMPARE(child<QToolButton>("tBToolCut")->toolTip(), "Cut image [W]");
    QCOMPARE(child<QToolButton>("tBAutoFit")->toolTip(), "Auto fit image to view. Changes zoom. [F]");
}

void EditImageDialogTest::cutToolShowsFields() {
    _dialog->setImageFile(picture("a.png", {300, 200}), "[1 - 1]");
    QVERIFY(!child<QStackedWidget>("stackedWidget")->isVisible());
    QTest::keyClick(_dialog.get(), Qt::Key_W);
    QVERIFY(child<QStackedWidget>("stackedWidget")->isVisible());
    QCOMPARE(child<QDoubleSpinBox>("dSBCutWidth")->value(), 300.0);

    child<QDoubleSpinBox>("dSBCutWidth")->setValue(123.5);
    child<QDoubleSpinBox>("dSBCutY")->setValue(-7);
    QCOMPARE(_view->cutRect(), QRectF(0, -7, 123.5, 200));
    QTest::mousePress(_view, Qt::LeftButton, {}, {60, 90});
    QTest::mouseMove(_view, {70, 90});
    QCOMPARE(child<QDoubleSpinBox>("dSBCutX")->value(), 0.0);
    QTest::mouseRelease(_view, Qt::LeftButton, {}, {70, 90});
    QCOMPARE(child<QDoubleSpinBox>("dSBCutX")->value(), 10.0);
    QCOMPARE(_view->cutRect(), QRectF(10, -7, 123.5, 200));

    child<QSpinBox>("sBCutOutlineWidth")->setValue(3);
    QCOMPARE(_view->cutOutlineWidth(), 3);
    QTest::keyClick(_dialog.get(), Qt::Key_Q);
    QVERIFY(!child<QStackedWidget>("stackedWidget")->isVisible());
}

void EditImageDialogTest::titleNamesFile() {
    QCOMPARE(_dialog->windowTitle(), "Edit image");
    const QString path = picture("odd %1 %2 name.png", {30, 20});
    _dialog->setImageFile(path, "[2 - 7]");
    QCOMPARE(_dialog->windowTitle(), "Edit image: odd %1 %2 name.png [30x20] [2 - 7]");
    _dialog->setImageFile(_directory.filePath("gone.png"), "[3 - 7]");
    QCOMPARE(_dialog->windowTitle(), "Edit image: odd %1 %2 name.png [30x20] [2 - 7]");
    QCOMPARE(_view->imageFilePath(), path);
}

void EditImageDialogTest::actionsReportCurrentFile() {
    const QString path = picture("a.png", {30, 20});
    _dialog->setImageFile(path, {});
    QSignalSpy next(_dialog.get(), &EditImageDialog::requestImgNext);
    QSignalSpy previous(_dialog.get(), &EditImageDialog::requestImgPrev);
    QSignalSpy remove(_dialog.get(), &EditImageDialog::requestDeleteImage);
    QSignalSpy saved(_dialog.get(), &EditImageDialog::savedFile);
    QTest::keyClick(_dialog.get(), Qt::Key_PageDown);
    emit _view->requestImage(true);
    QTest::keyClick(_dialog.get(), Qt::Key_PageUp);
    QTest::keyClick(_dialog.get(), Qt::Key_Delete);
    QTest::keyClick(_view, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(next, (QList<QVariantList>{{path}, {path}}));
    QCOMPARE(previous, (QList<QVariantList>{{path}}));
    QCOMPARE(remove, (QList<QVariantList>{{path}}));
    QCOMPARE(saved, (QList<QVariantList>{{path}}));
}

void EditImageDialogTest::buttonsAndViewAgree() {
    QTest::keyClick(_view, Qt::Key_C);
    QTest::keyClick(_view, Qt::Key_A);
    QVERIFY(child<QToolButton>("tBAutoCenter")->isChecked());
    QVERIFY(child<QToolButton>("tBKeepAspectRatio")->isChecked());
    child<QToolButton>("tBAutoFit")->click();
    QVERIFY(_view->autoFit());
    _view->resetZoom();
    QCOMPARE(child<QLabel>("labelStatus")->text(), "zoom level: 1");
}

void EditImageDialogTest::undoFollowsCuts() {
    QAction* undo = action(7);
    QVERIFY(!undo->isEnabled());
    _dialog->setImageFile(picture("a.png", {30, 20}), {});
    action(5)->trigger();
    QTest::keyClick(_view, Qt::Key_Return);
    QVERIFY(undo->isEnabled());
    _dialog->setImageFile(picture("b.png", {30, 20}), {});
    QVERIFY(!undo->isEnabled());
}

void EditImageDialogTest::closingReportsLayout() {
    QStringList order;
    QByteArray state;
    connect(_dialog.get(), &EditImageDialog::widgetState, this, [&](const QByteArray& data) {
        order << "state";
        state = data;
    });
    connect(_dialog.get(), &EditImageDialog::widgetGeometry, this, [&] { order << "geometry"; });
    _dialog->addToolBar(Qt::BottomToolBarArea, child<QToolBar>("toolBar"));
    _dialog->close();
    QCOMPARE(order, (QStringList{"state", "geometry"}));
    EditImageDialog next;
    QVERIFY(next.restoreState(state));
    QCOMPARE(next.toolBarArea(next.findChild<QToolBar*>("toolBar")), Qt::BottomToolBarArea);
}

QTEST_MAIN(EditImageDialogTest)
#include "tst_editimagedialog.moc"
