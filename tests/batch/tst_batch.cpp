#include "batch/BatchRun.h"
#include "ollama/OllamaPeer.h"
#include "support/Clips.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"

#include <QDir>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

// The command-line program on real files: what it prints, returns and leaves behind. In expected texts "..."
// is anything.
class TestBatch : public QObject {
    Q_OBJECT

private slots:
    void inspect_data() {
        addRuns({
            {"all", "inspect m.safetensors", 0, "a\tone\\ntwo\nz\tw\nlayer\tF16 [2, 3]\t12\n", "", ""},
            {"for machines", "inspect --tensors --json m.safetensors", 0,
             R"({"file":"m.safetensors","status":"done","tensors":[{"bytes":12,"dtype":"F16",)"
             R"("name":"layer","shape":[2,3]}]})"
             "\n",
             "", ""},
            {"a directory", "inspect . --tensors --recursive", 1,
             "==> ./m.safetensors <==\nlayer\tF16 [2, 3]\t12\n",
             "...: ./sub/cut.safetensors: Failed to load: ./sub/cut.safetensors error: ...\n", ""},
        });
    }
    void inspect() { check(); }

    void tags_data() {
        addRuns({
            {"list", "tags list . --recursive", 1,
             "./a.jpg\tsky, sea\n./a.png\tsky, sea\n./b.png\tCat by sea, sky, "
             "sky\n./sub/bad.png\tSky\n./sub/text.mp4\t\n",
             "tessarine-batch: ./sub/a.png: the sidecar is not valid UTF-8\n", ""},
            {"count", "tags count .", 0, "4\tsky\n2\tsea\n1\tCat by sea\n", "", ""},
            {"add", "tags add . sub/a.png --tags 'sky, sun' --backup", 1, "",
             "...sub/a.png: the sidecar is not valid UTF-8\n...add: 2 done, 0 skipped, 1 failed\n",
             "a.txt sky,sea,sun\na_backup_0.txt sky, sea\nb.txt Cat by sea,sky,sun\n"
             "b_backup_0.txt Cat by sea|sky|sky\n"},
            {"add, tried", "tags add a.gif a.png a.jpg --tags sun --dry-run --quiet", 1,
             "--- ./a.txt\n+++ ./a.txt\n@@ -1 +1 @@\n-sky, sea\n\\ No newline at end of file\n"
             "+sky,sea,sun\n\\ No newline at end of file\n",
             "tessarine-batch: a.gif: no such file\n", ""},
            {"remove", "tags remove a.png b.png --tags sea,none", 0, "", "...1 done, 1 skipped, 0 failed\n",
             "a.txt sky\n"},
            {"replace", "tags replace b.png --from s --to S --keep-duplicates --quiet", 0, "", "",
             "b.txt Cat by Sea,Sky,Sky\n"},
            {"split", "tags split b.png --by ' by ' --quiet", 0, "", "", "b.txt sky,Cat,sea\n"},
            {"a list", "tags list --files-from -", 1, "a.png\tsky, sea\nsub/bad.png\tSky\nsub/text.mp4\t\n",
             "...: gone\\n.png: no such file\n...: sub/a.png: the sidecar ...\n", ""},
            {"wrong usage of caption", "caption . --url nowhere --retry x", 2, "",
             "...: --model names ...\n...: --url takes an address that begins with http, not \"nowhere\"\n"
             "...: --retry takes a whole number ...",
             ""},
            {"wrong usage", "tags add --tags ' ,' --shard 3/2 --failed a.txt --files-from /proc/self/mem", 2,
             "",
             "...: --failed a.txt: the file exists ...\n...: --tags holds no tag\n...: --shard takes I/N "
             "with I from 1 to N, not \"3/2\"\n...: --files-from /proc/self/mem: Input/output error\n...",
             ""},
        });
    }
    void tags() { check(); }

    void exports_data() {
        addRuns({
            {"text", "export . --jobs 2", 0, "Cat by sea [1]\nsea [2]\nsky [4]\n", "", ""},
            {"csv", "export a.png --format csv", 0, "tag,count\nsky,1\nsea,1\n", "", ""},
            {"json", "export a.png --format json", 0, "[...\"count\": 1,...\"tag\": \"sky\"...]\n", "", ""},
            {"a line a file", "export ./sub sub/../b.png --base . --format jsonl", 1,
             "{\"file_name\":\"sub/bad.png\",\"text\":\"Sky\"}\n{\"file_name\":\"sub/"
             "text.mp4\",\"text\":\"\"}\n"
             "{\"file_name\":\"b.png\",\"text\":\"Cat by sea, sky, sky\"}\n",
             "...", ""},
            {"into a file", "export a.png --output out.txt --json", 0,
             "{\"file\":\"a.png\",\"status\":\"done\",\"tags\":[\"sky\",\"sea\"]}\n", "",
             "out.txt sky [1]|sea [1]|\n"},
            {"over a file", "export a.png --output b.txt", 1, "", "...: b.txt: File exists\n", ""},
            {"into a new sidecar", "export . ./new.png --output new.txt", 1, "", "...: is a source, ...", ""},
            {"over a source", "export . --output a.txt --overwrite", 1, "", "...: a.txt: is a source, ...",
             ""},
        });
    }
    void exports() { check(); }

