#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "catalogue/MediaModel.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QTreeWidget>

// The directory changes under the window, and the window changes the directory.
class TestWindowFiles : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void theCatalogueFollowsTheDisk() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addTags("b.png", "red");
        WindowDriver driver(folder.path());
        driver.window().setImageTags(folder.filePath("a.png"), {"unsaved"});
        folder.addImage("b.png", {50, 40});
        QTRY_COMPARE(driver.catalogueNames(), QStringList({"a.png", "b.png"}));
        QCOMPARE(driver.window().imageTags(folder.filePath("b.png")), QStringList("red"));
        QCOMPARE(driver.window().imageTags(folder.filePath("a.png")), QStringList("unsaved"));
        QTRY_COMPARE(
            driver.cellData("b.png", ColName, Qt::DecorationRole).value<QImage>().pixelColor(109, 109),
            QColor(Qt::red));
        folder.addTags("c.png", "blue");
        QVERIFY(QFile::rename(folder.filePath("b.png"), folder.filePath("c.png")));
        QTRY_COMPARE(driver.catalogueNames(), QStringList({"a.png", "c.png"}));
        QVERIFY(QFile::remove(folder.filePath("c.png")));
        QTRY_COMPARE(driver.catalogueNames(), QStringList("a.png"));
        QTRY_COMPARE(driver.statusText(), QString("Removed 1 missing items."));
        QCOMPARE(driver.tagTexts("lwAllImagesTags"), QStringList("unsaved"));
        folder.addFile("notes.md", "x");
        QTRY_COMPARE(driver.statusText(), QString("Removed 0 missing items."));
        QCOMPARE(WindowDriver::logCount("failed to remove items"), 0);
    }

    void aStormEndsWithWhatAScanFinds() {
        const MediaFolder folder;
        const QByteArray picture = [&] {
            folder.addImage("seed.png", {30, 20});
            return folder.content("seed.png");
        }();
        for (int number = 0; number < 20; ++number)
            folder.addImage(QString("steady%1.png").arg(number), {40, 30});
        WindowDriver driver(folder.path());
        driver.window().setImageTags(folder.filePath("steady3.png"), {"mine"});
        // Another process creates, renames, rewrites and deletes as fast as it can, and a minute long on
        // request.
        const int seconds = qEnvironmentVariableIsSet("TESSARINE_THOROUGH") ? 60 : 0;
        QProcess storm;
        storm.setWorkingDirectory(folder.path());
        storm.start("/bin/sh", {"-c",
                                "i=0; end=$(($(date +%s) + $1)); "
                                "while [ $i -lt 400 ] || [ $(date +%s) -lt $end ]; do i=$((i + 1)); "
                                "[ $i -lt 400 ] || sleep 0.02; cp seed.png new$i.png; "
                                "[ $((i % 3)) = 0 ] && mv new$i.png moved$i.png; "
                                "[ $((i % 5)) = 0 ] && rm -f new$i.png moved$i.png; "
                                "[ $((i % 7)) = 0 ] && cp seed.png steady1.png; done; exit 0",
                                "storm", QString::number(seconds)});
        QTRY_COMPARE_WITH_TIMEOUT(storm.state(), QProcess::NotRunning, 150000);
        const auto onDisk = [&] { return QDir(folder.path()).entryList({"*.png"}, QDir::Files, QDir::Name); };
        const auto listed = [&] {
            QStringList names = driver.catalogueNames();
            QStringList disk = onDisk();
            disk.sort();
            return names == disk;
        };
        QTRY_VERIFY_WITH_TIMEOUT(listed(), 30000);
        QCOMPARE(driver.window().imageTags(folder.filePath("steady3.png")), QStringList("mine"));
        QTRY_VERIFY_WITH_TIMEOUT(driver.cellData("moved399.png", ColName, Qt::DecorationRole)
                                         .value<QImage>()
                                         .pixelColor(109, 109) == QColor(Qt::red),
                                 30000);
    }

    void copyingAndMovingRefuseClashes() {
        const MediaFolder folder;
        const MediaFolder target;
        folder.addImage("a.png");
        folder.addImage("b.png");
        target.addFile("a.png", "mine");
        WindowDriver driver(folder.path());
        for (const char* entry : {"&Copy files", "&Move files"}) {
            driver.select({"a.png", "b.png"});
            const ModalAnswer answer(chooseFiles({target.path()}));
            QVERIFY(driver.chooseFromMediaMenu(entry));
            QVERIFY(answer.isUsed());
            QCOMPARE(target.content("a.png"), QByteArray("mine"));
            QVERIFY(target.exists("b.png"));
            QVERIFY(QFile::remove(target.filePath("b.png")));
        }
        QCOMPARE(WindowDriver::logCount("Error, unable to copy file: " + folder.filePath("a.png") +
                                        " to: " + target.filePath("a.png")),
                 2);
        QVERIFY(folder.exists("a.png") && !folder.exists("b.png"));
        QTRY_COMPARE(driver.catalogueNames(), QStringList("a.png"));
        // A cancelled dialog changes nothing.
        driver.select({"a.png"});
        const ModalAnswer answer(chooseFiles({}));
        QVERIFY(driver.chooseFromMediaMenu("&Move files"));
        QVERIFY(folder.exists("a.png"));
    }

    void deletingGoesToTheTrash() {
        const MediaFolder folder;
        folder.addImage("a.png");
        folder.addImage("b.png");
        folder.addTags("a.png", "x");
        WindowDriver driver(folder.path());
        driver.select({"a.png"});
        {
            const ModalAnswer answer(QMessageBox::Cancel);
            QVERIFY(driver.chooseFromMediaMenu("&Delete file"));
            QCOMPARE(answer.text(), QString("Delete files."));
            QCOMPARE(answer.informativeText(), QString("Do you want to delete 1 files?"));
        }
        QVERIFY(folder.exists("a.png"));
        const ModalAnswer answer(QMessageBox::Ok);
        QVERIFY(driver.chooseFromMediaMenu("&Delete file"));
        QVERIFY(!folder.exists("a.png") && folder.exists("a.txt"));
        QCOMPARE(driver.catalogueNames(), QStringList("b.png"));
        QVERIFY(driver.tagTexts("lwAllImagesTags").isEmpty());

        folder.addFile("b.txt", "kept");
        folder.addFile("a_backup_0.txt", "stray");
        driver.select({"b.png"});
        QVERIFY(driver.chooseFromMediaMenu("&Delete stray txt files"));
        QTRY_COMPARE(WindowDriver::logCount("Found 2 stray txt files, moved to trash bin."), 1);
        QCOMPARE(WindowDriver::logCount("unable to move file to trash"), 0);
        QCOMPARE(folder.names(), QStringList({"b.png", "b.txt"}));
    }

    void importing() {
        const MediaFolder folder;
        const MediaFolder source;
        folder.addImage("a.png");
        folder.addImage("a_0.png");
        source.addImage("a.png", {70, 50});
        source.addFile("none", "no suffix");
        WindowDriver driver(folder.path());
        const auto import = [&](const QStringList& paths) {
            const ModalAnswer answer(chooseFiles(paths));
            driver.window().importFiles();
            QVERIFY(answer.isUsed());
        };
        import({source.filePath("a.png")});
        QCOMPARE(driver.statusText(), "Unable to import file from " + source.filePath("a.png") +
                                          ", file already exist at: " + folder.filePath("a.png"));
        Settings::instance()->setData(keys::importFilesAutoRename.key, true);
        source.addImage("b.png");
        folder.addImage("b.png");
        import({source.filePath("b.png")});
        QVERIFY(folder.exists("b_0.png") && source.exists("b.png"));
        Settings::instance()->setData(keys::importFilesDeleteSrc.key, true);
        import({source.filePath("a.png")});
        QVERIFY(folder.exists("a_1.png") && !source.exists("a.png"));
        QTRY_VERIFY(driver.catalogueNames().contains("a_1.png"));
        QCOMPARE(driver.cell("a_1.png", ColResolution), QString("70x50"));
        import({source.filePath("none")});
        QVERIFY(folder.exists("none."));
        // A file imported onto itself gets a name of its own, and nothing is lost.
        Settings::instance()->setData(keys::importFilesDeleteSrc.key, false);
        import({folder.filePath("a.png")});
        QVERIFY(folder.exists("a.png") && folder.exists("a_2.png"));
        QCOMPARE(WindowDriver::logCount("unable to move to trash file"), 0);
    }

    void openingManyAsks() {
        const MediaFolder folder;
        QStringList names;
        for (int number = 0; number < 9; ++number)
            names.append(QFileInfo(folder.addImage(QString("%1.png").arg(number))).fileName());
        WindowDriver driver(folder.path());
        QDesktopServices::setUrlHandler("file", this, "openUrl");
        for (const char* entry : {"&Open in native app", "Show file in &file browser"}) {
            driver.select(names);
            const ModalAnswer answer(QMessageBox::No);
            QVERIFY(driver.chooseFromMediaMenu(entry));
            QCOMPARE(answer.text(), QString("Open 9 file browsers?"));
        }
        QVERIFY(_openedUrls.isEmpty());
        driver.select(names.first(8));
        QVERIFY(driver.chooseFromMediaMenu("&Open in native app"));
        QDesktopServices::unsetUrlHandler("file");
        QCOMPARE(_openedUrls.size(), 8);
        QVERIFY(_openedUrls.contains(QUrl::fromLocalFile(folder.filePath("0.png"))));
    }

    void entriesFollowTheKindOfFile() {
        const MediaFolder folder;
        folder.addImage("image.png");
        folder.addTags("image.png", "red");
        folder.addFile("clip.mp4", "no video");
        WindowDriver driver(folder.path());
        const auto entriesFor = [&](const QString& name) {
            driver.select({name});
            const ModalAnswer answer(QString("no such entry"));
            driver.window().onImagesCustomContextMenu();
            return answer.menuEntries();
        };
        const QStringList ofImage = entriesFor("image.png");
        QVERIFY(ofImage.contains("Edit &tag file") && ofImage.contains("&Edit image"));
        QVERIFY(!ofImage.contains("Edit v&ideo"));
        const QStringList ofClip = entriesFor("clip.mp4");
        QVERIFY(!ofClip.contains("Edit &tag file") && !ofClip.contains("&Edit image"));
        QVERIFY(ofClip.contains("Edit v&ideo"));
    }

    void theDirectoryDialogStartsWhereTheUserIs() {
        const MediaFolder first;
        const MediaFolder second;
        WindowDriver driver(first.path());
        const auto startOfDialog = [&](const QString& typed) {
            driver.widget<QLineEdit>("lEWorkingPath")->setText(typed);
            QString start;
            const ModalAnswer answer(ModalAnswer::DialogAnswer([&](QDialog* dialog) {
                start = static_cast<QFileDialog*>(dialog)->directory().path();
                dialog->reject();
            }));
            driver.window().onSrcSelectPath();
            return start;
        };
        QCOMPARE(startOfDialog(second.path()), second.path());
        QCOMPARE(startOfDialog(QString()), second.path());
        QCOMPARE(startOfDialog("/no/such/place"), second.path());
    }

    void commentsAreShownCopiedAndExtracted() {
        const MediaFolder folder;
        const QString workflow = R"({"nodes": [1, 2], "text": "ä"})";
        folder.addImage("a.b.png", {4, 4}, Qt::red, {{"parameters", workflow}, {"Author", "me"}});
        folder.addImage("huge.png", {4, 4}, Qt::red, {{"Comment", QString(5'000'000, 'x')}});
        folder.addImage("plain.png", {4, 4});
        WindowDriver driver(folder.path());
        driver.select({"a.b.png", "plain.png"});
        const auto* tree = driver.widget<QTreeWidget>("tWComments");
        QCOMPARE(tree->topLevelItemCount(), 2);
        QHash<QString, QString> shown;
        for (int number = 0; number < 2; ++number) {
            const QTreeWidgetItem* top = tree->topLevelItem(number);
            QVERIFY(top->isExpanded());
            for (int child = 0; child < top->childCount(); ++child)
                shown.insert(top->child(child)->text(0), top->child(child)->text(1));
        }
        QCOMPARE(shown, (QHash<QString, QString>{{"parameters", workflow}, {"Author", "me"}}));
        driver.select({"a.b.png"});
        QVERIFY(driver.chooseFromMediaMenu("Copy co&mment"));
        QCOMPARE(QGuiApplication::clipboard()->text(), workflow);
        const MediaFolder target;
        const ModalAnswer answer(chooseFiles({target.path()}));
        QVERIFY(driver.chooseFromMediaMenu("E&xtract workflow"));
        QCOMPARE(target.content("a.json"), workflow.toUtf8());
        QCOMPARE(WindowDriver::logCount("unable to write content"), 0);
        driver.select({"huge.png"});
        QCOMPARE(tree->topLevelItem(0)->child(0)->text(1).size(), 5'000'000);
        driver.select({"plain.png"});
        QVERIFY(driver.chooseFromMediaMenu("Copy co&mment"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    }

    void leavingWithAHalfTypedPath_data() {
        QTest::addColumn<bool>("closesFirst");
        QTest::newRow("the window is closed") << true;
        QTest::newRow("the program ends with the window open") << false;
    }

    void leavingWithAHalfTypedPath() {
        QFETCH(bool, closesFirst);
        const MediaFolder folder;
        WindowDriver driver(folder.path());
        QVERIFY(QTest::qWaitForWindowActive(&driver.window()));
        auto* path = driver.widget<QLineEdit>("lEWorkingPath");
        path->setFocus();
        QTest::keyClicks(path, "/half");
        const ModalAnswer answer(QMessageBox::No);
        if (closesFirst)
            driver.window().close();
        driver.close();
        QCoreApplication::processEvents();
        QVERIFY(!answer.isUsed());
    }

    void changingTheDirectoryAsks() {
        const MediaFolder first;
        const MediaFolder second;
        first.addImage("first.png");
        second.addImage("second.png");
        WindowDriver driver(first.path());
        auto* path = driver.widget<QLineEdit>("lEWorkingPath");
        {
            const ModalAnswer answer(QMessageBox::No);
            path->setText(second.path());
            emit path->editingFinished();
            QCOMPARE(answer.text(), "Change current working directory to " + second.path() + "?");
        }
        QCOMPARE(path->text(), first.path());
        {
            const ModalAnswer answer(QMessageBox::Yes);
            path->setText(second.path());
            emit path->editingFinished();
        }
        QVERIFY(driver.waitForLoad());
        QCOMPARE(driver.catalogueNames(), QStringList("second.png"));
        // The watcher follows.
        first.addImage("unseen.png");
        second.addImage("seen.png");
        QTRY_COMPARE(driver.catalogueNames(), QStringList({"second.png", "seen.png"}));
    }

public slots:
    // Stands in for the desktop.
    void openUrl(const QUrl& url) { _openedUrls.append(url); }

private:
    QList<QUrl> _openedUrls;
};

QTEST_MAIN(TestWindowFiles)
#include "tst_window_files.moc"
