#include "support/MediaFolder.h"
#include "tags/TagRecord.h"

#include <QDir>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <functional>

#include <sys/resource.h>

// The record of tags against plain containers: edits, what is unsaved, undo, saving.
class TestTagRecord : public QObject {
    Q_OBJECT

    using Tags = TagRecord::Tags;

    static Tags contentOf(const TagRecord& record, const QStringList& keys) {
        Tags content;
        for (const QString& key : keys)
            content.insert(key, record.tags(key));
        return content;
    }

    static QStringList differing(const Tags& left, const Tags& right) {
        QStringList keys;
        for (const auto& [key, tags] : left.asKeyValueRange()) {
            if (right.value(key) != tags)
                keys.append(key);
        }
        keys.sort();
        return keys;
    }

    static QStringList sorted(QStringList keys) {
        keys.sort();
        return keys;
    }

private slots:
    void randomEditsAreTakenBackOneByOne() {
        QRandomGenerator random(1);
        const QStringList words{"sky", "Sky", "a_b", "blue sky", "", " sea", "cat", "catalog"};
        const auto word = [&] { return words.at(random.bounded(words.size())); };
        MediaFolder folder;
        QStringList keys;
        for (int number = 0; number < 500; ++number) {
            const QString name = QString("%1.png").arg(number);
            keys.append(folder.filePath(name));
            if (number % 5 == 0)
                folder.addTags(name, (word() + ',' + word()).toUtf8());
        }
        TagRecord record;
        record.load(keys);
        const Tags start = contentOf(record, keys);
        const auto some = [&] { return keys.mid(random.bounded(400), random.bounded(100)); };
        const QList<std::function<void()>> edits{
            [&] { record.append(some(), {word(), word()}); },
            [&] { record.removeTags(some(), {word()}); },
            [&] { record.removeEverywhere({word()}); },
            [&] { record.replaceText("a", word()); },
            [&] { record.splitText("_"); },
            [&] { record.setTags(keys.at(random.bounded(500)), {word()}); },
            [&] { record.appendAnswer(keys.at(random.bounded(500)), {word()}, random.bounded(1, 3)); },
            [&] { record.restore({{keys.at(random.bounded(500)), {word()}}, {"/gone.png", {"x"}}}); },
        };
        QSignalSpy changes(&record, &TagRecord::changed);
        QList<Tags> states{start};
        for (int step = 0; step < 20; ++step) {
            const QString before = record.undoText();
            changes.clear();
            edits.at(random.bounded(edits.size()))();
            QCOMPARE(changes.size(), 1);
            const Tags now = contentOf(record, keys);
            QCOMPARE(sorted(record.unsavedKeys()), differing(now, start));
            if (now == states.last())
                continue;
            // Answers of one batch in a row are one step.
            if (before.startsWith("captions") && record.undoText().startsWith("captions")) {
                record.undo();
                const bool isMerged = contentOf(record, keys) != states.last();
                record.redo();
                if (isMerged)
                    states.removeLast();
            }
            states.append(now);
        }
        QVERIFY(!record.contains("/gone.png"));
        const Tags end = states.last();
        for (qsizetype step = states.size() - 1; step > 0; --step) {
            QCOMPARE(contentOf(record, keys), states.at(step));
            record.undo();
        }
        QCOMPARE(contentOf(record, keys), start);
        QVERIFY(!record.canUndo() && record.unsavedKeys().isEmpty());
        while (record.canRedo())
            record.redo();
        QCOMPARE(contentOf(record, keys), end);
    }

