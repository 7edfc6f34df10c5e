#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"
#include "tags/AddTagsDialog.h"
#include "tags/TagsExportDialog.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

// Tags from the sidecars to the panels and back, as a user moves them.
class TestWindowTags : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void aDayOfTagging() {
        const MediaFolder folder;
        QStringList names;
        for (int number = 0; number < 200; ++number) {
            names.append(QString("img%1.png").arg(number, 3, 10, QChar('0')));
            folder.addImage(names.last(), {4, 4});
            if (number % 2 == 0)
                folder.addTags(names.last(), QString("base, cat_%1\n").arg(number).toUtf8());
        }
        {
            WindowDriver driver(folder.path());
            driver.select(names);
            addTags(driver, "new tag, second\nthird");
            replaceOrSplit(driver, "R&eplace text", "base", "ground");
            replaceOrSplit(driver, "Spli&t text", "_", {});
            driver.widget<QCheckBox>("cBBackupTxt")->setChecked(true);
            driver.click("tBSaveTags");
            QCOMPARE(folder.content("img000.txt"), QByteArray("ground,new tag,second,third,cat,0"));
            QCOMPARE(folder.content("img001.txt"), QByteArray("new tag,second,third"));
            QCOMPARE(folder.content("img000_backup_0.txt"), QByteArray("base, cat_0\n"));
            QVERIFY(!folder.exists("img001_backup_0.txt"));
            QVERIFY(folder.names().contains("img198_backup_0.txt"));
        }
        WindowDriver driver(folder.path());
        for (const QString& name : std::as_const(names)) {
            const QString text = driver.window().imageTags(folder.filePath(name)).join(',');
            QCOMPARE(text.toUtf8(), folder.content(name.first(6) + ".txt"));
        }
        QCOMPARE(driver.widget<QListWidget>("lwAllImagesTags")->count(), 5 + 100);
    }

    void savingWritesWhatIsTold() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addImage("b.png");
        folder.addTags("a.png", "x,x, y");
        WindowDriver driver(folder.path());
        driver.window().setImageTags(folder.filePath("a.png"), {"x", "x", " x", "y"});
        driver.click("tBSaveTags");
        QCOMPARE(folder.content("a.txt"), QByteArray("x,x,y"));
        QVERIFY(folder.exists("b.txt"));
        QCOMPARE(folder.content("b.txt"), QByteArray());
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")).size(), 4);
        driver.widget<QCheckBox>("cBSaveTagsDuplicates")->setChecked(true);
        driver.widget<QAction>("actionSave_tags")->trigger();
        QCOMPARE(folder.content("a.txt"), QByteArray("x,x,x,y"));
        QVERIFY(!folder.exists("a_backup_0.txt"));
    }

    void aLongLineWithoutABlankStaysUsable() {
        const MediaFolder folder;
        const QByteArray line(1'000'000, 'x');
        folder.addImage("a.png");
        folder.addImage("b.png");
        folder.addTags("a.png", line);
        folder.addTags("b.png", "short");
        WindowDriver driver(folder.path());
        driver.select({"a.png"});
        auto* edit = driver.widget<QPlainTextEdit>("pTETagsFromFile");
        QCOMPARE(edit->toPlainText().toUtf8(), line);
        QCOMPARE(edit->wordWrapMode(), QTextOption::WrapAnywhere);
        QCOMPARE(driver.tagTexts("lwImageTags").join(','), edit->toPlainText());
        driver.click("tBSaveTagTxtFile");
        QCOMPARE(folder.content("a.txt"), line);
        driver.select({"b.png"});
        QCOMPARE(edit->wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    }

    void aSidecarThatCannotBeWrittenCostsOnlyItself() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addImage("b.png");
        QVERIFY(QDir(folder.path()).mkdir("a.txt"));
        WindowDriver driver(folder.path());
        driver.window().setImageTags(folder.filePath("b.png"), {"kept"});
        driver.click("tBSaveTags");
        QCOMPARE(folder.content("b.txt"), QByteArray("kept"));
        QVERIFY(WindowDriver::logCount("Failed to open txt file:") == 1);
        QVERIFY(QDir(folder.filePath("a.txt")).exists());
        driver.select({"a.png"});
        driver.click("tBSaveTagTxtFile");
        QVERIFY(driver.statusText().startsWith("Failed to open txt file, error: "));
    }

    void theRawEditorFollowsAndSaves() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addImage("b.png");
        folder.addTags("a.png", "red\ncat");
        WindowDriver driver(folder.path());
        auto* editor = driver.widget<QPlainTextEdit>("pTETagsFromFile");
        const auto* label = driver.widget<QLabel>("labelTagsFromFile");
        // After a scan it holds the last file that was read.
        QCOMPARE(editor->property("imgFileName").toString(), driver.window().allFilePaths().last());
        driver.select({"b.png"});
        QCOMPARE(label->text(), "File tag, txt, missing for: " + folder.filePath("b.txt"));
        driver.select({"a.png"});
        QCOMPARE(label->text(), "File: " + folder.filePath("a.txt"));
        QCOMPARE(editor->toPlainText(), QString("red\ncat"));
        QCOMPARE(editor->property("txtFileName").toString(), folder.filePath("a.txt"));
        QCOMPARE(editor->property("imgFileName").toString(), folder.filePath("a.png"));
        // Memory keeps what the scan read, the editor shows the disk.
        folder.addTags("a.png", "other");
        driver.select({"b.png"});
        driver.select({"a.png"});
        QCOMPARE(editor->toPlainText(), QString("other"));
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")), QStringList({"red", "cat"}));

        editor->setPlainText("one \n two,,two");
        driver.widget<QCheckBox>("cBBackupTxt")->setChecked(true);
        driver.click("tBSaveTagTxtFile");
        QCOMPARE(folder.content("a.txt"), QByteArray("one \n two,,two"));
        QCOMPARE(folder.content("a_backup_0.txt"), QByteArray("other"));
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")), QStringList({"one", "two", "two"}));
        QCOMPARE(driver.tagTexts("lwImageTags"), QStringList({"one", "two", "two"}));
        QStringList all = driver.tagTexts("lwAllImagesTags");
        all.sort();
        QCOMPARE(all, QStringList({"one", "two"}));
    }

    void panelsCountFilterAndDelete() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addImage("b.png");
        folder.addImage("c.png");
        folder.addTags("a.png", "cat,dog,cat");
        folder.addTags("b.png", "cat,Cat");
        WindowDriver driver(folder.path());
        auto* all = driver.widget<QListWidget>("lwAllImagesTags");
        auto* chosen = driver.widget<QListWidget>("lwImageTags");
        QCOMPARE(all->findItems("cat", Qt::MatchExactly | Qt::MatchCaseSensitive).first()->toolTip(),
                 QString("Count: 3"));
        driver.select({"a.png", "b.png"});
        QCOMPARE(chosen->count(), 5);
        QCOMPARE(driver.widget<QLabel>("labelCurrentSelectionTags")->text(),
                 QString("Current selection [2] tags:"));

        driver.widget<QLineEdit>("leFilterAllTags")->setText("DO");
        QVERIFY(all->findItems("cat", Qt::MatchExactly).first()->isHidden());
        QVERIFY(!all->findItems("dog", Qt::MatchExactly).first()->isHidden());

        // Either spelling finds the files of both.
        all->findItems("Cat", Qt::MatchExactly | Qt::MatchCaseSensitive).first()->setSelected(true);
        QCOMPARE(driver.statusText(), QString("Found 2 images for tag: Cat"));
        QVERIFY(!driver.shownNames().contains("c.png"));
        all->clearSelection();
        QCOMPARE(driver.statusText(), QString("Found 0 images for tag: "));
        QCOMPARE(driver.shownNames().size(), 3);

        driver.select({"a.png"});
        chosen->item(0)->setSelected(true);
        choose(driver, "lwImageTags", "&Copy to clipboard");
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("cat"));
        choose(driver, "lwImageTags", "&Delete");
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")), QStringList("dog"));
        QCOMPARE(driver.window().imageTags(folder.filePath("b.png")), QStringList({"cat", "Cat"}));
        // A rebuilt list shows everything again.
        QVERIFY(!all->findItems("cat", Qt::MatchExactly).first()->isHidden());
        all->findItems("cat", Qt::MatchExactly | Qt::MatchCaseSensitive).first()->setSelected(true);
        choose(driver, "lwAllImagesTags", "&Delete");
        QCOMPARE(driver.window().imageTags(folder.filePath("b.png")), QStringList("Cat"));
        choose(driver, "lwAllImagesTags", "&Sort");
        QCOMPARE(driver.tagTexts("lwAllImagesTags"), QStringList({"Cat", "dog"}));
        choose(driver, "lwAllImagesTags", "&Sort");
        QCOMPARE(driver.tagTexts("lwAllImagesTags"), QStringList({"dog", "Cat"}));
    }

    void emptyTextsAreRefused() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addTags("a.png", "x");
        WindowDriver driver(folder.path());
        replaceOrSplit(driver, "R&eplace text", "x", "");
        QCOMPARE(driver.statusText(),
                 QString("Unable to replace text, source \"x\" or replacement \"\" is empty"));
        replaceOrSplit(driver, "Spli&t text", "", {});
        QCOMPARE(driver.statusText(), QString("Source text is empty \"\""));
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")), QStringList("x"));
    }

    void aSidecarIsEditedAsText() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addTags("a.png", "x");
        WindowDriver driver(folder.path());
        driver.select({"a.png"});
        QVERIFY(driver.chooseFromMediaMenu("Edit &tag file"));
        auto* dialog = driver.window().findChild<AddTagsDialog*>();
        QVERIFY(dialog);
        dialog->findChild<QPlainTextEdit*>()->setPlainText("y\nz");
        dialog->findChild<QPushButton*>("pBAdd")->click();
        QCOMPARE(folder.content("a.txt"), QByteArray("y\nz"));
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")), QStringList({"y", "z"}));
        QCOMPARE(driver.widget<QPlainTextEdit>("pTETagsFromFile")->toPlainText(), QString("y\nz"));
    }

    void exportShowsASnapshot() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addTags("a.png", "x,y,x");
        WindowDriver driver(folder.path());
        driver.click("tBExportTags");
        const auto* dialog = driver.window().findChild<TagsExportDialog*>();
        QVERIFY(dialog && dialog->isVisible() && !dialog->isModal());
        QCOMPARE(dialog->findChild<QPlainTextEdit*>()->toPlainText(), QString("y [1]\nx [2]\n"));
    }

private:
    static void addTags(WindowDriver& driver, const QString& text) {
        driver.window().addTagToSelected();
        auto* dialog = driver.window().findChild<AddTagsDialog*>();
        dialog->findChild<QPlainTextEdit*>()->setPlainText(text);
        dialog->findChild<QPushButton*>("pBAdd")->click();
    }

    static void choose(WindowDriver& driver, const char* list, const QString& entry) {
        const ModalAnswer answer(entry);
        emit driver.widget<QListWidget>(list)->customContextMenuRequested({});
        QVERIFY(answer.isUsed());
    }

    static void replaceOrSplit(WindowDriver& driver, const QString& entry, const QString& src,
                               const QString& dst) {
        const ModalAnswer answer(ModalAnswer::DialogAnswer([&](QDialog* dialog) {
            dialog->findChild<QLineEdit*>("lESrcText")->setText(src);
            dialog->findChild<QLineEdit*>("lEDstText")->setText(dst);
            dialog->findChild<QPushButton*>("pBOk")->click();
        }));
        choose(driver, "lwAllImagesTags", entry);
        QVERIFY(answer.isUsed());
    }
};

QTEST_MAIN(TestWindowTags)
#include "tst_window_tags.moc"
