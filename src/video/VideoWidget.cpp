#include "video/VideoWidget.h"

#include "app/services/Settings.h"
#include "app/services/StatusTipFilter.h"
#include "app/services/Themes.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaUrl.h"
#include "ui_VideoWidget.h"
#include "video/FrameStepper.h"
#include "video/VideoSteps.h"
#include "video/VideoTexts.h"

#include <QAction>
#include <QAudioOutput>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDebug>
#include <QDirIterator>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMediaMetaData>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVideoSink>
#include <QWheelEvent>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Below this value _fps is still the playback rate.
constexpr double lowestFrameRate = 2.0;

QStringList videosBeside(const QString& filePath) {
    QStringList files;
    QDirIterator entries(QFileInfo(filePath).path(), videoNameFilters(), QDir::Files);
    while (entries.hasNext())
        files.append(entries.next());
    return files;
}

// A position inside the frame, in milliseconds: its start time may still belong to the frame before.
qint64 positionOfFrame(qint64 startTime) {
    return startTime / 1000 + 1;
}

} // namespace

VideoWidget::VideoWidget(QWidget* parent) : QMainWindow(parent), _ui(std::make_unique<Ui::VideoWidget>()) {
    _ui->setupUi(this);
    keepMessages(this);
    setWindowTitle(tr("Video editor"));
    _ui->pBMediaPosition->setRange(0, 1);
    _ui->pBMediaPosition->setValue(0);
    _ui->pBMediaPosition->setFormat(positionFormat(0, 0));
    initActions();
    _lastOpenPath = Settings::instance()->get(keys::videoLastOpenPath);
    initPlayer();
    _ui->tBPlayPause->setText(u">"_s);
    _ui->tBPlayPause->setIcon(QIcon(u":/resources/icons/play.svg"_s));
    initThemes();
    initControls();
}

VideoWidget::~VideoWidget() {
    // The form is destroyed before the player, whose last signals would reach deleted widgets.
    _mediaPlayer->disconnect(this);
}

// --- construction --------------------------------------------------------------------------------

void VideoWidget::initActions() {
    const auto add = [this](const QString& text, const QString& iconText, const QKeySequence& shortcut,
                            auto slot) {
        auto* action = new QAction(text, this);
        action->setIconText(iconText);
        action->setShortcut(shortcut);
        connect(action, &QAction::triggered, this, slot);
        addAction(action);
        return action;
    };
    add(tr("&Frame next"), tr("Frame next"), Qt::Key_Right, &VideoWidget::onFrameNext);
    add(tr("&Frame prev"), tr("Frame prev"), Qt::Key_Left, &VideoWidget::onFramePrev);
    const QAction* grab =
        add(tr("&Grab frame"), tr("Grab frame"), QKeySequence(u"Ctrl+G"_s), &VideoWidget::onGrabFrame);
    _ui->tBGrabFrame->setToolTip(
        tr("Grab current frame [%1]").arg(grab->shortcut().toString(QKeySequence::PortableText)));
    // Shortcuts come before the focused button, which would treat the space key as a click.
    auto* toggle = new QShortcut(Qt::Key_Space, this, this, &VideoWidget::onPlayPause);
    toggle->setAutoRepeat(false);
    new QShortcut(Qt::Key_Comma, this, this, [this] { stepPicture(false); });
    new QShortcut(Qt::Key_Period, this, this, [this] { stepPicture(true); });
}

void VideoWidget::initPlayer() {
    _mediaPlayer = new QMediaPlayer(this);
    auto* audioOutput = new QAudioOutput(this);
    _mediaPlayer->setAudioOutput(audioOutput);
    _mediaPlayer->setVideoOutput(_ui->videoWidget);
    // The window is always silent.
    audioOutput->setVolume(0.0F);
    connect(_mediaPlayer, &QMediaPlayer::sourceChanged, this, &VideoWidget::sourceChanged);
    connect(_mediaPlayer, &QMediaPlayer::durationChanged, this, &VideoWidget::durationChanged);
    connect(_mediaPlayer, &QMediaPlayer::positionChanged, this, &VideoWidget::positionChanged);
    connect(_mediaPlayer, &QMediaPlayer::seekableChanged, this, &VideoWidget::seekableChanged);
    connect(_mediaPlayer, &QMediaPlayer::playbackRateChanged, this, &VideoWidget::playbackRateChanged);
    connect(_mediaPlayer, &QMediaPlayer::mediaStatusChanged, this, &VideoWidget::mediaStatusChanged);
    connect(_mediaPlayer, &QMediaPlayer::playbackStateChanged, this, &VideoWidget::playbackStateChanged);
    connect(_ui->videoWidget->videoSink(), &QVideoSink::videoFrameChanged, this, &VideoWidget::onFrameShown);
    _stepper = new FrameStepper(this);
    connect(_stepper, &FrameStepper::stepped, this, [this](const QVideoFrame& frame) {
        // Playing then continues from the step instead of starting over.
        _endings = 0;
        showPicture(frame);
    });
    connect(_stepper, &FrameStepper::endReached, this,
            [this](bool forward) { showStatus(forward ? tr("Last frame.") : tr("First frame.")); });
    connect(_stepper, &FrameStepper::failed, this, [this] { showMediaStatus(QMediaPlayer::InvalidMedia); });
}

