#include "app/MainWindow.h"

#include "app/Questions.h"
#include "app/WindowPlace.h"
#include "app/services/FileFailure.h"
#include "app/services/Trash.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "catalogue/MediaItemModel.h"
#include "editor/EditImageDialog.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QFileInfo>
#include <QPointer>

#include <optional>

void MainWindow::editImage() {
    const QStringList files = selectedFilePaths();
    if (files.isEmpty())
        return;
    auto* dialog = new EditImageDialog(this);
    keepWindowPlace(dialog, keys::editImageWidgetGeometry, keys::editImageWidgetState);
    connect(dialog, &EditImageDialog::requestDeleteImage, this, &MainWindow::onRequestDeleteImage);
    connect(dialog, &EditImageDialog::requestImgPrev, this, &MainWindow::onEditImgRequestImgPrev);
    connect(dialog, &EditImageDialog::requestImgNext, this, &MainWindow::onEditImgRequestImgNext);
    connect(dialog, &EditImageDialog::message, this, &MainWindow::onShowMessage);
    connect(dialog, &EditImageDialog::saveFailed, this, &MainWindow::onImageSaveFailed);
    connect(dialog, &EditImageDialog::savedFile, this, &MainWindow::onEditImgSavedFile);
    connect(dialog, &EditImageDialog::newlySavedFile, this, &MainWindow::onEditImgNewlySavedFile);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    showInEditor(dialog, files.first());
    dialog->show();
}

QString MainWindow::fileIndexText(const QString& filePath) const {
    const int row = _itemModel->rowOf(filePath);
    return QStringLiteral("[%1 - %2]").arg(row < 0 ? -1 : row + 1).arg(_itemModel->rowCount());
}

// The path of the row that many steps away, wrapping around; empty for a path without a row.
QString MainWindow::steppedFilePath(const QString& filePath, int step) const {
    const int row = _itemModel->rowOf(filePath);
    const int count = _itemModel->rowCount();
    if (row < 0)
        return {};
    // The count is added so that a step back from the first row is not negative.
    return _itemModel->fileAt((row + step + count) % count);
}

void MainWindow::onEditImgRequestImgNext(const QString& currFilePath) {
    qDebug() << "MainWindow::onEditImgRequestImgNext";
    stepEditor(qobject_cast<EditImageDialog*>(sender()), currFilePath, 1);
}

void MainWindow::onEditImgRequestImgPrev(const QString& currFilePath) {
    qDebug() << "MainWindow::onEditImgRequestImgPrev";
    stepEditor(qobject_cast<EditImageDialog*>(sender()), currFilePath, -1);
}

void MainWindow::stepEditor(EditImageDialog* dialog, const QString& currFilePath, int step) {
    if (!dialog) {
        qDebug() << "Error, sender not EditImageDialog";
        return;
    }
    if (const QString path = steppedFilePath(currFilePath, step); !path.isEmpty())
        showInEditor(dialog, path);
}

void MainWindow::showInEditor(EditImageDialog* dialog, const QString& filePath) {
    dialog->setImageFile(filePath, fileIndexText(filePath));
    // Videos are not skipped, and a picture may be damaged.
    if (dialog->isEmpty())
        dialog->showStatus(fileFailure(filePath, tr("no image was read")));
}

void MainWindow::initEditorConnections() {
    connect(ui->imgWidget, &EditImageWidget::message, this, &MainWindow::onShowMessage);
    connect(ui->imgWidget, &EditImageWidget::saveFailed, this, &MainWindow::onImageSaveFailed);
    connect(ui->imgWidget, &EditImageWidget::savedFile, this, &MainWindow::showImageSaved);
    connect(ui->imgWidget, &EditImageWidget::newlySavedFile, this, &MainWindow::showImageSaved);
}

void MainWindow::showImageSaved() {
    showResult(tr("saved"), 1, 1, {});
}

void MainWindow::onImageSaveFailed(const QString& filePath, const QString& reason) {
    showResult(tr("saved"), 0, 1, {fileFailure(filePath, reason)});
}

void MainWindow::onEditImgSavedFile(const QString& fileName) {
    showImageSaved();
    queuePreview(fileName, previewSize());
    // The loader takes queued files only from a start on.
    if (_imageLoader)
        _imageLoader->start();
    onShowMessage(tr("Saved image: %1").arg(fileName));
}

void MainWindow::onEditImgNewlySavedFile(const QString& fileName) {
    showImageSaved();
    qDebug() << "MainWindow::onEditImgNewlySavedFile" << fileName;
    if (_itemModel->contains(fileName)) {
        onShowMessage(tr("Saved image as file: %1, file overwritten.").arg(fileName));
        return;
    }
    // Compared as text, as the keys of the catalogue are.
    if (QFileInfo(fileName).path() != ui->lEWorkingPath->text()) {
        onShowMessage(
            tr("Saved image as file: %1, outside of working directory, not adding to list.").arg(fileName));
        return;
    }
    onShowMessage(tr("Adding saved image as file: %1").arg(fileName));
    addFileItem(fileName);
    reloadFile(fileName);
}

void MainWindow::reloadFile(const QString& filePath) {
    queuePreview(filePath, previewSize());
    readTagFiles({filePath});
}

void MainWindow::onRequestDeleteImage(const QString& filePath) {
    qDebug() << "MainWindow::onRequestDeleteImage";
    // The editor window may be closed while the question runs its event loop.
    const QPointer<EditImageDialog> dialog = qobject_cast<EditImageDialog*>(sender());
    const auto answer =
        askUser(nullptr, tr("Delete file?"), tr("Do you want to delete %1 file?").arg(filePath),
                QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer == QMessageBox::Cancel)
        return;
    if (!dialog) {
        qDebug() << "Error, sender not EditImageDialog";
        return;
    }
    // While the file still has a row; the directory watcher removes it later.
    const QString next = steppedFilePath(filePath, 1);
    if (const std::optional<QString> error = moveToTrash(filePath)) {
        qDebug() << "Error, unable to move file to trash:" << filePath << *error;
        ui->statusbar->showMessage(tr("Error %1 unable move file %2 to trash.").arg(*error, filePath));
        return;
    }
    // Where the file was the only one, next is that file, and the window keeps its picture.
    showInEditor(dialog, next);
}
