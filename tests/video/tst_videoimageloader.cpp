#include "catalogue/VideoImageLoader.h"

#include "support/Clips.h"

#include <QElapsedTimer>
#include <QMediaFormat>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

class VideoImageLoaderTest : public QObject {
    Q_OBJECT

private slots:
    void readsEveryKindOfClip_data();
    void readsEveryKindOfClip();
    void losesPatience();
    void failsWithoutPicture_data();
    void failsWithoutPicture();
    void scalesToItsSize();
    void reusedLoaderKeepsFilesApart();
    void stoppedLoaderIsSilent();
    void metaDataHasBothNames();
};

void VideoImageLoaderTest::readsEveryKindOfClip_data() {
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<double>("frameRate");
    QTest::addColumn<QSize>("resolution");

    const QSize size(160, 64);
    QTest::newRow("h264.mp4") << 10000LL << 25.0 << size;
    QTest::newRow("sound.mp4") << 2000LL << 29.97 << size;
    QTest::newRow("fps60.mp4") << 2000LL << 60.0 << size;
    QTest::newRow("vp9.webm") << 2002LL << 23.976 << size;
    QTest::newRow("mpeg4.avi") << 2000LL << 25.0 << size;
    QTest::newRow("mpeg2.mpg") << 1768LL << 29.97 << size;
    QTest::newRow("theora.ogv") << 2000LL << 0.0 << size; // its header tells no rate
    QTest::newRow("flash.flv") << 2000LL << 25.0 << size;
    QTest::newRow("no-duration.mkv") << 0LL << 25.0 << size;
    QTest::newRow("truncated.mp4") << 10000LL << 25.0 << size;
    QTest::newRow("odd #1 100%25 what? 😀.mp4") << 10000LL << 25.0 << size;
}

void VideoImageLoaderTest::readsEveryKindOfClip() {
    QFETCH(qint64, duration);
    QFETCH(double, frameRate);
    QFETCH(QSize, resolution);
    VideoImageLoader loader;
    QSignalSpy frames(&loader, &VideoImageLoader::imageFrame);
    const QString path = clipPath(QString::fromUtf8(QTest::currentDataTag()));
    loader.grabFrame(path, 0);
    QTRY_COMPARE(frames.count(), 1);
    QCOMPARE(frames.first().at(0).toString(), path);
    QCOMPARE(frameNumber(frames.first().at(1).value<QImage>()), 0);
    const auto meta = loader.videoMeta();
    QVERIFY(qAbs(meta.value("Duration").toLongLong() - duration) < 50);
    QVERIFY(qAbs(meta.value("VideoFrameRate").toDouble() - frameRate) < 0.01);
    QCOMPARE(meta.value("Resolution").toSize(), resolution);
}

void VideoImageLoaderTest::failsWithoutPicture_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("a text") << "text.mp4";
    QTest::newRow("cut before its index") << "no-index.mp4";
    QTest::newRow("cut behind its index") << "no-picture.mp4";
    QTest::newRow("sound alone") << "sound-only.ogg";
    QTest::newRow("no file") << "no such file.mp4";
}

void VideoImageLoaderTest::failsWithoutPicture() {
    VideoImageLoader loader;
    QSignalSpy frames(&loader, &VideoImageLoader::imageFrame);
    QSignalSpy failures(&loader, &VideoImageLoader::failed);
    QFETCH(QString, name);
    const QString path = clipPath(name);
    loader.grabFrame(path, 0);
    QVERIFY(failures.isEmpty()); // never from within
    QVERIFY(failures.wait(4000));
    QCOMPARE(failures, (QList<QVariantList>{{path}}));
    loader.grabFrame(clipPath("mpeg4.avi"), 0);
    QTRY_COMPARE(frames.count(), 1);
    QCOMPARE(frames.first().first().toString(), clipPath("mpeg4.avi"));
    QCOMPARE(failures.count(), 1);
}

void VideoImageLoaderTest::losesPatience() {
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    VideoImageLoader loader;
    QSignalSpy failures(&loader, &VideoImageLoader::failed);
    const QString url = QString("http://127.0.0.1:%1/clip.mp4").arg(silent.serverPort());
    QElapsedTimer timer;
    timer.start();
    loader.grabFrame(url, 0);
    QVERIFY(failures.wait(20000));
    QVERIFY(timer.elapsed() >= 4500);
    QCOMPARE(failures, (QList<QVariantList>{{url}}));
}

void VideoImageLoaderTest::scalesToItsSize() {
    VideoImageLoader loader;
    loader.setSize({80, 80});
    QSignalSpy frames(&loader, &VideoImageLoader::imageFrame);
    loader.grabFrame(clipPath("h264.mp4"), 0);
    QTRY_COMPARE(frames.count(), 1);
    QCOMPARE(frames.takeFirst().at(1).value<QImage>().size(), QSize(80, 32));
    loader.grabFrame(clipPath("rotated.mp4"), 0);
    QTRY_COMPARE(frames.count(), 1);
    QCOMPARE(frames.first().at(1).value<QImage>().size(), QSize(32, 80));
}

void VideoImageLoaderTest::reusedLoaderKeepsFilesApart() {
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

void VideoImageLoaderTest::stoppedLoaderIsSilent() {
    VideoImageLoader loader;
    QSignalSpy frames(&loader, &VideoImageLoader::imageFrame);
    QSignalSpy failures(&loader, &VideoImageLoader::failed);
    loader.stopPlayer(); // before any job
    QElapsedTimer timer;
    for (const char* name : {"h264.mp4", "text.mp4"}) {
        loader.grabFrame(clipPath(name), 0);
        timer.start();
        loader.stopPlayer();
        QVERIFY(timer.elapsed() < 500);
    }
    VideoImageLoader other;
    QSignalSpy otherFrames(&other, &VideoImageLoader::imageFrame);
    other.grabFrame(clipPath("h264.mp4"), 0);
    QTRY_COMPARE(otherFrames.count(), 1);
    QVERIFY(frames.isEmpty());
    QVERIFY(failures.isEmpty());
}

void VideoImageLoaderTest::metaDataHasBothNames() {
    QMediaMetaData metaData;
    metaData.insert(QMediaMetaData::AudioBitRate, 128000);
    metaData.insert(QMediaMetaData::VideoFrameRate, qQNaN());
    const QHash<QString, QVariant> expected{
        {QMediaMetaData::metaDataKeyToString(QMediaMetaData::AudioBitRate), 128000},
        {"AudioBitRate", 128000}};
    QCOMPARE(videoMetaHash(metaData), expected);
}

QTEST_MAIN(VideoImageLoaderTest)
#include "tst_videoimageloader.moc"
