#include "app/services/Utils.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/Rows.h"

#include <QApplication>
#include <QDBusConnection>
#include <QLabel>
#include <QProcess>

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

class TestUtils : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        _bus.start("dbus-daemon", {"--session", "--nofork", "--print-address", "--address=unix:tmpdir=/tmp"});
        QVERIFY(_bus.waitForReadyRead());
        _address = QString::fromLatin1(_bus.readLine().trimmed());
        qputenv("DBUS_SESSION_BUS_ADDRESS", _address.toLatin1());
    }
    void cleanupTestCase() {
        _bus.kill();
        _bus.waitForFinished();
    }

    void bitRatesAreCut() {
        const std::pair<quint64, QString> rates[] = {{999, "999 b/s"},
                                                     {1000, "1.0 Kb/s"},
                                                     {999999, "999.0 Kb/s"},
                                                     {1536000, "1.0 Mb/s"},
                                                     {1000000000000, "1.0 "}};
        for (const auto& [rate, text] : rates)
            QCOMPARE(Utils::instance()->formatBitRate(rate), text);
    }

    void durations_data() {
        addRows<quint64, bool, int, bool, QString>({
            {"all fields", 3723004, true, 0, false, "1:02:03.4"},
            {"padded hours", 3723000, false, 1, false, "01:02:03"},
            {"hidden hours", 63000, false, 0, true, "01:03"},
            {"hours that cannot be hidden", 3600000, true, 0, true, "1:00:00.0"},
        });
    }
    void durations() {
        const auto& [ms, showMs, padding, hideHours, text] = row<quint64, bool, int, bool, QString>();
        QCOMPARE(Utils::instance()->formatDuration(ms, showMs, padding, hideHours), text);
    }

    void findsInPath() {
        const MediaFolder folder;
        const QString file = folder.addFile("explorer.exe");
        const QByteArray before = qgetenv("PATH");
        qputenv("PATH", "/no such;;" + folder.path().replace('/', '\\').toLocal8Bit() + "\\");
        const QString found = Utils::instance()->findInPath("explorer.exe");
        const QString missing = Utils::instance()->findInPath("other.exe");
        qputenv("PATH", before);
        QCOMPARE(found, file);
        QCOMPARE(missing, QString());
    }

    void theNearestExistingPathIsFound() {
        const MediaFolder folder;
        const QString file = folder.addFile("sub/a.txt");
        QCOMPARE(nearestExistingPath(file), file);
        QCOMPARE(nearestExistingPath(folder.filePath("sub/gone/too/b.txt")), folder.filePath("sub"));
        QCOMPARE(nearestExistingPath(folder.filePath("sub")), folder.filePath("sub"));
        QCOMPARE(nearestExistingPath("/no such folder/a.txt"), "/");
    }

    void warnsWithoutFileManager() {
        const ModalAnswer answer(QMessageBox::Ok);
        const MediaFolder folder;
        Utils::instance()->revealInFileBrowser(folder.addFile("<b>&c/a.txt"), true, nullptr);
        QTRY_COMPARE(answer.text(),
                     "Could not find a file manager to show " + folder.filePath("<b>&c") + '.');
    }

    void asksFileManager() {
        FakeFileManager manager;
        QDBusConnection bus = QDBusConnection::connectToBus(_address, "manager");
        QVERIFY(
            bus.registerObject("/org/freedesktop/FileManager1", &manager, QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService("org.freedesktop.FileManager1"));
        const MediaFolder folder;
        Utils::instance()->revealInFileBrowser(folder.addFile("a #1.txt"), true, nullptr);
        Utils::instance()->revealInFileBrowser(folder.filePath("gone/b.txt"), true, nullptr);
        const QString url = "file://" + folder.path();
        QTRY_COMPARE(manager.shown, (QStringList{"items " + url + "/a%20%231.txt", "folders " + url}));
        QDBusConnection::disconnectFromBus("manager");
    }

    void zoomsFonts() {
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

private:
    QProcess _bus;
    QString _address;
};

QTEST_MAIN(TestUtils)
#include "tst_utils.moc"
