#include "catalogue/ImageLoaderThread.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSignalSpy>

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
        addRows<int>({{"1 thread", 1}, {"4 threads", 4}, {"16 threads", 16}});
    }
    void everyFileGetsItsResult() {
        const auto& [threads] = row<int>();
        const MediaFolder folder;
        ImageLoaderThreaded loader;
        loader.setImageThreadCount(threads);
        loader.setPreviewSize({20, 20});
        const QSignalSpy messages(&loader, &ImageLoaderThreaded::showMessage);
        loader.start(); // nothing to do
        QCOMPARE(messages.count(), 1);
        QSet<QString> waiting;
        for (int number = 0; number < 40; ++number) {
            const QString name = QString("%1.png").arg(number);
            waiting.insert(number % 8 == 3 ? folder.addFile(name, "broken")
                                           : folder.addImage(name, {50, 40}));
        }
        for (const QString& path : std::as_const(waiting))
            loader.enqueue(path, false);
        int nulls = 0;
        connect(&loader, &ImageLoaderThreaded::loadedImage, this,
                [&](const QString& path, const QImage& image) {
                    QVERIFY(waiting.remove(path));
                    nulls += image.isNull() ? 1 : 0;
                });
        loader.start();
        QTRY_COMPARE(messages.count(), 2);
        QVERIFY(waiting.isEmpty());
        QCOMPARE(nulls, 5);
        QVERIFY(messages.last().first().toString().startsWith("Loaded all media previews in: "));
    }

    void nothingComesAfterAStop() {
        const MediaFolder folder;
        // Large enough that decodes are under way when the stop comes.
        QImage noise(3000, 3000, QImage::Format_RGB32);
        QRandomGenerator(1).fillRange(reinterpret_cast<quint32*>(noise.bits()), noise.sizeInBytes() / 4);
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
