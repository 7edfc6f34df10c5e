#include "catalogue/VideoImageLoader.h"

#include "catalogue/MediaUrl.h"

#include <QDebug>
#include <QPlaybackOptions>
#include <QVideoSink>

#include <array>
#include <chrono>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds probeTimeout{5};

constexpr std::array videoMetaNames{
    std::pair{QMediaMetaData::Duration, "Duration"_L1},
    std::pair{QMediaMetaData::MediaType, "MediaType"_L1},
    std::pair{QMediaMetaData::FileFormat, "FileFormat"_L1},
    std::pair{QMediaMetaData::AudioBitRate, "AudioBitRate"_L1},
    std::pair{QMediaMetaData::AudioCodec, "AudioCodec"_L1},
    std::pair{QMediaMetaData::VideoBitRate, "VideoBitRate"_L1},
    std::pair{QMediaMetaData::VideoCodec, "VideoCodec"_L1},
    std::pair{QMediaMetaData::VideoFrameRate, "VideoFrameRate"_L1},
    std::pair{QMediaMetaData::Resolution, "Resolution"_L1},
    std::pair{QMediaMetaData::Comment, "Comment"_L1},
};

} // namespace

VideoImageLoader::VideoImageLoader(QObject* parent) : QObject(parent) {
    _timeout.setSingleShot(true);
    connect(&_timeout, &QTimer::timeout, this, &VideoImageLoader::endFailedJob);
}

void VideoImageLoader::initVideoPlayer() {
    if (_player)
        return;
    qDebug() << "VideoImageLoader::initVideoPlayer";
    _player = new QMediaPlayer(this);
    _player->setVideoSink(new QVideoSink(_player));
    _player->setPlaybackOptions(QPlaybackOptions());
    connect(_player, &QMediaPlayer::mediaStatusChanged, this, &VideoImageLoader::mediaStatusChanged);
    connect(_player, &QMediaPlayer::errorOccurred, this, &VideoImageLoader::errorOccurred);
}

void VideoImageLoader::grabFrame(const QString& filePath, qint64 position) {
    qDebug() << "VideoImageLoader::grabFrame" << filePath << position << "_isRunning:" << _isRunning;
    initVideoPlayer();
    endJob();
    _videoFilePath = filePath;
    // The job begins after setSource: status changes before it still concern the previous file.
    _player->setSource(mediaUrl(filePath));
    followFramesOfThisJob();
    _jobIsOn = true;
    _jobHasFailed = false;
    // setSource may have reported a final status before the job began.
    mediaStatusChanged(_player->mediaStatus());
    _player->pause();
    _player->setPosition(position);
}

// The back end queues frames from its thread, so one of the previous file may still arrive. Each job makes a
// connection with its own number, by which frames of earlier jobs are recognised and dropped.
void VideoImageLoader::followFramesOfThisJob() {
    disconnect(_frames);
    _frames = connect(_player->videoSink(), &QVideoSink::videoFrameChanged, this,
                      [this, job = _job](const QVideoFrame& frame) {
                          if (_jobIsOn && job == _job)
                              videoFrameChanged(frame);
                      });
}

void VideoImageLoader::videoFrameChanged(QVideoFrame frame) {
    if (!frame.isValid()) {
        qDebug() << "!!! invalid frame waiting for valid one";
        return;
    }
    if (!_player)
        return;
    qDebug() << "VideoImageLoader::videoFrameChanged" << _player->source() << frame << frame.isValid()
             << _player->position() << "_isRunning:" << _isRunning;
    // Before stop(), which makes the sink and the player report once more.
    endJob();
    _player->stop();
    _image = frame.toImage();
    if (_size.isValid())
        _image = _image.scaled(_size, Qt::KeepAspectRatio, Qt::FastTransformation);
    // Not before: the back end has all metadata only with the first frame.
    _videoMeta = videoMetaHash(_player->metaData());
    emit imageFrame(_videoFilePath, _image);
}

void VideoImageLoader::mediaStatusChanged(QMediaPlayer::MediaStatus status) {
    qDebug() << "VideoImageLoader::mediaStatusChanged" << status << _videoFilePath;
    if (!_jobIsOn || _jobHasFailed)
        return;
    const bool withoutPicture = status == QMediaPlayer::LoadedMedia && !_player->hasVideo();
    _jobHasFailed = status == QMediaPlayer::InvalidMedia || withoutPicture;
    // Even a failure ends the job from the event loop, as this may still run inside grabFrame().
    _timeout.start(_jobHasFailed ? std::chrono::seconds{0} : probeTimeout);
}

void VideoImageLoader::errorOccurred(QMediaPlayer::Error error, QString errorString) {
    qDebug() << "VideoImageLoader::errorOccurred" << error << errorString << _videoFilePath;
    if (!_jobIsOn)
        return;
    _jobHasFailed = true;
    _timeout.start(0);
}

void VideoImageLoader::endFailedJob() {
    stopPlayer();
    emit failed(_videoFilePath);
}

void VideoImageLoader::stopPlayer() {
    endJob();
    if (_player)
        _player->stop();
}

void VideoImageLoader::endJob() {
    ++_job;
    _jobIsOn = false;
    _timeout.stop();
}

QHash<QString, QVariant> videoMetaHash(QMediaMetaData metaData) {
    // For some containers the back end reports NaN as the frame rate.
    if (std::isnan(metaData.value(QMediaMetaData::VideoFrameRate).toDouble()))
        metaData.remove(QMediaMetaData::VideoFrameRate);
    QHash<QString, QVariant> hash;
    const auto keys = metaData.keys();
    for (const QMediaMetaData::Key key : keys)
        hash.insert(QMediaMetaData::metaDataKeyToString(key), metaData.value(key));
    // The names above are Qt's for display, which may be translated; the columns need fixed ones.
    for (const auto& [key, name] : videoMetaNames)
        if (const QVariant value = metaData.value(key); value.isValid())
            hash.insert(name, value);
    return hash;
}
