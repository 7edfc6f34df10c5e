#include "support/MediaFolder.h"
#include "tags/TagRecord.h"
#include "tags/TagRecovery.h"

#include <QDir>
#include <QTest>

// The unsaved tags that are recovered after a run that ended without saving.
class TestTagRecovery : public QObject {
    Q_OBJECT

private slots:
    void unsavedTagsOutlastTheRun() {
        const MediaFolder folder;
        const QString place = folder.filePath("recovery");
        QStringList keys;
        for (const char* name : {"a.png", "b.png", "c.png"})
            keys.append(folder.filePath(name));
        folder.addTags("a.png", "old");
        const auto files = [&] { return QDir(place).entryList(QDir::Files); };
        {
            TagRecord record;
            record.load(keys);
            TagRecovery recovery(record, place);
            recovery.open(folder.path());
            record.append({keys.at(0), keys.at(1)}, {"sky, sea"});
            QTRY_COMPARE(files().size(), 1);
            // An undone edit is not stored.
            record.undo();
            QTRY_COMPARE(files().size(), 0);
            record.redo();
            recovery.close();
        }
        QCOMPARE(files().size(), 1);
        {
            TagRecord record;
            record.load({keys.at(0), keys.at(2)});
            TagRecovery recovery(record, place);
            recovery.open(folder.path());
            QCOMPARE(recovery.offeredCount(), 1); // the other one is not in the record
            // An offer that is not restored stays while other tags are edited and saved.
            folder.addTags("b.png", "written meanwhile");
            record.append({keys.at(2)}, {"third"});
            record.save({});
            recovery.close();
        }
        TagRecord record;
        record.load(keys);
        TagRecovery recovery(record, place);
        recovery.open(folder.path());
        folder.addTags("a.png", "changed meanwhile");
        const TagRecovery::Restored restored = recovery.restore();
        QCOMPARE(restored.files, 2);
        QCOMPARE(restored.changedSidecars, 2); // also the one that was missing before
        QCOMPARE(record.tags(keys.at(0)), QStringList({"old", "sky, sea"}));
        record.undo();
        QCOMPARE(record.tags(keys.at(0)), QStringList("old"));
        recovery.close();
        QCOMPARE(files().size(), 0);
    }

    void oldFilesGoAndBrokenOnesStay() {
        const MediaFolder folder;
        const QByteArray whole = recoveryText({"/elsewhere", QDateTime::currentDateTimeUtc(), {{"/x", {}}}});
        const QDateTime now = QDateTime::currentDateTimeUtc();
        for (int number = 0; number < 25; ++number) {
            QFile file(folder.addFile(QString("recovery/%1.json").arg(number), number == 24 ? "{" : whole));
            QVERIFY(file.open(QIODevice::ReadWrite));
            file.setFileTime(now.addDays(number == 3 ? -31 : 0).addSecs(-number),
                             QFile::FileModificationTime);
        }
        TagRecord record;
        TagRecovery recovery(record, folder.filePath("recovery"));
        recovery.open(folder.path());
        const QStringList left = QDir(folder.filePath("recovery")).entryList({"*.json"});
        QCOMPARE(left.size(), 20 + 1);
        QVERIFY(left.contains("24.json") && !left.contains("3.json") && !left.contains("21.json"));
        QCOMPARE(recovery.offeredCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestTagRecovery)
#include "tst_tagrecovery.moc"