    void images_data() {
        addRuns({
            {"a side follows", "resize . --recursive --size 20x-1 --output out --jobs 3", 1, "",
             "...: ./sub/bad.png: Unsupported image format\n...4 done, 0 skipped, 1 failed\n",
             "out/a.jpg 20x15\nout/a.png 20x15\nout/b.png 20x15\nout/sub/a.png 20x15\n"},
            {"cut", "resize a.png ./a.png --ratio 0.5 --in-place --quiet", 0, "", "", "a.png 40x15\n"},
            {"a list of trouble", "resize a.png gone.png a.txt sub --scale 1 --output out --failed left", 1,
             "",
             "...: gone.png: no such file\n...: a.txt: Unsupported image format\n...: sub/a.png: another "
             "file has the "
             "result out/a.png; ...\n...: sub/bad.png: ...1 done, 0 skipped, 4 failed\n",
             "left gone.png;a.txt;sub/a.png;sub/bad.png;\nout/a.png 40x30\n"},
            {"into the sources", "resize a.png --scale 1 --output . --overwrite --quiet", 1, "",
             "...: a.png: ./a.png is a source, which only --in-place replaces\n", ""},
            {"wrong usage", "resize . --scale 1 --size 1x --quality 0 --jobs x", 2, "",
             "...: one of --size, --scale and --ratio is needed\n...: --jobs takes ...\n...: --quality takes "
             "a whole "
             "number from 1 to 100, not \"0\"\n...: --output DIR says where the results go\n...",
             ""},
            {"filters", "effects a.png --filter Brightness=20 --filter Sharpen --output out --quiet", 0, "",
             "", "out/a.png 40x30\n"},
            {"out of range", "effects a.png --filter Blur=19 --output out", 2, "",
             "...: --filter Blur takes a whole number from 0 to 18, as in Blur=18\n...", ""},
            {"broken profiles", "effects a.png --profile P --settings a.txt --output out", 2, "",
             "...: a.txt: its profiles are missing or broken\n...", ""},
        });
    }
    void images() { check(); }

    void nothingIsReplacedUnasked() {
        const MediaFolder folder;
        folder.addImage("a.png", {40, 30});
        folder.addImage("b.png", {40, 30});
        const auto resize = [&](const QString& more) { return runBatch(folder.path(), "resize . " + more); };
        QCOMPARE(resize("--scale 2 --output out").exitCode, 0);
        QCOMPARE(resize("--scale 3 --output out").exitCode, 1);
        QVERIFY(QFile::remove(folder.filePath("out/b.png")));
        folder.addImage("a.png", {20, 10}); // newer than its result
        QCOMPARE(resize("--scale 3 --output out --resume").err,
                 QString("tessarine-batch: ./a.png: out/a.png exists, which only --overwrite replaces\n"
                         "tessarine-batch: resize: 1 done, 0 skipped, 1 failed\n"));
        QCOMPARE(treeText(folder.filePath("out")), QString("a.png 80x60\nb.png 120x90\n"));
        QVERIFY(resize("--scale 3 --output out --resume --overwrite --json")
                    .out.contains(R"({"file":"./b.png","reason":"out/b.png is there","status":"skipped"})"));
        QCOMPARE(treeText(folder.filePath("out")), QString("a.png 60x30\nb.png 120x90\n"));
        // A chain of links stays one.
        QVERIFY(QFile::link("a.png", folder.filePath("link.png")));
        QVERIFY(QFile::link("link.png", folder.filePath("chain.png")));
        QCOMPARE(runBatch(folder.path(), "resize chain.png --scale 2 --in-place").exitCode, 0);
        QVERIFY(QFileInfo(folder.filePath("link.png")).isSymLink());
        QCOMPARE(QImageReader(folder.filePath("a.png")).size(), QSize(40, 20));
    }

