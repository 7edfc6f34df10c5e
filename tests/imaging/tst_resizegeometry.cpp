#include "imaging/BatchOutput.h"
#include "imaging/ResizeGeometry.h"
#include "support/Rows.h"

#include <QTemporaryDir>

// What the batches count with: sizes, crops, and where their files go.
class TestResizeGeometry : public QObject {
    Q_OBJECT

private slots:
    void oneModeStaysChosen() {
        using enum ResizeMode;
        for (const ResizeMode mode : {SpecificSize, Scale, AspectRatio}) {
            QCOMPARE(resizeModeAfterToggle(mode, true), mode);
            QCOMPARE(resizeModeAfterToggle(mode, false), mode == Scale ? SpecificSize : Scale);
        }
    }

    void sizesAreScaled() {
        QCOMPARE(scaledSize({3, 5}, 1.5), QSize(5, 8)); // a half goes up
        QCOMPARE(scaledSize({10, 2000}, 0.01), QSize(0, 20));
        QCOMPARE(scaledSize({2000000000, 3}, 99.99), QSize(2147483647, 300));
    }

    void aspectRatioCrops_data() {
        addRows<QSize, double, QRect>({
            {"landscape reaches beyond the image", {1000, 800}, 1.5, {0, -200, 1000, 1200}},
            {"portrait counts from its width", {800, 1000}, 1.5, {0, -100, 800, 1200}},
            {"half of the height", {1000, 800}, 0.5, {0, 200, 1000, 400}},
            {"the height is cut to a whole number", {9, 7}, 0.55, {0, 2, 9, 3}},
            {"no height", {9, 7}, 0.0, {0, 3, 9, 0}},
        });
    }
    void aspectRatioCrops() {
        const auto& [size, ratio, crop] = row<QSize, double, QRect>();
        QCOMPARE(aspectRatioCrop(size, ratio), crop);
    }

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
            {"to a height", specific(-1, 60), QSize(80, 60)},
            {"neither side", specific(-1, -1), std::nullopt},
            {"no width", specific(0, 60), QSize(0, 0)},
            {"no width at a following height", specific(0, -1), QSize(0, 0)},
            {"by a factor", {ResizeMode::Scale}, QSize(60, 45)},
            {"by aspect ratio", {ResizeMode::AspectRatio}, QSize(40, 45)},
            {"no mode", {ResizeMode::None}, std::nullopt},
        });
    }
    void resizes() {
        const auto& [options, size] = row<ResizeOptions, std::optional<QSize>>();
        const std::optional<QImage> result = resizedImage(QImage(40, 30, QImage::Format_RGB32), options);
        QCOMPARE(result ? std::optional(result->size()) : std::nullopt, size);
    }

    void cropTakesPixelsFromTheMiddle() {
        QImage image(4, 8, QImage::Format_RGB32);
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 4; ++x)
                image.setPixel(x, y, qRgb(10 * x, 10 * y, 0));
        ResizeOptions options{ResizeMode::AspectRatio};
        options.aspectRatio = 0.5;
        QCOMPARE(resizedImage(image, options), image.copy(0, 3, 4, 2));
    }

    void previewsAreOnlyMadeSmaller() {
        const QImage image(40, 30, QImage::Format_RGB32);
        QCOMPARE(reducedToFit(image, {40, 30}).cacheKey(), image.cacheKey());
        QCOMPARE(reducedToFit(image, {20, 100}).size(), QSize(20, 15));
        QCOMPARE(reducedToFit(image, {100, 20}).size(), QSize(26, 20));
    }

    void outputDirectories_data() {
        addRows<QString, QString, QString>({
            {"relative", "/data/set", "out", "/data/set/out"},
            {"relative with a dot stays as typed", "/data/set", "./scaled", "/data/set/./scaled"},
            {"empty stands for the working directory", "/data/set/", "", "/data/set"},
            {"absolute", "/data/set", "/elsewhere/out", "/elsewhere/out"},
            {"percent signs", "/data/100%1", "%2", "/data/100%1/%2"},
        });
    }
    void outputDirectories() {
        const auto& [workingPath, text, directory] = row<QString, QString, QString>();
        QCOMPARE(resolveOutputDirectory(workingPath, text), directory);
    }

    void outputDirectoryIsMade() {
        const QTemporaryDir place;
        const QString directory = resolveOutputDirectory(place.path(), "a/b c/d");
        QVERIFY(ensureOutputDirectory(directory));
        QVERIFY(QFileInfo(directory).isDir());
        QVERIFY(ensureOutputDirectory(directory));
        QFile file(place.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(ensureOutputDirectory(place.filePath("file")));
        QVERIFY(!ensureOutputDirectory(place.filePath("file/below")));
    }

    void outputFilesLieFlat() {
        QCOMPARE(outputFilePath("/data/sub/a.png", "/data"), QString("/data/a.png"));
        QCOMPARE(outputFilePath("/data/a.png", "/data/."), QString("/data/./a.png"));
        QCOMPARE(outputFilePath("/data/%2.png", "/out/%1"), QString("/out/%1/%2.png"));
    }
};

QTEST_GUILESS_MAIN(TestResizeGeometry)
#include "tst_resizegeometry.moc"
