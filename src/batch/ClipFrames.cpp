#include "batch/ClipFrames.h"

#include "batch/Console.h"
#include "catalogue/MediaUrl.h"

#include <QEventLoop>
#include <QTimer>
#include <QVideoFrame>

#include <chrono>

namespace {

constexpr std::chrono::seconds patience{10};

} // namespace

QString ClipFrames::open(const QString& path) {
    _player.setVideoSink(&_sink);
    const bool isThere = waitForFrame([&] {
        _player.setSource(mediaUrl(path));
        // A paused player delivers the first frame and plays no further.
        _player.pause();
    });
    if (isThere)
        return {};
    const QString error = _player.errorString();
    return error.isEmpty() ? Batch::tr("no picture comes out of the clip") : error;
}

std::optional<QImage> ClipFrames::frameAt(qint64 position) {
    // The frame at 0 has come with open().
    if (position > 0 && !waitForFrame([&] { _player.setPosition(position); }))
        return std::nullopt;
    return _frame;
}

bool ClipFrames::waitForFrame(const std::function<void()>& start) {
    QEventLoop loop;
    bool isThere = false;
    QObject::connect(&_sink, &QVideoSink::videoFrameChanged, &loop, [&](const QVideoFrame& frame) {
        // Invalid frames come around a stop and from behind the last picture.
        if (!frame.isValid() || isThere)
            return;
        isThere = true;
        _frame = frame.toImage();
        loop.quit();
    });
    const auto giveUp = [&] { loop.quit(); };
    QObject::connect(&_player, &QMediaPlayer::errorOccurred, &loop, giveUp);
    QObject::connect(
        &_player, &QMediaPlayer::mediaStatusChanged, &loop, [&](QMediaPlayer::MediaStatus status) {
            // A file of sound alone loads and never delivers a frame.
            const bool isSilent = status == QMediaPlayer::LoadedMedia && !_player.hasVideo();
            // A last frame may have been queued before the end.
            if (status == QMediaPlayer::InvalidMedia || status == QMediaPlayer::EndOfMedia || isSilent)
                QTimer::singleShot(0, &loop, giveUp);
        });
    QTimer::singleShot(patience, &loop, giveUp);
    // The player may report before the loop runs.
    QTimer::singleShot(0, &loop, start);
    loop.exec();
    return isThere && !_frame.isNull();
}
