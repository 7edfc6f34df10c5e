#include "app/MainWindow.h"

#include "app/StatusPanel.h"
#include "app/services/Settings.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/SortFilterProxyModel.h"
#include "tags/TagRecord.h"
#include "tags/TagRecovery.h"
#include "ui_MainWindow.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype namedUnsavedFiles = 20;

// The names of the first keys in their order.
QStringList firstNames(QStringList keys) {
    const auto end = keys.begin() + qMin(keys.size(), namedUnsavedFiles);
    std::ranges::partial_sort(keys, end);
    QStringList names;
    for (auto key = keys.begin(); key != end; ++key)
        names.append(QFileInfo(*key).fileName());
    return names;
}

} // namespace

void MainWindow::initStatusPanel() {
    _statusPanel = new StatusPanel(ui->statusbar);
    ui->statusbar->addPermanentWidget(_statusPanel);
    const QFileInfo settingsFile(Settings::instance()->filePath());
    _recovery = new TagRecovery(*_imageTags, settingsFile.dir().filePath(u"recovery"_s), this);
}

void MainWindow::initStatusPanelConnections() {
    // The proxy emits no signal when a hidden row is inserted or removed.
    connect(_itemModel, &QAbstractItemModel::rowsInserted, this, &MainWindow::updateShownCount);
    connect(_itemModel, &QAbstractItemModel::rowsRemoved, this, &MainWindow::updateShownCount);
    // A new scan resets the proxy; a filter ends with a change of its layout.
    connect(_proxyModel, &QAbstractItemModel::modelReset, this, &MainWindow::updateShownCount);
    connect(_proxyModel, &QAbstractItemModel::layoutChanged, this, &MainWindow::updateShownCount);
    connect(_imageTags, &TagRecord::changed, this, &MainWindow::updateUnsavedCount);
    connect(_recovery, &TagRecovery::offerChanged, this, &MainWindow::updateUnsavedCount);
    connect(_statusPanel, &StatusPanel::showAllRequested, this, &MainWindow::onShowAllFiles);
    connect(_statusPanel, &StatusPanel::undoRequested, this, &MainWindow::onUndoTags);
    connect(_statusPanel, &StatusPanel::redoRequested, this, &MainWindow::onRedoTags);
    connect(_statusPanel, &StatusPanel::saveRequested, this, &MainWindow::onSaveTags);
    connect(_statusPanel, &StatusPanel::showUnsavedRequested, this, &MainWindow::onShowUnsavedFiles);
    connect(_statusPanel, &StatusPanel::restoreRequested, this, &MainWindow::onRestoreTags);
    connect(_statusPanel, &StatusPanel::discardRequested, _recovery, &TagRecovery::discard);
    connect(_statusPanel, &StatusPanel::progressClicked, this, [this] {
        // Only captions report a progress that can be clicked: other batches block the window.
        ui->dockWidget_Tools->show();
        ui->tWTools->setCurrentWidget(ui->tabOllama);
    });
    // Shortcuts of the window instead of actions: no menu lists them, and a text edit with the focus handles
    // these keys itself.
    const auto addShortcut = [this](const QKeySequence& keys, void (MainWindow::*slot)()) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, slot);
    };
    addShortcut(Qt::CTRL | Qt::Key_Z, &MainWindow::onUndoTags);
    addShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &MainWindow::onRedoTags);
    addShortcut(Qt::CTRL | Qt::Key_Y, &MainWindow::onRedoTags);
    addShortcut(Qt::CTRL | Qt::Key_S, &MainWindow::onSaveTags);
}

void MainWindow::updateShownCount() {
    _statusPanel->showCounts(_proxyModel->rowCount(), _itemModel->rowCount());
}

void MainWindow::updateUnsavedCount() {
    StatusPanel::Unsaved unsaved;
    unsaved.count = _imageTags->unsavedCount();
    unsaved.names = firstNames(_imageTags->unsavedKeys());
    unsaved.undoText = _imageTags->undoText();
    unsaved.redoText = _imageTags->redoText();
    unsaved.offeredCount = _recovery->offeredCount();
    unsaved.offeredTime = QLocale().toString(_recovery->offeredTime().toLocalTime(), QLocale::ShortFormat);
    _statusPanel->showUnsaved(unsaved);
}

void MainWindow::onUndoTags() {
    _imageTags->undo();
}

void MainWindow::onRedoTags() {
    _imageTags->redo();
}

void MainWindow::onShowAllFiles() {
    // Any of the three may hide files: selected tags, the filter line, or the entry for unsaved files.
    ui->lwAllImagesTags->clearSelection();
    ui->leFilterImages->clear();
    // An empty line emits no signal when it is cleared.
    onFilterImages({});
}

void MainWindow::onShowUnsavedFiles() {
    hideFiles(tr("%1 hidden as they are saved"),
              [this](int /*row*/, const QString& filePath) { return !_imageTags->isUnsaved(filePath); });
}

void MainWindow::onRestoreTags() {
    const TagRecovery::Restored restored = _recovery->restore();
    onShowMessage(tr("Restored the tags of %1 files, %2 sidecars have changed since.")
                      .arg(restored.files)
                      .arg(restored.changedSidecars));
}

void MainWindow::showResult(const QString& verb, qsizetype done, qsizetype total,
                            const QStringList& failures) {
    _statusPanel->showResult(operationResult(verb, done, total, failures));
}

void MainWindow::showBlockingMessage(const QString& msg) {
    onShowMessage(msg);
    _statusPanel->repaintNow();
}

void MainWindow::showBlockingProgress(const QString& text) {
    _statusPanel->showBlockingProgress(text);
}
