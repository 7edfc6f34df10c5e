#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "app/WindowPlace.h"
#include "app/services/Settings.h"
#include "editor/EditImageWidget.h"
#include "safetensors/SafetensorsDialog.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileDialog>
#include <QFileInfo>

namespace {

void storeSafetensorsPlace(const SafetensorsDialog* dialog) {
    Settings* settings = Settings::instance();
    settings->set(keys::safetensorDialogGeometry, dialog->saveGeometry());
    settings->set(keys::safetensorDialogSplitterState, dialog->saveSplitterState());
}

void restoreSafetensorsPlace(SafetensorsDialog* dialog) {
    restoreWindow(dialog, keys::safetensorDialogGeometry);
    // An empty state, before the first one is stored, changes nothing.
    dialog->restoreSplitterState(Settings::instance()->get(keys::safetensorDialogSplitterState));
}

} // namespace

void MainWindow::initSafetensorsConnections() {
    connect(ui->action_InspectSafetensor, &QAction::triggered, this, &MainWindow::onInspectSafetensor);
}

void MainWindow::onInspectSafetensor() {
    if (_lastOpenPathSafetensors.isEmpty())
        _lastOpenPathSafetensors = QCoreApplication::applicationDirPath();
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open safetensors file"), _lastOpenPathSafetensors, tr("Safetensors (*.safetensors)"));
    // The user has cancelled; the word "Error" is part of the fixed text.
    if (files.isEmpty()) {
        qDebug() << "Error, safetensor filename is empty.";
        return;
    }
    _lastOpenPathSafetensors = QFileInfo(files.first()).path();
    const Settings* settings = Settings::instance();
    // Only the initial state: the boxes of a window never change the settings.
    const bool includeTensorInfo = settings->get(keys::includeTensorInfo);
    const bool includeMetaInfo = settings->get(keys::includeMetaInfo);
    for (const QString& file : files)
        openSafetensorsDialog(file, includeTensorInfo, includeMetaInfo);
}

void MainWindow::openSafetensorsDialog(const QString& filePath, bool includeTensorInfo,
                                       bool includeMetaInfo) {
    onShowMessage(tr("Inspecting %1 safetensors").arg(filePath));
    const WaitCursor waitCursor;
    auto* dialog = new SafetensorsDialog(this);
    dialog->setImageFormats(_supportedFormats);
    dialog->setImageWidget(new EditImageWidget(dialog));
    connect(dialog, &SafetensorsDialog::aboutToBeDestroyed, dialog,
            [dialog] { storeSafetensorsPlace(dialog); });
    restoreSafetensorsPlace(dialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setSafetensorFile(filePath, includeTensorInfo, includeMetaInfo);
    dialog->show();
}
