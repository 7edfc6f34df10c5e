#include "imaging/OutputPath.h"
#include "imaging/ResizeGeometry.h"

#include <QTemporaryDir>
#include <QtTest>

// What the batches count with: sizes, crops, and where their files go.
class TestResizeGeometry : public QObject {
    Q_OBJECT

private slots:
    void oneModeStaysChosen_data();
    void oneModeStaysChosen();
    void scaledSizes_data();
    void scaledSizes();
    void aspectRatioCrops_data();
    void aspectRatioCrops();
    void resizes_data();
    void resizes();
    void cropTakesPixelsFromTheMiddle();
    void previewsAreOnlyMadeSmaller();
    void outputDirectories_data();
    void outputDirectories();
    void outputDirectoryIsMade();
    void outputFiles_data();
    void outputFiles();
};

void TestResizeGeometry::oneModeStaysChosen_data() {
    QTest::addColumn<ResizeMode>("toggled");
    QTest::addColumn<bool>("on");
    QTest::addColumn<ResizeMode>("chosen");
    using enum ResizeMode;
    QTest::newRow("specific size on") << SpecificSize << true << SpecificSize;
    QTest::newRow("scale on") << Scale << true << Scale;
    QTest::newRow("aspect ratio on") << AspectRatio << true << AspectRatio;
    QTest::newRow("specific size off") << SpecificSize << false << Scale;
    QTest::newRow("scale off") << Scale << false << SpecificSize;
    QTest::newRow("aspect ratio off") << AspectRatio << false << Scale;
}

void TestResizeGeometry::oneModeStaysChosen() {
    QFETCH(ResizeMode, toggled);
    QFETCH(bool, on);
    QTEST(resizeModeAfterToggle(toggled, on), "chosen");
}

void TestResizeGeometry::scaledSizes_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("factor");
    QTest::addColumn<QSize>("result");
    QTest::newRow("a half goes up") << QSize(3, 5) << 1.5 << QSize(5, 8);
    QTest::newRow("down to nothing") << QSize(10, 2000) << 0.01 << QSize(0, 20);
    QTest::newRow("beyond 32 bits") << QSize(2000000000, 3) << 99.99 << QSize(2147483647, 300);
}

void TestResizeGeometry::scaledSizes() {
    QFETCH(QSize, size);
    QFETCH(double, factor);
    QTEST(scaledSize(size, factor), "result");
}

void TestResizeGeometry::aspectRatioCrops_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QRect>("crop");
    QTest::newRow("landscape reaches beyond the image")
        << QSize(1000, 800) << 1.5 << QRect(0, -200, 1000, 1200);
    QTest::newRow("portrait counts from its width") << QSize(800, 1000) << 1.5 << QRect(0, -100, 800, 1200);
    QTest::newRow("half of the height") << QSize(1000, 800) << 0.5 << QRect(0, 200, 1000, 400);
    QTest::newRow("the height is cut to a whole number") << QSize(9, 7) << 0.55 << QRect(0, 2, 9, 3);
    QTest::newRow("no height") << QSize(9, 7) << 0.0 << QRect(0, 3, 9, 0);
}

void TestResizeGeometry::aspectRatioCrops() {
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QTEST(aspectRatioCrop(size, ratio), "crop");
}

