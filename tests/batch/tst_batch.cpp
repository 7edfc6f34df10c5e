#include "batch/BatchRun.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

// A word in an expected text for which anything may stand.
QRegularExpression pattern(const QString& text) {
    return QRegularExpression(
        QRegularExpression::anchoredPattern(QRegularExpression::escape(text).replace("\\.\\.\\.", ".*")),
        QRegularExpression::DotMatchesEverythingOption);
}

void comparePattern(const QString& actual, const QString& expected) {
    if (!pattern(expected).match(actual).hasMatch())
        QCOMPARE(actual, expected);
}

QByteArray modelFile(const QByteArray& header, int dataSize) {
    QByteArray size(8, '\0');
    qToLittleEndian<quint64>(header.size(), size.data());
    return size + header + QByteArray(dataSize, 'x');
}

} // namespace

// The command-line program on real files: its arguments, what it prints, returns and leaves behind.
class TestBatch : public QObject {
    Q_OBJECT

private slots:
    void inspect_data() {
        addRows<QString, int, QString, QString>({
            {"all", "inspect m.safetensors", 0, "a\tone\\ntwo\nz\tw\nlayer\tF16 [2, 3]\t12\n", ""},
            {"metadata", "inspect --metadata m.safetensors", 0, "a\tone\\ntwo\nz\tw\n", ""},
            {"lines for machines", "inspect --tensors --json m.safetensors", 0,
             R"({"file":"m.safetensors","status":"done","tensors":[{"bytes":12,"dtype":"F16","name":"layer","shape":[2,3]}]})"
             "\n",
             ""},
            {"a directory with a broken one", "inspect . --tensors", 1,
             "==> ./m.safetensors <==\nlayer\tF16 [2, 3]\t12\n",
             "tessarine-batch: ./cut.safetensors: Failed to load: ./cut.safetensors error: ...\n"},
        });
    }
    void inspect() {
        const MediaFolder folder;
        folder.addFile("m.safetensors",
                       modelFile(R"({"__metadata__":{"a":"one\ntwo","z":"w"},)"
                                 R"("layer":{"dtype":"F16","shape":[2,3],"data_offsets":[0,12]}})",
                                 12));
        folder.addFile("cut.safetensors", "short");
        check(folder);
    }

    void tags_data() {
        addRows<QString, int, QString, QString, QString>({
            {"list", "tags list . --recursive", 1,
             "./a.jpg\tsky, sea\n./a.png\tsky, sea\n./b.png\tCat by sea, sky, sky\n",
             "tessarine-batch: ./sub/c.png: the sidecar is not valid UTF-8\n", ""},
            {"count", "tags count .", 0, "4\tsky\n2\tsea\n1\tCat by sea\n", "", ""},
            {"count for machines", "tags count b.png --json", 0,
             "{\"count\":2,\"tag\":\"sky\"}\n{\"count\":1,\"tag\":\"Cat by sea\"}\n", "", ""},
            // The files of a pair share their sidecar, so it is written once.
            {"add", "tags add . --tags 'sky, sun' --recursive --backup", 1, "",
             "tessarine-batch: ./sub/c.png: the sidecar is not valid UTF-8\n"
             "tessarine-batch: tags add: 2 done, 0 skipped, 1 failed\n",
             "a.txt sky,sea,sun\na_backup_0.txt sky, sea\nb.txt Cat by sea,sky,sun\n"
             "b_backup_0.txt Cat by sea\nsky\nsky\nsub/c.txt \xEF\xBF\xBD\xEF\xBF\xBD\n"},
            {"add, tried", "tags add a.png new.png --tags sun --dry-run --quiet", 1,
             "--- ./a.txt\n+++ ./a.txt\n@@ -1 +1 @@\n-sky, sea\n\\ No newline at end of file\n"
             "+sky,sea,sun\n\\ No newline at end of file\n",
             "tessarine-batch: new.png: no such file\n", ""},
            {"remove", "tags remove a.png b.png --tags sea,none", 0, "",
             "tessarine-batch: tags remove: 1 done, 1 skipped, 0 failed\n", "a.txt sky\n"},
            {"replace", "tags replace b.png --from s --to S --keep-duplicates --quiet", 0, "", "",
             "b.txt Cat by Sea,Sky,Sky\n"},
            {"split", "tags split b.png --by ' by ' --quiet", 0, "", "", "b.txt sky,Cat,sea\n"},
            {"a list", "tags list --files-from -", 1, "a.png\tsky, sea\n",
             "tessarine-batch: gone\\n.png: no such file\n", ""},
            {"wrong usage", "tags add a.png --tags ' ,' --shard 3/2 --nonsense", 2, "",
             "tessarine-batch: Unknown option 'nonsense'.\ntessarine-batch: see tessarine-batch tags add "
             "--help\n",
             ""},
            {"more wrong usage", "tags add --tags ' ,' --shard 3/2", 2, "",
             "tessarine-batch: --tags holds no tag\ntessarine-batch: --shard takes I/N with I from 1 to N, "
             "not "
             "\"3/2\"\ntessarine-batch: no files are given\ntessarine-batch: see tessarine-batch tags add "
             "--help\n",
             ""},
            {"no such command", "tag list", 2, "", "tessarine-batch: there is no command tag\nUsage: ...",
             ""},
        });
    }
    void tags() {
        const MediaFolder folder;
        for (const char* name : {"a.jpg", "a.png", "b.png", "sub/c.png"})
            folder.addImage(name, {8, 6});
        folder.addTags("a.png", "sky, sea");
        folder.addTags("b.png", "Cat by sea\nsky\nsky");
        folder.addTags("sub/c.png", "\xFF\xFE");
        const QString before = treeText(folder.path());
        const auto& [words, exitCode, out, err, after] = row<QString, int, QString, QString, QString>();
        const BatchRun run = runBatch(folder.path(), words, QByteArray("a.png\0gone\n.png\0", 16));
        QCOMPARE(run.out, out);
        comparePattern(run.err, err);
        QCOMPARE(run.exitCode, exitCode);
        const QString tree = treeText(folder.path());
        for (const QString& line : after.split("\n", Qt::SkipEmptyParts))
            QVERIFY2(tree.contains(line + "\n"), qPrintable(tree));
        QCOMPARE(tree == before, after.isEmpty());
    }

