#include "catalogue/ImageLoaderThread.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "support/MediaFolder.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

// The preview load: every file gets its result, and a stop ends it for good.
class TestPreviewLoading : public QObject {
    Q_OBJECT

private slots:
    void decodingKeepsTheAspect() {
        const MediaFolder folder;
        QCOMPARE(decodePreview(folder.addImage("wide.png", {400, 100}), {100, 100}).image.size(),
                 QSize(100, 25));
        QCOMPARE(decodePreview(folder.addImage("small.png", {4, 4}), {100, 50}).image.size(), QSize(50, 50));
        const PreviewResult broken = decodePreview(folder.addFile("broken.png", "nothing"), {100, 100});
        QVERIFY(broken.image.isNull());
        QVERIFY(broken.error.startsWith("Image read error: "));
        QCOMPARE(decodePreview(folder.filePath("small.png"), {0, 10}).error,
                 QString("Unable to allocate image."));
    }

    void everyFileGetsItsResult_data() {
        QTest::addColumn<int>("threads");
        for (const int threads : {1, 2, 4, 16})
            QTest::addRow("%d threads", threads) << threads;
    }
    void everyFileGetsItsResult() {
        QFETCH(int, threads);
        const MediaFolder folder;
        ImageLoaderThreaded loader;
        loader.setImageThreadCount(threads);
        loader.setPreviewSize({20, 20});
        QSet<QString> expected;
        for (int number = 0; number < 40; ++number) {
            const QString name = QString("%1.png").arg(number);
            expected.insert(number % 8 == 3 ? folder.addFile(name, "broken")
                                            : folder.addImage(name, {50, 40}));
        }
        for (const QString& path : std::as_const(expected))
            loader.enqueue(path, false);
        QSet<QString> loaded;
        int nulls = 0;
        connect(&loader, &ImageLoaderThreaded::loadedImage, this,
                [&](const QString& path, const QImage& image) {
                    QVERIFY(!loaded.contains(path));
                    loaded.insert(path);
                    nulls += image.isNull() ? 1 : 0;
                });
        const QSignalSpy messages(&loader, &ImageLoaderThreaded::showMessage);
        loader.start();
        QTRY_COMPARE(messages.count(), 1);
        QCOMPARE(loaded, expected);
        QCOMPARE(nulls, 5);
        QVERIFY(messages.first().first().toString().startsWith("Loaded all media previews in: "));
    }

    void anEmptyLoadEndsAtOnce() {
        ImageLoaderThreaded loader;
        const QSignalSpy messages(&loader, &ImageLoaderThreaded::showMessage);
        loader.start();
        QCOMPARE(messages.count(), 1);
    }

    void nothingComesAfterAStop() {
        const MediaFolder folder;
        // Large enough that decodes are under way when the stop comes.
        QImage noise(3000, 3000, QImage::Format_RGB32);
        for (int y = 0; y < noise.height(); ++y) {
            for (int x = 0; x < noise.width(); ++x)
                noise.setPixel(x, y, qRgb(x * 7, y * 13, x * y));
        }
        const QString large = folder.addImage("large.png", noise);
        auto loader = std::make_unique<ImageLoaderThreaded>();
        loader->setPreviewSize({100, 100});
        int results = 0;
        connect(loader.get(), &ImageLoaderThreaded::loadedImage, this,
                [&](const QString&, const QImage& image) {
                    QVERIFY(!image.isNull());
                    ++results;
                });
        for (int round = 0; round < 3; ++round) {
            for (int number = 0; number < 12; ++number)
                loader->enqueue(large, true);
            QElapsedTimer timer;
            timer.start();
            loader->stop();
            QVERIFY2(timer.elapsed() < 5000, "all workers share one deadline");
            const int seen = results;
            QCoreApplication::processEvents();
            QCOMPARE(results, seen);
        }
        // A load after the stops is whole.
        loader->enqueue(folder.addImage("a.png"), false);
        const QSignalSpy messages(loader.get(), &ImageLoaderThreaded::showMessage);
        const int before = results;
        loader->start();
        QTRY_COMPARE(messages.count(), 1);
        QCOMPARE(results, before + 1);
        loader->enqueue(large, true);
        loader.reset();
    }
};

QTEST_MAIN(TestPreviewLoading)
#include "tst_previewloading.moc"
