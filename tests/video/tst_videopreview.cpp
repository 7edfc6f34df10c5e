#include "video/VideoPreviewWidget.h"

#include "support/Clips.h"

#include <QAudioOutput>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>

class TestVideoPreview : public QObject {
    Q_OBJECT

private slots:
    void playsSilentLoopsAndStops() {
        VideoPreviewWidget preview;
        auto* bar = preview.findChild<QProgressBar*>("progressBar");
        preview.stop({}); // before any start
        preview.start(clipPath("h264.mp4"));
        QTRY_COMPARE(bar->maximum(), 10000);
        const auto* player = preview.findChild<QMediaPlayer*>();
        QCOMPARE(player->audioOutput()->volume(), 0.0F);
        // Half of its frames are missing, and each loop reports an error.
        const QString path = clipPath("truncated.mp4");
        preview.start(path);
        const QSignalSpy errors(player, &QMediaPlayer::errorOccurred);
        QTRY_VERIFY_WITH_TIMEOUT(errors.size() > 1, 20000);
        QTRY_COMPARE(player->playbackState(), QMediaPlayer::PlayingState);
        preview.stop(path + "x");
        QVERIFY(!player->source().isEmpty());
        preview.stop(path.toUpper());
        QVERIFY(player->source().isEmpty());

        QSignalSpy states(player, &QMediaPlayer::playbackStateChanged);
        preview.start(clipPath("no-picture.mp4"));
        QTRY_COMPARE(states.size(), 2);
        QCOMPARE(states.first().first().value<QMediaPlayer::PlaybackState>(), QMediaPlayer::PlayingState);
        QCOMPARE(player->playbackState(), QMediaPlayer::StoppedState);
        preview.start({});
        QVERIFY(player->source().isEmpty());
    }
};

QTEST_MAIN(TestVideoPreview)
#include "tst_videopreview.moc"
