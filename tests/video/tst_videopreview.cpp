#include "video/ProgressBar.h"
#include "video/VideoPreviewWidget.h"

#include "support/Clips.h"

#include <QAudioOutput>
#include <QTest>

class TestVideoPreview : public QObject {
    Q_OBJECT

private slots:
    void playsSilentLoopAndLetsGo() {
        VideoPreviewWidget preview;
        auto* bar = preview.findChild<QProgressBar*>("progressBar");
        preview.stop({}); // before any start
        QVERIFY(!preview.findChild<QMediaPlayer*>());

        const QString path = clipPath("mpeg4.avi");
        preview.start(path);
        const auto* player = preview.findChild<QMediaPlayer*>();
        QCOMPARE(player->audioOutput()->volume(), 0.0F);
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

    void switchesVideos() {
        VideoPreviewWidget preview;
        preview.start(clipPath("mpeg4.avi"));
        preview.start(clipPath("h264.mp4"));
        QTRY_COMPARE(preview.findChild<QProgressBar*>("progressBar")->maximum(), 10000);
        preview.start({});
        const auto* player = preview.findChild<QMediaPlayer*>();
        QVERIFY(player->source().isEmpty());
        QTRY_COMPARE(player->playbackState(), QMediaPlayer::StoppedState);
        preview.start(clipPath("text.mp4"));
        QTRY_COMPARE(player->mediaStatus(), QMediaPlayer::InvalidMedia);
    }

    void seekBarFollowsMouse() {
        ProgressBar bar;
        bar.resize(300, 20);
        bar.setRange(0, 1000);
        // The value at each place; beyond the ends the one before stays.
        const std::pair<int, int> places[] = {{150, 500}, {101, 336}, {301, 336}, {-3, 336}, {0, 0}};
        QTest::mousePress(&bar, Qt::LeftButton, {}, {150, 5});
        for (const auto& [x, value] : places) {
            QTest::mouseMove(&bar, {x, 5});
            QCOMPARE(bar.value(), value);
        }
    }
};

QTEST_MAIN(TestVideoPreview)
#include "tst_videopreview.moc"
