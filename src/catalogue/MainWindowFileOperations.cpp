#include "app/MainWindow.h"

#include "app/Questions.h"
#include "app/WaitCursor.h"
#include "app/services/FileFailure.h"
#include "app/services/Settings.h"
#include "app/services/Trash.h"
#include "app/services/Utils.h"
#include "catalogue/FileNaming.h"
#include "catalogue/SelectionWatcher.h"
#include "catalogue/StrayTxtFiles.h"
#include "catalogue/ViewSetup.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype openWithoutAsking = 8;

struct DirectoryNames {
    QStringList all;
    QStringList txtFiles;
};

DirectoryNames namesInDirectory(const QString& directory) {
    DirectoryNames names;
    QDirIterator entries(directory, QDir::AllEntries);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        names.all.append(name);
        // A directory of such a name would be moved to the trash with all that it holds.
        if (name.endsWith(".txt"_L1, Qt::CaseInsensitive) && entries.fileInfo().isFile())
            names.txtFiles.append(name);
    }
    return names;
}

QStringList localPaths(const QMimeData* data) {
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile())
            paths.append(QDir::cleanPath(url.toLocalFile()));
    }
    return paths;
}

// Leaves files that are dropped on a text field to the window. The field would insert their paths.
class FileDropFilter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::DragEnter ||
            localPaths(static_cast<QDragEnterEvent*>(event)->mimeData()).isEmpty())
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

void MainWindow::initFileOperationConnections() {
    setAcceptDrops(true);
    auto* dropFilter = new FileDropFilter(this);
    const auto lines = findChildren<QLineEdit*>();
    for (QLineEdit* line : lines)
        line->installEventFilter(dropFilter);
    const auto texts = findChildren<QPlainTextEdit*>();
    for (QPlainTextEdit* text : texts)
        // QAbstractScrollArea accepts drops on its viewport, not on itself.
        text->viewport()->installEventFilter(dropFilter);
    connect(ui->action_Import_files, &QAction::triggered, this, &MainWindow::importFiles);
}

