#include "video/FrameStepper.h"

#include <QMediaPlayer>
#include <QMutexLocker>
#include <QVideoSink>

#include <algorithm>
#include <utility>

namespace {

// Faster than playback, but within what a decoder manages for most clips: once decoding lags behind, the back
// end drops frames of a clip with a variable frame rate.
constexpr double runPlaybackRate = 10.0;
constexpr qint64 stretchBytes = qint64(64) * 1024 * 1024;
constexpr qint64 stretchBytesPerPixel = 2;
// How many stretches of frames stay in memory.
constexpr qsizetype keptStretches = 3;
constexpr qsizetype longestStretch = 24;
// A run whose first frame lies behind its target is repeated with this many times the margin before it.
constexpr qint64 marginGrowth = 4;
// After a seek in some containers the decoder guesses the times of the first frames; a run ignores that many.
constexpr int guessedFrames = 20;

// How many frames of this size a run collects.
qsizetype stretchLength(const QSize& size) {
    const qint64 bytes = std::max<qint64>(1, qint64(size.width()) * size.height() * stretchBytesPerPixel);
    return std::clamp<qsizetype>(stretchBytes / bytes, 4, longestStretch);
}

// From frame to frame, in milliseconds.
qint64 meanDistance(const QList<QVideoFrame>& frames) {
    constexpr qint64 usualMs = 40;
    if (frames.size() < 2)
        return usualMs;
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
    else if (_steps == 0) // forward and backward steps have cancelled each other out
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
    // Whatever is left of the steps needs frames that are not kept, unless the clip ends here.
    const bool isAtEnd = _steps != 0 && isEdge(forward);
    if (isAtEnd)
        _steps = 0;
    // A run that is under way in this direction will deliver them; one in the other direction is replaced.
    if (_steps != 0 && !(_player && _run.forward == forward))
        startRun(forward);
    else if (_steps == 0 && !_player && reached.isValid())
        lookAhead();
    // Emitted last, as a receiver may call step().
    if (reached.isValid())
        emit stepped(reached);
    if (isAtEnd)
        emit endReached(forward);
}

// Whether the clip has no frame beyond the current one.
bool FrameStepper::isEdge(bool forward) const {
    if (forward)
        return _holdsLast && (_frames.isEmpty() || _time >= _frames.last().startTime());
    return _holdsFirst && (_frames.isEmpty() || _time <= _frames.first().startTime());
}

void FrameStepper::lookAhead() {
    // Called when a frame has been reached, so the list is not empty.
    const auto here = std::ranges::lower_bound(_frames, _time, {}, &QVideoFrame::startTime);
    const auto left = _goesForward ? _frames.end() - here : here - _frames.begin();
    // Half a stretch is left: the next run starts before a step needs it.
    if (!(_goesForward ? _holdsLast : _holdsFirst) && left < stretchLength(_frames.first().size()) / 2)
        startRun(_goesForward);
}

// The index of the kept frame after or before a time; -1 if that frame is not kept.
qsizetype FrameStepper::neighbourOf(qint64 time, bool forward) const {
    if (_frames.isEmpty() || time < _frames.first().startTime())
        return -1;
    // The time lies beyond the end of the clip: a step back leads to its last frame.
    if (time > _frames.last().startTime())
        return !forward && _holdsLast ? _frames.size() - 1 : -1;
    if (!forward)
        return std::ranges::lower_bound(_frames, time, {}, &QVideoFrame::startTime) - _frames.begin() - 1;
    const auto after = std::ranges::upper_bound(_frames, time, {}, &QVideoFrame::startTime);
    return after == _frames.end() ? -1 : after - _frames.begin();
}

// Plays the part of the clip beyond the kept frames, from one of them on, so that no frame between is
// missing. Each run has a player of its own, as a reused one may deliver frames of the previous run.
void FrameStepper::startRun(bool forward, qint64 marginMs) {
    endRun();
    const bool isKept =
        !_frames.isEmpty() && _time >= _frames.first().startTime() && _time <= _frames.last().startTime();
    qint64 target = _time;
    if (isKept)
        target = (forward ? _frames.last() : _frames.first()).startTime();
    // Backward, the frames before the target are the ones that are wanted.
    const qsizetype leading = guessedFrames + 5 + (forward ? 0 : longestStretch);
    _marginMs = marginMs > 0 ? marginMs : leading * meanDistance(_frames);
    _positionMs = std::max<qint64>(0, target / 1000 - _marginMs);
    ++_runNumber;
    _run = {.frames = {},
            .target = target,
            .forward = forward,
            .isComplete = false,
            .guessed = _positionMs > 0 ? guessedFrames : 0};
    _player = std::make_unique<QMediaPlayer>();
    _sink = std::make_unique<QVideoSink>();
    _player->setVideoSink(_sink.get());
    _player->setPlaybackRate(runPlaybackRate);
    // Called on the thread of the back end: queued to this one, decoded frames would pile up without bounds.
    connect(_sink.get(), &QVideoSink::videoFrameChanged, this, &FrameStepper::collect, Qt::DirectConnection);
    // Queued, as the end of a run deletes the player.
    connect(_player.get(), &QMediaPlayer::mediaStatusChanged, this, &FrameStepper::onMediaStatusChanged,
            Qt::QueuedConnection);
    _player->setSource(_source);
}

void FrameStepper::onMediaStatusChanged() {
    // A queued signal may come from the player of an earlier run.
    if (!_player || sender() != _player.get())
        return;
    const QMediaPlayer::MediaStatus status = _player->mediaStatus();
    const bool isStopped = _player->playbackState() == QMediaPlayer::StoppedState;
    if (status == QMediaPlayer::EndOfMedia) {
        finishRun(true);
    } else if (status == QMediaPlayer::InvalidMedia) {
        failRun();
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
    // A forward run keeps the target and what follows, a backward one the last frames up to its target.
    if (_run.forward && time <= _run.target)
        _run.frames.clear();
    else if (!_run.forward && _run.frames.size() > length)
        _run.frames.removeFirst();
    _run.frames.append(ownedFrame(frame));
    _run.isComplete = _run.forward ? _run.frames.size() > length : time >= _run.target;
    if (!_run.isComplete)
        return;
    // The number rejects a call that is delivered after a later run has started.
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
    // A seek may land behind the requested position.
    const bool isMissed = frames.isEmpty() || (forward ? frames.first().startTime() > _run.target
                                                       : frames.first().startTime() >= _run.target);
    if (isMissed && _positionMs > 0) {
        startRun(forward, marginGrowth * _marginMs);
        return;
    }
    // Played from its start, the clip has no frame up to the target.
    if (isMissed && forward) {
        if (std::exchange(_steps, 0) != 0)
            emit endReached(true);
        return;
    }
    mergeFrames(frames);
    _holdsFirst |= isMissed;
    _holdsLast |= isEndOfMedia && !_run.isComplete;
    walk();
}

void FrameStepper::failRun() {
    endRun();
    // The kept frames stay. A run that only looks ahead fails in silence: the step that needs it tries again.
    if (std::exchange(_steps, 0) != 0)
        emit failed();
}

// Adds the frames of a run to the kept ones where both overlap. Otherwise a frame between them could be
// missing, and only those of the run are kept.
void FrameStepper::mergeFrames(const QList<QVideoFrame>& frames) {
    const bool overlaps = !frames.isEmpty() && !_frames.isEmpty() &&
                          frames.first().startTime() <= _frames.last().startTime() &&
                          frames.last().startTime() >= _frames.first().startTime();
    if (!overlaps) {
        _frames.clear();
        _holdsFirst = _holdsLast = false;
    }
    _frames += frames;
    std::ranges::stable_sort(_frames, {}, &QVideoFrame::startTime);
    // Both runs have delivered the frames of the overlap.
    const auto repeated = std::ranges::unique(_frames, {}, &QVideoFrame::startTime);
    _frames.erase(repeated.begin(), repeated.end());

    // Beyond the budget, the frames on the far side of the direction of the run are dropped.
    const qsizetype most = _frames.isEmpty() ? 0 : keptStretches * stretchLength(_frames.first().size());
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
