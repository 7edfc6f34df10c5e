#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "imaging/BatchOutput.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilters.h"
#include "imaging/Profiles.h"
#include "imaging/ProfilesWidget.h"
#include "imaging/ResizeGeometry.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QFileInfo>
#include <QImageReader>
#include <QMenu>
#include <QTimeZone>

#include <optional>

namespace {

constexpr QSize effectItemSize(24, 26);
constexpr int effectNameRole = Qt::UserRole + 1;

// Shown instead of writing the preview over its file.
QString noSaveOfEffects() {
    return MainWindow::tr("Preview of effects is not saved, use Apply.");
}

// Modification time and size: differs once the file has been written again.
std::pair<QDateTime, qint64> filterFileState(const QString& path) {
    const QFileInfo info(path);
    return {info.lastModified(QTimeZone::UTC), info.size()};
}

} // namespace

void MainWindow::initEffectViews() {
    ui->vLFilterEffect->insertWidget(0, Profiles::instance()->widget(ui->scrollAreaImgDSPContents, true));
    QListWidget* list = ui->lWDspEffects;
    list->setViewMode(QListView::ListMode);
    list->setSpacing(8);
    list->setUniformItemSizes(true);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    // A row widget does not survive a move of its item, so rows are moved by their buttons.
    list->setDragDropMode(QAbstractItemView::NoDragDrop);
    list->setSortingEnabled(false);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
}

void MainWindow::initEffectConnections() {
    connect(ui->lWDspEffects, &QWidget::customContextMenuRequested, this,
            &MainWindow::onDspEffectsCustomContextMenu);
    connect(ui->hSDspWriteQuality, &QSlider::valueChanged, this,
            [this](int value) { ui->label_Quality_2->setText(tr("Quality [%1]:").arg(value)); });
    connect(ui->pBDspApply, &QPushButton::clicked, this, &MainWindow::onFilterApply);
    connect(ui->pBDspReset, &QPushButton::clicked, this, &MainWindow::onDspReset);
    connect(ui->tBAddEffect, &QToolButton::clicked, this, &MainWindow::onAddDspEffect);
}

QString MainWindow::effectName(const QListWidgetItem* item) {
    return item->data(effectNameRole).toString();
}

ImageFilterWidgetBase* MainWindow::effectRow(QListWidgetItem* item) const {
    return qobject_cast<ImageFilterWidgetBase*>(ui->lWDspEffects->itemWidget(item));
}

// A new row widget for the item, not yet connected.
ImageFilterWidgetBase* MainWindow::attachEffectRow(QListWidgetItem* item) {
    ImageFilterWidgetBase* row = _imageFilters->createFilterWidget(effectName(item));
    row->setItem(item);
    ui->lWDspEffects->setItemWidget(item, row);
    return row;
}

void MainWindow::connectEffectRow(const ImageFilterWidgetBase* row) {
    connect(row, &ImageFilterWidgetBase::itemDelete, this, &MainWindow::onFilterItemDelete);
    connect(row, &ImageFilterWidgetBase::itemMoveUp, this, &MainWindow::onFilterItemMoveUp);
    connect(row, &ImageFilterWidgetBase::itemMoveDown, this, &MainWindow::onFilterItemMoveDown);
    // The sender is the row, not the Apply button, which makes this a preview.
    connect(row, &ImageFilterWidgetBase::optionChanged, this, &MainWindow::onFilterApply);
}

void MainWindow::onAddDspEffect() {
    // The data is the name that profiles store, the text of the entry its translation.
    onAddDspEffectItem(ui->cBDspEffectsList->currentData().toString());
    onFilterApply();
}

void MainWindow::onAddDspEffectItem(const QString& filterName) {
    auto* item = new QListWidgetItem;
    item->setSizeHint(effectItemSize);
    item->setData(effectNameRole, filterName);
    ui->lWDspEffects->insertItem(ui->lWDspEffects->count(), item);
    connectEffectRow(attachEffectRow(item));
}

