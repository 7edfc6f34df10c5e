#include "app/MainWindow.h"

#include "app/OptionsDialog.h"
#include "app/services/Settings.h"
#include "catalogue/ImageLoaderThreaded.h"
#include "ui_MainWindow.h"

#include <QDebug>

void MainWindow::initOptionsConnections() {
    connect(ui->action_Options, &QAction::triggered, this, &MainWindow::onOptions);
}

void MainWindow::onOptions() {
    auto* dialog = new OptionsDialog(this);
    connect(dialog, &QObject::destroyed, this, &MainWindow::onOptionsClosed);
    // Deleted at the end of exec(); by then the dialog has stored its values.
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->exec();
}

void MainWindow::onOptionsClosed() {
    qDebug() << "MainWindow::onOptionsClosed";
    const Settings* settings = Settings::instance();
    const QSize gridSize = settings->get(keys::gridSizeListView);
    if (gridSize != ui->listView->gridSize()) {
        ui->listView->setGridSize(gridSize);
        // Canvases have the size of the grid. The scan drops unsaved tags, which the recovery offers.
        openWorkingDirectory(ui->lEWorkingPath->text());
    }
    // A loader that is made later reads the setting by itself.
    if (_imageLoader)
        _imageLoader->setImageThreadCount(settings->get(keys::imagePreviewThreadCount));
}

// A dialog that is still open when the window is destroyed would start a scan on closing, so it is
// disconnected first.
void MainWindow::closeOptions() {
    const QList<OptionsDialog*> dialogs = findChildren<OptionsDialog*>(Qt::FindDirectChildrenOnly);
    for (OptionsDialog* dialog : dialogs) {
        disconnect(dialog, nullptr, this, nullptr);
        dialog->close();
        delete dialog;
    }
}
