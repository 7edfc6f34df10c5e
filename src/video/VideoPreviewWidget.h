#pragma once

#include <QMediaPlayer>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <memory>

namespace Ui {
class VideoPreviewWidget;
}

// Plays one video in an endless loop, without sound and without controls.
class VideoPreviewWidget : public QWidget {
    Q_OBJECT

public:
    explicit VideoPreviewWidget(QWidget* parent = nullptr);
    ~VideoPreviewWidget() override;

    // An empty path ends what plays.
    void start(const QString& path);
    // Closes the file if it is the one that was started last; paths are compared in any case.
    void stop(const QString& path);

public slots:
    void sourceChanged(QUrl media);
    void durationChanged(qlonglong duration);
    void positionChanged(qlonglong position);
    void seekableChanged(bool seekable);
    void playbackRateChanged(double rate);
    void mediaStatusChanged(QMediaPlayer::MediaStatus status);
    void playbackStateChanged(QMediaPlayer::PlaybackState newState);

private:
    void initPlayer();
    void onError();

    std::unique_ptr<Ui::VideoPreviewWidget> _ui;
    // Made by the first start.
    QMediaPlayer* _mediaPlayer = nullptr;
    QString _videoPath;
    bool _hasFrame = false;
    // Started by an error before the first frame; stops the player if no frame arrives in time.
    QTimer _firstFrameTimer;
};
