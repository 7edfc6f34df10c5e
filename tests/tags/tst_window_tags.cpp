#include "support/MediaFolder.h"
#include "support/WindowDriver.h"
#include "tags/AddTagsDialog.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QPushButton>

#include <sys/stat.h>

// Sidecars that no other program would write.
class TestWindowTags : public QObject {
    Q_OBJECT

private slots:
    void nothingIsLostOrBlocked() {
        const MediaFolder folder;
        const QByteArray line(1'000'000, 'x');
        folder.addImage("a.png");
        folder.addImage("b.png");
        folder.addTags("a.png", line);
        folder.addTags("b.png", "short");
        // A picture and its sidecar that would block whoever opens them, and a text that ends in an error.
        QVERIFY(mkfifo(qPrintable(folder.filePath("c.txt")), 0600) == 0);
        QVERIFY(QFile::link(folder.filePath("c.txt"), folder.filePath("c.png")));
        QVERIFY(QFile::link("/proc/self/mem", folder.filePath("d.txt")));
        WindowDriver::forgetSettings();
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
        QVERIFY(!edit->document()->isUndoAvailable()); // would bring back the text of another file
        driver.select({"c.png"});
        driver.window().editTagFor(folder.filePath("d.png"));
        QCOMPARE(driver.window().findChild<AddTagsDialog*>(), nullptr);
        driver.window().editTagFor(folder.filePath("b.png"));
        const auto* dialog = driver.window().findChild<AddTagsDialog*>();
        dialog->findChild<QPlainTextEdit*>()->setPlainText("typed");
        QFile sidecar(folder.filePath("b.txt"));
        QVERIFY(sidecar.remove() && QFile::link("/dev/full", sidecar.fileName()));
        dialog->findChild<QPushButton*>("pBAdd")->click();
        driver.window().onSaveTags();
        driver.select({"b.png"});
        QCOMPARE(driver.tagTexts("lwImageTags"), QStringList("typed"));
        QCOMPARE(driver.text("tBUnsavedCount"), QString("1 unsaved"));
    }
};

QTEST_MAIN(TestWindowTags)
#include "tst_window_tags.moc"
