#include "tags/TagText.h"
#include "tags/TagsExport.h"

#include <QTest>

// The rules of tag text, by tables.
class TestTagText : public QObject {
    Q_OBJECT

private slots:
    void sidecarsAreRead_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("tags");
        const auto row = [](const char* name, const QByteArray& text, const QStringList& tags) {
            QTest::newRow(name) << text << tags;
        };
        row("empty", "", {});
        row("commas and lines separate alike", "a,b\nc", {"a", "b", "c"});
        row("empty parts are skipped", "a,b\nc,,d\n\n e", {"a", "b", "c", "d", "e"});
        row("a blank between commas is an empty tag", "a, ,b", {"a", "", "b"});
        row("line ends of CR LF go with the trimming", "a\r\nb\r\n", {"a", "b"});
        row("an empty line of CR LF is an empty tag", "a\r\n\r\nb", {"a", "", "b"});
        row("a lone CR separates nothing", "a\rb", {"a\rb"});
        row("duplicates and case stay", "Cat,cat,Cat", {"Cat", "cat", "Cat"});
        row("a byte order mark goes with the decoding",
            "\xEF\xBB\xBF"
            "a",
            {"a"});
        row("only separators", ",,\n,\n", {});
        row("invalid bytes become replacement characters", "a\xff,b", {QString("a") + QChar(0xfffd), "b"});
        row("all kinds of blanks are trimmed", "\t a b\u00a0,\u2003c", {"a b", "c"});
    }
    void sidecarsAreRead() {
        QFETCH(QByteArray, text);
        QTEST(tagsFromText(QString::fromUtf8(text)), "tags");
    }

    void tagsAreWritten_data() {
        QTest::addColumn<QStringList>("tags");
        QTest::addColumn<bool>("keepDuplicates");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QStringList& tags, bool keep, const char* text) {
            QTest::newRow(name) << tags << keep << QString(text);
        };
        row("nothing", {}, false, "");
        row("joined by commas alone", {"red", "big", "cat"}, false, "red,big,cat");
        row("trimmed", {" a ", "b\n"}, false, "a,b");
        row("empty tags leave their commas", {"a", "", "b"}, false, "a,,b");
        row("one empty tag", {""}, false, "");
        row("duplicates go", {"a", "b", "a", "A"}, false, "a,b,A");
        row("duplicates stay", {"a", "b", "a"}, true, "a,b,a");
        row("duplicates are found before trimming", {"a", " a"}, false, "a,a");
    }
    void tagsAreWritten() {
        QFETCH(QStringList, tags);
        QFETCH(bool, keepDuplicates);
        QTEST(savedTagText(tags, keepDuplicates), "text");
    }

    void entriesAreNotTrimmed() {
        QCOMPARE(tagsFromEntry("a, b\n\nc d\n,"), QStringList({"a", " b", "c d"}));
        QCOMPARE(tagsFromEntry("   "), QStringList("   "));
    }

    void answersAreSplit() {
        QCOMPARE(tagsFromAnswer("a, b,,c\n", ","), QStringList({"a", " b", "c\n"}));
        QCOMPARE(tagsFromAnswer("a, b", ""), QStringList("a, b"));
        QCOMPARE(tagsFromAnswer("aXbxc", "x"), QStringList({"aXb", "c"}));
    }

    void replacingIsCaseSensitive() {
        QStringList tags{"catalog", "Cat", "cat cat", "dog"};
        replaceInTags(tags, "cat", "dog");
        QCOMPARE(tags, QStringList({"dogalog", "Cat", "dog dog", "dog"}));
    }

    void splittingMovesPiecesToTheEnd_data() {
        QTest::addColumn<QStringList>("tags");
        QTest::addColumn<QStringList>("split");
        const auto row = [](const char* name, const QStringList& tags, const QStringList& split) {
            QTest::newRow(name) << tags << split;
        };
        row("pieces in reading order", {"a_b_c", "x"}, {"x", "a", "b", "c"});
        row("the last tag's pieces first", {"a_b", "x", "c_d"}, {"x", "c", "d", "a", "b"});
        row("a tag that is the separator vanishes", {"_", "x"}, {"x"});
        row("nothing to split", {"x", "y"}, {"x", "y"});
        row("pieces keep their blanks", {"a _ b"}, {"a ", " b"});
    }
    void splittingMovesPiecesToTheEnd() {
        QFETCH(QStringList, tags);
        splitTags(tags, "_");
        QTEST(tags, "split");
    }
    void splittingInAnotherCaseMovesTheTagWhole() {
        QStringList tags{"aXb", "y", "cxd"};
        splitTags(tags, "x");
        QCOMPARE(tags, QStringList({"y", "c", "d", "aXb"}));
    }

    void countingAndDeleting() {
        const QHash<QString, QStringList> record{{"1", {"a", "b", "a"}}, {"2", {"b", "B", ""}}};
        QStringList unique = flattenedTags(record);
        QCOMPARE(unique.size(), 6);
        unique.removeDuplicates();
        QStringList counted;
        qsizetype total = 0;
        for (const TagCount& tag : countedTags(record)) {
            counted.append(tag.tag);
            total += tag.count;
            QCOMPARE(tag.count, flattenedTags(record).count(tag.tag));
        }
        QCOMPARE(counted, unique);
        QCOMPARE(total, 6);
        QStringList tags{"a", "b", "A", "a"};
        removeTags(tags, {"a", "z"});
        QCOMPARE(tags, QStringList({"b", "A"}));
        QVERIFY(holdsAnyTag({"Cat"}, {"dog", "cAT"}));
        QVERIFY(!holdsAnyTag({"Catalog"}, {"cat"}));
        QVERIFY(!holdsAnyTag({"Cat"}, {}));
    }

    void exportsAreOrdered_data() {
        QTest::addColumn<TagsExportOptions>("options");
        QTest::addColumn<QString>("text");
        TagsExportOptions options;
        QTest::newRow("rarest first") << options << "c [1]\nB [1]\nb [2]\na [3]\n";
        options.appendsCount = false;
        QTest::newRow("without counts") << options << "c\nB\nb\na\n";
        options.sortsByName = true;
        QTest::newRow("by name") << options << "B\na\nb\nc\n";
        options.isReversed = true;
        QTest::newRow("by name reversed") << options << "c\nb\na\nB\n";
        options.isReversed = false;
        options.nameCase = Qt::CaseInsensitive;
        QTest::newRow("by name regardless of case") << options << "a\nb\nB\nc\n";
        options = {};
        options.removesDuplicates = false;
        QTest::newRow("with duplicates") << options << "c [1]\nB [1]\nb [2]\nb [2]\na [3]\na [3]\na [3]\n";
        options = {};
        options.sortsByCount = false;
        QTest::newRow("as they came") << options << "a [3]\nb [2]\nc [1]\nB [1]\n";
    }
    void exportsAreOrdered() {
        QFETCH(TagsExportOptions, options);
        const QStringList tags{"a", "b", "a", "c", "b", "a", "B"};
        const QHash<QString, qsizetype> counts = tagCounts(tags);
        QTEST(exportedTagText(exportedTags(tags, counts, options), counts, options), "text");
    }
};

QTEST_GUILESS_MAIN(TestTagText)
#include "tst_tagtext.moc"
