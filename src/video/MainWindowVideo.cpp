#include "app/MainWindow.h"

#include "app/StatusPanel.h"
#include "app/WindowPlace.h"
#include "app/services/FileFailure.h"
#include "app/services/ImageFile.h"
#include "ui_MainWindow.h"
#include "video/VideoTexts.h"
#include "video/VideoWidget.h"

#include <QDateTime>
#include <QDebug>

namespace {

constexpr auto frameFormat = "png";
constexpr int frameQuality = 99;

} // namespace

VideoWidget* MainWindow::showEditVideoWidget() {
    auto* window = new VideoWidget(this);
    keepWindowPlace(window, keys::videoWidgetGeometry, keys::videoWidgetState);
    connect(window, &VideoWidget::imagePic, this, &MainWindow::onVideoPicCaptured);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}

void MainWindow::editVideo(const QString& filePath) {
    showEditVideoWidget()->openFile(filePath);
}

void MainWindow::onVideoPicCaptured(const QImage& img, const QString& fileName) {
    if (img.isNull()) {
        qDebug() << "Image is null...";
        return;
    }
    auto* window = qobject_cast<VideoWidget*>(sender());
    const auto answer = [window](const QString& text) {
        if (window)
            window->showStatus(text);
    };
    // Each outcome is reported in the window that grabbed, too, which may cover the main window.
    const QString directory = ui->lEWorkingPath->text();
    if (directory.isEmpty()) {
        qDebug() << "Path is empty...";
        answer(tr("No working directory to save the frame to."));
        return;
    }
    const auto openedDirectory = window ? std::optional(window->lastOpenPath()) : std::nullopt;
    const QString path = grabbedFrameFilePath(
        directory, grabbedFrameBaseName(fileName, openedDirectory, QDateTime::currentDateTime()));
    if (QString error; !writeImageFile(img, path, {.format = frameFormat, .quality = frameQuality}, &error)) {
        qDebug() << "Error, unable to save image to:" << path;
        onShowMessage(tr("Error, unable to save file to: %1").arg(path));
        _statusPanel->addToResult(tr("grabbed"), fileFailure(path, error));
        answer(tr("Error, unable to save file to: %1").arg(path));
        return;
    }
    answer(tr("Saved frame to: %1").arg(path));
    _statusPanel->addToResult(tr("grabbed"), {});
    // Not left to the directory watcher, so that the row is there at once.
    addFileItem(path);
    reloadFile(path);
}
