#include "app/MainWindow.h"

#include "app/StatusPanel.h"
#include "app/WrappingRow.h"
#include "app/services/Settings.h"
#include "catalogue/IconIdentityProxyModel.h"
#include "catalogue/MediaFilter.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/MediaQuery.h"
#include "catalogue/SelectionWatcher.h"
#include "catalogue/ShortTextDelegate.h"
#include "catalogue/SizeRememberingDelegate.h"
#include "catalogue/SortFilterProxyModel.h"
#include "catalogue/UpdatesOff.h"
#include "catalogue/ViewSetup.h"
#include "tags/CompletionPopup.h"
#include "tags/TagCompletion.h"
#include "tags/TagRecord.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMenu>
#include <QShortcut>
#include <QStandardPaths>

namespace {

constexpr QSize smallIconSize(32, 32);
constexpr qsizetype shownWordCharacters = 60;

void setUpMediaView(QAbstractItemView* view) {
    view->setItemDelegate(new ShortTextDelegate(view));
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setDragDropMode(QAbstractItemView::NoDragDrop);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
}

void setUpMediaHeader(QHeaderView* header) {
    header->setSectionsClickable(true);
    header->setSortIndicatorClearable(true);
    // setSortingEnabled sorts by the indicator, whose initial state would reverse the order of the scan.
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    header->setSectionsMovable(true);
}

// setModel does not delete the selection model that the view had created before, so the caller does.
void setMediaModel(QAbstractItemView* view, QAbstractItemModel* model) {
    const QItemSelectionModel* previous = view->selectionModel();
    view->setModel(model);
    delete previous;
}

void hideHeaderSection(QHeaderView* header, int section) {
    // Without a visible section no header would be left to open the menu that shows them again.
    if (header->count() - header->hiddenSectionCount() > 1)
        header->setSectionHidden(section, true);
}

void showAllHeaderSections(QHeaderView* header) {
    for (int section = 0; section < header->count(); ++section)
        header->setSectionHidden(section, false);
}

} // namespace

QList<QAbstractItemView*> MainWindow::mediaViews() const {
    return {ui->listView, ui->treeView, ui->tableView};
}

void MainWindow::initViewConnections() {
    for (const QHeaderView* header : {ui->tableView->horizontalHeader(), ui->treeView->header()}) {
        connect(header, &QWidget::customContextMenuRequested, this, &MainWindow::onHeaderContextMenu);
        // The views were connected to this signal earlier, so their rows are already sorted here.
        connect(header, &QHeaderView::sortIndicatorChanged, this, [this] {
            QAbstractItemView* view = _selection->currentView();
            view->scrollTo(view->currentIndex());
        });
    }
    connect(_selection, &SelectionWatcher::changed, this, &MainWindow::onItemSelectedChanged);
    connect(ui->leFilterImages, &QLineEdit::textChanged, this, &MainWindow::onFilterImages);
    new CompletionPopup(ui->leFilterImages, [this](const QString& line, qsizetype cursor) {
        return queryCompletions(_imageTags->counted(), line, cursor);
    });
    connect(ui->dockWidget_ImgPreview, &QWidget::customContextMenuRequested, this,
            &MainWindow::onDockWidgetImagePreviewCustomMenu);
    connect(ui->imgWidget, &EditImageWidget::zoomChanged, this, [this](QPointF zoom) {
        ui->dockWidget_ImgPreview->setWindowTitle(
            tr("Image %2 preview [zoom: %1]").arg(QString::number(zoom.x()), ui->imgWidget->imageSizeText()));
    });
    initViewKeys();
}

void MainWindow::initViewKeys() {
    const auto views = mediaViews();
    for (QAbstractItemView* view : views) {
        const auto addViewKey = [this, view](Qt::Key key, void (MainWindow::*slot)()) {
            auto* shortcut = new QShortcut(key, view);
            // Only with the focus on the view: in a text field the same keys edit the text.
            shortcut->setContext(Qt::WidgetShortcut);
            connect(shortcut, &QShortcut::activated, this, slot);
        };
        addViewKey(Qt::Key_Return, &MainWindow::openSelectedFile);
        addViewKey(Qt::Key_Enter, &MainWindow::openSelectedFile);
        addViewKey(Qt::Key_Delete, &MainWindow::deleteFile);
        connect(view, &QAbstractItemView::doubleClicked, this, &MainWindow::openSelectedFile);
    }
    const auto addKey = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    addKey(Qt::Key_F5, &MainWindow::onRefreshOpenFilePath);
    addKey(Qt::CTRL | Qt::Key_PageUp, [this] { stepRow(-1); });
    addKey(Qt::CTRL | Qt::Key_PageDown, [this] { stepRow(1); });
    addKey(Qt::CTRL | Qt::Key_F, [this] {
        ui->leFilterImages->setFocus();
        ui->leFilterImages->selectAll();
    });
}

void MainWindow::openSelectedFile() {
    const QStringList files = selectedFilePaths();
    if (files.isEmpty())
        return;
    if (isVideoFile(files.first()))
        editVideo(files.first());
    else
        editImage();
}

