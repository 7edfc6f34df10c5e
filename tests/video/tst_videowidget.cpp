#include "video/ProgressBar.h"
#include "video/VideoWidget.h"
#include "video/VideoWidgetFrameGrabber.h"

#include "support/Clips.h"
#include "support/ModalAnswer.h"

#include <QApplication>
#include <QInputDialog>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
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

    void opensPausedWithFrameRate() {
        QCOMPARE(_window->windowTitle(), "Video editor");
        open("sound.mp4");
        QCOMPARE(_window->windowTitle(), "Video editor - sound.mp4");
        QCOMPARE(_player->playbackState(), QMediaPlayer::PausedState);
        QCOMPARE(_player->position(), 0);
        QCOMPARE(button("tBPlayPause")->text(), ">");
        key(Qt::Key_Right);
        QCOMPARE(_player->position(), 29); // 29.97 frames a second
        for (const char* text : {"||", ">"}) {
            button("tBPlayPause")->click();
            QTRY_COMPARE(button("tBPlayPause")->text(), text);
        }
    }

    void stepsByKeysButtonsAndWheel() {
        open("h264.mp4");
        QTest::keyPress(_window.get(), Qt::Key_5);
        QCOMPARE(_player->position(), 0);
        QTest::keyRelease(_window.get(), Qt::Key_5);
        QCOMPARE(_player->position(), 5000);
        key(Qt::Key_Left);
        QCOMPARE(_player->position(), 4975);
        key(Qt::Key_B);
        button("tBFrameNext")->click();
        QCOMPARE(_player->position(), 4975 + 15 * 25);
        key(Qt::Key_Z);
        button("tBFramePrev")->click();
        QCOMPARE(_player->position(), 4975 + 15 * 25 - 1);
        QTest::mouseClick(button("tBFrameNext"), Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(_player->position(), 4975 + 15 * 25 - 1 + 250);
        key(Qt::Key_0);
        QCOMPARE(_player->position(), 0);
        const auto wheel = [this](int angle, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event({5, 5}, {5, 5}, {}, {0, angle}, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(_window.get(), &event);
        };
        wheel(120, Qt::ControlModifier);
        QCOMPARE(_player->position(), 625);
        QCOMPARE(status(), "Seek speed modifier: 25 at fps: 25");
        wheel(-120, Qt::ShiftModifier);
        wheel(0, {});
        QCOMPARE(_player->position(), 275);
    }

    void barSeeksOnlyForTheMouse() {
        open("h264.mp4");
        auto* bar = _window->findChild<ProgressBar*>("pBMediaPosition");
        QCOMPARE(bar->maximum(), 10000);
        QTest::mouseClick(bar, Qt::LeftButton, {}, {bar->width() / 2, bar->height() / 2});
        QVERIFY(qAbs(_player->position() - 5000) < 50);
        QCOMPARE(bar->value(), int(_player->position()));
        QVERIFY2(bar->format().startsWith("%p% [00:00:0") && bar->format().endsWith(" - 00:00:10.000]"),
                 qPrintable(bar->format()));
    }

    void walksDirectory() {
        const QTemporaryDir directory;
        QStringList all;
        for (const char* name : {"a.mp4", "b.MP4", "c.mp4", "no video.txt"}) {
            all << directory.filePath(name);
            QVERIFY(QFile::copy(clipPath("h264.mp4"), all.last()));
        }
        _window->openFile(all.first());
        QStringList met;
        for (int i = 0; i < 3; ++i) {
            button("tBFileNext")->click();
            met << _player->source().path();
        }
        QCOMPARE(met.last(), all.first());
        button("tBFilePrev")->click();
        QCOMPARE(_player->source().path(), met.at(1));
        met.sort();
        QCOMPARE(met, all.first(3));

        _window->openFile(directory.filePath("gone.mp4"));
        for (int i = 0; i < 2; ++i) { // then with nothing open
            button("tBFileNext")->click();
            QCOMPARE(_window->windowTitle(), "Video editor - ");
            QVERIFY(_player->source().isEmpty());
        }
    }

    void opensUrlFromDialog() {
        const ModalAnswer answer(ModalAnswer::DialogAnswer([](QDialog* dialog) {
            const QUrl url = QUrl::fromLocalFile(clipPath("mpeg4.avi"));
            qobject_cast<QInputDialog*>(dialog)->setTextValue(url.toString());
            dialog->accept();
        }));
        _window->findChild<QAction*>("action_Open_URL")->trigger();
        QTRY_COMPARE(_player->duration(), 2000);
    }

    void badMediaAndEmptyWindow() {
        button("tBGrabSeries")->click();
        QCOMPARE(status(), "Source either empty or invalid: . Set correct media.");
        QVERIFY(!_window->findChild<VideoWidgetFrameGrabber*>());
        QSignalSpy pictures(_window.get(), &VideoWidget::imagePic);
        button("tBGrabFrame")->click();
        QVERIFY(pictures.first().first().value<QImage>().isNull());
        _window->openFile(clipPath("text.mp4"));
        QTRY_COMPARE(status(), "Status: invalid media");
        open("theora.ogv"); // tells a frame rate that is no number
        key(Qt::Key_Right);
        QCOMPARE(_player->position(), 1);
        QTest::keyClick(_window.get(), Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(pictures.count(), 2);
        QCOMPARE(pictures.last().at(1).toString(), clipPath("theora.ogv"));
    }

    void closingReportsLayoutAndPath() {
        QStringList order;
        connect(_window.get(), &VideoWidget::widgetState, this, [&] { order << "state"; });
        connect(_window.get(), &VideoWidget::widgetGeometry, this, [&] { order << "geometry"; });
        open("h264.mp4");
        _window->onPlayPause();
        _window->close();
        QCOMPARE(_player->playbackState(), QMediaPlayer::StoppedState);
        QCOMPARE(order, (QStringList{"state", "geometry"}));
        QCOMPARE(VideoWidget().lastOpenPath(), clipPath("h264.mp4").section('/', 0, -2));
    }

private:
    void open(const QString& name) {
        _window->openFile(clipPath(name));
        const QStringList ready{"Status: loaded media", "Status: buffered media"};
        QTRY_VERIFY(_window->findChild<QVideoWidget*>()->videoSink()->videoFrame().isValid());
        QTRY_VERIFY(ready.contains(status()));
    }
    void key(Qt::Key code) { QTest::keyClick(_window.get(), code); }
    QToolButton* button(const char* name) { return _window->findChild<QToolButton*>(name); }
    QString status() { return _window->statusBar()->currentMessage(); }

    std::unique_ptr<VideoWidget> _window;
    QMediaPlayer* _player = nullptr;
};

QTEST_MAIN(TestVideoWidget)
#include "tst_videowidget.moc"
