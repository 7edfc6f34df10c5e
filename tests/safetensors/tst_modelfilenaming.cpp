#include "safetensors/ModelFileNaming.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"

class TestModelFileNaming : public QObject {
    Q_OBJECT

private slots:
    void previews_data() {
        addRows<QStringList, QString, QString>({
            {"the first suffix wins", {"m.png", "m.jpg"}, "m.safetensors", "m.jpg"},
            {"a name with both goes further", {"m.jpg", "m.jpg.png"}, "m.safetensors", "m.jpg.png"},
            {"dots stay in the base name", {"a.png", "a.b.png"}, "a.b.safetensors", "a.b.png"},
            {"no image", {"m.txt"}, "m.safetensors", "m"},
        });
    }
    void previews() {
        const auto& [beside, model, preview] = row<QStringList, QString, QString>();
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
        addRows<QStringList, QString, QString, QString>({
            {"in the middle", {"b", "a", "c"}, "a", "c", "b"},
            {"round the end", {"b", "a", "c"}, "c", "b", "a"},
            {"round the start", {"b", "a", "c"}, "b", "a", "c"},
            {"gone, as case matters", {"b", "a", "c"}, "A", "b", "c"},
            {"none", {}, "a", {}, {}},
        });
    }
    void steps() {
        const auto& [files, current, next, previous] = row<QStringList, QString, QString, QString>();
        QCOMPARE(steppedModelFile(files, current, true), next);
        QCOMPARE(steppedModelFile(files, current, false), previous);
    }
};

QTEST_GUILESS_MAIN(TestModelFileNaming)
#include "tst_modelfilenaming.moc"
