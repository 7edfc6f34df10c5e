#include "catalogue/VideoImageLoader.h"

#include "support/Clips.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

// The kinds of clips and their metadata are tested in the catalogue.
class TestVideoImageLoader : public QObject {
    Q_OBJECT

private slots:
    void losesPatience() {
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        VideoImageLoader loader;
        QSignalSpy failures(&loader, &VideoImageLoader::failed);
        loader.grabFrame(QString("http://127.0.0.1:%1/clip.mp4").arg(silent.serverPort()), 0);
        QVERIFY(failures.wait(20000));
    }

    void reusedLoaderKeepsFilesApart() {
        VideoImageLoader loader;
        QStringList names;
        QSet<int> numbers;
        connect(&loader, &VideoImageLoader::imageFrame, this, [&](const QString& name, const QImage& frame) {
            names.append(name);
            numbers.insert(frameNumber(frame));
        });
        // The next job replaces each one at a different stage of its work.
        for (int delay = 0; delay < 20; ++delay) {
            loader.grabFrame(clipPath("h264.mp4"), 0);
            QTest::qWait(delay);
            const auto before = names.size();
            loader.grabFrame(clipPath("mpeg4.avi"), 0);
            QTRY_COMPARE(names.size(), before + 1);
            QCOMPARE(names.last(), clipPath("mpeg4.avi"));
        }
        QCOMPARE(numbers, QSet<int>{0});
    }
};

QTEST_MAIN(TestVideoImageLoader)
#include "tst_videoimageloader.moc"
