#include "faults/Operations.h"
#include "support/MediaFolder.h"

#include <QDir>
#include <QLineEdit>
#include <QListView>

// Every operation over a directory of many files, all of them selected.
class TestManyFiles : public QObject {
    Q_OBJECT

private slots:
    void everyOperationTakesAll() {
        WindowDriver::forgetSettings();
        const int count = qEnvironmentVariableIsSet("TESSARINE_THOROUGH") ? 10'000 : 300;
        const MediaFolder folder;
        folder.addImage("work/0.png", {8, 8}, Qt::red, {{"Comment", "x"}});
        const QByteArray picture = folder.content("work/0.png");
        for (int number = 1; number < count; ++number)
            folder.addFile(QString("work/%1.png").arg(number), picture);
        folder.addFile("target/new.png", picture);
        const auto files = [&](const char* directory, const char* filter = "*.png") {
            return QDir(folder.filePath(directory)).entryList({filter}, QDir::Files).size();
        };
        const QHash<QByteArray, std::function<bool()>> results{
            {"save tags", [&] { return files("work", "*.txt") == count; }},
            {"resize", [&] { return files("work/scaled") == count; }},
            {"apply effects", [&] { return files("work/processed") >= count; }},
            {"copy", [&] { return files("target") >= count; }},
            {"move", [&] { return files("target") >= count && files("work") <= 2; }},
            {"delete", [&] { return files("work") == 0; }},
        };
        WindowDriver driver(folder.filePath("work"));
        driver.widget<QLineEdit>("lEOllamaIp")->setText("http://127.0.0.1:9/");
        for (const Operation& operation : operations()) {
            driver.widget<QListView>("listView")->selectAll();
            operation.run(driver, folder.filePath("target"));
            QVERIFY2(!results.contains(operation.name) || results[operation.name](), operation.name);
            if (operation.name == QByteArray("copy"))
                QDir(folder.filePath("target")).removeRecursively();
            QDir().mkpath(folder.filePath("target"));
        }
        QVERIFY(driver.waitForLoad());
    }
};

QTEST_MAIN(TestManyFiles)
#include "tst_manyfiles.moc"
