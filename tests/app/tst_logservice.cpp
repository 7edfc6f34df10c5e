#include "app/services/LogService.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QThread>

#include <memory>
#include <vector>

// The log file of a run, the one of the run before, and many threads writing at once.
class TestLogService : public QObject {
    Q_OBJECT

private slots:
    void init() { removeFiles(); }
    void cleanup() {
        LogService::destroy();
        removeFiles();
    }

    void eachRunHasItsFile() {
        const std::pair<QString, int> levels[] = {{"--empty", 1},    {"--log=2 --no-log", 0},
                                                  {"a --log=A", 10}, {"--log=x", 1},
                                                  {"--log", 1},      {"--log=0 --log=2", 0}};
        for (const auto& [arguments, level] : levels)
            QCOMPARE(logLevelFromArguments(arguments.split(' ')), level);
        start({});
        qInfo() << "too detailed";
        qDebug() << "first run";
        QVERIFY(content("app-current.log")
                    .startsWith("##########\n" + QCoreApplication::applicationName() + " log "));
        QVERIFY(content("app-current.log")
                    .contains("\n\t--empty\nLog level: 1 (Default)\nApplication version: "));
        QVERIFY(content("app-current.log").contains("\n\tSettings path: /the/settings\n"));
        QVERIFY(!content("app-current.log").contains("too detailed"));
        LogService::destroy();
        start({"--log=2"});
        qInfo() << "an info";
        QVERIFY(content("app-previous.log").contains("first run"));
        QVERIFY(!content("app-current.log").contains("first run"));
        // A second init within one run renames the log file again.
        LogService::instance()->init({"--no-log"});
        qDebug() << "silent";
        QCOMPARE(content("app-previous.log").count("an info"), 1);
        QVERIFY(!content("app-current.log").contains("silent"));
    }

    void noLineIsTornAndNothingHangs() {
        start({});
        constexpr int threadCount = 8;
        constexpr int lineCount = 2000;
        std::vector<std::unique_ptr<QThread>> threads;
        for (int number = 0; number < threadCount; ++number) {
            threads.emplace_back(QThread::create([number] {
                for (int line = 0; line < lineCount; ++line)
                    qDebug().noquote()
                        << QString("<%1 %2 ").arg(number).arg(line) + QString(80, QChar('x')) + ">";
            }));
            threads.back()->start();
        }
        // The log files are renamed and the service is destroyed and created while other threads write.
        for (int turn = 0; turn < 20; ++turn) {
            if (turn % 2 == 0)
                LogService::destroy();
            start({});
        }
        for (const auto& thread : threads)
            QVERIFY(thread->wait(60000));
        const QStringList lines = content("app-current.log").split('\n', Qt::SkipEmptyParts);
        for (const QString& line : lines) {
            if (line.contains('<'))
                QVERIFY2(line.count('<') == 1 && line.endsWith("x>"), qPrintable(line));
        }
    }

private:
    static QString path(const QString& name) { return QCoreApplication::applicationDirPath() + "/" + name; }
    static QString content(const QString& name) {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    static void start(const QStringList& arguments) {
        LogService::instance()->setApplicationInfo("/the/settings");
        LogService::instance()->init(arguments);
    }
    static void removeFiles() {
        for (const char* name : {"app-current.log", "app-previous.log"}) {
            QDir(path(name)).removeRecursively();
            QFile::remove(path(name));
        }
    }
};

QTEST_GUILESS_MAIN(TestLogService)
#include "tst_logservice.moc"