    void stepsAreNamedAndBounded() {
        TagRecord record;
        record.append({"/a.png", "/b.png"}, {"50%1", "sea"});
        QCOMPARE(record.undoText(), QString("add \"50%1, sea\" to 2 files"));
        record.removeTags({"/a.png"}, {"none"});
        for (int times = 0; times < 2; ++times) {
            record.setTags("/d/c.png", QStringList(1000, "a tag"));
            QCOMPARE(record.undoText(), QString("edit c.png"));
            record.setTags("/d/c.png", {});
        }
        record.setUndoLimit(40000);
        record.undo();
        QCOMPARE(record.tags("/d/c.png").size(), 1000);
        record.undo();
        QVERIFY(!record.canUndo() && record.tags("/a.png").size() == 2);
        // Steps that can no longer be redone leave room for new ones.
        record.setTags("/d/c.png", QStringList(1000, "a tag"));
        record.setTags("/d/c.png", {});
        QVERIFY(record.canUndo());
    }

    void anImportIsTakenBackAndTheSidecarStays() {
        const MediaFolder folder;
        const QStringList keys{folder.filePath("a.png"), folder.filePath("b.png"), folder.filePath("c.png")};
        for (const char* name : {"a.png", "b.png", "c.png"})
            folder.addImage(name);
        folder.addTags("b.png", "old");
        TagRecord record;
        record.load({keys.at(0)});
        record.importFiles(keys.mid(1));
        QCOMPARE(record.undoText(), QString("import 1 files"));
        record.append({keys.at(1)}, {"sky"});
        record.undo();
        record.undo();
        QVERIFY(!record.contains(keys.at(1)) && record.unsavedKeys().isEmpty() && !record.canUndo());
        record.redo();
        QCOMPARE(record.tags(keys.at(1)), QStringList("old"));
        record.undo();
        // An edit of a file without an entry keeps what its sidecar holds.
        record.append({keys.at(1)}, {"sea"});
        record.save({});
        QCOMPARE(folder.content("b.txt"), QByteArray("old,sea"));
    }

    void savingCostsOneFileAFault() {
        const MediaFolder folder;
        const QStringList keys{folder.filePath("a.png"), folder.filePath("b.png"), folder.filePath("s.png"),
                               folder.filePath("s.jpg"), folder.filePath("f.png")};
        folder.addTags("b.png", "old");
        QFile full(folder.addTags("f.png", "x"));
        QVERIFY(QDir(folder.path()).mkdir("a.txt"));
        TagRecord record;
        record.load(keys);
        QVERIFY(full.remove() && QFile::link("/dev/full", full.fileName()));
        for (const QString& key : keys.first(4))
            record.append({key}, {key.last(5), key.last(5)});
        const TagSaveReport report = record.save({});
        QCOMPARE(folder.content("b.txt"), QByteArray("old,b.png"));
        QCOMPARE(report.written, 3);
        QCOMPARE(report.failed, 2);
        // The file whose tags were written first to the shared sidecar now differs from it; so do the one
        // without a sidecar and the one whose sidecar has lost its text.
        const QString loser = folder.content("s.txt") == "s.png" ? keys.at(3) : keys.at(2);
        QCOMPARE(sorted(record.unsavedKeys()), sorted({keys.at(0), keys.at(4), loser}));
        record.undo();
        QVERIFY(record.isUnsaved(keys.at(3)) || record.isUnsaved(keys.at(2)));
        // Without a free file descriptor no file can be opened, but files can be renamed.
        rlimit limit{};
        getrlimit(RLIMIT_NOFILE, &limit);
        const rlimit none{0, limit.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
        QCOMPARE(record.save({.makesBackups = true}).written, 0);
        setrlimit(RLIMIT_NOFILE, &limit);
        QCOMPARE(folder.content("b.txt"), QByteArray("old,b.png"));
        // An answer for a file that was removed from the record is appended to the tags of its sidecar.
        record.remove({keys.at(1)});
        record.appendAnswer(keys.at(1), {"sky"}, 1);
        QCOMPARE(record.tags(keys.at(1)), QStringList({"old", "b.png", "sky"}));
        // Unsaved tags are kept when a file reappears.
        record.load({keys.at(1)});
        QCOMPARE(record.tags(keys.at(1)), QStringList({"old", "b.png", "sky"}));
    }
};

QTEST_GUILESS_MAIN(TestTagRecord)
#include "tst_tagrecord.moc"