    void exports_data() {
        addRows<QString, int, QString, QString>({
            {"text", "export .", 0, "sea [1]\nsky [2]\n\"x\" [3]\n", ""},
            {"csv", "export . --format csv", 0, "tag,count\nsea,1\nsky,2\n\"\"\"x\"\"\",3\n", ""},
            {"json", "export b.png --format json", 0,
             "[\n    {\n        \"count\": 3,\n        \"tag\": \"\\\"x\\\"\"\n    }\n]\n", ""},
            {"a line a file", "export . --recursive --format jsonl", 0,
             "{\"file_name\":\"a.png\",\"text\":\"sky, sea, sky\"}\n"
             "{\"file_name\":\"b.png\",\"text\":\"\\\"x\\\", \\\"x\\\", \\\"x\\\"\"}\n"
             "{\"file_name\":\"sub/c.png\",\"text\":\"\"}\n",
             ""},
            {"into a file that is there", "export . --output a.txt", 1, "",
             "tessarine-batch: a.txt: File exists\n"},
            {"unknown format", "export . --format xml", 2, "",
             "tessarine-batch: --format is one of text, json, csv, jsonl, not \"xml\"\n...\n"},
        });
    }
    void exports() {
        const MediaFolder folder;
        for (const char* name : {"a.png", "b.png", "sub/c.png"})
            folder.addImage(name, {8, 6});
        folder.addTags("a.png", "sky, sea,sky");
        folder.addTags("b.png", "\"x\",\"x\",,\"x\"");
        check(folder);
        QCOMPARE(folder.content("a.txt"), QByteArray("sky, sea,sky"));
    }

