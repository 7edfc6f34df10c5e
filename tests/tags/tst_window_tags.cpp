#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"
#include "tags/AddTagsDialog.h"

#include <QPlainTextEdit>
#include <QPushButton>

// Tags from the sidecars to the panels and back, as a user moves them.
class TestWindowTags : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

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

    void whatIsTypedOrImportedIsNotLost() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addImage("b.png");
        folder.addTags("a.png", "sky, sea");
        folder.addImage("elsewhere/new.png");
        folder.addTags("elsewhere/new.png", "caption");
        folder.addFile("elsewhere/readme.txt", "hands, off\n");
        WindowDriver driver(folder.path());
        auto* edit = driver.widget<QPlainTextEdit>("pTETagsFromFile");
        driver.select({"a.png"});
        QVERIFY(!edit->document()->isUndoAvailable());
        // A dialog for one file does not change the tags of another, whichever file the editor is bound to.
        driver.window().editTagFor(folder.filePath("a.png"));
        auto* dialog = driver.window().findChild<AddTagsDialog*>();
        dialog->findChild<QPlainTextEdit*>()->setPlainText("sky");
        driver.select({"b.png"});
        dialog->findChild<QPushButton*>("pBAdd")->click();
        QCOMPARE(folder.content("a.txt"), QByteArray("sky"));
        QCOMPARE(driver.window().imageTags(folder.filePath("b.png")), QStringList());
        driver.select({"b.png"});
        edit->insertPlainText("half a thought");
        {
            const ModalAnswer answer(
                chooseFiles({folder.filePath("elsewhere/new.png"), folder.filePath("elsewhere/new.txt"),
                             folder.filePath("elsewhere/readme.txt")}));
            driver.window().importFiles();
        }
        QTRY_VERIFY(driver.catalogueNames().contains("new.png"));
        driver.window().onAddTagsAccepted("kept");
        QCOMPARE(edit->toPlainText(), QString("skyhalf a thought"));
        QCOMPARE(driver.window().imageTags(folder.filePath("new.png")), QStringList("caption"));
        driver.click("tBSaveTags");
        QCOMPARE(folder.content("new.txt"), QByteArray("caption"));
        QCOMPARE(folder.content("readme.txt"), QByteArray("hands, off\n"));
        // In another directory there is nothing to save yet.
        driver.window().openWorkingDirectory(WindowDriver::emptyDirectory());
        driver.click("tBSaveTagTxtFile");
        QCOMPARE(driver.statusText(), QString("Error, file name is empty."));
        QCOMPARE(folder.content("b.txt"), QByteArray("kept"));
        // A notification of the previous directory arrives late.
        driver.window().onWorkingDirectoryChanged(folder.path());
        QCOMPARE(driver.catalogueNames(), QStringList());
    }
};

QTEST_MAIN(TestWindowTags)
#include "tst_window_tags.moc"
