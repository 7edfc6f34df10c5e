#include "video/VideoWidgetFrameGrabber.h"

#include "catalogue/MediaModel.h"
#include "catalogue/MediaUrl.h"
#include "catalogue/UpdatesOff.h"
#include "ui_VideoWidgetFrameGrabber.h"
#include "video/VideoSteps.h"

#include <QCursor>
#include <QDebug>
#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QVideoSink>

#include <algorithm>

namespace {

constexpr int fullFrameRole = Qt::UserRole;
constexpr int frameSourceRole = Qt::UserRole + 1;
constexpr QMargins thumbnailMargins(11, 11, 11, 11);
// The first of several files starts here, whatever the spin box for the start shows.
constexpr qint64 firstFileStartMs = 1000;

} // namespace

VideoWidgetFrameGrabber::VideoWidgetFrameGrabber(QWidget* parent)
    : QDialog(parent), _ui(std::make_unique<Ui::VideoWidgetFrameGrabber>()) {
    _ui->setupUi(this);
    setWindowTitle(tr("Frame grabber"));
    initList();
    connect(_ui->pBGrabFrames, &QPushButton::clicked, this, &VideoWidgetFrameGrabber::onGrabFrames);
    connect(_ui->pBAddAll, &QPushButton::clicked, this, &VideoWidgetFrameGrabber::onAddAll);
    connect(_ui->pBAddSelected, &QPushButton::clicked, this, &VideoWidgetFrameGrabber::onAddSelected);
    connect(_ui->pBClose, &QPushButton::clicked, this, &QWidget::close);
    connect(_ui->pBSelecFiles, &QPushButton::clicked, this, [this] { grabFramesFromFiles(_filesPath); });
    connect(_ui->listWidget, &QWidget::customContextMenuRequested, this,
            &VideoWidgetFrameGrabber::onImagesCustomContextMenu);
}

VideoWidgetFrameGrabber::~VideoWidgetFrameGrabber() {
    // The form is destroyed before the player, whose last signals would reach deleted widgets.
    if (_mediaPlayer)
        _mediaPlayer->disconnect(this);
}

void VideoWidgetFrameGrabber::initList() {
    QListWidget* list = _ui->listWidget;
    list->setSortingEnabled(false);
    // First, as setViewMode() overwrites several of the properties below.
    list->setViewMode(QListView::IconMode);
    list->setGridSize(QSize(240, 240));
    list->setResizeMode(QListView::Adjust);
    list->setSpacing(8);
    list->setDragEnabled(false);
    list->setAcceptDrops(false);
    list->setDragDropMode(QAbstractItemView::NoDragDrop);
    list->setUniformItemSizes(false);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
}

void VideoWidgetFrameGrabber::setSourceUrl(const QUrl& url) {
    _sourceUrl = url;
    setWindowTitle(tr("Frame grabber: %1").arg(url.toString()));
}

// --- runs ----------------------------------------------------------------------------------------

void VideoWidgetFrameGrabber::initPlayer() {
    if (_mediaPlayer)
        return;
    _mediaPlayer = new QMediaPlayer(this);
    _videoSink = new QVideoSink(_mediaPlayer);
    _mediaPlayer->setVideoSink(_videoSink);
    connect(_mediaPlayer, &QMediaPlayer::mediaStatusChanged, this,
            &VideoWidgetFrameGrabber::onMediaStatusChanged);
    connect(_mediaPlayer, &QMediaPlayer::durationChanged, this,
            &VideoWidgetFrameGrabber::seekToStartWhenLoaded);
}

void VideoWidgetFrameGrabber::onGrabFrames() {
    initPlayer();
    grabFramesFromFile(_sourceUrl.toString());
}

void VideoWidgetFrameGrabber::grabFramesFromFiles(const QString& directory) {
    _filesPath = directory;
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Select video files"), directory,
                                                            tr("Videos (*.avi *.mpeg *.ogv *.mp4 *.mkv)"));
    if (files.isEmpty())
        return;
    _videoFiles = files;
    initPlayer();
    grabFramesFromFile(_videoFiles.takeFirst());
    startAt(firstFileStartMs);
}

void VideoWidgetFrameGrabber::grabFramesFromFile(QString fileName) {
    initPlayer();
    _frameCounter = 1;
    _runIsOn = false;
    // The empty source ends the decoding of the previous run, also if the same file follows.
    _mediaPlayer->setSource(QUrl());
    _mediaPlayer->setSource(mediaUrl(fileName));
    ++_run;
    _runIsOn = true;
    followFramesOfThisRun();
    // Paused, a player decodes one frame after each seek.
    _mediaPlayer->pause();
    startAt(_ui->sBFrameStart->value());
}

void VideoWidgetFrameGrabber::followFramesOfThisRun() {
    disconnect(_frames);
    _frames = connect(_videoSink, &QVideoSink::videoFrameChanged, this,
                      [this, run = _run](const QVideoFrame& frame) {
                          if (run == _run)
                              videoFrameChanged(frame);
                      });
}

// The player drops a position that it gets while its media is loading, so the seek is repeated once it is
// loaded.
void VideoWidgetFrameGrabber::startAt(qint64 position) {
    _startPosition = position;
    _startIsPending = _mediaPlayer->duration() <= 0;
    _mediaPlayer->setPosition(position);
}

