#include "app/MainWindow.h"

#include "catalogue/MediaFormats.h"
#include "catalogue/MediaModel.h"
#include "catalogue/SelectionWatcher.h"
#include "catalogue/ViewSetup.h"
#include "ui_MainWindow.h"

#include <QMenu>

using namespace Qt::StringLiterals;

void MainWindow::initContextMenuConnections() {
    const auto views = mediaViews();
    for (const QAbstractItemView* view : views)
        connect(view, &QWidget::customContextMenuRequested, this, &MainWindow::onImagesCustomContextMenu);
}

void MainWindow::onImagesCustomContextMenu(const QPoint& pos) {
    const QStringList files = selectedFilePaths();
    if (files.isEmpty())
        return;
    const QString& firstFile = files.first();
    QMenu menu;
    const QList<QAction*> windowActions = actions();
    for (QAction* action : windowActions) {
        // The image editor cannot open a clip, for which there is an entry below.
        if (action->data().toString() != "editImage"_L1 || !isVideoFile(firstFile))
            menu.addAction(action);
    }
    if (hasFilledTxtFile(firstFile))
        menu.addAction(tr("Edit &tag file"), this, [this, firstFile] { editTagFor(firstFile); });
    if (isVideoFile(firstFile))
        menu.addAction(tr("Edit v&ideo"), this, [this, firstFile] { editVideo(firstFile); });
    menu.addAction(tr("&Open in native app"), this, &MainWindow::openInNativeApp);
    menu.addAction(tr("Show file in &file browser"), this, &MainWindow::showPathInFileBrowser);
    menu.addAction(tr("&Import files"), this, &MainWindow::importFiles);
    menu.addAction(tr("Copy co&mment"), this, &MainWindow::onCopyComment);
    menu.addAction(tr("E&xtract workflow"), this, &MainWindow::onExtractWorkflow);
    menu.addAction(tr("Refresh"), this, &MainWindow::onRefreshOpenFilePath);
    addViewMenu(menu);
    addSortMenu(menu);
    menu.addSeparator();
    menu.addAction(tr("&Copy files"), this, &MainWindow::copyFiles);
    menu.addAction(tr("&Move files"), this, &MainWindow::moveFiles);
    menu.addAction(tr("&Delete stray txt files"), this, &MainWindow::deleteStrayTxtFiles);
    menu.addAction(tr("&Delete file"), this, &MainWindow::deleteFile);
    menu.exec(menuPosition(_selection->currentView(), pos));
}

void MainWindow::addViewMenu(QMenu& menu) {
    QMenu* view = menu.addMenu(tr("&View"));
    view->addAction(tr("&Icon"), this, [this] {
        setStaticViewMode(ui->listView, QListView::IconMode);
        ui->stackedWidget->setCurrentWidget(ui->pageListView);
    });
    view->addAction(tr("&List simple"), this, [this] {
        setStaticViewMode(ui->listView, QListView::ListMode);
        ui->stackedWidget->setCurrentWidget(ui->pageListView);
    });
    view->addAction(tr("&List"), this, [this] { ui->stackedWidget->setCurrentWidget(ui->pageTreeView); });
    view->addAction(tr("&Table"), this, [this] { ui->stackedWidget->setCurrentWidget(ui->pageTableView); });
}

void MainWindow::addSortMenu(QMenu& menu) {
    QMenu* sort = menu.addMenu(tr("&Sort"));
    sort->addAction(tr("&Name"), this, &MainWindow::onImagesSortByFileName);
    sort->addAction(tr("&Path"), this, &MainWindow::onImagesSortByFilePath);
    sort->addAction(tr("&Resolution"), this, &MainWindow::onImagesSortByResolution);
}
