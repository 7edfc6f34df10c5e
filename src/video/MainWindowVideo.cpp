#include "app/MainWindow.h"

#include "app/services/ImageFile.h"
#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
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
    const Settings* settings = Settings::instance();
    const QByteArray geometry = settings->data(keys::videoWidgetGeometry).toByteArray();
    if (!geometry.isEmpty() && !window->restoreGeometry(geometry))
        qDebug() << "Error, unable to restore geometry for:" << window;
    const QByteArray state = settings->data(keys::videoWidgetState).toByteArray();
    if (!state.isEmpty() && !window->restoreState(state))
        qDebug() << "Error, unable to restore state for:" << window;
    connect(window, &VideoWidget::imagePic, this, &MainWindow::onVideoPicCaptured);
    connect(window, &VideoWidget::widgetGeometry, this, [](const QByteArray& saved) {
        Settings::instance()->setData(keys::videoWidgetGeometry, saved, true);
    });
    connect(window, &VideoWidget::widgetState, this, [](const QByteArray& saved) {
        Settings::instance()->setData(keys::videoWidgetState, saved, true);
    });
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
    const QString directory = ui->lEWorkingPath->text();
    if (directory.isEmpty()) {
        qDebug() << "Path is empty...";
        answer(tr("No working directory to save the frame to."));
        return;
    }
    const auto openedDirectory = window ? std::optional(window->lastOpenPath()) : std::nullopt;
    const QString path = grabbedFrameFilePath(
        directory, grabbedFrameBaseName(fileName, openedDirectory, QDateTime::currentDateTime()));
    if (!writeImageFile(img, path, {.format = frameFormat, .quality = frameQuality})) {
        qDebug() << "Error, unable to save image to:" << path;
        onShowMessage(tr("Error, unable to save file to: %1").arg(path));
        answer(tr("Error, unable to save file to: %1").arg(path));
        return;
    }
    answer(tr("Saved frame to: %1").arg(path));
    addFileItem(path);
    reloadFile(path);
}