void MainWindow::onFilterItemDelete() {
    qDebug() << "MainWindow::onFilterItemDelete" << sender();
    const auto* row = qobject_cast<ImageFilterWidgetBase*>(sender());
    if (!row) {
        qDebug() << "Error, unable to cast filter widget to base...";
        return;
    }
    // The view removes the row widget, too, by deleteLater(): it is still the sender here.
    delete ui->lWDspEffects->takeItem(ui->lWDspEffects->row(row->item()));
    onFilterApply();
}

void MainWindow::onFilterItemMoveUp() {
    qDebug() << "MainWindow::onFilterItemMoveUp" << sender();
    moveSendingRow(true);
}

void MainWindow::onFilterItemMoveDown() {
    qDebug() << "MainWindow::onFilterItemMoveDown" << sender();
    moveSendingRow(false);
}

void MainWindow::moveSendingRow(bool up) {
    const auto* row = qobject_cast<ImageFilterWidgetBase*>(sender());
    if (!row) {
        qDebug() << "Error, unable to cast filter widget to base...";
        return;
    }
    onFilterItemMove(up, row->item());
    onFilterApply();
}

void MainWindow::onFilterItemMove(bool up, QListWidgetItem* item) {
    // A row widget does not survive a move of its item, so a new one is made from its options.
    QListWidget* list = ui->lWDspEffects;
    const int index = list->row(item);
    // Downwards, insertItem() appends at most, so the last row stays the last.
    if (up && index - 1 < 0)
        return;
    const ImageFilterWidgetBase* row = effectRow(item);
    const QVariantHash options = row ? row->options() : QVariantHash();
    // The view deletes the old row later, as the click of one of its buttons is still being handled.
    list->removeItemWidget(item);
    list->takeItem(index);
    list->insertItem(up ? index - 1 : index + 1, item);
    ImageFilterWidgetBase* rebuilt = attachEffectRow(item);
    rebuilt->setOptions(options);
    // Connected last, so that restoring its options does not run the chain.
    connectEffectRow(rebuilt);
}

void MainWindow::onDspEffectsCustomContextMenu() {
    QListWidget* list = ui->lWDspEffects;
    QMenu menu;
    menu.addAction(tr("&Toggle bypass"), this, [this] {
        // Without signals, as each would run the chain; it is run once below.
        forEachEffectRow(
            [](ImageFilterWidgetBase* row) { row->setFilterEnabled(!row->isFilterEnabled(), true); });
        onFilterApply();
    });
    menu.addAction(tr("&Bypass all"), this, [this] {
        forEachEffectRow([](ImageFilterWidgetBase* row) { row->setFilterEnabled(false, true); });
        onFilterApply();
    });
    menu.addSeparator();
    menu.addAction(tr("&Remove selected"), this, [this, list] {
        const QList<QListWidgetItem*> selected = list->selectedItems();
        for (const QListWidgetItem* item : selected)
            delete list->takeItem(list->row(item));
        onFilterApply();
    });
    menu.addAction(tr("&Clear"), this, [this, list] {
        list->setUpdatesEnabled(false);
        list->clear();
        list->setUpdatesEnabled(true);
        onFilterApply();
    });
    menu.exec(QCursor::pos());
}

void MainWindow::forEachEffectRow(const std::function<void(ImageFilterWidgetBase*)>& visit) const {
    for (int index = 0; index < ui->lWDspEffects->count(); ++index) {
        if (ImageFilterWidgetBase* row = effectRow(ui->lWDspEffects->item(index)))
            visit(row);
        else
            qDebug() << "Error, unable to cast to base Image Filter.";
    }
}

QString MainWindow::prepareOutputDirectory(const QString& outputText) {
    const QString directory = resolveOutputDirectory(ui->lEWorkingPath->text(), outputText);
    // A batch goes on all the same, and each of its writes then fails with its own message.
    if (!ensureOutputDirectory(directory))
        onShowMessage(tr("Error, unable to create out path %1 file will be not saved.").arg(directory));
    return directory;
}

