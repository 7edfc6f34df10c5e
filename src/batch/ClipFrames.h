#pragma once

#include <QImage>
#include <QMediaPlayer>
#include <QString>
#include <QVideoSink>

#include <functional>
#include <optional>

// Takes single frames out of one clip. Each call blocks in an event loop. Main thread only.
class ClipFrames {
public:
    // What is wrong with the clip; empty where its first frame is there.
    [[nodiscard]] QString open(const QString& path);
    // In milliseconds; not positive where the clip has no duration.
    [[nodiscard]] qint64 duration() const { return _player.duration(); }
    // Positions only increase, from 0. Nothing behind the last picture.
    [[nodiscard]] std::optional<QImage> frameAt(qint64 position);

private:
    bool waitForFrame(const std::function<void()>& start);

    QMediaPlayer _player;
    QVideoSink _sink;
    QImage _frame;
};
