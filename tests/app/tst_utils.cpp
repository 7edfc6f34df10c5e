#include "app/services/Utils.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"

#include <QApplication>
#include <QDBusConnection>
#include <QProcess>
#include <QTest>

// Replaces the desktop's file manager.
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
        Utils::instance()->revealInFileBrowser(folder.filePath("gone/too/b.txt"), true, nullptr);
        const QString url = "file://" + folder.path();
        QTRY_COMPARE(manager.shown, (QStringList{"items " + url + "/a%20%231.txt", "folders " + url}));
        QDBusConnection::disconnectFromBus("manager");
    }

private:
    QProcess _bus;
    QString _address;
};

QTEST_MAIN(TestUtils)
#include "tst_utils.moc"
