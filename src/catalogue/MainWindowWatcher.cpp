#include "app/MainWindow.h"

#include "app/Questions.h"
#include "catalogue/DirectoryCompletion.h"
#include "catalogue/FileNaming.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/UpdatesOff.h"
#include "tags/CompletionPopup.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>
#include <QSignalBlocker>

void MainWindow::initWatcherConnections() {
    connect(ui->action_SelectWorkingPath, &QAction::triggered, this, &MainWindow::onSrcSelectPath);
    connect(ui->tBSrcSelectPath, &QToolButton::clicked, this, &MainWindow::onSrcSelectPath);
    connect(ui->tBRefreshOpenFilePath, &QToolButton::clicked, this, &MainWindow::onRefreshOpenFilePath);
    connect(ui->lEWorkingPath, &QLineEdit::editingFinished, this, &MainWindow::onWorkingPathEdited);
    new CompletionPopup(ui->lEWorkingPath, [](const QString& line, qsizetype cursor) {
        const DirectoryMatches matches = matchingDirectories(line, cursor);
        CompletionOffer offer{matches.start};
        for (const QString& name : matches.names)
            offer.rows.append({name, {}});
        return offer;
    });
}

void MainWindow::watchWorkingDirectory() {
    if (!_fileSystemWatcher) {
        _fileSystemWatcher = new QFileSystemWatcher(this);
        connect(_fileSystemWatcher, &QFileSystemWatcher::directoryChanged, this,
                &MainWindow::onWorkingDirectoryChanged);
    }
    if (const QStringList watched = _fileSystemWatcher->directories(); !watched.isEmpty()) {
        if (const QStringList left = _fileSystemWatcher->removePaths(watched); !left.isEmpty())
            qDebug() << "Failed to remove some watched paths:" << left;
    }
    // Sub-directories are not watched, even if the scan included them.
    if (!_fileSystemWatcher->addPath(ui->lEWorkingPath->text()))
        qDebug() << "Failed to add path to watcher:" << ui->lEWorkingPath->text();
    qDebug() << "Watching:" << _fileSystemWatcher->directories();
}

void MainWindow::onWorkingDirectoryChanged(const QString& path) {
    qDebug() << "FW Directory changed:" << path;
    // A notification of the previous directory may still be queued after another one was opened.
    if (path != _lastScan.path)
        return;
    // At once, so a file that is still being written is read as far as it is.
    const QStringList listing =
        scanDirectory(path, mediaNameFilters(), ui->cBWorkingDirScanRecursive->isChecked());
    watcherAddNewFiles(listing);
    watcherRemoveMissingFiles();
}

void MainWindow::watcherAddNewFiles(const QStringList& fileList) {
    QSet<QString> known;
    const QStringList rows = allFilePaths();
    known.reserve(rows.size());
    for (const QString& row : rows)
        known.insert(foldedCase(row));
    QStringList added;
    for (const QString& file : fileList) {
        const QString suffix = QFileInfo(file).suffix();
        if (!known.contains(foldedCase(file)) && _supportedFormats.contains(suffix, Qt::CaseInsensitive))
            added.append(file);
    }
    {
        const UpdatesOff updatesOff(mediaViews());
        for (const QString& file : std::as_const(added)) {
            addFileItem(file);
            queuePreview(file, previewSize());
        }
        // The filter line is not applied to new rows; they stay visible until it runs again.
        readTagFiles(added);
        if (_imageLoader)
            _imageLoader->start();
    }
    onShowMessage(tr("Added %1 new items.").arg(added.size()));
}

void MainWindow::watcherRemoveMissingFiles() {
    QStringList missing = allFilePaths();
    missing.removeIf([](const QString& file) { return QFile::exists(file); });
    if (!missing.isEmpty())
        // Their tags are removed as well, saved or not.
        removeFileItems(missing);
    onShowMessage(tr("Removed %1 missing items.").arg(missing.size()));
}

void MainWindow::onRefreshOpenFilePath() {
    const QString path = ui->lEWorkingPath->text();
    if (userSaysYes(this, tr("Refresh %1 working directory?").arg(path),
                    tr("All unsaved changes to tags will be discarded.")))
        openWorkingDirectory(path);
}

void MainWindow::onSrcSelectPath() {
    if (_workingPath.isEmpty())
        _workingPath = QCoreApplication::applicationDirPath();
    const QString path = ui->lEWorkingPath->text();
    if (!path.isEmpty() && QFile::exists(path))
        _workingPath = path;
    else
        qDebug() << "Provided user working path is empty..." << path;
    if (!path.isEmpty() && _itemModel->rowCount() > 0 &&
        !userSaysYes(this, tr("Change %1 working directory?").arg(path),
                     tr("All unsaved changes to tags will be discarded.")))
        return;
    const QString chosen =
        QFileDialog::getExistingDirectory(this, tr("Select directory"), _workingPath,
                                          QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (chosen.isEmpty())
        return;
    _workingPath = chosen;
    ui->lEWorkingPath->setText(chosen);
    openWorkingDirectory(chosen);
}

void MainWindow::onWorkingPathEdited() {
    // Closing the window removes the focus from the edit, which emits editingFinished; no question is asked
    // then.
    if (windowHandle() && isHidden())
        return;
    const QString path = ui->lEWorkingPath->text();
    if (!_workingPath.isEmpty() &&
        !userSaysYes(this, tr("Change current working directory to %1?").arg(path))) {
        const QSignalBlocker blocker(ui->lEWorkingPath);
        ui->lEWorkingPath->setText(_workingPath);
        return;
    }
    openWorkingDirectory(path);
}