void VideoWidget::initThemes() {
    const Themes* themes = Themes::instance();
    connect(themes, &Themes::themeChanged, this,
            [](Themes::Theme theme) { Settings::instance()->set(keys::appTheme, static_cast<int>(theme)); });
    connect(themes, &Themes::themeAccentChanged, this, &VideoWidget::updateIcons);
    updateIcons(themes->isDarkTheme());
}

void VideoWidget::initControls() {
    connect(_ui->pBMediaPosition, &ProgressBar::valueChanged, this, &VideoWidget::onPositionChanged);
    connect(_ui->tBPlayPause, &QToolButton::clicked, this, &VideoWidget::onPlayPause);
    connect(_ui->tBFrameNext, &QToolButton::clicked, this, &VideoWidget::onFrameNext);
    connect(_ui->tBFramePrev, &QToolButton::clicked, this, &VideoWidget::onFramePrev);
    connect(_ui->tBGrabFrame, &QToolButton::clicked, this, &VideoWidget::onGrabFrame);
    connect(_ui->tBFilePrev, &QToolButton::clicked, this, &VideoWidget::onFileNextPrev);
    connect(_ui->tBFileNext, &QToolButton::clicked, this, &VideoWidget::onFileNextPrev);
    connect(_ui->tBGrabSeries, &QToolButton::clicked, this, &VideoWidget::onVideoGrabSeries);
    connect(_ui->tBGrabFilesFrame, &QToolButton::clicked, this, &VideoWidget::onVideoGrabFilesFrame);
    connect(_ui->action_OpenVideo, &QAction::triggered, this, &VideoWidget::onOpenVideoFile);
    connect(_ui->action_Open_URL, &QAction::triggered, this, &VideoWidget::onOpenVideoUrl);
}

void VideoWidget::updateIcons(bool dark) {
    const Themes* themes = Themes::instance();
    themes->tintActions(dark, actions());
    themes->tintButtons(dark, {_ui->tBPlayPause, _ui->tBFrameNext, _ui->tBFramePrev, _ui->tBFileNext,
                               _ui->tBFilePrev, _ui->tBGrabFrame, _ui->tBGrabSeries, _ui->tBGrabFilesFrame});
}

// --- opening -------------------------------------------------------------------------------------

void VideoWidget::openFile(const QString& path) {
    _openFileName = path;
    if (QUrl::fromUserInput(path, QString()).isLocalFile())
        _lastOpenPath = QFileInfo(path).path();
    setWindowTitle(tr("Video editor - %1").arg(QFileInfo(path).fileName()));
    _frame = {};
    _isStepped = false;
    _isSeeking = !path.isEmpty();
    _endings = 0;
    _waitingSteps = 0;
    _stepper->setSource(mediaUrl(path));
    _mediaPlayer->stop();
    // The empty source in between makes the player load a file again that is already open.
    _mediaPlayer->setSource(QUrl());
    _mediaPlayer->setSource(mediaUrl(path));
    _mediaPlayer->pause();
    // The player emits nothing if its state is the one before.
    playbackStateChanged(_mediaPlayer->playbackState());
    // Until readFrameRate() finds a frame rate.
    _fps = _mediaPlayer->playbackRate();
}

void VideoWidget::ensureLastOpenPath() {
    if (_lastOpenPath.isEmpty())
        _lastOpenPath = QCoreApplication::applicationDirPath();
}

void VideoWidget::onOpenVideoFile() {
    ensureLastOpenPath();
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open video file"), _lastOpenPath, videoDialogFilter());
    if (!path.isEmpty())
        openFile(path);
}

