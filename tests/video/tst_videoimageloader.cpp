#include "catalogue/VideoImageLoader.h"

#include "support/Clips.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

// The kinds of clips and what they tell are tested in the catalogue.
class TestVideoImageLoader : public QObject {
    Q_OBJECT

private slots:
    void clipsWithoutPictureFail() {
        VideoImageLoader loader;
        QSignalSpy frames(&loader, &VideoImageLoader::imageFrame);
        QSignalSpy failures(&loader, &VideoImageLoader::failed);
        for (const char* name :
             {"text.mp4", "no-index.mp4", "no-picture.mp4", "sound-only.ogg", "no such file.mp4"}) {
            loader.grabFrame(clipPath(name), 0);
            QVERIFY(failures.isEmpty()); // never from within
            QVERIFY(failures.wait(4000));
            loader.grabFrame(clipPath("mpeg4.avi"), 0);
            QTRY_COMPARE(frames.count(), 1);
            QCOMPARE(frames.takeFirst().first().toString(), clipPath("mpeg4.avi"));
            QCOMPARE(failures, QList<QVariantList>{{clipPath(name)}});
            failures.clear();
        }
    }

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
        // Each job is dropped in favour of the next at another moment of its life.
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

    void stoppedLoaderIsSilent() {
        VideoImageLoader loader;
        QSignalSpy frames(&loader, &VideoImageLoader::imageFrame);
        QSignalSpy failures(&loader, &VideoImageLoader::failed);
        loader.stopPlayer(); // before any job
        for (const char* name : {"h264.mp4", "text.mp4"}) {
            loader.grabFrame(clipPath(name), 0);
            loader.stopPlayer();
        }
        VideoImageLoader other;
        other.setSize({80, 80});
        QSignalSpy otherFrames(&other, &VideoImageLoader::imageFrame);
        other.grabFrame(clipPath("rotated.mp4"), 0);
        QTRY_COMPARE(otherFrames.count(), 1);
        QCOMPARE(otherFrames.first().at(1).value<QImage>().size(), QSize(32, 80));
        QVERIFY(frames.isEmpty() && failures.isEmpty());
    }
};

QTEST_MAIN(TestVideoImageLoader)
#include "tst_videoimageloader.moc"
