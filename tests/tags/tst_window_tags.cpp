#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QPlainTextEdit>

// Sidecars that no other program would write.
class TestWindowTags : public QObject {
    Q_OBJECT

private slots:
    void aLongLineWithoutABlankStaysUsable() {
        const MediaFolder folder;
        const QByteArray line(1'000'000, 'x');
        folder.addImage("a.png");
        folder.addImage("b.png");
        folder.addTags("a.png", line);
        folder.addTags("b.png", "short");
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
    }
};

QTEST_MAIN(TestWindowTags)
#include "tst_window_tags.moc"
