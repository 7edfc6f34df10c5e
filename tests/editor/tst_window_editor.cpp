#include "editor/EditImageDialog.h"
#include "editor/EditImageWidget.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"

#include <QApplication>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QToolBar>
#include <QToolButton>

// Editor windows on a catalogue: stepping, cutting, saving and deleting.
class TestWindowEditor : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void controlsAndViewAgree() {
        const MediaFolder folder;
        folder.addImage("a.png", {300, 200});
        WindowDriver driver(folder.path());
        EditImageDialog* editor = openEditor(driver, "a.png");
        auto* view = editor->findChild<EditImageWidget*>("imgWidget");
        auto* toolBar = editor->findChild<QToolBar*>("toolBar");
        const auto isOn = [&](const char* name) {
            return editor->findChild<QToolButton*>(name)->isChecked();
        };
        const auto field = [&](const char* name) { return editor->findChild<QDoubleSpinBox*>(name); };
        QTest::keyClick(view, Qt::Key_C);
        QTest::keyClick(view, Qt::Key_F);
        QTest::keyClick(view, Qt::Key_A);
        QVERIFY(isOn("tBAutoCenter") && isOn("tBAutoFit") && isOn("tBKeepAspectRatio"));
        editor->findChild<QToolButton*>("tBAutoFit")->click();
        QVERIFY(!view->autoFit());
        view->resetZoom();
        QCOMPARE(editor->findChild<QLabel*>("labelStatus")->text(), "zoom level: 1");

        // The keys live without the tool bar.
        toolBar->hide();
        QTest::keyClick(editor, Qt::Key_W);
        QVERIFY(field("dSBCutX")->isVisible());
        QCOMPARE(field("dSBCutWidth")->value(), 300.0);
        field("dSBCutWidth")->setValue(123.5);
        field("dSBCutY")->setValue(-7);
        QCOMPARE(view->cutRect(), QRectF(0, -7, 123.5, 200));
        QTest::mousePress(view, Qt::LeftButton, {}, {60, 90});
        QTest::mouseMove(view, {70, 90});
        QCOMPARE(field("dSBCutX")->value(), 0.0);
        QTest::mouseRelease(view, Qt::LeftButton, {}, {70, 90});
        QCOMPARE(field("dSBCutX")->value(), 10.0);
        editor->findChild<QSpinBox*>("sBCutOutlineWidth")->setValue(3);
        QCOMPARE(view->cutOutlineWidth(), 3);
        const QAction* undo = toolBar->actions().last();
        QVERIFY(!undo->isEnabled());
        QTest::keyClick(view, Qt::Key_Return);
        QVERIFY(undo->isEnabled());
        editor->setImageFile(folder.filePath("a.png"), {});
        QVERIFY(!undo->isEnabled());
        QTest::keyClick(editor, Qt::Key_Q);
        QVERIFY(!field("dSBCutX")->isVisible());
    }

    void savingUnderAnotherName() {
        const MediaFolder folder;
        folder.addImage("a.png", {40, 30});
        folder.addImage("b.png", {40, 30});
        QVERIFY(QDir(folder.path()).mkdir("sub"));
        WindowDriver driver(folder.path());
        EditImageDialog* editor = openEditor(driver, "a.png");
        auto* view = editor->findChild<EditImageWidget*>("imgWidget");
        const auto saveAs = [&](const QString& path) {
            QString offered;
            const ModalAnswer answer(ModalAnswer::DialogAnswer([&](QDialog* dialog) {
                offered = static_cast<QFileDialog*>(dialog)->selectedFiles().value(0);
                chooseFiles({path})(dialog);
            }));
            view->saveImageAs();
            return offered;
        };
        folder.addTags("new.png", "found");
        QCOMPARE(saveAs(folder.filePath("new.png")), folder.filePath("a_0.png"));
        QCOMPARE(WindowDriver::logCount("Adding saved image as file: " + folder.filePath("new.png")), 1);
        QVERIFY(driver.catalogueNames().contains("new.png"));
        QCOMPARE(driver.window().imageTags(folder.filePath("new.png")), QStringList("found"));
        QCOMPARE(view->imageFilePath(), folder.filePath("a.png"));
        saveAs(folder.filePath("sub/away.png"));
        QCOMPARE(driver.statusText(), "Saved image as file: " + folder.filePath("sub/away.png") +
                                          ", outside of working directory, not adding to list.");
        driver.window().onEditImgNewlySavedFile(folder.filePath("b.png"));
        QCOMPARE(driver.statusText(),
                 "Saved image as file: " + folder.filePath("b.png") + ", file overwritten.");
        QTRY_COMPARE(driver.catalogueNames().size(), 3);
        // A place that cannot be written loses nothing.
        saveAs("/proc/nowhere.png");
        QCOMPARE(driver.statusText(), QString("Error, unable to save image: /proc/nowhere.png"));
        QCOMPARE(editor->findChild<QLabel*>("labelStatus")->text(), driver.statusText());
    }

private:
    static void activate(QWidget* window) {
        window->activateWindow();
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == window; }))
            qFatal("the editor is not active");
    }
    static EditImageDialog* openEditor(WindowDriver& driver, const QString& name) {
        driver.select({name});
        const QList<EditImageDialog*> before = driver.window().findChildren<EditImageDialog*>();
        driver.window().editImage();
        for (EditImageDialog* editor : driver.window().findChildren<EditImageDialog*>()) {
            if (!before.contains(editor)) {
                activate(editor);
                return editor;
            }
        }
        qFatal("no editor");
    }
};

QTEST_MAIN(TestWindowEditor)
#include "tst_window_editor.moc"