QString MainWindow::selectDirectory() {
    QString directory =
        QFileDialog::getExistingDirectory(this, tr("Select directory"), _workingPath,
                                          QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (!directory.isEmpty())
        // Only the next dialog starts there; the catalogue still shows the directory that is open.
        _workingPath = directory;
    return directory;
}

void MainWindow::copyFiles() {
    transferFiles(tr("copied"), [](QFile& source, const QString& target) { return source.copy(target); });
}

void MainWindow::moveFiles() {
    transferFiles(tr("moved"), [this](QFile& source, const QString& target) {
        // Not every system can move a file that the player has open.
        ui->vidWidget->stop(source.fileName());
        return source.rename(target);
    });
}

void MainWindow::transferFiles(const QString& verb,
                               const std::function<bool(QFile& source, const QString& target)>& transfer) {
    const QStringList files = selectedFilePaths();
    const QString directory = files.isEmpty() ? QString() : selectDirectory();
    if (directory.isEmpty())
        return;
    const WaitCursor waitCursor;
    qsizetype done = 0;
    QStringList failures;
    for (const QString& source : files) {
        const QString target = destinationFilePath(source, directory);
        QFile file(source);
        // Neither copy() nor rename() replaces an existing file, so a taken name is a failure.
        if (transfer(file, target)) {
            ++done;
        } else {
            failures.append(fileFailure(source, file.errorString()));
            // The same text for copies and moves.
            onShowMessage(tr("Error, unable to copy file: %1 to: %2 error: %3")
                              .arg(source, target, file.errorString()));
        }
        showBlockingProgress(tr("%1 %2/%3").arg(verb).arg(done).arg(files.size()));
    }
    showBlockingProgress({});
    // The rows are left to the directory watcher, which lists the directory after its next change.
    showResult(verb, done, files.size(), failures);
}

void MainWindow::deleteFile() {
    const QStringList files = selectedFilePaths();
    if (files.isEmpty())
        return;
    const auto answer =
        askUser(this, tr("Delete files."), tr("Do you want to delete %1 files?").arg(files.size()),
                QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer == QMessageBox::Cancel)
        return;
    const WaitCursor waitCursor;
    QStringList errors;
    QStringList failures;
    for (const QString& path : files) {
        ui->vidWidget->stop(path);
        if (const std::optional<QString> error = moveToTrash(path)) {
            qDebug() << "Error, unable to move file to trash:" << *error << path;
            errors.append(*error);
            failures.append(fileFailure(path, *error));
        }
        // The list is not copied by the loop, so the address of an element gives its index.
        showBlockingProgress(tr("deleted %1/%2").arg(&path - files.data() + 1).arg(files.size()));
    }
    showBlockingProgress({});
    {
        // Selects the row that takes the place of the deleted ones, so that the user can continue from there.
        const SelectionWatcher::Hold hold(*_selection);
        const int row = firstRow(selectedIndexes());
        // Also the rows of files that could not be moved; the next listing of the directory adds them again.
        removeFileItems(files);
        selectRow(row);
    }
    // Shown last: removing rows changes the selection, whose own message would replace these.
    for (const QString& error : std::as_const(errors))
        onShowMessage(tr("Error, unable to move file to trash, error: %1").arg(error));
    showResult(tr("deleted"), files.size() - failures.size(), files.size(), failures);
}

void MainWindow::deleteStrayTxtFiles() {
    const QString directory = ui->lEWorkingPath->text();
    if (directory.isEmpty()) {
        onShowMessage(tr("Working path empty."));
        return;
    }
    if (!QFile::exists(directory)) {
        onShowMessage(tr("Working path dont exists."));
        return;
    }
    const WaitCursor waitCursor;
    const DirectoryNames names = namesInDirectory(directory);
    const QStringList stray = strayTxtFiles(names.txtFiles, names.all, _supportedFormats);
    QStringList failures;
    for (const QString& name : stray) {
        const QString path = destinationFilePath(name, directory);
        if (const std::optional<QString> error = moveToTrash(path)) {
            failures.append(fileFailure(path, *error));
            showBlockingMessage(tr("Failed to trash file: %1").arg(path));
        }
    }
    // The number includes files that could not be moved; the result in the panel does not.
    onShowMessage(tr("Found %1 stray txt files, moved to trash bin.").arg(stray.size()));
    showResult(tr("deleted"), stray.size() - failures.size(), stray.size(), failures);
}

QString MainWindow::importDirectory() {
    QString directory = ui->lEWorkingPath->text();
    if (directory.isEmpty()) {
        showNotice(this, tr("Set working directory. Path is empty."));
        return {};
    }
    if (!QFile::exists(directory)) {
        showNotice(this, tr("Working directory don't exists at: %1").arg(directory));
        return {};
    }
    return directory;
}

void MainWindow::importFiles() {
    const QString directory = importDirectory();
    if (directory.isEmpty())
        return;
    const QStringList sources =
        QFileDialog::getOpenFileNames(this, tr("Select files to import"), _workingPath, tr("Files (*.*)"));
    if (sources.isEmpty())
        return;
    _workingPath = QFileInfo(sources.first()).path();
    importPaths(sources, directory);
}

void MainWindow::importPaths(const QStringList& sources, const QString& directory) {
    const bool deleteSource = Settings::instance()->get(keys::importFilesDeleteSrc);
    const bool autoRename = Settings::instance()->get(keys::importFilesAutoRename);
    const WaitCursor waitCursor;
    QStringList failures;
    QStringList mediaFiles;
    for (const QString& source : sources) {
        const QString error = importFile(source, directory, autoRename, deleteSource, mediaFiles);
        if (!error.isNull())
            failures.append(fileFailure(source, error));
    }
    // Read after the last copy, as a sidecar may be copied after its media file.
    importTagFiles(mediaFiles);
    showResult(tr("imported"), sources.size() - failures.size(), sources.size(), failures);
}

void MainWindow::openDropped(const QStringList& paths) {
    if (paths.size() == 1 && QFileInfo(paths.first()).isDir()) {
        ui->lEWorkingPath->setText(paths.first());
        onWorkingPathEdited();
    } else if (const QString directory = importDirectory(); !directory.isEmpty()) {
        importPaths(paths, directory);
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!localPaths(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    // Where a move was proposed, the other program would delete its files after the drop.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The program that the files are dragged from is blocked until this returns, and the import may ask the
    // user something.
    QTimer::singleShot(0, this, [this, paths = localPaths(event->mimeData())] { openDropped(paths); });
}

QString MainWindow::importFile(const QString& source, const QString& directory, bool autoRename,
                               bool deleteSource, QStringList& mediaFiles) {
    const QFileInfo info(source);
    // The copy of a file without a suffix ends in a dot.
    QString target = pathInDirectory(directory, u"%1.%2"_s.arg(info.completeBaseName(), info.suffix()));
    if (QFile::exists(target)) {
        if (!autoRename) {
            showBlockingMessage(
                tr("Unable to import file from %1, file already exist at: %2").arg(source, target));
            return tr("file already exist at: %1").arg(target);
        }
        // One call of arg() for all texts: a "%2" in a file name is not taken for a placeholder.
        target = firstFreePath([&](int number) {
            return pathInDirectory(directory, u"%1_%3.%2"_s.arg(info.completeBaseName(), info.suffix(),
                                                                QString::number(number)));
        });
    }
    QFile file(source);
    if (!file.copy(target)) {
        showBlockingMessage(
            tr("Unable to import file from %1, copy error: %2").arg(source, file.errorString()));
        return file.errorString();
    }
    showBlockingMessage(tr("Imported file from %1 to %2").arg(source, target));
    if (deleteSource) {
        if (const std::optional<QString> error = moveToTrash(source)) {
            showBlockingMessage(
                tr("Import file error, unable to move to trash file: %1, error: %2").arg(source, *error));
        }
    }
    // The watcher makes the row later. Until then the queue alone has the file, and the missing row is
    // logged.
    queuePreview(target, previewSize());
    // A text file gets no entry in the tag record: it is a sidecar itself, which saving that entry would
    // overwrite.
    if (checkMediaKey(target))
        mediaFiles.append(target);
    return {};
}

bool MainWindow::wantsToOpenMany(qsizetype count) {
    return count <= openWithoutAsking || userSaysYes(this, tr("Open %1 file browsers?").arg(count));
}

void MainWindow::openInNativeApp() {
    const QStringList files = selectedFilePaths();
    if (!wantsToOpenMany(files.size()))
        return;
    for (const QString& path : files)
        if (!QDesktopServices::openUrl(QUrl::fromUserInput(path)))
            onShowMessage(tr("Error, no application to open file: %1").arg(path));
}

void MainWindow::showPathInFileBrowser() {
    const QStringList files = selectedFilePaths();
    if (!wantsToOpenMany(files.size()))
        return;
    for (const QString& path : files)
        Utils::instance()->revealInFileBrowser(path, true, nullptr);
}
