#include "app/MainWindow.h"

#include "app/Questions.h"
#include "app/WaitCursor.h"
#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "catalogue/FileNaming.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/MediaModel.h"
#include "catalogue/UpdatesOff.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QItemSelectionModel>
#include <QSet>
#include <QTimer>

void MainWindow::openWorkingDirectory(const QString& path) {
    if (_imageLoader)
        _imageLoader->stop();
    if (path.isEmpty()) {
        const QString message = tr("Provide correct working directory path. Path is empty.");
        tellUser(this, message);
        ui->statusbar->showMessage(message);
        qDebug() << "Path empty:" << path;
        return;
    }
    if (!QFile::exists(path)) {
        const QString message =
            tr("Provide correct working directory. Directory dont exists at: %1").arg(path);
        tellUser(this, message);
        onShowMessage(message);
        qDebug() << "Path dont exists at:" << path;
        return;
    }
    const WaitCursor waitCursor;
    _imageTags.clear();
    _workingPath = path;
    onShowMessage(tr("Checking directory: %1").arg(path));
    const QStringList files =
        scanDirectory(path, mediaNameFilters(), ui->cBWorkingDirScanRecursive->isChecked());
    qDebug() << "files:" << files.size();
    {
        const UpdatesOff updatesOff(mediaViews());
        clearItemModel();
        addFileItems(files);
    }
    // A scan that comes before the slow half replaces it.
    QTimer::singleShot(0, this, [this, files, generation = ++_scanGeneration] {
        if (generation == _scanGeneration)
            populateUiImage(files);
    });
}

QStringList MainWindow::scanDirectory(const QString& path, const QStringList& nameFilters,
                                      bool recursive) const {
    // All filters are of the form "*.suffix". A set tells at once what a pattern for each of them tells
    // slowly.
    QSet<QString> suffixes;
    for (const QString& filter : nameFilters)
        suffixes.insert(filter.sliced(2));
    QStringList files;
    QDirIterator entries(path, QDir::NoFilter,
                         recursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        if (suffixes.contains(entry.sliced(entry.lastIndexOf(u'.') + 1).toCaseFolded()))
            files.append(entry);
    }
    return files;
}

void MainWindow::clearItemModel() {
    _itemsByPath.clear();
    _itemModel->clear();
    _itemModel->setColumnCount(4);
    _itemModel->setHorizontalHeaderLabels(
        {tr("Name"), tr("Path"), tr("Size"), tr("Resolution"), tr("Last modified"), tr("Duration"),
         tr("MediaType"), tr("FileFormat"), tr("AudioBitRate"), tr("AudioCodec"), tr("VideoBitRate"),
         tr("VideoCodec"), tr("VideoFrameRate"), tr("Comment"), tr("Suffix"), tr("Has txt file")});
    const Settings* settings = Settings::instance();
    ui->treeView->header()->restoreState(settings->data(keys::treeViewHeaderState).toByteArray());
    ui->tableView->horizontalHeader()->restoreState(
        settings->data(keys::tableViewHorizontalHeaderState).toByteArray());
}

void MainWindow::addFileItem(const QString& filePath) {
    const QList<QStandardItem*> row = makeMediaRow(readMediaRecord(filePath), tr("Yes"), tr("No"));
    _itemModel->appendRow(row);
    _itemsByPath.insert(filePath, row.first());
    qDebug() << "Insert item for:" << filePath;
}

void MainWindow::addFileItems(const QStringList& filePaths) {
    const MediaItemModel::BulkInsert bulk(*_itemModel);
    _itemsByPath.reserve(filePaths.size());
    for (const QString& filePath : filePaths)
        addFileItem(filePath);
}

void MainWindow::removeFileItem(const QString& filePath) {
    removeFileItems({filePath});
}

void MainWindow::removeFileItems(const QStringList& filePaths) {
    QSet<QString> unwanted;
    for (const QString& filePath : filePaths)
        unwanted.insert(foldedPath(filePath));
    // Neighbouring rows go in one step: each removal moves all rows behind it.
    int last = -1;
    for (int row = _itemModel->rowCount() - 1; row >= -1; --row) {
        const QString key = row < 0 ? QString() : _itemModel->item(row, ColName)->data(RoleValue).toString();
        if (row >= 0 && unwanted.contains(foldedPath(key))) {
            _itemsByPath.remove(key);
            if (last < 0)
                last = row;
        } else if (last >= 0) {
            if (!_itemModel->removeRows(row + 1, last - row))
                qDebug() << "Error, failed to remove items from view.";
            last = -1;
        }
    }
}

void MainWindow::populateUiImage(const QStringList& files) {
    const WaitCursor waitCursor;
    QElapsedTimer timer;
    timer.start();
    queuePreviews(files);
    // The call of this slow half overtakes the paint that waits in the event queue, so the rows show here, in
    // their final size and before their tags.
    currentMediaView()->viewport()->repaint();
    {
        const UpdatesOff updatesOff(mediaViews());
        readTagFiles(files);
        const qint64 elapsed = timer.elapsed();
        qDebug() << "Read in:" << elapsed << "ms" << static_cast<double>(elapsed) / 1000.0 << "s";
        refreshAllTags();
    }
    onShowMessage(tr("Found: %1 files").arg(files.size()));
    onShowMessage(tr("Loaded in: %1 s").arg(static_cast<double>(timer.elapsed()) / 1000.0));
    if (_imageLoader) {
        onShowMessage(tr("Loading image previews"));
        _imageLoader->start();
    }
    watchWorkingDirectory();
    onFilterImages(ui->leFilterImages->text());
}

QStringList MainWindow::allFilePaths() const {
    QStringList paths;
    paths.reserve(_itemModel->rowCount());
    for (int row = 0; row < _itemModel->rowCount(); ++row)
        paths.append(_itemModel->item(row, ColName)->data(RoleValue).toString());
    return paths;
}

QModelIndexList MainWindow::selectedIndexes() const {
    // By ranges: a selection of all rows would otherwise make an index for each cell.
    QModelIndexList indexes;
    const QItemSelection selection = currentMediaView()->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        if (range.left() > ColName)
            continue;
        for (int row = range.top(); row <= range.bottom(); ++row)
            indexes.append(range.model()->index(row, ColName, range.parent()));
    }
    return indexes;
}

QStringList MainWindow::selectedFilePaths() const {
    QStringList paths;
    const QModelIndexList indexes = selectedIndexes();
    paths.reserve(indexes.size());
    for (const QModelIndex& index : indexes)
        paths.append(index.data(RoleValue).toString());
    return paths;
}

QList<QAbstractItemView*> MainWindow::mediaViews() const {
    return {ui->listView, ui->treeView, ui->tableView};
}

QAbstractItemView* MainWindow::currentMediaView() const {
    const QWidget* page = ui->stackedWidget->currentWidget();
    if (page == ui->pageTableView)
        return ui->tableView;
    if (page == ui->pageTreeView)
        return ui->treeView;
    return ui->listView;
}

MediaItem* MainWindow::mediaItem(const QString& filePath) const {
    return static_cast<MediaItem*>(_itemsByPath.value(filePath));
}
