#include "imaging/BatchOutput.h"
#include "imaging/ResizeGeometry.h"
#include "support/Rows.h"

// What the batches compute: sizes, crops, and the paths of their files.
class TestResizeGeometry : public QObject {
    Q_OBJECT

private slots:
    void resizes_data() {
        const auto specific = [](int w, int h, Qt::AspectRatioMode mode = Qt::KeepAspectRatio) {
            ResizeOptions options;
            options.specificSize = {w, h};
            options.aspectRatioMode = mode;
            return options;
        };
        addRows<ResizeOptions, std::optional<QSize>>({
            {"fitted into the size", specific(192, 108), QSize(144, 108)},
            {"stretched to the size", specific(192, 108, Qt::IgnoreAspectRatio), QSize(192, 108)},
            {"covering the size", specific(192, 108, Qt::KeepAspectRatioByExpanding), QSize(192, 144)},
            {"to a width", specific(50, -1), QSize(50, 38)},
            {"neither side", specific(-1, -1), std::nullopt},
            {"no width", specific(0, 60), QSize(0, 0)},
            {"by a factor", {ResizeMode::Scale}, QSize(60, 45)},
            {"by aspect ratio", {ResizeMode::AspectRatio}, QSize(40, 45)},
            {"beyond the limit of memory", {.mode = ResizeMode::Scale, .scale = 250}, QSize(0, 0)},
            {"no mode", {ResizeMode::None}, std::nullopt},
        });
    }
    void resizes() {
        const auto& [options, size] = row<ResizeOptions, std::optional<QSize>>();
        const std::optional<QImage> result = resizedImage(QImage(40, 30, QImage::Format_RGB32), options);
        QCOMPARE(result ? std::optional(result->size()) : std::nullopt, size);
    }

    void outputDirectories_data() {
        addRows<QString, QString, QString>({
            {"relative", "/data/set", "out", "/data/set/out"},
            {"relative with a dot stays as typed", "/data/set", "./scaled", "/data/set/./scaled"},
            {"empty is the working directory", "/data/set/", "", "/data/set"},
            {"absolute", "/data/set", "/elsewhere/out", "/elsewhere/out"},
        });
    }
    void outputDirectories() {
        const auto& [workingPath, text, directory] = row<QString, QString, QString>();
        QCOMPARE(resolveOutputDirectory(workingPath, text), directory);
    }
};

QTEST_GUILESS_MAIN(TestResizeGeometry)
#include "tst_resizegeometry.moc"
