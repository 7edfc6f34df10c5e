#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "app/services/FileFailure.h"
#include "catalogue/FileNaming.h"
#include "tags/SidecarFile.h"
#include "tags/TagRecord.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QFileInfo>

#include <optional>

namespace {

// The editor is bound to a file by these dynamic properties.
constexpr auto txtFileNameProperty = "txtFileName";
constexpr auto imgFileNameProperty = "imgFileName";
constexpr auto followedFileProperty = "followedFile";

void logBackup(const QString& txtFileName, const SidecarWrite& write) {
    if (write.outcome == SidecarWrite::NoBackupName)
        qDebug() << "Error, backup file path is empty for:" << txtFileName;
    if (!write.backupError.isEmpty())
        qDebug() << "Failed to rename to backup txt file:" << write.backupError;
}

QString sidecarError(const SidecarWrite& write) {
    switch (write.outcome) {
    case SidecarWrite::NoBackupName:
        return MainWindow::tr("no backup name is left");
    case SidecarWrite::CutShort:
        return MainWindow::tr("the disk took only a part");
    default:
        return write.error;
    }
}

// Shows a loaded text, which is no edit of the user and cannot be undone.
void showLoadedText(QPlainTextEdit* edit, const QString& text) {
    // Switching undo off also clears its history.
    edit->setUndoRedoEnabled(false);
    edit->clear();
    edit->appendPlainText(text);
    edit->setUndoRedoEnabled(true);
    edit->document()->setModified(false);
}

} // namespace

void MainWindow::initSidecarConnections() {
    connect(ui->actionSave_tags, &QAction::triggered, this, &MainWindow::onSaveTags);
    connect(ui->tBSaveTags, &QToolButton::clicked, this, &MainWindow::onSaveTags);
    connect(ui->tBSaveTagTxtFile, &QToolButton::clicked, this, &MainWindow::onSaveTagTxtFile);
}

QStringList MainWindow::imageTags(const QString& filePath) const {
    checkMediaKey(filePath);
    return _imageTags->tags(filePath);
}

void MainWindow::setImageTags(const QString& filePath, const QStringList& tags) {
    checkMediaKey(filePath);
    _imageTags->setTags(filePath, tags);
}

void MainWindow::removeImageTags(const QString& filePath) {
    checkMediaKey(filePath);
    _imageTags->remove({filePath});
}

bool MainWindow::checkMediaKey(const QString& filePath) const {
    const bool isMedia = _supportedFormats.contains(QFileInfo(filePath).suffix().toLower());
    if (!isMedia)
        qDebug() << "Error, key is not image file:" << filePath;
    return isMedia;
}

QStringList MainWindow::readTagFile(const QString& filePath) {
    const QString txtFileName = imgFilePathToTxtFilePath(filePath);
    ui->pTETagsFromFile->setProperty(txtFileNameProperty, txtFileName);
    ui->pTETagsFromFile->setProperty(imgFileNameProperty, filePath);
    // From the disk, so the editor shows what the file holds, not the unsaved tags.
    const std::optional<QString> text = sidecarText(txtFileName);
    showLoadedText(ui->pTETagsFromFile, text.value_or(QString()));
    ui->labelTagsFromFile->setText(
        (text ? tr("File: %1") : tr("File tag, txt, missing for: %1")).arg(txtFileName));
    return tagsFromText(text.value_or(QString()));
}

void MainWindow::readTagFiles(const QStringList& filePaths) {
    _imageTags->load(filePaths);
    showLastTagFile(filePaths);
}

void MainWindow::importTagFiles(const QStringList& filePaths) {
    _imageTags->importFiles(filePaths);
    showLastTagFile(filePaths);
}

void MainWindow::showLastTagFile(const QStringList& filePaths) {
    if (!filePaths.isEmpty() && !isTagFileEdited())
        readTagFile(filePaths.last());
}

void MainWindow::unbindTagFile() {
    ui->pTETagsFromFile->setProperty(txtFileNameProperty, QString());
    ui->pTETagsFromFile->setProperty(imgFileNameProperty, QString());
    showLoadedText(ui->pTETagsFromFile, {});
    ui->labelTagsFromFile->setText(tr("File:"));
}

void MainWindow::followTagFile(const QString& filePath) {
    // Editing tags also calls this, with an unchanged selection, and must not discard typed text.
    if (isTagFileEdited() && ui->pTETagsFromFile->property(followedFileProperty).toString() == filePath)
        return;
    ui->pTETagsFromFile->setProperty(followedFileProperty, filePath);
    readTagFile(filePath);
}

bool MainWindow::isTagFileEdited() const {
    return ui->pTETagsFromFile->document()->isModified();
}