    void checks_data() {
        addRuns({
            {"a dataset", "check . --recursive --jobs 2", 1,
             "repeated-tag\t./b.png\t\"sky\"\nbad-sidecar\t./sub/a.png\tthe sidecar is not valid UTF-8\n"
             "undecodable\t./sub/bad.png\tUnsupported image format\n"
             "empty-sidecar\t./sub/text.mp4\nundecodable\t./sub/text.mp4\tCould not open file\n"
             "shared-sidecar\t./a.txt\t./a.jpg, ./a.png\nsame-name\ta.png\t./a.png, ./sub/a.png\n"
             "similar-tags\tsky\t\"Sky\", \"sky\"\n"
             "rare-tag\tCat by sea\t1\nrare-tag\tSky\t1\nresolution\t40x30\t4\naspect\t4:3\t4\n",
             "", ""},
            {"for machines", "check sub/text.mp4 m.safetensors --json --rare 0", 1,
             "...{\"detail\":\"Could not open "
             "file\",\"kind\":\"undecodable\",...}\n{\"kind\":\"missing-sidecar\",\"what\":\"m.safetensors\"}"
             "\n{\"detail\":...\"undecodable\"...}"
             "\n",
             "", ""},
        });
    }
    void checks() { check(); }

    void frames_data() {
        addRows<QString, int, QList<int>, QString>({
            {"evenly",
             "grab . --count 4 --output out",
             1,
             {0, 62, 125, 187},
             "tessarine-batch: ./text.mp4: Could not open file\ntessarine-batch: grab: 1 done, 0 skipped, 1 "
             "failed\n"},
            {"every so often", "grab clip.mp4 --every 4.0 --output out --quiet", 0, {0, 100, 200}, ""},
            {"behind the pictures",
             "grab cut.mpg --every 2.5 --output out",
             1,
             {0},
             "tessarine-batch: cut.mpg: no picture at ...\n...\n"},
        });
    }
    void frames() {
        const MediaFolder folder;
        QVERIFY(QFile::copy(clipPath("h264.mp4"), folder.filePath("clip.mp4")));
        QVERIFY(QFile::copy(clipPath("truncated.mp4"), folder.filePath("cut.mpg")));
        folder.addFile("text.mp4", "no clip");
        const auto& [words, exitCode, numbers, err] = row<QString, int, QList<int>, QString>();
        if (words.contains("grab ."))
            QVERIFY(QFile::remove(folder.filePath("cut.mpg")));
        const BatchRun run = runBatch(folder.path(), words);
        comparePattern(run.err, err);
        QCOMPARE(run.exitCode, exitCode);
        QList<int> grabbed;
        const QDir out(folder.filePath("out"));
        for (const QString& name : out.entryList({"*_?????????.png"}, QDir::Files, QDir::Name))
            grabbed.append(frameNumber(QImage(out.filePath(name))));
        QCOMPARE(grabbed, numbers);
    }

    void captions_data() {
        using Answers = QList<OllamaPeer::Answer>;
        const OllamaPeer::Answer good{R"({"response":"Sea, a dog"})"};
        const OllamaPeer::Answer bad{R"({"error":"model not found"})", OllamaPeer::Whole, "404 Not Found"};
        const OllamaPeer::Answer silent{{}, OllamaPeer::Silent};
        addRows<QString, Answers, QString, QString>({
            {"appended",
             "--jobs 2",
             {good},
             "a.txt sky,Sea,a dog\nb.txt Sea,a dog\n",
             "tessarine-batch: ./bad.png: Unsupported image format\n...2 done, 0 skipped, 1 failed\n"},
            {"untagged only",
             "--only-untagged --keep-duplicates --jobs 4",
             {good},
             "a.txt sky\nb.txt Sea,a dog\n",
             "...1 done, 2 skipped, 1 failed\n"},
            {"another separator", "--separator ', a ' --size 5x-1", {good}, "a.txt sky,Sea,dog\n", "..."},
            {"tried again", "--retry 1", {bad, good}, "a.txt sky,Sea,a dog\n", "..."},
            {"refused",
             "",
             {bad},
             "a.txt sky\n",
             "tessarine-batch: ./a.png: ...{\"error\":\"model not found\"}\n..."},
            {"hanging",
             "--timeout 1",
             {silent, good},
             "a.txt sky\nb.txt Sea,a dog\nfailed ./a.png;./bad.png;\n",
             "tessarine-batch: ./a.png: no answer within 1 s\n..."},
            {"nothing said",
             "",
             {{R"({"response":" ,  "})"}},
             "a.txt sky\n",
             "tessarine-batch: ./a.png: the answer is empty\n..."},
        });
    }
    void captions() {
        const MediaFolder folder;
        folder.addImage("a.png", {8, 6});
        folder.addImage("b.png", {8, 6});
        folder.addTags("a.png", "sky");
        folder.addFile("bad.png", "no image");
        const auto& [words, answers, tree, err] = row<QString, QList<OllamaPeer::Answer>, QString, QString>();
        if (words.contains("untagged"))
            folder.addImage("b.jpg", {8, 6});
        OllamaPeer peer;
        peer.setAnswers("/api/generate", answers);
        const BatchRun run =
            runBatch(folder.path(), "caption . --model m --system s --prompt p --failed failed --url " +
                                        peer.url() + " " + words);
        comparePattern(run.err, err);
        QCOMPARE(run.exitCode, 1);
        const QString left = treeText(folder.path());
        for (const QString& line : tree.split("\n", Qt::SkipEmptyParts))
            QVERIFY2(left.contains(line + "\n"), qPrintable(left));
        const QJsonObject sent =
            QJsonDocument::fromJson(peer.requests("/api/generate").first().body).object();
        QCOMPARE(sent["model"].toString() + sent["system"].toString() + sent["prompt"].toString(), "msp");
        const QImage image =
            QImage::fromData(QByteArray::fromBase64(sent["images"][0].toString().toLatin1()));
        QCOMPARE(image.width(), words.contains("--size") ? 5 : 8);
    }