void MainWindow::onFilterApply() {
    // The slot serves the batch and the live preview of each change. Only the button starts a batch.
    const bool isBatch = sender() == ui->pBDspApply;
    // The result appears in this dock, which the user may have closed.
    ui->dockWidget_ImgPreview->show();
    QStringList paths = selectedFilePaths();
    if (paths.isEmpty()) {
        onShowMessage(tr("Select image/s."));
        return;
    }
    if (!isBatch)
        paths = {paths.last()};
    // A preview makes the directory as well, on purpose, and so shows early where that is impossible.
    const QString directory = prepareOutputDirectory(ui->lEDspDirOutput->text());
    const std::optional<WaitCursor> waitCursor =
        isBatch ? std::optional<WaitCursor>(std::in_place) : std::nullopt;
    BatchWriter writer(ui->hSDspWriteQuality->value());
    for (const QString& path : std::as_const(paths)) {
        if (path.isEmpty()) {
            onShowMessage(tr("Error, image path is empty."));
            return;
        }
        loadFilterImage(path, isBatch);
        // Stays false while no row changes the image: a batch then writes no copy of it.
        bool applied = false;
        const QImage work = appliedEffects(_filterImage, applied);
        if (!applied) {
            qDebug() << "Image not processed" << path << "nothing to do.";
            if (isBatch && _filterImage.isNull())
                writer.noteFailure(path, tr("no image was read"));
            continue;
        }
        qDebug() << "Image processed:" << path;
        if (!isBatch) {
            ui->imgWidget->setImage(work, _filterImagePath, noSaveOfEffects());
        } else if (writeBatchImage(writer, work, path, directory)) {
            showBlockingMessage(
                tr("Applied filter to %1 of total: %2").arg(writer.writtenCount()).arg(paths.size()));
        }
    }
    if (isBatch)
        showResult(tr("filtered"), writer.writtenCount(), paths.size(), writer.failures());
    onShowMessage(tr("Filters applied to: %1 files").arg(paths.size()));
}

void MainWindow::readFilterImage(const QString& path) {
    _filterImagePath = path;
    // Before the picture, so that a write in between makes the next preview read it again.
    _filterImageState = filterFileState(path);
    _filterImage = QImage(path);
}

void MainWindow::loadFilterImage(const QString& path, bool isBatch) {
    // A preview leaves a reduced copy here, which a batch must not write. An old state of the file would be
    // shown, and could be saved over the new one.
    if (isBatch || _filterImage.isNull() || _filterImagePath != path ||
        _filterImageState != filterFileState(path)) {
        readFilterImage(path);
        if (!isBatch)
            _filterImage = reducedToFit(_filterImage, ui->imgWidget->size());
    }
    if (!isBatch) {
        // Only the whole, unchanged picture may be saved over its file.
        const bool isWholeFile = _filterImage.size() == QImageReader(path).size();
        ui->imgWidget->setImage(_filterImage, path, isWholeFile ? QString() : noSaveOfEffects());
    }
}

QImage MainWindow::appliedEffects(const QImage& image, bool& applied) const {
    QImage work = image;
    forEachEffectRow(
        [&](ImageFilterWidgetBase* row) { work = _imageFilters->applyFilter(work, row, &applied); });
    return work;
}

bool MainWindow::writeBatchImage(BatchWriter& writer, const QImage& image, const QString& sourcePath,
                                 const QString& directory) {
    const QString path = outputFilePath(sourcePath, directory);
    if (path != sourcePath)
        qDebug() << "Output changed to:" << path;
    if (writer.isWrittenAlready(path))
        qDebug() << "Warning, another file of this run had the same name and is overwritten:" << path;
    if (writer.write(image, path))
        return true;
    qDebug() << "Error, unable to write file:" << writer.errorString() << path;
    onShowMessage(tr("Error, unable to write file: %1 error: %2").arg(path, writer.errorString()));
    return false;
}

void MainWindow::onDspReset() {
    const QStringList paths = selectedFilePaths();
    if (paths.isEmpty() || paths.first().isEmpty()) {
        onShowMessage(tr("Select image."));
        return;
    }
    ui->imgWidget->setImageFilePath(paths.first());
    readFilterImage(paths.first());
}