void MainWindow::onSaveTags() {
    const WaitCursor waitCursor;
    const TagSaveReport report =
        _imageTags->save({ui->cBBackupTxt->isChecked(), ui->cBSaveTagsDuplicates->isChecked(),
                          [this](qsizetype done, qsizetype total) {
                              showBlockingProgress(tr("saved %1/%2").arg(done).arg(total));
                          }});
    showBlockingProgress({});
    QStringList failures;
    for (const TagSaveRemark& remark : report.remarks) {
        if (remark.isShared)
            qWarning() << "Warning, another file shares this sidecar, its tags are overwritten:"
                       << remark.txtFileName;
        logBackup(remark.txtFileName, remark.write);
        if (remark.write.outcome == SidecarWrite::NotOpened)
            qDebug() << "Failed to open txt file:" << remark.write.error << remark.txtFileName;
        else if (remark.write.outcome == SidecarWrite::NotWritten ||
                 remark.write.outcome == SidecarWrite::CutShort)
            qDebug() << "Failed to write data to txt file:" << remark.write.error << remark.txtFileName;
        if (remark.write.outcome != SidecarWrite::Written)
            failures.append(fileFailure(remark.txtFileName, sidecarError(remark.write)));
    }
    showResult(tr("saved"), report.written, _imageTags->size(), failures);
    // A filter for unsaved files or missing sidecars has another result now.
    if (!report.isStopped)
        onFilterImages(ui->leFilterImages->text());
}

void MainWindow::onSaveTagTxtFile() {
    const QString txtFileName = ui->pTETagsFromFile->property(txtFileNameProperty).toString();
    const QString imgFileName = ui->pTETagsFromFile->property(imgFileNameProperty).toString();
    if (txtFileName.isEmpty())
        onShowMessage(tr("Error, file name is empty."));
    else if (saveTagTxtFile(imgFileName, txtFileName, ui->pTETagsFromFile->toPlainText()))
        ui->pTETagsFromFile->document()->setModified(false);
}

bool MainWindow::saveTagTxtFile(const QString& imgFileName, const QString& txtFileName, const QString& text) {
    // Exactly as it was typed: only "Save tags" trims tags and removes duplicates.
    const SidecarWrite write = writeSidecar(txtFileName, text, ui->cBBackupTxt->isChecked());
    logBackup(txtFileName, write);
    const bool isWritten = write.outcome == SidecarWrite::Written;
    showResult(tr("saved"), isWritten ? 1 : 0, 1,
               isWritten ? QStringList() : QStringList{fileFailure(txtFileName, sidecarError(write))});
    // The tags in memory may not be on the disk any more.
    if (!isWritten && write.left)
        _imageTags->setSidecarText(imgFileName, *write.left);
    // A text that was not written changes no tags.
    switch (write.outcome) {
    case SidecarWrite::NoBackupName:
        return false;
    case SidecarWrite::NotOpened:
        qDebug() << "Failed to open txt file:" << write.error;
        onShowMessage(tr("Failed to open txt file, error: %1").arg(write.error));
        return false;
    case SidecarWrite::NotWritten:
        qDebug() << "Failed to write data to txt file:" << write.error;
        onShowMessage(tr("Failed to write data to txt file, error: %1").arg(write.error));
        return false;
    case SidecarWrite::CutShort:
        // The record gets the tags all the same and keeps them as unsaved.
        qDebug() << "Error, txt file is cut short:" << txtFileName << "data:" << text.toUtf8().size();
        break;
    case SidecarWrite::Written:
        break;
    }
    qDebug() << "Tags written to:" << txtFileName << "written data:" << write.written;
    if (imgFileName.isEmpty()) {
        onShowMessage(tr("Error, image file name is empty."));
        return true;
    }
    checkMediaKey(imgFileName);
    if (isWritten)
        _imageTags->setSavedTags(imgFileName, tagsFromText(text));
    else
        _imageTags->setTags(imgFileName, tagsFromText(text));
    refreshImageTags(imgFileName);
    // The failure is shown, as the file on the disk differs from the text on the screen.
    if (!isWritten)
        onShowMessage(tr("Failed to write data to txt file, error: %1").arg(sidecarError(write)));
    return isWritten;
}

void MainWindow::onTxtTagsAccepted(const QString& imgFile, const QString& text, const QString& tags) {
    // The second text is the path of the sidecar, the third its new content.
    if (!saveTagTxtFile(imgFile, text, tags)) {
        // The dialog closes all the same, so the typed tags stay in memory, as unsaved ones.
        _imageTags->setTags(imgFile, tagsFromText(tags));
        _imageTags->setSidecarText(imgFile, sidecarText(text).value_or(QString()));
        refreshSelectionTags(selectedFilePaths());
    }
    if (!isTagFileEdited())
        readTagFile(imgFile);
}