    void images_data() {
        addRows<QString, int, QString, QString>({
            {"a side follows", "resize . --recursive --size 20x-1 --output out --jobs 3", 0,
             "a.jpg 20x15\na.png 20x15\nb.png 20x15\nsub/a.png 20x15\n", "...4 done, 0 skipped, 0 failed\n"},
            {"without sub-directories", "resize . --size 20x20 --aspect ignore --output out --quiet", 0,
             "a.jpg 20x20\na.png 20x20\nb.png 20x20\n", ""},
            {"expanded", "resize a.png --size 20x20 --aspect expand --output ./out/ --quiet", 0,
             "a.png 26x20\n", ""},
            {"scaled", "resize a.png --scale 1.5 --transformation fast --output out --quiet", 0,
             "a.png 60x45\n", ""},
            {"cut", "resize a.png --ratio 0.5 --output out --quiet", 0, "a.png 40x15\n", ""},
            {"without shares of others", "resize . --shard 2/2 --size 20x20 --output out --quiet", 0, "", ""},
            {"what no image is", "resize a.png gone.png a.txt . --scale 1 --output out --failed out/failed",
             1, "a.jpg 40x30\na.png 40x30\nb.png 40x30\nfailed gone.pnga.txt./a.png\n",
             "tessarine-batch: gone.png: no such file\ntessarine-batch: a.txt: Unsupported image format\n"
             "tessarine-batch: ./a.png: another file has the result out/a.png; --base keeps their "
             "directories\n...3 done, 0 skipped, 3 failed\n"},
            {"a file as directory", "resize a.png --scale 1 --output a.txt", 1, "",
             "tessarine-batch: a.txt: Not a directory\n"},
            {"into the sources", "resize . --scale 1 --output . --overwrite --quiet", 1, "",
             "tessarine-batch: ./a.jpg: ./a.jpg is a source, which only --in-place replaces\n...\n"},
            {"two ways", "resize . --scale 1 --size 1x --quality 0 --jobs x", 2, "",
             "tessarine-batch: one of --size, --scale and --ratio is needed\ntessarine-batch: --jobs takes a "
             "whole number from 0 to 1024, not \"x\"\ntessarine-batch: --quality takes a whole number from 1 "
             "to 100, not \"0\"\ntessarine-batch: --output DIR says where the results go\n...\n"},
            {"filters", "effects a.png b.png --filter Brightness=20 --filter Sharpen --output out --quiet", 0,
             "a.png 40x30\nb.png 40x30\n", ""},
            {"filters that change nothing", "effects a.png --filter blur=0 --output out", 0, "",
             "tessarine-batch: effects: 0 done, 1 skipped, 0 failed\n"},
            {"a number out of range", "effects a.png --filter Blur=19 --output out", 2, "",
             "tessarine-batch: --filter Blur takes a whole number from 0 to 18, as in Blur=18\n...\n"},
            {"no filter", "effects a.png --filter Glow=1 --output out", 2, "",
             "tessarine-batch: --filter takes one of Brightness, ...\n"},
            {"broken profiles", "effects a.png --profile P --settings a.txt --output out", 2, "",
             "tessarine-batch: a.txt: its profiles are missing or broken\n...\n"},
        });
    }
    void images() {
        const MediaFolder folder;
        for (const char* name : {"a.jpg", "a.png", "b.png", "sub/a.png"})
            folder.addImage(name, {40, 30});
        folder.addFile("a.txt", "no image");
        const auto& [words, exitCode, tree, err] = row<QString, int, QString, QString>();
        const QByteArray sources = treeBytes(folder.path());
        const BatchRun run = runBatch(folder.path(), words);
        comparePattern(run.err, err);
        QCOMPARE(run.exitCode, exitCode);
        QCOMPARE(treeText(folder.filePath("out")).remove(QChar::Null), tree);
        QDir(folder.filePath("out")).removeRecursively();
        QVERIFY(treeBytes(folder.path()) == sources);
    }

    void nothingIsReplacedUnasked() {
        const MediaFolder folder;
        folder.addImage("a.png", {40, 30});
        folder.addImage("b.png", {40, 30});
        const auto resize = [&](const QString& more) { return runBatch(folder.path(), "resize . " + more); };
        QCOMPARE(resize("--scale 2 --output out").exitCode, 0);
        QCOMPARE(resize("--scale 3 --output out").exitCode, 1);
        QVERIFY(QFile::remove(folder.filePath("out/b.png")));
        folder.addImage("a.png", {20, 10});
        // The first result is older than its source now.
        BatchRun run = resize("--scale 3 --output out --resume");
        QCOMPARE(run.err,
                 QString("tessarine-batch: ./a.png: out/a.png exists, which only --overwrite replaces\n"
                         "tessarine-batch: resize: 1 done, 0 skipped, 1 failed\n"));
        QCOMPARE(treeText(folder.filePath("out")), QString("a.png 80x60\nb.png 120x90\n"));
        run = resize("--scale 3 --output out --resume --overwrite --json");
        QVERIFY2(run.out.contains(
                     "{\"file\":\"./b.png\",\"reason\":\"out/b.png is there\",\"status\":\"skipped\"}"),
                 qPrintable(run.out));
        QCOMPARE(treeText(folder.filePath("out")), QString("a.png 60x30\nb.png 120x90\n"));
        QCOMPARE(resize("--scale 0.5 --in-place").exitCode, 0);
        QCOMPARE(treeText(folder.path()),
                 QString("a.png 10x5\nb.png 20x15\nout/a.png 60x30\nout/b.png 120x90\n"));
    }

private:
    static void check(const MediaFolder& folder) {
        const auto& [words, exitCode, out, err] = row<QString, int, QString, QString>();
        const BatchRun run = runBatch(folder.path(), words);
        QCOMPARE(run.out, out);
        comparePattern(run.err, err);
        QCOMPARE(run.exitCode, exitCode);
    }
};

QTEST_MAIN(TestBatch)
#include "tst_batch.moc"