void TestResizeGeometry::resizes_data() {
    QTest::addColumn<ResizeOptions>("options");
    QTest::addColumn<std::optional<QSize>>("size");
    const auto specific = [](int w, int h, Qt::AspectRatioMode mode = Qt::KeepAspectRatio) {
        ResizeOptions options;
        options.specificSize = {w, h};
        options.aspectRatioMode = mode;
        return options;
    };
    const auto add = [](const char* name, const ResizeOptions& options, std::optional<QSize> size) {
        QTest::newRow(name) << options << size;
    };
    add("fitted into the size", specific(192, 108), QSize(144, 108));
    add("stretched to the size", specific(192, 108, Qt::IgnoreAspectRatio), QSize(192, 108));
    add("covering the size", specific(192, 108, Qt::KeepAspectRatioByExpanding), QSize(192, 144));
    add("to a width", specific(50, -1), QSize(50, 38));
    add("to a height", specific(-1, 60), QSize(80, 60));
    add("neither side", specific(-1, -1), std::nullopt);
    add("no width", specific(0, 60), QSize(0, 0));
    add("no width at a following height", specific(0, -1), QSize(0, 0));
    add("by a factor", {ResizeMode::Scale}, QSize(60, 45));
    add("by aspect ratio", {ResizeMode::AspectRatio}, QSize(40, 45));
    add("no mode", {ResizeMode::None}, std::nullopt);
}

void TestResizeGeometry::resizes() {
    QFETCH(ResizeOptions, options);
    QFETCH(std::optional<QSize>, size);
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    const std::optional<QImage> result = resizedImage(image, options);
    QCOMPARE(result.has_value(), size.has_value());
    if (result)
        QCOMPARE(result->size(), *size);
}

void TestResizeGeometry::cropTakesPixelsFromTheMiddle() {
    QImage image(4, 8, QImage::Format_RGB32);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 4; ++x)
            image.setPixel(x, y, qRgb(10 * x, 10 * y, 0));
    ResizeOptions options{ResizeMode::AspectRatio};
    options.aspectRatio = 0.5;
    QCOMPARE(resizedImage(image, options), image.copy(0, 3, 4, 2));
}

void TestResizeGeometry::previewsAreOnlyMadeSmaller() {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    QCOMPARE(reducedToFit(image, {40, 30}).cacheKey(), image.cacheKey());
    QCOMPARE(reducedToFit(image, {20, 100}).size(), QSize(20, 15));
    QCOMPARE(reducedToFit(image, {100, 20}).size(), QSize(26, 20));
}

void TestResizeGeometry::outputDirectories_data() {
    QTest::addColumn<QString>("workingPath");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("directory");
    const auto add = [](const char* name, const char* workingPath, const char* text, const char* directory) {
        QTest::newRow(name) << workingPath << text << directory;
    };
    add("relative", "/data/set", "out", "/data/set/out");
    add("relative with a dot stays as typed", "/data/set", "./scaled", "/data/set/./scaled");
    add("beside", "/data/set", "../out", "/data/set/../out");
    add("empty stands for the working directory", "/data/set", "", "/data/set");
    add("empty with a slash at the end", "/data/set/", "", "/data/set");
    add("absolute", "/data/set", "/elsewhere/out", "/elsewhere/out");
    add("a percent sign", "/data/100%1", "%2", "/data/100%1/%2");
}

void TestResizeGeometry::outputDirectories() {
    QFETCH(QString, workingPath);
    QFETCH(QString, text);
    QTEST(resolveOutputDirectory(workingPath, text), "directory");
}

void TestResizeGeometry::outputDirectoryIsMade() {
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

void TestResizeGeometry::outputFiles_data() {
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("output");
    const auto add = [](const char* name, const char* source, const char* directory, const char* output) {
        QTest::newRow(name) << source << directory << output;
    };
    add("another directory", "/data/a.png", "/out", "/out/a.png");
    add("a lower directory is flattened", "/data/sub/a.png", "/data", "/data/a.png");
    add("the same directory", "/data/a.png", "/data", "/data/a.png");
    add("the same directory, written otherwise", "/data/a.png", "/data/.", "/data/./a.png");
    add("percent signs", "/data/%2.png", "/out/%1", "/out/%1/%2.png");
}

void TestResizeGeometry::outputFiles() {
    QFETCH(QString, source);
    QFETCH(QString, directory);
    QTEST(outputFilePath(source, directory), "output");
}

QTEST_GUILESS_MAIN(TestResizeGeometry)
#include "tst_resizegeometry.moc"
