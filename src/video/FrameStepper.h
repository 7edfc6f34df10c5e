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

// Finds the pictures before and after a picture of a clip. Frame times are not known beforehand and a seek is
// only as exact as the container, so a player without output runs over a short stretch of the clip, as fast
// as it decodes, and the pictures of the stretch are kept. Steps inside it cost nothing in either direction.
// Times are microseconds, as frames carry them.
class FrameStepper : public QObject {
    Q_OBJECT

public:
    explicit FrameStepper(QObject* parent = nullptr);
    ~FrameStepper() override;

    // Drops the pictures of the clip before.
    void setSource(const QUrl& url);
    // One step from the frame that starts at the given time. While an earlier step is under way, the new one
    // starts where that leads.
    void step(qint64 startTime, bool forward);
    // Drops steps that are under way.
    void cancel();

signals:
    void stepped(QVideoFrame frame);
    // There is no picture in that direction.
    void endReached(bool forward);

private:
    void walk();
    [[nodiscard]] qsizetype neighbourOf(qint64 time, bool forward) const;
    [[nodiscard]] bool isEdge(bool forward) const;
    void lookAhead();
    // Without a margin, with the usual one.
    void startRun(bool forward, qint64 marginMs = 0);
    void onMediaStatusChanged();
    void collect(const QVideoFrame& frame);
    void finishRun(bool isEndOfMedia);
    void takeOver(const QList<QVideoFrame>& frames);
    void endRun();

    QUrl _source;
    // Pictures in order of time, with none missing between the first and the last.
    QList<QVideoFrame> _frames;
    bool _holdsFirst = false;
    bool _holdsLast = false;
    qint64 _time = 0;
    // Steps still to go; negative ones go back.
    int _steps = 0;
    bool _goesForward = true;

    std::unique_ptr<QMediaPlayer> _player;
    std::unique_ptr<QVideoSink> _sink;
    quint64 _runNumber = 0;
    qint64 _positionMs = 0;
    qint64 _marginMs = 0;

    // What the run under way has collected, on a thread of the media back end.
    struct Run {
        QList<QVideoFrame> frames;
        qint64 target = 0;
        bool forward = true;
        bool isComplete = false;
        // Pictures still to be passed over.
        int guessed = 0;
    };
    QMutex _mutex;
    Run _run;
};
