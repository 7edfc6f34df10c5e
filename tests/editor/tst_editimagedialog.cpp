#include "editor/EditImageDialog.h"
#include "support/MediaFolder.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

class TestEditImageDialog : public QObject {
    Q_OBJECT

private slots:
    void init() {
        _dialog = std::make_unique<EditImageDialog>();
        _view = child<EditImageWidget>("imgWidget");
        _dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(_dialog.get()));
    }
    void cleanup() { _dialog.reset(); }

    void actionsStandInOrder() {
        QStringList texts;
        for (const QAction* entry : child<QToolBar>("toolBar")->actions())
            texts << entry->text();
        QCOMPARE(texts, QStringList({"&Save image [Save, Ctrl+S]", "&Save image as [Shift+S]",
                                     "&Previous image [PgUp]", "&Next image [PgDown]", "&Pan image [Q]",
                                     "&Cut image [W]", "&Delete image [Del]", "&Undo [Undo]"}));
        QCOMPARE(child<QToolButton>("tBAutoFit")->toolTip(), "Auto fit image to view. Changes zoom. [F]");
    }

    void cutToolShowsFields() {
        _dialog->setImageFile(_folder.addImage("a.png", {300, 200}), "[1 - 1]");
        QVERIFY(!child<QStackedWidget>("stackedWidget")->isVisible());
        // The keys live without the tool bar.
        child<QToolBar>("toolBar")->hide();
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

    void titleNamesTheFile() {
        QCOMPARE(_dialog->windowTitle(), "Edit image");
        const QString path = _folder.addImage("odd %1 %2 name.png", {30, 20});
        for (const QString& file : {path, _folder.filePath("gone.png")})
            _dialog->setImageFile(file, "[2 - 7]");
        QCOMPARE(_dialog->windowTitle(), "Edit image: odd %1 %2 name.png [30x20] [2 - 7]");
        const QSignalSpy next(_dialog.get(), &EditImageDialog::requestImgNext);
        emit _view->requestImage(true);
        QCOMPARE(next.value(0), QVariantList{path});
    }

    void buttonsAndViewAgree() {
        QTest::keyClick(_view, Qt::Key_C);
        QTest::keyClick(_view, Qt::Key_A);
        QVERIFY(child<QToolButton>("tBAutoCenter")->isChecked());
        QVERIFY(child<QToolButton>("tBKeepAspectRatio")->isChecked());
        child<QToolButton>("tBAutoFit")->click();
        QVERIFY(_view->autoFit());
        _view->resetZoom();
        QCOMPARE(child<QLabel>("labelStatus")->text(), "zoom level: 1");
    }

    void undoFollowsCuts() {
        const auto actions = child<QToolBar>("toolBar")->actions();
        const QAction* undo = actions.last();
        QVERIFY(!undo->isEnabled());
        _dialog->setImageFile(_folder.addImage("a.png"), {});
        actions.at(5)->trigger();
        QTest::keyClick(_view, Qt::Key_Return);
        QVERIFY(undo->isEnabled());
        _dialog->setImageFile(_folder.addImage("b.png"), {});
        QVERIFY(!undo->isEnabled());
    }

    void closingReportsLayout() {
        QByteArray state;
        QSignalSpy geometry(_dialog.get(), &EditImageDialog::widgetGeometry);
        connect(_dialog.get(), &EditImageDialog::widgetState, this, [&](const QByteArray& data) {
            QVERIFY(geometry.isEmpty());
            state = data;
        });
        _dialog->addToolBar(Qt::BottomToolBarArea, child<QToolBar>("toolBar"));
        _dialog->close();
        QCOMPARE(geometry.count(), 1);
        EditImageDialog next;
        QVERIFY(next.restoreState(state));
        QCOMPARE(next.toolBarArea(next.findChild<QToolBar*>("toolBar")), Qt::BottomToolBarArea);
    }

private:
    template <typename T>
    T* child(const char* name) {
        T* found = _dialog->findChild<T*>(name);
        if (!found)
            qFatal("no child %s", name);
        return found;
    }

    MediaFolder _folder;
    std::unique_ptr<EditImageDialog> _dialog;
    EditImageWidget* _view = nullptr;
};

QTEST_MAIN(TestEditImageDialog)
#include "tst_editimagedialog.moc"