void MainWindow::stepRow(int step) {
    const QAbstractItemView* view = _selection->currentView();
    const int current = view->currentIndex().row();
    const int ahead = step > 0 ? 0 : view->model()->rowCount() - 1;
    selectRow(current < 0 ? ahead : qMax(0, current + step));
}

void MainWindow::selectRow(int row) {
    QAbstractItemView* view = _selection->currentView();
    const QModelIndex index = view->model()->index(qMin(row, view->model()->rowCount() - 1), ColName);
    if (!index.isValid())
        return;
    // QAbstractItemView::setCurrentIndex would read the modifier keys, of which Ctrl may be pressed.
    view->selectionModel()->setCurrentIndex(index,
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view->scrollTo(index);
}

void MainWindow::initViews() {
    setWindowTitle(QString::fromLatin1("%1 - %2").arg(QCoreApplication::applicationName(),
                                                      QCoreApplication::applicationVersion()));
    setDockNestingEnabled(true);
    // The form has path and buttons in two rows; side by side they leave the views more height.
    auto* rowBelowViews = new WrappingRow;
    for (QLayout* layout : {ui->horizontalLayoutWorkingPath, ui->horizontalLayoutSaveTags}) {
        ui->verticalLayout->removeItem(layout);
        rowBelowViews->addLayout(layout, layout == ui->horizontalLayoutWorkingPath ? 1 : 0);
    }
    ui->verticalLayout->addLayout(rowBelowViews);
    const auto views = mediaViews();
    for (QAbstractItemView* view : views)
        setUpMediaView(view);
    initListView();
    initTreeView();
    initTableView();
    ui->imgWidget->setAutoCenter(true);
    ui->imgWidget->setAutoFit(true);
    initTagViews();
    initEffectViews();
    ui->cBResizeSrcScaleAlignment->addItems({tr("Top left"), tr("Top center"), tr("Top right"),
                                             tr("Center left"), tr("Center center"), tr("Center right"),
                                             tr("Bottom left"), tr("Bottom center"), tr("Bottom right")});
    initComments();
}

void MainWindow::initListView() {
    setStaticViewMode(ui->listView, QListView::IconMode);
    const QSize gridSize = Settings::instance()->get(keys::gridSizeListView);
    ui->listView->setGridSize(gridSize);
    ui->listView->setIconSize(gridSize);
    ui->listView->setResizeMode(QListView::Adjust);
    ui->listView->setSpacing(8);
    ui->listView->setUniformItemSizes(false);
    ui->listView->setItemDelegate(new SizeRememberingDelegate(ui->listView));
}

void MainWindow::initTreeView() {
    ui->treeView->setIconSize(Settings::instance()->get(keys::gridSizeTreeView));
    ui->treeView->setRootIsDecorated(true);
    setUpMediaHeader(ui->treeView->header());
    ui->treeView->setSortingEnabled(true);
}

void MainWindow::initTableView() {
    ui->tableView->setIconSize(Settings::instance()->get(keys::gridSizeTableView));
    ui->tableView->setShowGrid(true);
    ui->tableView->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui->tableView->setWordWrap(true);
    // Tab leads to the next control, as in the other views.
    ui->tableView->setTabKeyNavigation(false);
    QHeaderView* header = ui->tableView->horizontalHeader();
    setUpMediaHeader(header);
    ui->tableView->setSortingEnabled(true);
    header->setStretchLastSection(true);
    header->setSectionResizeMode(QHeaderView::Interactive);
}

void MainWindow::initModels() {
    _itemModel = new MediaItemModel(this);
    const qint64 mebibytes = Settings::instance()->get(keys::thumbnailMemory);
    _itemModel->setThumbnailStore({mebibytes > 0 ? mebibytes * 1024 * 1024 : ThumbnailStore::usualBudget(),
                                   QStandardPaths::writableLocation(QStandardPaths::CacheLocation)});
    _proxyModel = new SortFilterProxyModel(this);
    _proxyModel->setSourceModel(_itemModel);
    _proxyModel->setSortRole(RoleValue);
    // No filter text is ever set: the hidden flags of the rows decide alone.
    _proxyModel->setFilterKeyColumn(-1);
    auto* iconProxyModel = new IconIdentityProxyModel(smallIconSize, this);
    iconProxyModel->setSourceModel(_proxyModel);
    setMediaModel(ui->listView, _proxyModel);
    setMediaModel(ui->treeView, iconProxyModel);
    setMediaModel(ui->tableView, iconProxyModel);
    _selection = new SelectionWatcher(ui->stackedWidget, mediaViews(), this);
}

void MainWindow::onImagesSortByCol(int col) {
    const Qt::SortOrder order =
        _proxyModel->sortOrder() == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    _proxyModel->sort(col, order);
    // Each indicator makes its view sort again, which the proxy skips for the same column and order.
    ui->tableView->horizontalHeader()->setSortIndicator(col, _proxyModel->sortOrder());
    ui->treeView->header()->setSortIndicator(col, _proxyModel->sortOrder());
}

void MainWindow::onImagesSortByFileName() {
    onImagesSortByCol(ColName);
}

void MainWindow::onImagesSortByFilePath() {
    onImagesSortByCol(ColPath);
}

void MainWindow::onImagesSortByResolution() {
    onImagesSortByCol(ColResolution);
}

void MainWindow::onHeaderContextMenu(const QPoint& pos) {
    auto* header = qobject_cast<QHeaderView*>(sender());
    if (!header) {
        qDebug() << "Error, sender is not header view...";
        return;
    }
    QMenu menu;
    menu.addAction(tr("Hide"), this, [=] { hideHeaderSection(header, header->logicalIndexAt(pos.x())); });
    menu.addAction(tr("Show all"), this, [=] { showAllHeaderSections(header); });
    menu.exec(QCursor::pos());
}

void MainWindow::onDockWidgetImagePreviewCustomMenu() {
    QMenu menu;
    menu.addAction(tr("Auto center"), this,
                   [this] { ui->imgWidget->setAutoCenter(!ui->imgWidget->autoCenter()); });
    menu.addAction(tr("Auto fit"), this, [this] { ui->imgWidget->setAutoFit(!ui->imgWidget->autoFit()); });
    menu.exec(QCursor::pos());
}

void MainWindow::hideFiles(const QString& reason,
                           const std::function<bool(int row, const QString& filePath)>& isHidden) {
    // Rows that are hidden leave the selection without a signal, so the hold compares it at its end.
    const SelectionWatcher::Hold hold(*_selection);
    const UpdatesOff updatesOff(mediaViews());
    _statusPanel->setHidingReason(reason);
    _itemModel->hideRows(isHidden);
    _proxyModel->refilter();
}

MediaFacts MainWindow::mediaFacts(int row, const QString& filePath, MediaFactFlags asked) const {
    MediaFacts facts;
    if (asked.testFlag(MediaFact::Resolution))
        // From the text, as the raw value of the cell is only the number of pixels.
        facts.resolution = resolutionFromText(_itemModel->item(row, ColResolution)->text());
    facts.isVideo = asked.testFlag(MediaFact::Kind) && isVideoFile(filePath);
    facts.isUnsaved = asked.testFlag(MediaFact::Unsaved) && _imageTags->isUnsaved(filePath);
    if (asked.testFlag(MediaFact::Tags))
        facts.tags = _imageTags->tags(filePath);
    return facts;
}

void MainWindow::onFilterImages(const QString& txt) {
    const QString reason = tr("%1 hidden by the filter line");
    const QStringList differentTags = txt.isEmpty() ? QStringList() : _imageTags->differentTags();
    if (MediaQuery::isQuery(txt)) {
        const MediaQuery query(txt, differentTags);
        // A text that is no valid query is searched as it is, so that no input is without effect.
        if (query.isValid()) {
            const MediaFactFlags asked = query.asked();
            int found = 0;
            hideFiles(reason, [&](int row, const QString& filePath) {
                const bool matches = query.matches(mediaFacts(row, filePath, asked));
                found += matches ? 1 : 0;
                return !matches;
            });
            onShowMessage(tr("Found %1 files.").arg(found));
            return;
        }
        onShowMessage(tr("No filter word: \"%1\". Searching for the text.")
                          .arg(query.wrongWord().left(shownWordCharacters)));
    }
    const bool wantsMissingTxt = isMissingTxtFilter(txt);
    const MediaFilter filter(txt, differentTags);
    // Replaces the flags that a tag search has set: the filter that ran last decides.
    hideFiles(reason, [&](int row, const QString& filePath) {
        if (txt.isEmpty())
            return false;
        if (wantsMissingTxt)
            return hasFilledTxtFile(filePath);
        return !filter.matches(*_itemModel, row, _imageTags->tags(filePath));
    });
}

void MainWindow::onItemSelectedChanged() {
    qDebug() << "Selection changed";
    const QStringList files = selectedFilePaths();
    ui->labelCurrentSelectionTags->setText(tr("Current selection [%1] tags:").arg(files.size()));
    if (files.isEmpty()) {
        // Preview, raw text and metadata keep showing the last file.
        refreshSelectionTags({});
        qDebug() << "Selection empty:" << files;
        return;
    }
    refreshSelectionTags(files);
    followTagFile(files.first());
    showMediaPreview(files.first());
    onShowMessage(tr("Selected: %1 items").arg(files.size()));
    if (ui->tWTools->currentWidget() == ui->tabImgDSP)
        onFilterApply();
    updateComments();
}

void MainWindow::showMediaPreview(const QString& filePath) {
    if (isVideoFile(filePath)) {
        ui->dockWidget_ImgPreview->setWindowTitle(tr("Video preview"));
        ui->vidWidget->start(filePath);
        ui->stackedWidgetMediaPreview->setCurrentWidget(ui->pagePreviewVideo);
    } else {
        // An empty path ends the clip that plays.
        ui->vidWidget->start({});
        // On the effects tab the chain of filters decodes and shows the file.
        if (ui->tWTools->currentWidget() != ui->tabImgDSP)
            ui->imgWidget->setImageFilePath(filePath);
        ui->stackedWidgetMediaPreview->setCurrentWidget(ui->pagePreviewImage);
    }
}
