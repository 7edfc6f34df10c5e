#include "video/ProgressBar.h"
#include "video/VideoWidget.h"

#include "support/Clips.h"
#include "support/ModalAnswer.h"
#include "support/Rows.h"

#include <QApplication>
#include <QDir>
#include <QInputDialog>
#include <QSignalSpy>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTemporaryDir>
#include <QToolButton>
#include <QVideoSink>
#include <QVideoWidget>
#include <QWheelEvent>

class TestVideoWidget : public QObject {
    Q_OBJECT

private slots:
    void init() {
        _window = std::make_unique<VideoWidget>();
        _player = _window->findChild<QMediaPlayer*>();
        _window->show();
        QVERIFY(QTest::qWaitForWindowActive(_window.get()));
    }
    void cleanup() { _window.reset(); }

    void stepsByKeysButtonsAndWheel() {
        open("sound.mp4");
        QCOMPARE(_window->windowTitle(), "Video editor - sound.mp4");
        key(Qt::Key_Right);
        QCOMPARE(_player->position(), 29); // 29.97 frames a second
        open("h264.mp4");
        QVERIFY2(bar()->format().endsWith(" - 00:00:10.000]"), qPrintable(bar()->format()));
        QTest::keyPress(_window.get(), Qt::Key_5);
        QCOMPARE(_player->position(), 0);
        QTest::keyRelease(_window.get(), Qt::Key_5);
        QCOMPARE(_player->position(), 5000);
        key(Qt::Key_B);
        button("tBFrameNext")->click();
        QCOMPARE(_player->position(), 5000 + 15 * 25);
        key(Qt::Key_Z);
        key(Qt::Key_Left);
        QCOMPARE(_player->position(), 5000 + 15 * 25 - 1);
        QTest::mouseClick(button("tBFramePrev"), Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(_player->position(), 5000 + 15 * 25 - 1 - 250);
        key(Qt::Key_0);
        const auto wheel = [this](int angle, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event({5, 5}, {5, 5}, {}, {0, angle}, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(_window.get(), &event);
        };
        wheel(120, Qt::ControlModifier);
        wheel(-120, {});
        QCOMPARE(_player->position(), 600);
        QCOMPARE(status(), "Seek speed modifier: 1 at fps: 25");
        QTest::mouseClick(bar(), Qt::LeftButton, {}, {bar()->width() / 2, bar()->height() / 2});
        QVERIFY(qAbs(_player->position() - 5000) < 50);
        QCOMPARE(bar()->value(), int(_player->position()));
        const QTemporaryDir directory;
        QVERIFY(QFile::copy(clipPath("h264.mp4"), directory.filePath("gone.mp4")));
        open(directory.filePath("gone.mp4"));
        QVERIFY(QFile::remove(directory.filePath("gone.mp4")));
        key(Qt::Key_Period);
        QTRY_COMPARE(status(), "Status: invalid media");
    }

    void stepsSinglePictures_data() { addRows<QString>({{"constant", "h264.mp4"}, {"variable", "vfr.mkv"}}); }
    void stepsSinglePictures() {
        open(std::get<0>(row<QString>()));
        // An error in any step would show in the sum.
        for (int step = 0; step < 150; ++step)
            key(Qt::Key_Period);
        QTRY_COMPARE(frameNumber(picture()), 150);
        for (int step = 0; step < 149; ++step)
            key(Qt::Key_Comma);
        QTRY_COMPARE(frameNumber(picture()), 1);
        key(Qt::Key_Comma);
        QTRY_COMPARE(frameNumber(picture()), 0);
        key(Qt::Key_Comma);
        QTRY_COMPARE(status(), "First frame.");
        key(Qt::Key_9);
        key(Qt::Key_Period);
        QTRY_VERIFY(frameNumber(picture()) > 150);
    }

    void theEndKeepsThePicture_data() {
        addRows<QString, int>({{"webm", "vp9.webm", 47}, {"a length that is too short", "mpeg2.mpg", 57}});
    }
    void theEndKeepsThePicture() {
        const auto& [name, last] = row<QString, int>();
        open(name);
        QStringList saved;
        connect(_window.get(), &VideoWidget::imagePic, this,
                [&](const QImage& image) { saved << QString::number(frameNumber(image)); });
        for (int round = 0; round < 2; ++round) {
            _player->setPlaybackRate(2);
            // The focused button does not consume the key.
            QTest::keyClick(button("tBGrabFrame"), Qt::Key_Space);
            QTRY_COMPARE(button("tBPlayPause")->text(), "||");
            QTRY_COMPARE(button("tBPlayPause")->text(), ">");
            QTRY_COMPARE(_player->playbackState(), QMediaPlayer::PausedState);
            // A busy machine skips frames; the last one that was shown stays.
            QTRY_VERIFY(frameNumber(picture()) >= last / 2);
            // Where the seek to the last frame reaches the end once more, the player waits at the start.
            QTRY_COMPARE(_player->position() == 0, name == "mpeg2.mpg");
        }
        QVERIFY(bar()->value() > bar()->maximum() / 2);
        bool hasEnded = false;
        const QObject context;
        connect(_player, &QMediaPlayer::mediaStatusChanged, &context, [&](QMediaPlayer::MediaStatus status) {
            if (status == QMediaPlayer::EndOfMedia && !std::exchange(hasEnded, true))
                key(Qt::Key_3); // before the window has handled the end
        });
        key(Qt::Key_Space);
        QTRY_VERIFY(hasEnded);
        QTRY_VERIFY(frameNumber(picture()) > 0 && frameNumber(picture()) < last / 2);
        key(Qt::Key_0);
        QTRY_COMPARE(frameNumber(picture()), 0);
        QTest::keyClick(_window.get(), Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(saved, QStringList("0"));
    }

    void badMediaAndEmptyWindow() {
        button("tBGrabSeries")->click();
        QCOMPARE(status(), "Source either empty or invalid: . Set correct media.");
        QSignalSpy pictures(_window.get(), &VideoWidget::imagePic);
        button("tBGrabFrame")->click();
        QVERIFY(pictures.first().first().value<QImage>().isNull());
        QStatusTipEvent tip({}); // from any menu
        QApplication::sendEvent(_window.get(), &tip);
        QCOMPARE(status(), "No frame to grab.");
        const ModalAnswer answer(ModalAnswer::DialogAnswer([](QDialog* dialog) {
            qobject_cast<QInputDialog*>(dialog)->setTextValue("file://" + clipPath("text.mp4"));
            dialog->accept();
        }));
        _window->findChild<QAction*>("action_Open_URL")->trigger();
        QTRY_COMPARE(status(), "Status: invalid media");
        open("theora.ogv"); // reports a frame rate that is not a number
        button("tBFrameNext")->click();
        QCOMPARE(_player->position(), 1);
    }

private:
    void open(const QString& name) {
        _window->openFile(QDir(clipPath({})).filePath(name));
        const QStringList ready{"Status: loaded media", "Status: buffered media"};
        QTRY_VERIFY(_window->findChild<QVideoWidget*>()->videoSink()->videoFrame().isValid());
        QTRY_VERIFY(ready.contains(status()));
    }
    void key(Qt::Key code) { QTest::keyClick(_window.get(), code); }
    QImage picture() { return _window->findChild<QVideoWidget*>()->videoSink()->videoFrame().toImage(); }
    ProgressBar* bar() { return _window->findChild<ProgressBar*>("pBMediaPosition"); }
    QToolButton* button(const char* name) { return _window->findChild<QToolButton*>(name); }
    QString status() { return _window->statusBar()->currentMessage(); }

    std::unique_ptr<VideoWidget> _window;
    QMediaPlayer* _player = nullptr;
};

QTEST_MAIN(TestVideoWidget)
#include "tst_videowidget.moc"
