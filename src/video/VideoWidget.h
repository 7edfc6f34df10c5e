#pragma once

#include <QImage>
#include <QList>
#include <QMainWindow>
#include <QMediaPlayer>
#include <QString>
#include <QUrl>
#include <QVideoFrame>

#include <memory>

class FrameStepper;
class VideoWidgetFrameGrabber;

namespace Ui {
class VideoWidget;
}

// A window for stepping through a video and grabbing frames from it, which it emits for its owner to save.
class VideoWidget : public QMainWindow {
    Q_OBJECT

public:
    explicit VideoWidget(QWidget* parent = nullptr);
    ~VideoWidget() override;

    // Opens a path or URL, paused at its start.
    void openFile(const QString& path);
    [[nodiscard]] QString lastOpenPath() const { return _lastOpenPath; }
    // Status bar text without time-out.
    void showStatus(const QString& text);

public slots:
    void onPlayPause();
    void onFrameNext();
    void onFramePrev();
    void onGrabFrame();
    // Opens the previous video of the directory if the sender is tBFilePrev, the next one for any other
    // sender.
    void onFileNextPrev();
    void onOpenVideoFile();
    void onOpenVideoUrl();
    void sourceChanged(QUrl media);
    void durationChanged(qlonglong duration);
    void positionChanged(qlonglong position);
    void seekableChanged(bool seekable);
    void playbackRateChanged(double rate);
    void mediaStatusChanged(QMediaPlayer::MediaStatus status);
    QString mediaStatusToString(QMediaPlayer::MediaStatus status);
    void playbackStateChanged(QMediaPlayer::PlaybackState newState);
    void onPositionChanged();
    void onVideoGrabSeries();
    void onVideoGrabFilesFrame();
    void onAddFrames(QList<QImage> frames, QString fileName);

signals:
    // A frame of the named path or URL.
    void imagePic(QImage img, QString fileName);
    void widgetState(QByteArray data);
    void widgetGeometry(QByteArray data);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void initActions();
    void initPlayer();
    void initThemes();
    void initControls();
    void updateIcons(bool dark);
    void stepFrames(int direction);
    void readFrameRate();
    void showMediaStatus(QMediaPlayer::MediaStatus status);
    void ensureLastOpenPath();
    [[nodiscard]] qint64 position() const;
    void seek(qint64 position);
    void showPosition();
    void onFrameShown();
    void stayAtEnd();
    void stepPicture(bool forward);
    void showPicture(const QVideoFrame& frame);
    VideoWidgetFrameGrabber* makeFrameGrabber();

    std::unique_ptr<Ui::VideoWidget> _ui;
    QMediaPlayer* _mediaPlayer = nullptr;
    FrameStepper* _stepper = nullptr;
    // The picture on the screen.
    QVideoFrame _frame;
    // The picture was set by this window; the player may be at another position.
    bool _isStepped = false;
    // The frame of a seek has not arrived yet, and single steps wait for it; negative ones are backward.
    bool _isSeeking = false;
    int _waitingSteps = 0;
    // How often the end was reached since the last seek or step; if it was, playing starts over.
    int _endings = 0;
    // The playback rate until the media reports its frame rate.
    double _fps = -1.0;
    // Multiplies a frame step; 0 makes it a single millisecond.
    int _seekSpeedModifier = 1;
    QString _lastOpenPath;
    // Path or URL as it was given.
    QString _openFileName;
};
