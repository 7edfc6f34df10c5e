#include "video/VideoWidget.h"

#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "app/services/Themes.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaUrl.h"
#include "ui_VideoWidget.h"
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
#include <QSignalBlocker>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

// Below it the frame rate is still the playback rate.
constexpr double kLowestFrameRate = 2.0;

QStringList videosBeside(const QString& filePath) {
    QStringList files;
    QDirIterator entries(QFileInfo(filePath).path(), videoNameFilters(), QDir::Files);
    while (entries.hasNext())
        files.append(entries.next());
    return files;
}

} // namespace

VideoWidget::VideoWidget(QWidget* parent) : QMainWindow(parent), _ui(std::make_unique<Ui::VideoWidget>()) {
    _ui->setupUi(this);
    setWindowTitle(tr("Video editor"));
    _ui->pBMediaPosition->setRange(0, 1);
    _ui->pBMediaPosition->setValue(0);
    _ui->pBMediaPosition->setFormat(positionFormat(0, 0));
    initActions();
    _lastOpenPath = Settings::instance()->data(keys::videoLastOpenPath, QString()).toString();
    initPlayer();
    _ui->tBPlayPause->setText(u">"_s);
    _ui->tBPlayPause->setIcon(QIcon(u":/resources/icons/play.svg"_s));
    initThemes();
    initControls();
}

VideoWidget::~VideoWidget() {
    // The player outlives the form, and its last signals would reach widgets that are gone.
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
}

void VideoWidget::initPlayer() {
    _mediaPlayer = new QMediaPlayer(this);
    auto* audioOutput = new QAudioOutput(this);
    _mediaPlayer->setAudioOutput(audioOutput);
    _mediaPlayer->setVideoOutput(_ui->videoWidget);
    audioOutput->setVolume(0.0F);
    connect(_mediaPlayer, &QMediaPlayer::sourceChanged, this, &VideoWidget::sourceChanged);
    connect(_mediaPlayer, &QMediaPlayer::durationChanged, this, &VideoWidget::durationChanged);
    connect(_mediaPlayer, &QMediaPlayer::positionChanged, this, &VideoWidget::positionChanged);
    connect(_mediaPlayer, &QMediaPlayer::seekableChanged, this, &VideoWidget::seekableChanged);
    connect(_mediaPlayer, &QMediaPlayer::playbackRateChanged, this, &VideoWidget::playbackRateChanged);
    connect(_mediaPlayer, &QMediaPlayer::mediaStatusChanged, this, &VideoWidget::mediaStatusChanged);
    connect(_mediaPlayer, &QMediaPlayer::playbackStateChanged, this, &VideoWidget::playbackStateChanged);
}

void VideoWidget::initThemes() {
    const Themes* themes = Themes::instance();
    connect(themes, &Themes::themeChanged, this, [](Themes::Theme theme) {
        Settings::instance()->setData(keys::appTheme, static_cast<int>(theme));
    });
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
    _mediaPlayer->stop();
    _mediaPlayer->setSource(QUrl());
    _mediaPlayer->setSource(mediaUrl(path));
    _mediaPlayer->pause();
    playbackStateChanged(_mediaPlayer->playbackState());
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
    const bool backward = sender() == _ui->tBFilePrev;
    openFile(neighbourFile(videosBeside(_openFileName), _openFileName, backward));
}

// --- player --------------------------------------------------------------------------------------

void VideoWidget::onPlayPause() {
    if (_mediaPlayer->playbackState() == QMediaPlayer::PlayingState)
        _mediaPlayer->pause();
    else
        _mediaPlayer->play();
}

void VideoWidget::sourceChanged(QUrl media) {
    qDebug() << "VideoWidget::sourceChanged" << media;
}

void VideoWidget::durationChanged(qlonglong duration) {
    _ui->pBMediaPosition->setRange(0, static_cast<int>(duration));
}

void VideoWidget::positionChanged(qlonglong position) {
    const QSignalBlocker blocker(_ui->pBMediaPosition);
    _ui->pBMediaPosition->setValue(static_cast<int>(position));
    _ui->pBMediaPosition->setFormat(positionFormat(_mediaPlayer->position(), _mediaPlayer->duration()));
}

void VideoWidget::seekableChanged(bool seekable) {
    qDebug() << "VideoWidget::seekableChanged" << seekable;
}

void VideoWidget::playbackRateChanged(double rate) {
    qDebug() << "VideoWidget::playbackRateChanged" << rate;
}

void VideoWidget::mediaStatusChanged(QMediaPlayer::MediaStatus status) {
    readFrameRate();
    showStatus(tr("Status: %1").arg(mediaStatusToString(status)));
}

void VideoWidget::readFrameRate() {
    const QMediaMetaData metaData = _mediaPlayer->metaData();
    if (!metaData.keys().contains(QMediaMetaData::VideoFrameRate)) {
        qDebug() << "VideoFrameRate not available";
        return;
    }
    if (_fps >= kLowestFrameRate)
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

void VideoWidget::showStatus(const QString& text) {
    _ui->statusbar->showMessage(text);
}

// --- seeking -------------------------------------------------------------------------------------

void VideoWidget::onFrameNext() {
    if (_mediaPlayer->position() <= _mediaPlayer->duration())
        stepFrames(1);
}

void VideoWidget::onFramePrev() {
    if (_mediaPlayer->position() > 0)
        stepFrames(-1);
}

void VideoWidget::stepFrames(int direction) {
    const bool shiftHeld = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
    const double step = frameStep(_fps, _seekSpeedModifier, shiftHeld);
    _mediaPlayer->setPosition(steppedPosition(_mediaPlayer->position(), direction * step));
}

void VideoWidget::onPositionChanged() {
    _mediaPlayer->setPosition(_ui->pBMediaPosition->value());
}

void VideoWidget::keyReleaseEvent(QKeyEvent* event) {
    _seekSpeedModifier = speedModifierOfKey(event->key()).value_or(_seekSpeedModifier);
    if (const auto position = positionOfKey(event->key(), _mediaPlayer->duration()))
        _mediaPlayer->setPosition(*position);
    QMainWindow::keyReleaseEvent(event);
}

void VideoWidget::wheelEvent(QWheelEvent* event) {
    const int factor = wheelSpeedFactor(event->modifiers());
    const double step = event->angleDelta().y() < 0 ? -factor * _fps : factor * _fps;
    _mediaPlayer->setPosition(steppedPosition(_mediaPlayer->position(), step));
    showStatus(tr("Seek speed modifier: %1 at fps: %2").arg(factor).arg(_fps));
    QMainWindow::wheelEvent(event);
}

void VideoWidget::closeEvent(QCloseEvent* event) {
    _mediaPlayer->stop();
    emit widgetState(saveState());
    emit widgetGeometry(saveGeometry());
    Settings::instance()->setData(keys::videoLastOpenPath, _lastOpenPath);
    QMainWindow::closeEvent(event);
}
