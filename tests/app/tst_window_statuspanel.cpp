#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QToolButton>

#include <cstdio>

namespace {

constexpr int manyFiles = 1000;

// What the test of a killed program runs as a process of its own: it edits tags and says when they are kept.
int editAndWait(const QString& directory) {
    WindowDriver driver(directory);
    driver.select(driver.catalogueNames());
    driver.window().onAddTagsAccepted("kept, with care");
    const QDir recovery(QCoreApplication::applicationDirPath() + "/recovery");
    if (!QTest::qWaitFor([&] { return !recovery.entryList({"*.json"}, QDir::Files).isEmpty(); }, 60000))
        return 1;
    std::puts("kept");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

} // namespace

// The right end of the status bar, as a user works with it.
class TestWindowStatusPanel : public QObject {
    Q_OBJECT

    static QToolButton* button(const WindowDriver& driver, const char* name) {
        return driver.widget<QToolButton>(name);
    }
    // What a button says; nothing while it is hidden.
    static QString said(const WindowDriver& driver, const char* name) {
        return button(driver, name)->isVisible() ? button(driver, name)->text() : QString();
    }
    static QStringList entries(const WindowDriver& driver) {
        QStringList texts;
        for (const QAction* action : button(driver, "tBUnsavedCount")->menu()->actions()) {
            if (!action->isSeparator())
                texts.append(action->text());
        }
        return texts;
    }
    static void pick(const WindowDriver& driver, const QString& entry) {
        for (QAction* action : button(driver, "tBUnsavedCount")->menu()->actions()) {
            if (action->text() == entry)
                return action->trigger();
        }
        qFatal("no entry %s", qPrintable(entry));
    }

private slots:
    void init() {
        WindowDriver::forgetSettings();
        QDir(QCoreApplication::applicationDirPath() + "/recovery").removeRecursively();
    }

    void anHourOfEdits() {
        const MediaFolder folder;
        for (const char* name : {"a.png", "b.png", "c & d.png", "e.png"})
            folder.addImage(name);
        folder.addTags("a.png", "sky,sea");
        QDir(folder.path()).mkdir("e.txt");
        WindowDriver driver(folder.path());
        driver.window().activateWindow();
        auto* filter = driver.widget<QLineEdit>("leFilterImages");
        const auto tags = [&](const char* name) { return driver.window().imageTags(folder.filePath(name)); };
        for (const char* name : {"tBShownCount", "tBUnsavedCount", "tBBatchProgress", "tBLastResult"})
            QCOMPARE(said(driver, name), QString());

        filter->setText("b.p");
        QCOMPARE(said(driver, "tBShownCount"), QString("1 of 4 shown"));
        QVERIFY(button(driver, "tBShownCount")->toolTip().contains("3 hidden by the filter"));
        QFile::remove(folder.filePath("b.png"));
        QTRY_COMPARE(said(driver, "tBShownCount"), QString("0 of 3 shown"));
        driver.click("tBShownCount");
        QCOMPARE(said(driver, "tBShownCount"), QString());
        QVERIFY(filter->text().isEmpty());
        driver.widget<QListWidget>("lwAllImagesTags")->item(0)->setSelected(true);
        QCOMPARE(said(driver, "tBShownCount"), QString("1 of 3 shown"));
        driver.click("tBShownCount");
        QCOMPARE(driver.shownNames().size(), 3);

        driver.select({"a.png", "c & d.png"});
        driver.window().onAddTagsAccepted("new");
        QCOMPARE(said(driver, "tBUnsavedCount"), QString("2 unsaved"));
        QVERIFY(button(driver, "tBUnsavedCount")->toolTip().contains("c & d.png"));
        QCOMPARE(entries(driver),
                 QStringList({"Undo add \"new\" to 2 files", "Save tags", "Show unsaved files"}));
        pick(driver, "Show unsaved files");
        QCOMPARE(driver.shownNames().size(), 2);
        driver.click("tBShownCount");
        // What is typed into has an undo of its own.
        filter->setFocus();
        QTest::keyClicks(filter, "x");
        QTest::keyClick(filter, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(filter->text(), QString());
        QCOMPARE(tags("a.png"), QStringList({"sky", "sea", "new"}));
        auto* view = driver.widget<QAbstractItemView>("listView");
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(tags("a.png"), QStringList({"sky", "sea"}));
        QCOMPARE(driver.tagTexts("lwImageTags"), QStringList({"sky", "sea"}));
        QCOMPARE(said(driver, "tBUnsavedCount"), QString("0 unsaved"));
        QTest::keyClick(view, Qt::Key_Y, Qt::ControlModifier);
        QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(said(driver, "tBUnsavedCount"), QString("2 unsaved"));

        QTest::keyClick(view, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(folder.content("a.txt"), QByteArray("sky,sea,new"));
        QCOMPARE(said(driver, "tBUnsavedCount"), QString("0 unsaved"));
        QCOMPARE(said(driver, "tBLastResult"), QString("saved 2 of 3, 1 failed"));
        driver.click("tBLastResult");
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(folder.filePath("e.txt") + ": "));
        // A save is taken back in memory and saved again.
        pick(driver, "Undo add \"new\" to 2 files");
        QCOMPARE(said(driver, "tBUnsavedCount"), QString("2 unsaved"));
        pick(driver, "Save tags");
        QCOMPARE(folder.content("a.txt"), QByteArray("sky,sea"));
    }

    void aKilledProgramLosesNothing() {
        const MediaFolder folder;
        for (int number = 0; number < manyFiles; ++number)
            folder.addImage(QString("%1.png").arg(number), {2, 2});
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {"--edit", folder.path()});
        QVERIFY(QTest::qWaitFor([&] { return program.readAllStandardOutput().contains("kept"); }, 120000));
        program.kill();
        QVERIFY(program.waitForFinished());
        WindowDriver::forgetSettings();
        WindowDriver driver(folder.path());
        QCOMPARE(said(driver, "tBUnsavedCount"), QString("0 unsaved"));
        const QString offer = entries(driver).value(0);
        QVERIFY2(offer.startsWith(QString("Restore %1 files of ").arg(manyFiles)), qPrintable(offer));
        pick(driver, offer);
        QCOMPARE(driver.statusText(),
                 QString("Restored the tags of %1 files, 0 sidecars have changed since.").arg(manyFiles));
        for (const QString& file : driver.window().allFilePaths())
            QCOMPARE(driver.window().imageTags(file), QStringList({"kept", " with care"}));
        QCOMPARE(said(driver, "tBUnsavedCount"), QString("%1 unsaved").arg(manyFiles));
    }
};

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName("Tessarine");
    if (argc == 3 && QByteArray(argv[1]) == "--edit")
        return editAndWait(QString::fromLocal8Bit(argv[2]));
    TestWindowStatusPanel test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_window_statuspanel.moc"
