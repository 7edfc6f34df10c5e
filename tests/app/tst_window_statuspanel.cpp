#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QProcess>
#include <QToolButton>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int manyFiles = 200;

// The process that the test kills: it edits tags and prints a line when they are on the disk.
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

// The next program offers the unsaved tags of a killed one.
class TestWindowStatusPanel : public QObject {
    Q_OBJECT

private slots:
    void aKilledProgramLosesNothing() {
        WindowDriver::forgetSettings();
        QDir(QCoreApplication::applicationDirPath() + "/recovery").removeRecursively();
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
        const auto* button = driver.widget<QToolButton>("tBUnsavedCount");
        QVERIFY(button->isVisible());
        QCOMPARE(button->text(), QString("0 unsaved"));
        const QList<QAction*> entries = button->menu()->actions();
        const auto offer = std::ranges::find_if(entries, [](const QAction* entry) {
            return entry->text().startsWith(QString("Restore %1 files of ").arg(manyFiles));
        });
        QVERIFY(offer != entries.end());
        (*offer)->trigger(); // which fills the menu anew
        QCOMPARE(driver.statusText(),
                 QString("Restored the tags of %1 files, 0 sidecars have changed since.").arg(manyFiles));
        for (const QString& file : driver.window().allFilePaths())
            QCOMPARE(driver.window().imageTags(file), QStringList({"kept", " with care"}));
        QCOMPARE(button->text(), QString("%1 unsaved").arg(manyFiles));
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
