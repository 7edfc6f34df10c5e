#include "app/services/Utils.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

// Stands in for the desktop's file manager.
class FakeFileManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public slots:
    void ShowItems(const QStringList& uris, const QString&) { shown << "items " + uris.join(' '); }
    void ShowFolders(const QStringList& uris, const QString&) { shown << "folders " + uris.join(' '); }
};

class UtilsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void bitRates_data();
    void bitRates();
    void durations_data();
    void durations();
    void findsInPath();
    void nearestExisting_data();
    void nearestExisting();
    void warnsWithoutFileManager();
    void asksFileManager();
    void zoomsFonts();

private:
    QProcess _bus;
    QString _address;
};

void UtilsTest::initTestCase() {
    _bus.start("dbus-daemon", {"--session", "--nofork", "--print-address", "--address=unix:tmpdir=/tmp"});
    QVERIFY(_bus.waitForReadyRead());
    _address = QString::fromLatin1(_bus.readLine().trimmed());
    qputenv("DBUS_SESSION_BUS_ADDRESS", _address.toLatin1());
}

void UtilsTest::cleanupTestCase() {
    _bus.kill();
    _bus.waitForFinished();
}

void UtilsTest::bitRates_data() {
    QTest::addColumn<quint64>("rate");
    QTest::addColumn<QString>("text");
    QTest::newRow("bits") << 999ULL << "999 b/s";
    QTest::newRow("thousand") << 1000ULL << "1.0 Kb/s";
    QTest::newRow("cut, not rounded") << 999999ULL << "999.0 Kb/s";
    QTest::newRow("millions") << 1536000ULL << "1.0 Mb/s";
    QTest::newRow("past all units") << 1000000000000ULL << "1.0 ";
}

void UtilsTest::bitRates() {
    QFETCH(quint64, rate);
    QTEST(Utils::instance()->formatBitRate(rate), "text");
}

void UtilsTest::durations_data() {
    QTest::addColumn<quint64>("ms");
    QTest::addColumn<bool>("showMs");
    QTest::addColumn<int>("padding");
    QTest::addColumn<bool>("hideHours");
    QTest::addColumn<QString>("text");
    QTest::newRow("all fields") << 3723004ULL << true << 0 << false << "1:02:03.4";
    QTest::newRow("padded hours") << 3723000ULL << false << 1 << false << "01:02:03";
    QTest::newRow("hidden hours") << 63000ULL << false << 0 << true << "01:03";
    QTest::newRow("hours that cannot be hidden") << 3600000ULL << true << 0 << true << "1:00:00.0";
}

void UtilsTest::durations() {
    QFETCH(quint64, ms);
    QFETCH(bool, showMs);
    QFETCH(int, padding);
    QFETCH(bool, hideHours);
    QTEST(Utils::instance()->formatDuration(ms, showMs, padding, hideHours), "text");
}

void UtilsTest::findsInPath() {
    const QTemporaryDir directory;
    QFile file(directory.filePath("explorer.exe"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", "/no such;;" + directory.path().replace('/', '\\').toLocal8Bit() + "\\");
    const QString found = Utils::instance()->findInPath("explorer.exe");
    const QString missing = Utils::instance()->findInPath("other.exe");
    qputenv("PATH", before);
    QCOMPARE(found, file.fileName());
    QCOMPARE(missing, QString());
}

void UtilsTest::nearestExisting_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("found");
    QTest::newRow("file") << "sub/a.txt" << "sub/a.txt";
    QTest::newRow("deleted file") << "sub/gone.txt" << "sub";
    QTest::newRow("deleted folders") << "sub/gone/too/b.txt" << "sub";
    QTest::newRow("folder") << "sub" << "sub";
}

void UtilsTest::nearestExisting() {
    QFETCH(QString, path);
    QFETCH(QString, found);
    const QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir("sub"));
    QFile file(directory.filePath("sub/a.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(nearestExistingPath(directory.filePath(path)), directory.filePath(found));
    QCOMPARE(nearestExistingPath("/no such folder/a.txt"), "/");
}

void UtilsTest::warnsWithoutFileManager() {
    QString text;
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            answer.stop();
            text = box->text();
            box->accept();
        }
    });
    answer.start(0);
    Utils::instance()->revealInFileBrowser("/gone/a.txt", true, nullptr);
    QTRY_COMPARE(text, "Could not find explorer.exe in path to launch Windows Explorer.");
}

void UtilsTest::asksFileManager() {
    FakeFileManager manager;
    QDBusConnection bus = QDBusConnection::connectToBus(_address, "manager");
    QVERIFY(bus.registerObject("/org/freedesktop/FileManager1", &manager, QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService("org.freedesktop.FileManager1"));
    const QTemporaryDir directory;
    QFile file(directory.filePath("a #1.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    Utils::instance()->revealInFileBrowser(file.fileName(), true, nullptr);
    Utils::instance()->revealInFileBrowser(directory.filePath("gone/b.txt"), true, nullptr);
    const QString folder = "file://" + directory.path();
    QTRY_COMPARE(manager.shown, (QStringList{"items " + folder + "/a%20%231.txt", "folders " + folder}));
    QDBusConnection::disconnectFromBus("manager");
}

void UtilsTest::zoomsFonts() {
    QLabel label("text");
    const double before = label.font().pointSizeF();
    label.installEventFilter(Utils::instance());
    QTest::keyClick(&label, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&label, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&label, Qt::Key_Plus);
    QTest::keyClick(&label, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(label.font().pointSizeF(), before + 1.0);
    QTest::keyClick(&label, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(label.font().pointSizeF(), before);
}

QTEST_MAIN(UtilsTest)
#include "tst_utils.moc"