void VideoWidget::onOpenVideoUrl() {
    ensureLastOpenPath();
    bool accepted = false;
    const QString url = QInputDialog::getText(this, tr("Open video URL"), tr("Video URL:"), QLineEdit::Normal,
                                              QString(), &accepted);
    if (accepted && !url.isEmpty())
        openFile(url);
}

void VideoWidget::onFileNextPrev() {
    if (_openFileName.isEmpty()) {
        qDebug() << "Open file name is empty";
        return;
    }
    // An empty neighbour, for a file that is no longer there, closes the current one.
    const bool backward = sender() == _ui->tBFilePrev;
    openFile(neighbourFile(videosBeside(_openFileName), _openFileName, backward));
}

// --- player --------------------------------------------------------------------------------------

void VideoWidget::onPlayPause() {
    if (_mediaPlayer->playbackState() == QMediaPlayer::PlayingState) {
        _mediaPlayer->pause();
        return;
    }
    // The player waits at the end, or at another position than the picture of a single step.
    if (_endings > 0)
        seek(0);
    else if (_isStepped)
        seek(position());
    _mediaPlayer->play();
}

void VideoWidget::sourceChanged(QUrl media) {
    qDebug() << "VideoWidget::sourceChanged" << media;
}

void VideoWidget::durationChanged(qlonglong duration) {
    _ui->pBMediaPosition->setRange(0, static_cast<int>(duration));
    showPosition();
}

// The position of the picture is shown, which differs from the player's after a single step.
void VideoWidget::positionChanged(qlonglong) {
    showPosition();
}

void VideoWidget::showPosition() {
    const QSignalBlocker blocker(_ui->pBMediaPosition);
    // Some containers report a duration that ends before their last frame, and the bar ignores a value beyond
    // its range.
    _ui->pBMediaPosition->setValue(qMin(static_cast<int>(position()), _ui->pBMediaPosition->maximum()));
    _ui->pBMediaPosition->setFormat(positionFormat(position(), _mediaPlayer->duration()));
}

void VideoWidget::seekableChanged(bool seekable) {
    qDebug() << "VideoWidget::seekableChanged" << seekable;
}

void VideoWidget::playbackRateChanged(double rate) {
    qDebug() << "VideoWidget::playbackRateChanged" << rate;
}

void VideoWidget::mediaStatusChanged(QMediaPlayer::MediaStatus status) {
    readFrameRate();
    showMediaStatus(status);
    // Queued, as last frames are still to be delivered and the player has not finished stopping.
    if (status == QMediaPlayer::InvalidMedia)
        _isSeeking = false;
    else if (status == QMediaPlayer::EndOfMedia)
        QMetaObject::invokeMethod(this, &VideoWidget::stayAtEnd, Qt::QueuedConnection);
}

// A stopped player shows no frame after a seek, so it is paused at the last frame. Where the seek to that
// frame reaches the end once more, it is paused at the start instead, under the same picture.
void VideoWidget::stayAtEnd() {
    const bool isStillAtEnd = _mediaPlayer->mediaStatus() == QMediaPlayer::EndOfMedia;
    // A seek came between the end and this call: paused, the player shows its frame.
    if (!isStillAtEnd && _isSeeking && _mediaPlayer->playbackState() == QMediaPlayer::StoppedState)
        _mediaPlayer->pause();
    if (!isStillAtEnd || !_frame.isValid() || _endings > 1)
        return;
    const int endings = _endings + 1;
    seek(endings == 1 ? positionOfFrame(_frame.startTime()) : 0);
    _mediaPlayer->pause();
    // The picture is on the screen already, and the seek has reset the count.
    _isSeeking = false;
    _endings = endings;
    showPicture(_frame);
}

void VideoWidget::readFrameRate() {
    const QMediaMetaData metaData = _mediaPlayer->metaData();
    if (!metaData.keys().contains(QMediaMetaData::VideoFrameRate)) {
        qDebug() << "VideoFrameRate not available";
        return;
    }
    if (_fps >= lowestFrameRate)
        return;
    if (const auto fps = wholeFrameRate(metaData.value(QMediaMetaData::VideoFrameRate)))
        _fps = *fps;
    else
        qDebug() << "Error, unable to get fps value.";
}

QString VideoWidget::mediaStatusToString(QMediaPlayer::MediaStatus status) {
    switch (status) {
    case QMediaPlayer::NoMedia:
        return tr("no media");
    case QMediaPlayer::LoadingMedia:
        return tr("loading media");
    case QMediaPlayer::LoadedMedia:
        return tr("loaded media");
    case QMediaPlayer::StalledMedia:
        return tr("stalled media");
    case QMediaPlayer::BufferingMedia:
        return tr("buffering media");
    case QMediaPlayer::BufferedMedia:
        return tr("buffered media");
    case QMediaPlayer::EndOfMedia:
        return tr("end of media");
    case QMediaPlayer::InvalidMedia:
        return tr("invalid media");
    }
    return {};
}

