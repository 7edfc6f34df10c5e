#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "catalogue/FileNaming.h"
#include "tags/SidecarFile.h"
#include "tags/TagText.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <optional>

namespace {

constexpr auto txtFileNameProperty = "txtFileName";
constexpr auto imgFileNameProperty = "imgFileName";

enum class Backup { Made, NoFreeName };

// A rename that fails is logged, and the write goes ahead all the same.
Backup makeSidecarBackup(const QString& txtFileName) {
    const QString backupName = txtFilePathBackupFilePath(txtFileName);
    if (backupName.isEmpty()) {
        qDebug() << "Error, backup file path is empty for:" << txtFileName;
        return Backup::NoFreeName;
    }
    QFile sidecar(txtFileName);
    if (!sidecar.rename(backupName))
        qDebug() << "Failed to rename to backup txt file:" << sidecar.errorString();
    return Backup::Made;
}

} // namespace

QStringList MainWindow::imageTags(const QString& filePath) const {
    checkMediaKey(filePath);
    return _imageTags.value(filePath);
}

void MainWindow::setImageTags(const QString& filePath, const QStringList& tags) {
    checkMediaKey(filePath);
    _imageTags.insert(filePath, tags);
}

void MainWindow::removeImageTags(const QString& filePath) {
    checkMediaKey(filePath);
    _imageTags.remove(filePath);
}

void MainWindow::checkMediaKey(const QString& filePath) const {
    if (!_supportedFormats.contains(QFileInfo(filePath).suffix().toLower()))
        qDebug() << "Error, key is not image file:" << filePath;
}

QStringList MainWindow::readTagFile(const QString& filePath) {
    const QString txtFileName = imgFilePathToTxtFilePath(filePath);
    ui->labelTagsFromFile->setText(tr("File tag, txt, missing for: %1").arg(txtFileName));
    ui->pTETagsFromFile->clear();
    ui->pTETagsFromFile->setProperty(txtFileNameProperty, txtFileName);
    ui->pTETagsFromFile->setProperty(imgFileNameProperty, filePath);
    const std::optional<QString> text = sidecarText(txtFileName);
    if (!text)
        return {};
    ui->pTETagsFromFile->appendPlainText(*text);
    ui->labelTagsFromFile->setText(tr("File: %1").arg(txtFileName));
    return tagsFromText(*text);
}

void MainWindow::readTagFiles(const QStringList& filePaths) {
    // The editor shows one file after another and ends with the last, so only that one is worth showing.
    // Equal tags of different files share one string.
    QSet<QString> knownTags;
    _imageTags.reserve(_imageTags.size() + filePaths.size());
    for (const QString& filePath : filePaths) {
        const QString text = sidecarText(imgFilePathToTxtFilePath(filePath)).value_or(QString());
        QStringList tags = tagsFromText(text);
        for (QString& tag : tags)
            tag = *knownTags.insert(tag);
        setImageTags(filePath, tags);
    }
    if (!filePaths.isEmpty())
        readTagFile(filePaths.last());
}

void MainWindow::onSaveTags() {
    const WaitCursor waitCursor;
    const bool makesBackups = ui->cBBackupTxt->isChecked();
    const bool keepsDuplicates = ui->cBSaveTagsDuplicates->isChecked();
    QSet<QString> written;
    for (const auto& [filePath, tags] : std::as_const(_imageTags).asKeyValueRange()) {
        const QString text = savedTagText(tags, keepsDuplicates);
        const QString txtFileName = imgFilePathToTxtFilePath(filePath);
        if (written.contains(txtFileName))
            qDebug() << "Warning, another file shares this sidecar, its tags are overwritten:" << txtFileName;
        written.insert(txtFileName);
        if (makesBackups && QFile::exists(txtFileName) &&
            makeSidecarBackup(txtFileName) == Backup::NoFreeName)
            return;
        QFile file(txtFileName);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            qDebug() << "Failed to open txt file:" << file.errorString() << txtFileName;
            continue;
        }
        const QByteArray bytes = text.toUtf8();
        if (file.write(bytes) != bytes.size())
            qDebug() << "Failed to write data to txt file:" << file.errorString() << txtFileName;
    }
    onFilterImages(ui->leFilterImages->text());
}

void MainWindow::onSaveTagTxtFile() {
    const QString txtFileName = ui->pTETagsFromFile->property(txtFileNameProperty).toString();
    if (txtFileName.isEmpty())
        onShowMessage(tr("Error, file name is empty."));
    else
        saveTagTxtFile(txtFileName, ui->pTETagsFromFile->toPlainText());
}

void MainWindow::saveTagTxtFile(const QString& txtFileName, const QString& text) {
    if (ui->cBBackupTxt->isChecked() && QFile::exists(txtFileName) &&
        makeSidecarBackup(txtFileName) == Backup::NoFreeName)
        return;
    QFile file(txtFileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qDebug() << "Failed to open txt file:" << file.errorString();
        onShowMessage(tr("Failed to open txt file, error: %1").arg(file.errorString()));
        return;
    }
    const QByteArray bytes = text.toUtf8();
    const qint64 written = file.write(bytes);
    if (written == -1 || file.error() != QFileDevice::NoError) {
        qDebug() << "Failed to write data to txt file:" << file.errorString();
        onShowMessage(tr("Failed to write data to txt file, error: %1").arg(file.errorString()));
        return;
    }
    // A disk that fills up takes the first part without an error.
    if (written < bytes.size())
        qDebug() << "Error, txt file is cut short:" << txtFileName << "data:" << bytes.size();
    qDebug() << "Tags written to:" << txtFileName << "written data:" << written;
    const QString imgFileName = ui->pTETagsFromFile->property(imgFileNameProperty).toString();
    if (imgFileName.isEmpty()) {
        onShowMessage(tr("Error, image file name is empty."));
        return;
    }
    setImageTags(imgFileName, tagsFromText(text));
    refreshImageTags(imgFileName);
    refreshAllTags();
}

void MainWindow::onTxtTagsAccepted(const QString& imgFile, const QString& text, const QString& tags) {
    saveTagTxtFile(text, tags);
    readTagFile(imgFile);
}
