#pragma once

#include <QList>
#include <QMutex>
#include <QObject>
#include <QUrl>
#include <QVideoFrame>
#include <QtTypes>

#include <memory>

class QMediaPlayer;
class QVideoSink;

// Finds the frames before and after a frame of a clip. Their times are not known beforehand and a seek is
// only as exact as the container, so a player without output plays a short stretch of the clip, as fast as it
// decodes, and the frames of the stretch are kept. Steps inside it need no decoding in either direction.
// Times are microseconds, as in QVideoFrame.
class FrameStepper : public QObject {
    Q_OBJECT

public:
    explicit FrameStepper(QObject* parent = nullptr);
    ~FrameStepper() override;

    // Drops the frames of the previous clip.
    void setSource(const QUrl& url);
    // One step from the frame that starts at the given time. While an earlier step is running, the new one
    // starts from its result.
    void step(qint64 startTime, bool forward);
    // Drops the steps that are not finished.
    void cancel();

signals:
    void stepped(QVideoFrame frame);
    // The clip has no frame in that direction.
    void endReached(bool forward);
    // The clip cannot be opened any more; the steps that are not finished are dropped.
    void failed();

private:
    void walk();
    [[nodiscard]] qsizetype neighbourOf(qint64 time, bool forward) const;
    [[nodiscard]] bool isEdge(bool forward) const;
    void lookAhead();
    // How far before its target the run starts; 0 for the usual margin.
    void startRun(bool forward, qint64 marginMs = 0);
    void onMediaStatusChanged();
    void collect(const QVideoFrame& frame);
    void finishRun(bool isEndOfMedia);
    void failRun();
    void mergeFrames(const QList<QVideoFrame>& frames);
    void endRun();

    QUrl _source;
    // In order of time, with no frame missing between the first and the last.
    QList<QVideoFrame> _frames;
    bool _holdsFirst = false;
    bool _holdsLast = false;
    qint64 _time = 0;
    // Steps left to make; negative ones are backward.
    int _steps = 0;
    bool _goesForward = true;

    std::unique_ptr<QMediaPlayer> _player;
    std::unique_ptr<QVideoSink> _sink;
    quint64 _runNumber = 0;
    qint64 _positionMs = 0;
    qint64 _marginMs = 0;

    // What the current run has collected, on a thread of the media back end.
    struct Run {
        QList<QVideoFrame> frames;
        qint64 target = 0;
        bool forward = true;
        bool isComplete = false;
        // Frames left to ignore.
        int guessed = 0;
    };
    QMutex _mutex;
    Run _run;
};