void VideoWidget::playbackStateChanged(QMediaPlayer::PlaybackState newState) {
    const bool playing = newState == QMediaPlayer::PlayingState;
    _ui->tBPlayPause->setText(playing ? u"||"_s : u">"_s);
    _ui->tBPlayPause->setIcon(
        QIcon(playing ? u":/resources/icons/pause.svg"_s : u":/resources/icons/play.svg"_s));
    updateIcons(Themes::instance()->isDarkTheme());
}

void VideoWidget::showMediaStatus(QMediaPlayer::MediaStatus status) {
    showStatus(tr("Status: %1").arg(mediaStatusToString(status)));
}

void VideoWidget::showStatus(const QString& text) {
    _ui->statusbar->showMessage(text);
}

// --- seeking -------------------------------------------------------------------------------------

// The position of the picture on the screen.
qint64 VideoWidget::position() const {
    return _isStepped ? positionOfFrame(_frame.startTime()) : _mediaPlayer->position();
}

void VideoWidget::seek(qint64 position) {
    _stepper->cancel();
    _waitingSteps = 0;
    _isStepped = false;
    _isSeeking = true;
    _endings = 0;
    _mediaPlayer->setPosition(position);
}

void VideoWidget::onFrameNext() {
    if (position() <= _mediaPlayer->duration())
        stepFrames(1);
}

void VideoWidget::onFramePrev() {
    if (position() > 0)
        stepFrames(-1);
}

void VideoWidget::stepFrames(int direction) {
    const bool shiftHeld = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
    const double step = frameStep(_fps, _seekSpeedModifier, shiftHeld);
    seek(steppedPosition(position(), direction * step));
}

void VideoWidget::onPositionChanged() {
    seek(_ui->pBMediaPosition->value());
}

void VideoWidget::keyReleaseEvent(QKeyEvent* event) {
    _seekSpeedModifier = speedModifierOfKey(event->key()).value_or(_seekSpeedModifier);
    if (const auto position = positionOfKey(event->key(), _mediaPlayer->duration()))
        seek(*position);
    QMainWindow::keyReleaseEvent(event);
}

void VideoWidget::wheelEvent(QWheelEvent* event) {
    const int factor = wheelSpeedFactor(event->modifiers());
    const double step = event->angleDelta().y() < 0 ? -factor * _fps : factor * _fps;
    seek(steppedPosition(position(), step));
    showStatus(tr("Seek speed modifier: %1 at fps: %2").arg(factor).arg(_fps));
    QMainWindow::wheelEvent(event);
}

// --- single pictures -----------------------------------------------------------------------------

void VideoWidget::stepPicture(bool forward) {
    _mediaPlayer->pause();
    // The frame to step from has not arrived yet; onFrameShown() makes the step.
    if (_isSeeking)
        _waitingSteps += forward ? 1 : -1;
    else if (_frame.isValid())
        _stepper->step(_frame.startTime(), forward);
    else
        showStatus(tr("No frame is shown."));
}

void VideoWidget::onFrameShown() {
    QVideoSink* sink = _ui->videoWidget->videoSink();
    const QVideoFrame frame = sink->videoFrame();
    if (_isStepped || !frame.isValid()) {
        // A frame of an earlier seek, or none from beyond the last frame: the picture must stay.
        if (_frame.isValid() && frame != _frame)
            sink->setVideoFrame(_frame);
        return;
    }
    _frame = frame;
    _isSeeking = false;
    const int steps = std::exchange(_waitingSteps, 0);
    for (int step = 0; step < qAbs(steps); ++step)
        _stepper->step(frame.startTime(), steps > 0);
}

void VideoWidget::showPicture(const QVideoFrame& frame) {
    _isStepped = true;
    _frame = frame;
    _ui->videoWidget->videoSink()->setVideoFrame(frame);
    showPosition();
}

void VideoWidget::closeEvent(QCloseEvent* event) {
    _mediaPlayer->stop();
    emit widgetState(saveState());
    emit widgetGeometry(saveGeometry());
    Settings::instance()->set(keys::videoLastOpenPath, _lastOpenPath);
    QMainWindow::closeEvent(event);
}
