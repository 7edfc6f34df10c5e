#include "video/ProgressBar.h"
#include "video/VideoPreviewWidget.h"

#include "support/Clips.h"

#include <QAudioOutput>
#include <QSignalSpy>
#include <QTest>

class VideoPreviewTest : public QObject {
    Q_OBJECT

private slots:
    void playsSilentLoopAndLetsGo();
    void switchesVideos();
    void seekBarFollowsMouse_data();
    void seekBarFollowsMouse();
};

void VideoPreviewTest::playsSilentLoopAndLetsGo() {
    VideoPreviewWidget preview;
    auto* bar = preview.findChild<QProgressBar*>("progressBar");
    QCOMPARE(bar->maximumHeight(), 12);
    QVERIFY(!bar->isTextVisible());
    preview.stop({}); // before any start
    QVERIFY(!preview.findChild<QMediaPlayer*>());

    const QString path = clipPath("mpeg4.avi");
    preview.start(path);
    const auto* player = preview.findChild<QMediaPlayer*>();
    QCOMPARE(player->audioOutput()->volume(), 0.0F);
    QCOMPARE(player->loops(), -1);
    QTRY_COMPARE(bar->maximum(), 2000);
    // The clip lasts two seconds; it starts over.
    bool wentBack = false;
    connect(player, &QMediaPlayer::positionChanged, this, [&, last = qint64(0)](qint64 position) mutable {
        wentBack |= position < std::exchange(last, position);
    });
    QTRY_VERIFY_WITH_TIMEOUT(wentBack, 20000);

    preview.stop(path + "x");
    QCOMPARE(player->playbackState(), QMediaPlayer::PlayingState);
    preview.stop(path.toUpper());
    QCOMPARE(player->playbackState(), QMediaPlayer::StoppedState);
    QVERIFY(player->source().isEmpty());
}

void VideoPreviewTest::switchesVideos() {
    VideoPreviewWidget preview;
    auto* bar = preview.findChild<QProgressBar*>("progressBar");
    preview.start(clipPath("mpeg4.avi"));
    preview.start(clipPath("h264.mp4"));
    QTRY_COMPARE(bar->maximum(), 10000);
    preview.start({});
    const auto* player = preview.findChild<QMediaPlayer*>();
    QVERIFY(player->source().isEmpty());
    QTRY_COMPARE(player->playbackState(), QMediaPlayer::StoppedState);
    preview.start(clipPath("text.mp4"));
    QTRY_COMPARE(player->mediaStatus(), QMediaPlayer::InvalidMedia);
}

void VideoPreviewTest::seekBarFollowsMouse_data() {
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("value");
    QTest::newRow("left end") << 0 << 0;
    QTest::newRow("cut to whole values") << 101 << 336;
    QTest::newRow("beyond the right end is ignored") << 301 << 500;
    QTest::newRow("beyond the left end is ignored") << -3 << 500;
}

void VideoPreviewTest::seekBarFollowsMouse() {
    QFETCH(int, x);
    ProgressBar bar;
    bar.resize(300, 20);
    bar.setRange(0, 1000);
    QTest::mousePress(&bar, Qt::LeftButton, {}, {150, 5});
    QCOMPARE(bar.value(), 500);
    QTest::mouseMove(&bar, {x, 5});
    QTEST(bar.value(), "value");
}

QTEST_MAIN(VideoPreviewTest)
#include "tst_videopreview.moc"