    void languages_data() {
        addRows<QString, QString>({
            {"a country of the language", "de_AT:en_US",
             "Aufruf: tessarine-batch resize [Optionen] ...Multipliziert ..."},
            {"English before another language", "en_AU:de_DE", "Usage: ..."},
            {"the first that there is", "xh_ZA:ja_JP:de_DE", "使い方: ..."},
            {"the C locale", "C:de_DE", "Usage: ..."},
        });
    }
    void languages() {
        const auto& [languages, out] = row<QString, QString>();
        qputenv("LC_ALL", languages.section(':', 0, 0).toUtf8() + ".UTF-8");
        qputenv("LANGUAGE", languages.toUtf8());
        const BatchRun run = runBatch(".", "resize --help");
        qputenv("LC_ALL", "C.UTF-8");
        qunsetenv("LANGUAGE");
        comparePattern(run.out, out);
        QCOMPARE(run.exitCode, 0);
    }

private:
    using Run = std::tuple<const char*, QString, int, QString, QString, QString>;

    // Name, command line, exit code, standard output and error, and the files that are new or changed.
    static void addRuns(std::initializer_list<Run> runs) {
        addRows<QString, int, QString, QString, QString>(runs);
    }

    static void comparePattern(const QString& actual, const QString& expected) {
        const QString pattern = QRegularExpression::escape(expected).replace("\\.\\.\\.", ".*");
        const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern),
                                       QRegularExpression::DotMatchesEverythingOption);
        if (!whole.match(actual).hasMatch())
            QCOMPARE(actual, expected);
    }

    static QByteArray modelFile() {
        const QByteArray header = R"({"__metadata__":{"a":"one\ntwo","z":"w"},)"
                                  R"("layer":{"dtype":"F16","shape":[2,3],"data_offsets":[0,12]}})";
        return QByteArray(1, char(header.size())) + QByteArray(7, '\0') + header + QByteArray(12, 'x');
    }

    // What only a run of sub-directories encounters is broken.
    static void check() {
        const MediaFolder folder;
        for (const char* name : {"a.jpg", "a.png", "b.png", "sub/a.png"})
            folder.addImage(name, {40, 30});
        folder.addTags("a.png", "sky, sea");
        folder.addTags("b.png", "Cat by sea\nsky\nsky");
        folder.addTags("sub/a.png", "\xFF\xFE");
        folder.addTags("sub/text.mp4", "");
        folder.addFile("sub/bad.png", "no image");
        folder.addFile(".hidden.png", "no image");
        folder.addFile("sub/text.mp4", "no clip");
        folder.addFile("m.safetensors", modelFile());
        folder.addFile("sub/cut.safetensors", "short");
        folder.addTags("sub/bad.png", "Sky");
        const QStringList before = treeText(folder.path()).split("\n");
        const auto& [words, exitCode, out, err, made] = row<QString, int, QString, QString, QString>();
        const BatchRun run = runBatch(folder.path(), words, QByteArray("a.png\0gone\n.png\0sub/\0", 21));
        comparePattern(run.out, out);
        comparePattern(run.err, err);
        QCOMPARE(run.exitCode, exitCode);
        QString changed;
        for (const QString& line : treeText(folder.path()).split("\n", Qt::SkipEmptyParts))
            changed += before.contains(line) ? QString() : line + "\n";
        QCOMPARE(changed, made);
    }
};

QTEST_MAIN(TestBatch)
#include "tst_batch.moc"
