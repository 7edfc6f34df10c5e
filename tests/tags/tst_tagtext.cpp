#include "support/Rows.h"
#include "tags/TagCompletion.h"
#include "tags/TagText.h"
#include "tags/TagsExport.h"

// The rules of tag text, by tables.
class TestTagText : public QObject {
    Q_OBJECT

private slots:
    void sidecarsAreRead_data() {
        addRows<QByteArray, QStringList>({
            {"commas, lines and empty parts", "a,b\nc,,d\n\n e", {"a", "b", "c", "d", "e"}},
            {"a blank between commas is an empty tag", "a, ,b", {"a", "", "b"}},
            {"an empty line of CR LF is an empty tag", "a\r\n\r\nb\r\n", {"a", "", "b"}},
            {"a lone CR separates nothing", "a\rb", {"a\rb"}},
            {"duplicates and case stay", "Cat,cat,Cat", {"Cat", "cat", "Cat"}},
            {"a byte order mark goes with the decoding", "\xEF\xBB\xBF,a", {"a"}},
            {"only separators", ",,\n,\n", {}},
            {"invalid bytes are replaced", "a\xff,b", {QString("a") + QChar(0xfffd), "b"}},
            {"all kinds of blanks are trimmed", "\t a b\u00a0,\u2003c", {"a b", "c"}},
        });
    }
    void sidecarsAreRead() {
        const auto& [text, tags] = row<QByteArray, QStringList>();
        QCOMPARE(tagsFromText(QString::fromUtf8(text)), tags);
    }

    void tagsAreWritten_data() {
        addRows<QStringList, bool, QString>({
            {"joined by commas alone", {"red", "big", "cat"}, false, "red,big,cat"},
            {"trimmed", {" a ", "b\n"}, false, "a,b"},
            {"empty tags leave their commas", {"a", "", "b"}, false, "a,,b"},
            {"duplicates go", {"a", "b", "a", "A"}, false, "a,b,A"},
            {"duplicates stay", {"a", "b", "a"}, true, "a,b,a"},
            {"duplicates are found before trimming", {"a", " a"}, false, "a,a"},
        });
    }
    void tagsAreWritten() {
        const auto& [tags, keepDuplicates, text] = row<QStringList, bool, QString>();
        QCOMPARE(savedTagText(tags, keepDuplicates), text);
    }

    void entriesAndAnswersAreNotTrimmed() {
        QCOMPARE(tagsFromEntry("a, b\n\nc d\n,"), QStringList({"a", " b", "c d"}));
        QCOMPARE(tagsFromEntry("   "), QStringList("   "));
        QCOMPARE(tagsFromAnswer("a, b,,c\n", ","), QStringList({"a", " b", "c\n"}));
        QCOMPARE(tagsFromAnswer("a, b", ""), QStringList("a, b"));
        QCOMPARE(tagsFromAnswer("aXbxc", "x"), QStringList({"aXb", "c"}));
    }

    void completionsAreOrdered_data() {
        addRows<QString, qsizetype, QStringList>({
            {"beginnings first, then by count, then by text", "s", 0, {"sky 3", "Sea 2", "sea 2", "gross 9"}},
            {"regardless of case, outer blanks are one tag", "x, SK", 3, {"sky 3"}},
            {"after a comma", "sky,gr", 4, {"gross 9"}},
            {"nothing without a word", "sky, ", 0, {}},
            {"nothing in all of them", "sky x", 0, {}},
        });
    }
    void completionsAreOrdered() {
        const auto& [line, start, offered] = row<QString, qsizetype, QStringList>();
        QList<TagCount> known{{"gross", 9}, {"sea", 2}, {"Sea", 2}, {"sky", 1}, {" sky", 2}, {"sk,y", 5}};
        const CompletionOffer offer = tagCompletions(known, line, line.size());
        QStringList texts;
        for (const Completion& completion : offer.rows)
            texts.append(completion.text + ' ' + completion.note);
        QCOMPARE(texts, offered);
        QCOMPARE(offer.start, start);
        QVERIFY(tagCompletions(known, line + "y", line.size()).rows.isEmpty());
        for (int number = 0; number < 20; ++number)
            known.append({"sand " + QString::number(number), 1});
        QCOMPARE(matchingTags(known, "s").size(), 12);
    }

    void typedTagsAreAdded_data() {
        addRows<QString, QString, QStringList>({
            {"the tag that is known", " sky", "blue sky", {"sky"}},
            {"the chosen one", "Sky", "blue sky", {"blue sky"}},
            {"a new one", "Sky", {}, {"Sky"}},
            {"several, of which the last is being typed", "new, sk", "sky", {"new", "sky"}},
            {"nothing", " ,", "sky", {}},
        });
    }
    void typedTagsAreAdded() {
        const auto& [typed, chosen, tags] = row<QString, QString, QStringList>();
        QCOMPARE(tagsToAdd({{"sky", 1}, {"blue sky", 1}}, typed, chosen), tags);
    }

    void splittingMovesPiecesToTheEnd_data() {
        addRows<QString, QStringList, QStringList>({
            {"the last tag's pieces first", "_", {"a_b_c", "x", "d_e"}, {"x", "d", "e", "a", "b", "c"}},
            {"a tag that is the separator vanishes", "_", {"_", "x"}, {"x"}},
            {"pieces keep their blanks", "_", {"a _ b"}, {"a ", " b"}},
            {"another case moves the tag whole", "x", {"aXb", "y", "cxd"}, {"y", "c", "d", "aXb"}},
        });
    }
    void splittingMovesPiecesToTheEnd() {
        const auto& [separator, tags, expected] = row<QString, QStringList, QStringList>();
        QStringList split = tags;
        splitTags(split, separator);
        QCOMPARE(split, expected);
    }

    void exportsAreOrdered() {
        const QStringList tags{"a", "b", "a", "c", "b", "a", "B"};
        const QHash<QString, qsizetype> counts = tagCounts(tags);
        const auto text = [&](const TagsExportOptions& options) {
            return exportedTagText(exportedTags(tags, counts, options), counts, options);
        };
        QCOMPARE(text({.removesDuplicates = false}), "c [1]\nB [1]\nb [2]\nb [2]\na [3]\na [3]\na [3]\n");
        QCOMPARE(text({.sortsByCount = false}), "a [3]\nb [2]\nc [1]\nB [1]\n");
        TagsExportOptions options;
        QCOMPARE(text(options), "c [1]\nB [1]\nb [2]\na [3]\n");
        options.appendsCount = false;
        QCOMPARE(text(options), "c\nB\nb\na\n");
        options.sortsByName = true;
        QCOMPARE(text(options), "B\na\nb\nc\n");
        options.nameCase = Qt::CaseInsensitive;
        QCOMPARE(text(options), "a\nb\nB\nc\n");
        options.nameCase = Qt::CaseSensitive;
        options.isReversed = true;
        QCOMPARE(text(options), "c\nb\na\nB\n");
    }
};

QTEST_GUILESS_MAIN(TestTagText)
#include "tst_tagtext.moc"
