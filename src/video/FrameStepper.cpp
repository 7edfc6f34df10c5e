#include "video/FrameStepper.h"

#include <QMediaPlayer>
#include <QMutexLocker>
#include <QVideoSink>

#include <algorithm>
#include <utility>

namespace {

// Fast, but no faster than most clips are decoded: a back end whose renderer waits for frames drops some of a
// variable rate.
constexpr double kRunRate = 10.0;
constexpr qint64 kStretchBytes = 64 * 1024 * 1024;
constexpr qint64 kBytesPerPixel = 2;
// Stretches that are kept beside each other.
constexpr qsizetype kStretches = 3;
constexpr qsizetype kLongestStretch = 24;
// A run that meets too little begins again at this many times the distance before.
constexpr qint64 kMarginGrowth = 4;
// Behind a seek some containers give no times yet, and what is told of the first pictures is a guess.
constexpr int kGuessedFrames = 20;

// How many pictures of this size a run collects.
qsizetype stretchLength(const QSize& size) {
    const qint64 bytes = std::max<qint64>(1, qint64(size.width()) * size.height() * kBytesPerPixel);
    return std::clamp<qsizetype>(kStretchBytes / bytes, 4, kLongestStretch);
}

// From picture to picture, in milliseconds.
qint64 meanDistance(const QList<QVideoFrame>& frames) {
    constexpr qint64 kUsual = 40;
    if (frames.size() < 2)
        return kUsual;
    return (frames.last().startTime() - frames.first().startTime()) / 1000 / (frames.size() - 1) + 1;
}

// A decoder on a graphics card has few surfaces and waits when they are all kept.
QVideoFrame ownedFrame(const QVideoFrame& frame) {
    if (frame.handleType() == QVideoFrame::NoHandle)
        return frame;
    QVideoFrame copy(frame.toImage());
    copy.setStartTime(frame.startTime());
    copy.setEndTime(frame.endTime());
    return copy;
}

} // namespace

FrameStepper::FrameStepper(QObject* parent) : QObject(parent) {}

FrameStepper::~FrameStepper() {
    endRun();
}

void FrameStepper::setSource(const QUrl& url) {
    cancel();
    _source = url;
    _frames.clear();
    _holdsFirst = _holdsLast = false;
}

void FrameStepper::cancel() {
    _steps = 0;
    endRun();
}

void FrameStepper::step(qint64 startTime, bool forward) {
    const bool isUnderWay = _steps != 0;
    if (!isUnderWay)
        _time = startTime;
    _steps += forward ? 1 : -1;
    if (!isUnderWay)
        walk();
    else if (_steps == 0)
        cancel();
}

void FrameStepper::walk() {
    const bool forward = _steps != 0 ? _steps > 0 : _goesForward;
    _goesForward = forward;
    QVideoFrame reached;
    while (_steps != 0) {
        const qsizetype next = neighbourOf(_time, forward);
        if (next < 0)
            break;
        reached = _frames.at(next);
        _time = reached.startTime();
        _steps -= forward ? 1 : -1;
    }
    const bool isAtEnd = _steps != 0 && isEdge(forward);
    if (isAtEnd)
        _steps = 0;
    if (_steps != 0 && !(_player && _run.forward == forward))
        startRun(forward);
    else if (_steps == 0 && !_player && reached.isValid())
        lookAhead();
    // Last, as the receivers may step again.
    if (reached.isValid())
        emit stepped(reached);
    if (isAtEnd)
        emit endReached(forward);
}

// Whether the clip holds nothing beyond the current picture.
bool FrameStepper::isEdge(bool forward) const {
    if (forward)
        return _holdsLast && (_frames.isEmpty() || _time >= _frames.last().startTime());
    return _holdsFirst && (_frames.isEmpty() || _time <= _frames.first().startTime());
}

void FrameStepper::lookAhead() {
    const auto here = std::ranges::lower_bound(_frames, _time, {}, &QVideoFrame::startTime);
    const auto left = _goesForward ? _frames.end() - here : here - _frames.begin();
    if (!(_goesForward ? _holdsLast : _holdsFirst) && left < stretchLength(_frames.first().size()) / 2)
        startRun(_goesForward);
}

// The place of the picture after or before a time, -1 if it is not among those that are kept.
qsizetype FrameStepper::neighbourOf(qint64 time, bool forward) const {
    if (_frames.isEmpty() || time < _frames.first().startTime())
        return -1;
    if (time > _frames.last().startTime())
        return !forward && _holdsLast ? _frames.size() - 1 : -1;
    if (!forward)
        return std::ranges::lower_bound(_frames, time, {}, &QVideoFrame::startTime) - _frames.begin() - 1;
    const auto after = std::ranges::upper_bound(_frames, time, {}, &QVideoFrame::startTime);
    return after == _frames.end() ? -1 : after - _frames.begin();
}

