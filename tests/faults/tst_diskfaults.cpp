#include "faults/Operations.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>

#include <sys/mount.h>
#include <unistd.h>

#include <sched.h>

namespace {

constexpr uid_t nobody = 65534;

// A mount namespace of our own, in which the test can mount small file systems.
bool canMount = false;

// The disk under the window: a working directory and one that files are copied to, on a file system of 1 MB.
class FaultyDisk {
public:
    FaultyDisk() {
        QFile::setPermissions(_folder.path(), QFile::Permissions(0x7755));
        isSmall = canMount && mount("tmpfs", qPrintable(_folder.path()), "tmpfs", 0, "size=1m,mode=755") == 0;
    }
    ~FaultyDisk() {
        end(ReadOnly);
        if (isSmall)
            umount2(qPrintable(_folder.path()), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(FaultyDisk)

    [[nodiscard]] QString work() const { return _folder.filePath("work"); }
    [[nodiscard]] QString target() const { return _folder.filePath("target"); }

    // The files that every operation starts from.
    void fill() const {
        for (const QString& directory : {work(), target()})
            QDir(directory).removeRecursively();
        QFile::remove(_folder.filePath("filler"));
        for (const char* name : {"work/a.png", "work/b.jpg", "work/c.png", "target/a.png", "target/new.png"})
            _folder.addImage(name, {20, 10}, Qt::red, {{"Comment", "a workflow"}});
        _folder.addTags("work/a.png", "old");
        _folder.addFile("work/stray.txt", "kept");
    }

    void begin(DiskFault fault) const {
        if (fault == FilesGone) {
            for (const QString& name : media())
                QFile::remove(work() + '/' + name);
        } else if (fault == DirectoryGone) {
            QDir(work()).removeRecursively();
        } else if (fault == ThingsInPlace) {
            for (const char* name : {"work/a.txt", "work/b.txt", "work/c.txt", "target/a.json",
                                     "target/b.json", "target/c.json", "target/b.jpg"}) {
                QFile::remove(_folder.filePath(name));
                QDir().mkpath(_folder.filePath(name));
            }
            for (const char* name : {"work/scaled", "work/processed"})
                _folder.addFile(name, "a file");
        } else if (fault == ReadOnly) {
            allow(false);
        } else {
            QFile filler(_folder.filePath("filler"));
            if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
                qFatal("no filler");
            while (filler.write(QByteArray(4096, 'x')) == 4096) {
            }
        }
    }

    void end(DiskFault fault) const {
        if (fault == ReadOnly)
            allow(true);
        QFile::remove(_folder.filePath("filler"));
    }

    // No picture is lost: it is in its directory or was moved, with its bytes unchanged.
    [[nodiscard]] bool holdsAllMedia() const {
        for (const QString& name : media()) {
            const QByteArray moved = name == "a.png" ? QByteArray() : _folder.content("target/" + name);
            if (QImage::fromData(_folder.content("work/" + name)).isNull() &&
                QImage::fromData(moved).isNull())
                return false;
        }
        return true;
    }
    [[nodiscard]] QByteArray targetFile() const { return _folder.content("target/a.png"); }
    [[nodiscard]] QByteArray sidecar() const { return _folder.content("work/a.txt"); }

    static QStringList media() { return {"a.png", "b.jpg", "c.png"}; }
    bool isSmall = false;

private:
    // Mode bits do not restrict root, so a test that runs as root continues as another user.
    void allow(bool isAllowed) const {
        if (isAllowed && geteuid() == nobody && seteuid(0) != 0)
            qFatal("no way back to root");
        const auto directories = QFile::Permissions(isAllowed ? 0x7755 : 0x5555);
        const auto files = QFile::Permissions(isAllowed ? 0x6644 : 0x4444);
        for (const QString& directory : {work(), target()}) {
            for (const QString& name : QDir(directory).entryList(QDir::Files))
                QFile::setPermissions(directory + '/' + name, files);
            QFile::setPermissions(directory, directories);
        }
        if (!isAllowed && geteuid() == 0 && seteuid(nobody) != 0)
            qFatal("cannot become another user");
    }

    MediaFolder _folder;
};

} // namespace

// Every operation of the real window while the disk fails under it.
class TestDiskFaults : public QObject {
    Q_OBJECT

private slots:
    void init() { WindowDriver::forgetSettings(); }

    void everyOperationMeets_data() {
        addRows<DiskFault>({
            {"files that are gone", FilesGone},
            {"a directory that is gone", DirectoryGone},
            {"directories and files in each other's place", ThingsInPlace},
            {"a disk that takes nothing from this user", ReadOnly},
            {"a full disk", DiskFull},
        });
    }
    void everyOperationMeets() {
        const auto& [kind] = row<DiskFault>();
        const FaultyDisk disk;
        if (kind == DiskFull && !disk.isSmall)
            QSKIP("no right to mount a small file system");
        disk.fill();
        WindowDriver driver(disk.work());
        driver.widget<QLineEdit>("lEOllamaIp")->setText("http://127.0.0.1:9/");
        for (const Operation& operation : operations()) {
            disk.fill();
            driver.rescan();
            driver.widget<QListView>("listView")->selectAll();
            driver.window().setImageTags(disk.work() + "/a.png", {QString(60'000, 't')});
            const QByteArray targetBefore = disk.targetFile();
            const QString complaint = operation.complaints[kind];
            const qsizetype complaints = complaint.isEmpty() ? 0 : WindowDriver::logCount(complaint);
            disk.begin(kind);
            operation.run(driver, disk.target());
            disk.end(kind);
            QVERIFY2(complaint.isEmpty() || WindowDriver::logCount(complaint) > complaints, operation.name);
            QVERIFY2(disk.targetFile() == targetBefore, operation.name);
            if (kind != FilesGone && kind != DirectoryGone && operation.name != QByteArray("delete"))
                QVERIFY2(disk.holdsAllMedia(), operation.name);
            if (kind == ReadOnly)
                QVERIFY2(disk.sidecar() == "old", operation.name);
            QCoreApplication::processEvents();
        }
    }

    void silentLossIsNamed() {
        const MediaFolder folder;
        QVERIFY(QDir(folder.path()).mkdir("sub"));
        for (const char* name : {"a.png", "a.bmp", "b.png", "sub/b.png"})
            folder.addImage(name);
        folder.addTags("b.png", "caf\xe9");
        WindowDriver driver(folder.path());
        QVERIFY(WindowDriver::logCount("Warning, sidecar is not valid UTF-8: \"" + folder.filePath("b.txt")) >
                0);
        driver.window().setImageTags(folder.filePath("a.png"), {"png"});
        driver.window().setImageTags(folder.filePath("a.bmp"), {"bmp"});
        driver.window().onSaveTags();
        QVERIFY(folder.content("a.txt") == "png" || folder.content("a.txt") == "bmp");
        QCOMPARE(WindowDriver::logCount("Warning, another file shares this sidecar"), 1);
        QCOMPARE(WindowDriver::logCount("its tags are overwritten: \"" + folder.filePath("a.txt")), 1);
        driver.widget<QCheckBox>("cBWorkingDirScanRecursive")->setChecked(true);
        driver.rescan();
        driver.widget<QListView>("listView")->selectAll();
        driver.window().onProcessResize();
        QCOMPARE(WindowDriver::logCount("Warning, another file of this run had the same name"), 1);
    }
};

int main(int argc, char** argv) {
    // Before any thread starts, as a namespace belongs to the thread that creates it.
    canMount = unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    QApplication application(argc, argv);
    TestDiskFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_diskfaults.moc"
