#include "editor/EditImageDialog.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"
#include "tags/AddTagsDialog.h"
#include "video/VideoWidget.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

// A day's work without the mouse.
class TestWindowKeys : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void tagsAreTypedAndCompleted() {
        const MediaFolder folder;
        fill(folder);
        WindowDriver driver(folder.path());
        QVERIFY(QTest::qWaitForWindowActive(&driver.window()));
        const auto tags = [&] { return driver.window().imageTags(folder.filePath("a.png")).join('|'); };
        driver.select({"a.png"});
        driver.widget<QTabWidget>("tWTools")->setCurrentIndex(1);
        auto* line = driver.widget<QLineEdit>("leFilterAllTags");
        line->setFocus();
        QTest::keyClicks(line, "s");
        QCOMPARE(offered(line), QStringList({"sky 2", "sea 1"}));
        QTest::keyClick(line, Qt::Key_Down);
        QTest::keyClick(line, Qt::Key_Down);
        QTest::keyClick(line, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(driver.statusText(), QString("Added \"sea\" to 1 files."));
        QCOMPARE(line->text(), QString("sea"));
        QTest::keyClicks(line, "new, tag");
        QTest::keyClick(line, Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
        QCOMPARE(tags(), QString("sky|sea|old|sea|new|tag"));
        QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
        line->clear();
        QTest::keyClick(line, Qt::Key_Return, Qt::ControlModifier);
        driver.select({});
        QTest::keyClicks(line, "lost");
        QTest::keyClick(line, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(tags(), QString("sky|sea|old|sea"));
        QVERIFY(!driver.tagTexts("lwAllImagesTags").contains("lost"));

        driver.select({"a.png"});
        driver.window().addTagToSelected();
        auto* dialog = driver.window().findChild<AddTagsDialog*>();
        auto* edit = dialog->findChild<QPlainTextEdit*>();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QTest::keyClicks(edit, "x, s");
        QTest::keyClick(edit, Qt::Key_Up);
        QTest::keyClick(edit, Qt::Key_Tab);
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::keyClicks(edit, "sk");
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::keyClicks(edit, "sk");
        QTest::keyClick(edit, Qt::Key_Escape);
        QVERIFY(offered(edit).isEmpty());
        QCOMPARE(edit->toPlainText(), QString("x, sky\nsk\nsk"));
        QTest::keyClick(edit, Qt::Key_Backspace);
        QTest::mouseClick(edit->viewport(), Qt::LeftButton, {}, edit->cursorRect().center());
        QVERIFY(offered(edit).isEmpty());
        QTest::keyClicks(edit, "k");
        QTest::keyClick(edit, Qt::Key_End, Qt::ControlModifier);
        QVERIFY(offered(edit).isEmpty());
        QTest::keyClick(edit, Qt::Key_Backspace);
        QTest::keyClick(edit, Qt::Key_Down);
        QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(tags(), QString("sky|sea|old|sea|x| sky|sk|sea"));
    }

    void theFilterLineAsks() {
        const MediaFolder folder;
        fill(folder);
        WindowDriver driver(folder.path());
        QVERIFY(QTest::qWaitForWindowActive(&driver.window()));
        auto* line = driver.widget<QLineEdit>("leFilterImages");
        QTest::keyClick(driver.widget<QListView>("listView"), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(line->hasFocus());
        QTest::keyClicks(line, ":tag");
        QTest::keyClick(line, Qt::Key_Down);
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(offered(line), QStringList({"sky 2", "old 1", "sea 1"}));
        QTest::keyClicks(line, "k");
        QTest::keyClick(line, Qt::Key_Down);
        QTest::keyClick(line, Qt::Key_Tab);
        QCOMPARE(line->text(), QString(":tag sky"));
        QCOMPARE(driver.shownNames().size(), 2);
        QCOMPARE(driver.statusText(), QString("Found 2 files."));
        driver.window().setImageTags(folder.filePath("b.png"), {"x", "x"});
        for (const auto& [query, found] :
             {std::pair(":unsaved", "b.png"), {":dup :w>4", "b.png"}, {":video", "clip.mp4"}}) {
            line->setText(query);
            QCOMPARE(driver.shownNames(), QStringList(found));
        }
        line->setText(":video clip");
        QCOMPARE(driver.shownNames(), QStringList());
        QVERIFY(driver.statusText().contains("\"clip\""));
        line->setText(":video");
        line->setText(":missingTx");
        QCOMPARE(driver.statusText(), QString("Found 1 files."));
    }

    void listsHaveTheirKeys() {
        const MediaFolder folder;
        fill(folder);
        WindowDriver driver(folder.path());
        QVERIFY(QTest::qWaitForWindowActive(&driver.window()));
        driver.widget<QTabWidget>("tWTools")->setCurrentIndex(1);
        auto* view = driver.widget<QListView>("listView");
        auto* prompt = driver.widget<QPlainTextEdit>("pTETagsFromFile");
        const QStringList names = driver.shownNames();
        for (const auto& [key, row] :
             {std::pair(Qt::Key_PageDown, 0), {Qt::Key_PageDown, 1}, {Qt::Key_PageUp, 0}}) {
            QTest::keyClick(prompt, key, Qt::ControlModifier);
            QCOMPARE(driver.window().selectedFilePaths(), QStringList(folder.filePath(names[row])));
        }
        const auto tags = [&] { return driver.tagTexts("lwImageTags").join('|'); };
        driver.select({"a.png"});
        auto* list = driver.widget<QListWidget>("lwImageTags");
        list->setFocus();
        list->setCurrentRow(1);
        for (const auto& [key, moved] : {std::pair(Qt::Key_Up, "sea|sky|old"),
                                         {Qt::Key_End, "sky|old|sea"},
                                         {Qt::Key_Up, "sky|sea|old"},
                                         {Qt::Key_Home, "sea|sky|old"},
                                         {Qt::Key_Down, "sky|sea|old"}}) {
            QTest::keyClick(list, key, Qt::AltModifier);
            QCOMPARE(tags(), QString(moved));
            QCOMPARE(driver.window().imageTags(folder.filePath("a.png")).join('|'), tags());
            QCOMPARE(list->currentItem()->text(), QString("sea"));
        }
        list->item(2)->setSelected(true);
        QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("sea,old"));
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(tags(), QString("sky"));
        QCOMPARE(list->selectedItems().value(0), list->item(0));
        QGuiApplication::clipboard()->setText(" \"b\", c\r\n\r\nd,");
        QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(tags(), QString("sky|\"b\"|c|d"));

        view->setFocus();
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_F5}) {
            const ModalAnswer answer(key == Qt::Key_F5 ? QMessageBox::No : QMessageBox::Cancel);
            QTest::keyClick(view, key);
            QVERIFY(answer.isUsed());
            driver.window().activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&driver.window()));
        }
        QTest::keyClick(view, Qt::Key_Return);
        QVERIFY(driver.window().findChild<EditImageDialog*>());
        driver.select({"clip.mp4"});
        emit view->doubleClicked(view->currentIndex());
        QVERIFY(driver.window().findChild<VideoWidget*>());
    }

    void filesAndDirectoriesAreDropped() {
        const MediaFolder folder;
        folder.addImage("work/a.png");
        folder.addImage("other/b.png");
        folder.addTags("other/b.png", "sky");
        WindowDriver driver(folder.filePath("work"));
        const auto drop = [&](QWidget* target, const QStringList& names) {
            QMimeData data;
            QList<QUrl> urls;
            for (const QString& name : names)
                urls.append(QUrl::fromLocalFile(folder.filePath(name)));
            data.setUrls(urls);
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(target, &enter);
            QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(target, &event);
        };
        auto* result = driver.widget<QToolButton>("tBLastResult");
        auto* line = driver.widget<QLineEdit>("lEWorkingPath");
        drop(driver.widget<QPlainTextEdit>("pTEResponse")->viewport(),
             {"other/b.png", "other/b.txt", "gone.png", "other"});
        QTRY_COMPARE(result->text(), QString("imported 2 of 4, 2 failed"));
        QTRY_COMPARE(driver.catalogueNames(), QStringList({"a.png", "b.png"}));
        QCOMPARE(driver.window().imageTags(folder.filePath("work/b.png")), QStringList("sky"));
        const ModalAnswer answer(QMessageBox::Yes);
        drop(line, {"other/"});
        QTRY_VERIFY(answer.isUsed());
        QTRY_COMPARE(driver.catalogueNames(), QStringList({"b.png"}));

        // The path line completes what is typed at its end.
        QCOMPARE(line->text(), folder.filePath("other"));
        line->setFocus();
        line->setText(folder.filePath("W"));
        QTest::keyClicks(line, "o");
        QCOMPARE(offered(line), QStringList("work "));
        QTest::keyClick(line, Qt::Key_Down);
        QTest::keyClick(line, Qt::Key_Tab);
        QCOMPARE(line->text(), folder.filePath("work"));
    }

private:
    static void fill(const MediaFolder& folder) {
        for (const char* name : {"a.png", "b.png", "c.png"})
            folder.addImage(name, {8, 8});
        folder.addFile("clip.mp4", "no clip");
        folder.addTags("a.png", "sky,sea,old");
        folder.addTags("b.png", "sky");
    }

    // The rows of the open completion, empty without one.
    static QStringList offered(const QWidget* edit) {
        const auto* list = edit->findChild<QTreeWidget*>("completions");
        QStringList rows;
        for (int row = 0; list && list->isVisible() && row < list->topLevelItemCount(); ++row)
            rows.append(list->topLevelItem(row)->text(0) + ' ' + list->topLevelItem(row)->text(1));
        return rows;
    }
};

QTEST_MAIN(TestWindowKeys)
#include "tst_window_keys.moc"