bool VideoWidgetFrameGrabber::isLoaded() const {
    const QMediaPlayer::MediaStatus status = _mediaPlayer->mediaStatus();
    return status == QMediaPlayer::LoadedMedia || status == QMediaPlayer::BufferingMedia ||
           status == QMediaPlayer::BufferedMedia;
}

void VideoWidgetFrameGrabber::seekToStartWhenLoaded() {
    if (!_startIsPending || !isLoaded() || _mediaPlayer->duration() <= 0)
        return;
    _startIsPending = false;
    _mediaPlayer->setPosition(_startPosition);
}

void VideoWidgetFrameGrabber::onMediaStatusChanged(QMediaPlayer::MediaStatus status) {
    seekToStartWhenLoaded();
    // No frame follows: the video track ends before the duration, or the file has only sound. Queued, so that
    // a last frame that is queued already is handled first.
    const bool isWithoutPicture = isLoaded() && !_mediaPlayer->hasVideo();
    if (!_runIsOn || (status != QMediaPlayer::EndOfMedia && !isWithoutPicture))
        return;
    const auto endThisRun = [this, run = _run] {
        if (_runIsOn && run == _run)
            endOfFile();
    };
    QMetaObject::invokeMethod(this, endThisRun, Qt::QueuedConnection);
}

void VideoWidgetFrameGrabber::videoFrameChanged(QVideoFrame frame) {
    // The sink also reports invalid frames, around a stop and from beyond the last frame.
    if (!_runIsOn || !frame.isValid())
        return;
    // The counter starts at 1, so that the second frame is at twice the interval, on purpose.
    const SeriesStep step = nextSeriesStep(_mediaPlayer->duration(), _ui->sBFrameStart->value(),
                                           _ui->sBFrameNum->value(), _frameCounter + 1);
    // Loaded media without a duration does not get one later: its first frame is the only one.
    const bool isOnlyFrame = step.kind == SeriesStep::Wait && isLoaded();
    if (step.kind == SeriesStep::Wait && !isOnlyFrame)
        return;
    addImageItem(frame.toImage());
    ++_frameCounter;
    if (step.kind == SeriesStep::Seek)
        _mediaPlayer->setPosition(step.position);
    else
        endOfFile();
}

void VideoWidgetFrameGrabber::endOfFile() {
    _runIsOn = false;
    if (!_videoFiles.isEmpty())
        grabFramesFromFile(_videoFiles.takeFirst());
}

// --- list ----------------------------------------------------------------------------------------

void VideoWidgetFrameGrabber::addImageItem(QImage image) {
    // The slot may be called before any run.
    initPlayer();
    QListWidget* list = _ui->listWidget;
    auto* item = new QListWidgetItem;
    const QSize size = list->gridSize().shrunkBy(thumbnailMargins);
    item->setData(Qt::DecorationRole,
                  centredOnCanvas(image.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation), size));
    item->setData(fullFrameRole, image);
    item->setData(frameSourceRole, _mediaPlayer->source());
    item->setTextAlignment(Qt::AlignCenter);
    item->setText(tr("%1").arg(_mediaPlayer->position()));
    list->insertItem(list->count(), item);
}

void VideoWidgetFrameGrabber::onAddAll() {
    // Finds every item, as each has a text.
    const QString anyText(u'.');
    getItemsImage(_ui->listWidget->findItems(anyText, Qt::MatchRegularExpression));
}

void VideoWidgetFrameGrabber::onAddSelected() {
    QModelIndexList selected = _ui->listWidget->selectionModel()->selectedIndexes();
    // In the order of the list, not of the selection.
    std::ranges::sort(selected);
    QList<QListWidgetItem*> items;
    for (const QModelIndex& index : std::as_const(selected))
        items.append(_ui->listWidget->item(index.row()));
    getItemsImage(items);
}

void VideoWidgetFrameGrabber::getItemsImage(QList<QListWidgetItem*> items) {
    for (const QListWidgetItem* item : std::as_const(items)) {
        const auto image = item->data(fullFrameRole).value<QImage>();
        if (image.isNull()) {
            qDebug() << "Null image:" << item->text();
            continue;
        }
        emit addFrames({image}, mediaPath(item->data(frameSourceRole).toUrl()));
    }
}

void VideoWidgetFrameGrabber::onRemoveAll() {
    const UpdatesOff updatesOff({_ui->listWidget});
    _ui->listWidget->clear();
}

void VideoWidgetFrameGrabber::onRemoveSelected() {
    QListWidget* list = _ui->listWidget;
    const UpdatesOff updatesOff({list});
    const QList<QListWidgetItem*> selected = list->selectedItems();
    for (const QListWidgetItem* item : selected) {
        const std::unique_ptr<QListWidgetItem> taken(list->takeItem(list->row(item)));
        if (taken.get() != item)
            qDebug() << "Taken item not same as selected...";
    }
}

void VideoWidgetFrameGrabber::onImagesCustomContextMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    connect(menu->addAction(tr("Add &selected")), &QAction::triggered, this,
            &VideoWidgetFrameGrabber::onAddSelected);
    connect(menu->addAction(tr("Add &all")), &QAction::triggered, this, &VideoWidgetFrameGrabber::onAddAll);
    menu->addSeparator();
    connect(menu->addAction(tr("&Remove selected")), &QAction::triggered, this,
            &VideoWidgetFrameGrabber::onRemoveSelected);
    connect(menu->addAction(tr("&Clear")), &QAction::triggered, this, &VideoWidgetFrameGrabber::onRemoveAll);
    menu->popup(QCursor::pos());
}
