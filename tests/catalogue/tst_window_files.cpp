#include "catalogue/MediaModel.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QDir>
#include <QProcess>

// The directory changes under the window.
class TestWindowFiles : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

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
        // A notification of the previous directory may arrive late.
        const MediaFolder previous;
        previous.addImage("other.png");
        driver.window().onWorkingDirectoryChanged(previous.path());
        QVERIFY(listed());
    }
};

QTEST_MAIN(TestWindowFiles)
#include "tst_window_files.moc"
