#include "safetensors/ModelFileNaming.h"
#include "support/MediaFolder.h"

#include <QTest>

class TestModelFileNaming : public QObject {
    Q_OBJECT

private slots:
    void previews_data() {
        QTest::addColumn<QStringList>("beside");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("preview");
        const auto row = [](const char* name, const QStringList& beside, const QString& model,
                            const QString& preview) { QTest::newRow(name) << beside << model << preview; };
        row("an image of the name", {"m.png", "other.jpg"}, "m.safetensors", "m.png");
        row("the first suffix wins", {"m.png", "m.jpg"}, "m.safetensors", "m.jpg");
        row("a name with both suffixes goes further", {"m.jpg", "m.jpg.png"}, "m.safetensors", "m.jpg.png");
        row("dots stay in the base name", {"a.png", "a.b.png"}, "a.b.safetensors", "a.b.png");
        row("no image", {"m.txt"}, "m.safetensors", "m");
    }
    void previews() {
        QFETCH(const QStringList, beside);
        QFETCH(const QString, model);
        QFETCH(const QString, preview);
        const MediaFolder folder;
        for (const QString& name : beside)
            folder.addFile(name);
        QCOMPARE(previewImagePath(folder.filePath(model), {"jpg", "png"}), folder.filePath(preview));
    }

    void theDirectoryIsListedFlat() {
        const MediaFolder folder;
        for (const char* name : {"a.safetensors", "b.safetensors", "c.txt", "sub/d.safetensors"})
            folder.addFile(name);
        QStringList files = modelFilesBeside(folder.filePath("gone.safetensors"));
        files.sort();
        QCOMPARE(files, QStringList({folder.filePath("a.safetensors"), folder.filePath("b.safetensors")}));
    }

    void steps_data() {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("next");
        QTest::addColumn<QString>("previous");
        const QStringList files{"b", "a", "c"};
        QTest::newRow("in the middle") << files << "a" << "c" << "b";
        QTest::newRow("round the end") << files << "c" << "b" << "a";
        QTest::newRow("round the start") << files << "b" << "a" << "c";
        QTest::newRow("gone") << files << "x" << "b" << "c";
        QTest::newRow("case matters") << files << "A" << "b" << "c";
        QTest::newRow("alone") << QStringList("a") << "a" << "a" << "a";
        QTest::newRow("none") << QStringList() << "a" << QString() << QString();
    }
    void steps() {
        QFETCH(const QStringList, files);
        QFETCH(const QString, current);
        QTEST(steppedModelFile(files, current, true), "next");
        QTEST(steppedModelFile(files, current, false), "previous");
    }
};

QTEST_GUILESS_MAIN(TestModelFileNaming)
#include "tst_modelfilenaming.moc"
