#include "catalogue/ImageLoaderThreaded.h"
#include "support/MediaFolder.h"
#include "support/Rows.h"

#include <QRandomGenerator>
#include <QSignalSpy>

// The preview load: every file gets its result, and a stop ends it for good.
class TestPreviewLoading : public QObject {
    Q_OBJECT

private slots:
    void everyFileGetsItsResult_data() { addRows<int>({{"1 thread", 1}, {"16 threads", 16}}); }
    void everyFileGetsItsResult() {
        const auto& [threads] = row<int>();
        const MediaFolder folder;
        ImageLoaderThreaded loader;
        loader.setImageThreadCount(threads);
        loader.setPreviewSize({20, 20});
        const QSignalSpy messages(&loader, &ImageLoaderThreaded::showMessage);
        loader.start(); // nothing to do
        QCOMPARE(messages.count(), 1);
        QHash<QString, QSize> expected;
        for (int number = 0; number < 40; ++number) {
            const QString name = QString("%1.png").arg(number);
            if (number % 8 == 3)
                expected.insert(folder.addFile(name, "broken"), QSize());
            else
                expected.insert(folder.addImage(name, {50, number + 10}),
                                QSize(50, number + 10).scaled(20, 20, Qt::KeepAspectRatio));
        }
        for (const QString& path : expected.keys())
            loader.enqueue(path, false);
        QHash<QString, QSize> loaded;
        connect(&loader, &ImageLoaderThreaded::loadedImage, this,
                [&](const QString& path, const QImage& image) {
                    QVERIFY(!loaded.contains(path));
                    loaded.insert(path, image.isNull() ? QSize() : image.size());
                });
        loader.start();
        QTRY_COMPARE(messages.count(), 2);
        QCOMPARE(loaded, expected);
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
            loader->stop();
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
