#include "app/MainWindow.h"

#include "app/Questions.h"
#include "app/WaitCursor.h"
#include "app/services/Settings.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/ReadInOrder.h"
#include "catalogue/SelectionWatcher.h"
#include "catalogue/UpdatesOff.h"
#include "catalogue/ViewSetup.h"
#include "tags/TagRecord.h"
#include "tags/TagRecovery.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

namespace {

void appendMediaRow(MediaItemModel& model, const MediaRecord& record) {
    model.appendFile(record, MainWindow::tr("Yes"), MainWindow::tr("No"));
    qDebug() << "Insert item for:" << record.filePath;
}

} // namespace

void MainWindow::openWorkingDirectory(const QString& path) {
    // Even where the path proves wrong below; rows without a thumbnail stay so then.
    if (_imageLoader)
        _imageLoader->stop();
    if (path.isEmpty()) {
        const QString message = tr("Provide correct working directory path. Path is empty.");
        showNotice(this, message);
        ui->statusbar->showMessage(message);
        qDebug() << "Path empty:" << path;
        return;
    }
    if (!QFile::exists(path)) {
        const QString message =
            tr("Provide correct working directory. Directory dont exists at: %1").arg(path);
        showNotice(this, message);
        onShowMessage(message);
        qDebug() << "Path dont exists at:" << path;
        return;
    }
    const WaitCursor waitCursor;
    // Writes pending unsaved tags to the recovery file before the record is cleared.
    _recovery->close();
    _imageTags->clear();
    // The raw text editor would otherwise save to a sidecar of the previous directory.
    unbindTagFile();
    _workingPath = path;
    _lastScan.path = path;
    onShowMessage(tr("Checking directory: %1").arg(path));
    const QStringList files =
        scanDirectory(path, mediaNameFilters(), ui->cBWorkingDirScanRecursive->isChecked());
    qDebug() << "files:" << files.size();
    {
        const SelectionWatcher::Hold hold(*_selection);
        const UpdatesOff updatesOff(mediaViews());
        clearItemModel();
        addFileItems(files);
    }
    // A scan that starts before the slow half of this one replaces it.
    QTimer::singleShot(0, this, [this, files, generation = ++_lastScan.generation] {
        if (generation == _lastScan.generation)
            populateUiImage(files);
    });
}

QStringList MainWindow::scanDirectory(const QString& path, const QStringList& nameFilters,
                                      bool recursive) const {
    const SuffixMatcher suffixes(nameFilters);
    QStringList files;
    // No filter by kind: a directory that is named like a picture gets a row as well.
    QDirIterator entries(path, QDir::NoFilter,
                         recursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        if (suffixes.matches(entry))
            files.append(entry);
    }
    return files;
}

void MainWindow::clearItemModel() {
    _itemModel->clearFiles({tr("Name"), tr("Path"), tr("Size"), tr("Resolution"), tr("Last modified"),
                            tr("Duration"), tr("MediaType"), tr("FileFormat"), tr("AudioBitRate"),
                            tr("AudioCodec"), tr("VideoBitRate"), tr("VideoCodec"), tr("VideoFrameRate"),
                            tr("Comment"), tr("Suffix"), tr("Has txt file")});
    // The stored state is that of the last exit: what the user has changed in the headers since then is lost.
    const Settings* settings = Settings::instance();
    restoreMediaHeader(ui->treeView->header(), settings->get(keys::treeViewHeaderState));
    restoreMediaHeader(ui->tableView->horizontalHeader(),
                       settings->get(keys::tableViewHorizontalHeaderState));
}

void MainWindow::addFileItem(const QString& filePath) {
    appendMediaRow(*_itemModel, readMediaRecord(filePath));
}

void MainWindow::addFileItems(const QStringList& filePaths) {
    const MediaItemModel::BulkInsert bulk(*_itemModel);
    // Several threads call the first function; they only read the list of paths.
    readInOrder(
        filePaths.size(), [&](qsizetype index) { return readMediaRecord(filePaths.at(index)); },
        [this](qsizetype, const MediaRecord& record) { appendMediaRow(*_itemModel, record); });
}

void MainWindow::removeFileItems(const QStringList& filePaths) {
    // Without the hold each removed run of rows would report the changed selection.
    const SelectionWatcher::Hold hold(*_selection);
    const UpdatesOff updatesOff(mediaViews());
    _imageTags->remove(filePaths);
    if (!_itemModel->removeFiles(filePaths))
        qDebug() << "Error, failed to remove items from view.";
}

void MainWindow::populateUiImage(const QStringList& files) {
    const WaitCursor waitCursor;
    QElapsedTimer timer;
    timer.start();
    queuePreviews(files);
    // This slow half is called before the paint event of the new rows is processed, so the rows are painted
    // here, in their final size and before their tags are read.
    _selection->currentView()->viewport()->repaint();
    {
        const UpdatesOff updatesOff(mediaViews());
        readTagFiles(files);
        const qint64 elapsed = timer.elapsed();
        qDebug() << "Read in:" << elapsed << "ms" << static_cast<double>(elapsed) / 1000.0 << "s";
    }
    onShowMessage(tr("Found: %1 files").arg(files.size()));
    onShowMessage(tr("Loaded in: %1 s").arg(static_cast<double>(timer.elapsed()) / 1000.0));
    if (_imageLoader) {
        onShowMessage(tr("Loading image previews"));
        _imageLoader->start();
    }
    watchWorkingDirectory();
    onFilterImages(ui->leFilterImages->text());
    _recovery->open(_lastScan.path);
}

QStringList MainWindow::allFilePaths() const {
    return _itemModel->files();
}

QModelIndexList MainWindow::selectedIndexes() const {
    return _selection->indexes();
}

QStringList MainWindow::selectedFilePaths() const {
    return _selection->files();
}