// Runs over what lies beyond the kept pictures, from one that is among them, so that none is missing between.
// Each run has a player of its own: one that is used again may deliver frames of the run before.
void FrameStepper::startRun(bool forward, qint64 marginMs) {
    endRun();
    const bool isKept =
        !_frames.isEmpty() && _time >= _frames.first().startTime() && _time <= _frames.last().startTime();
    qint64 target = _time;
    if (isKept)
        target = (forward ? _frames.last() : _frames.first()).startTime();
    const qsizetype leading = kGuessedFrames + 5 + (forward ? 0 : kLongestStretch);
    _marginMs = marginMs > 0 ? marginMs : leading * meanDistance(_frames);
    _positionMs = std::max<qint64>(0, target / 1000 - _marginMs);
    ++_runNumber;
    _run = {.frames = {},
            .target = target,
            .forward = forward,
            .isComplete = false,
            .guessed = _positionMs > 0 ? kGuessedFrames : 0};
    _player = std::make_unique<QMediaPlayer>();
    _sink = std::make_unique<QVideoSink>();
    _player->setVideoSink(_sink.get());
    _player->setPlaybackRate(kRunRate);
    // On the thread that delivers, as a queue to this one would grow without bounds.
    connect(_sink.get(), &QVideoSink::videoFrameChanged, this, &FrameStepper::collect, Qt::DirectConnection);
    // Queued, as the end of a run deletes the player.
    connect(_player.get(), &QMediaPlayer::mediaStatusChanged, this, &FrameStepper::onMediaStatusChanged,
            Qt::QueuedConnection);
    _player->setSource(_source);
}

void FrameStepper::onMediaStatusChanged() {
    if (!_player || sender() != _player.get())
        return;
    const QMediaPlayer::MediaStatus status = _player->mediaStatus();
    const bool isStopped = _player->playbackState() == QMediaPlayer::StoppedState;
    if (status == QMediaPlayer::EndOfMedia || status == QMediaPlayer::InvalidMedia) {
        finishRun(true);
    } else if (status == QMediaPlayer::LoadedMedia && isStopped) {
        _player->setPosition(_positionMs);
        _player->play();
    }
}

void FrameStepper::collect(const QVideoFrame& frame) {
    const QMutexLocker locker(&_mutex);
    const qint64 time = frame.startTime();
    if (!frame.isValid() || _run.isComplete || _run.guessed-- > 0)
        return;
    const qsizetype length = stretchLength(frame.size());
    if (_run.forward && time <= _run.target)
        _run.frames.clear();
    else if (!_run.forward && _run.frames.size() > length)
        _run.frames.removeFirst();
    _run.frames.append(ownedFrame(frame));
    _run.isComplete = _run.forward ? _run.frames.size() > length : time >= _run.target;
    if (!_run.isComplete)
        return;
    const auto finish = [this, number = _runNumber] {
        if (_player && number == _runNumber)
            finishRun(false);
    };
    QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
}

void FrameStepper::finishRun(bool isEndOfMedia) {
    endRun();
    const QList<QVideoFrame> frames = std::exchange(_run.frames, {});
    const bool forward = _run.forward;
    // A seek may lead behind the place that was asked for.
    const bool isMissed = frames.isEmpty() || (forward ? frames.first().startTime() > _run.target
                                                       : frames.first().startTime() >= _run.target);
    if (isMissed && _positionMs > 0) {
        startRun(forward, kMarginGrowth * _marginMs);
        return;
    }
    if (isMissed && forward) {
        if (std::exchange(_steps, 0) != 0)
            emit endReached(true);
        return;
    }
    takeOver(frames);
    _holdsFirst |= isMissed;
    _holdsLast |= isEndOfMedia && !_run.isComplete;
    walk();
}

// Joins the pictures of a run to those that are there, if no picture lies between.
void FrameStepper::takeOver(const QList<QVideoFrame>& frames) {
    const bool meets = !frames.isEmpty() && !_frames.isEmpty() &&
                       frames.first().startTime() <= _frames.last().startTime() &&
                       frames.last().startTime() >= _frames.first().startTime();
    if (!meets) {
        _frames.clear();
        _holdsFirst = _holdsLast = false;
    }
    _frames += frames;
    std::ranges::stable_sort(_frames, {}, &QVideoFrame::startTime);
    const auto repeated = std::ranges::unique(_frames, {}, &QVideoFrame::startTime);
    _frames.erase(repeated.begin(), repeated.end());

    const qsizetype most = _frames.isEmpty() ? 0 : kStretches * stretchLength(_frames.first().size());
    while (_frames.size() > most) {
        const bool dropsFirst = _run.forward;
        (dropsFirst ? _holdsFirst : _holdsLast) = false;
        if (dropsFirst)
            _frames.removeFirst();
        else
            _frames.removeLast();
    }
}

void FrameStepper::endRun() {
    if (!_player)
        return;
    _sink->disconnect(this);
    _player->disconnect(this);
    _player.reset();
    _sink.reset();
}
