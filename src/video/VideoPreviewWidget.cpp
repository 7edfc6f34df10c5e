#include "video/VideoPreviewWidget.h"

#include "catalogue/MediaUrl.h"
#include "ui_VideoPreviewWidget.h"

#include <QAudioOutput>
#include <QVideoFrame>
#include <QVideoSink>

#include <chrono>

namespace {

constexpr std::chrono::seconds firstFrameTimeout{2};

} // namespace

VideoPreviewWidget::VideoPreviewWidget(QWidget* parent)
    : QWidget(parent), _ui(std::make_unique<Ui::VideoPreviewWidget>()) {
    _ui->setupUi(this);
    _firstFrameTimer.setSingleShot(true);
    _firstFrameTimer.setInterval(firstFrameTimeout);
    connect(&_firstFrameTimer, &QTimer::timeout, this, [this] { _mediaPlayer->stop(); });
}

VideoPreviewWidget::~VideoPreviewWidget() {
    // The form is destroyed before the player, whose last signals would reach deleted widgets.
    if (_mediaPlayer)
        _mediaPlayer->disconnect(this);
}

void VideoPreviewWidget::initPlayer() {
    if (_mediaPlayer)
        return;
    _mediaPlayer = new QMediaPlayer(this);
    _mediaPlayer->setVideoOutput(_ui->videoWidget);
    auto* audioOutput = new QAudioOutput(this);
    _mediaPlayer->setAudioOutput(audioOutput);
    // Set twice, before and after the audio output; kept on purpose, though it is the same output.
    _mediaPlayer->setVideoOutput(_ui->videoWidget);
    audioOutput->setVolume(0.0F);
    connect(_mediaPlayer, &QMediaPlayer::sourceChanged, this, &VideoPreviewWidget::sourceChanged);
    connect(_mediaPlayer, &QMediaPlayer::durationChanged, this, &VideoPreviewWidget::durationChanged);
    connect(_mediaPlayer, &QMediaPlayer::positionChanged, this, &VideoPreviewWidget::positionChanged);
    connect(_mediaPlayer, &QMediaPlayer::seekableChanged, this, &VideoPreviewWidget::seekableChanged);
    connect(_mediaPlayer, &QMediaPlayer::playbackRateChanged, this, &VideoPreviewWidget::playbackRateChanged);
    connect(_mediaPlayer, &QMediaPlayer::mediaStatusChanged, this, &VideoPreviewWidget::mediaStatusChanged);
    connect(_mediaPlayer, &QMediaPlayer::playbackStateChanged, this,
            &VideoPreviewWidget::playbackStateChanged);
    connect(_mediaPlayer, &QMediaPlayer::errorOccurred, this, &VideoPreviewWidget::onError);
    connect(_ui->videoWidget->videoSink(), &QVideoSink::videoFrameChanged, this, [this] {
        if (_ui->videoWidget->videoSink()->videoFrame().isValid()) {
            _hasFrame = true;
            _firstFrameTimer.stop();
        }
    });
}

// The endless loop would read a clip that yields errors and no frame from its start again and again.
void VideoPreviewWidget::onError() {
    if (!_hasFrame && !_firstFrameTimer.isActive())
        _firstFrameTimer.start();
}

void VideoPreviewWidget::start(const QString& path) {
    _videoPath = path;
    initPlayer();
    _mediaPlayer->setSource(mediaUrl(path));
    _firstFrameTimer.stop();
    _hasFrame = false;
    _mediaPlayer->setLoops(QMediaPlayer::Infinite);
    _mediaPlayer->play();
}

void VideoPreviewWidget::stop(const QString& path) {
    if (!_mediaPlayer || QString::compare(path, _videoPath, Qt::CaseInsensitive) != 0)
        return;
    _mediaPlayer->stop();
    // A stopped player keeps its file open.
    _mediaPlayer->setSource(QUrl());
}

void VideoPreviewWidget::durationChanged(qlonglong duration) {
    _ui->progressBar->setRange(0, static_cast<int>(duration));
}

void VideoPreviewWidget::positionChanged(qlonglong position) {
    _ui->progressBar->setValue(static_cast<int>(position));
}

// The preview has no use for these signals; the slots are part of its interface.
void VideoPreviewWidget::sourceChanged(QUrl) {}
void VideoPreviewWidget::seekableChanged(bool) {}
void VideoPreviewWidget::playbackRateChanged(double) {}
void VideoPreviewWidget::mediaStatusChanged(QMediaPlayer::MediaStatus) {}
void VideoPreviewWidget::playbackStateChanged(QMediaPlayer::PlaybackState) {}
