#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "app/services/LongLines.h"
#include "catalogue/UpdatesOff.h"
#include "catalogue/ViewSetup.h"
#include "tags/ReplaceTextDialog.h"
#include "tags/TagDelegate.h"
#include "tags/TagRecord.h"
#include "ui_MainWindow.h"

#include <QClipboard>
#include <QDebug>
#include <QGuiApplication>
#include <QMenu>
#include <QShortcut>

namespace {

QListWidgetItem* makeTagItem(const QString& tag) {
    auto* item = new QListWidgetItem(tag);
    item->setFlags(item->flags() & ~Qt::ItemIsDragEnabled);
    return item;
}

QListWidgetItem* makeCountedTagItem(const TagCount& counted) {
    QListWidgetItem* item = makeTagItem(counted.tag);
    item->setToolTip(MainWindow::tr("Count: %1").arg(counted.count));
    item->setTextAlignment(Qt::AlignCenter);
    item->setData(tagCountRole, counted.count);
    return item;
}

void setUpTagList(QListWidget* list) {
    setStaticViewMode(list, QListView::IconMode);
    list->setResizeMode(QListView::Adjust);
    list->setSpacing(8);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setUniformItemSizes(false);
    list->setItemDelegate(new TagDelegate(list));
    list->setSortingEnabled(false);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
}

void showTags(QListWidget* list, const QStringList& tags) {
    const UpdatesOff updatesOff({list});
    list->clear();
    for (const QString& tag : tags)
        list->addItem(makeTagItem(tag));
}

void filterTagList(QListWidget* list, const QString& txt) {
    const UpdatesOff updatesOff({list});
    for (int row = 0; row < list->count(); ++row) {
        QListWidgetItem* item = list->item(row);
        item->setHidden(item->text().indexOf(txt, 0, Qt::CaseInsensitive) < 0);
    }
}

QStringList selectedTagTexts(const QListWidget* list) {
    QStringList texts;
    const QList<QListWidgetItem*> items = list->selectedItems();
    texts.reserve(items.size());
    for (const QListWidgetItem* item : items)
        texts.append(item->text());
    return texts;
}

void copyTagsToClipboard(const QListWidget* list) {
    const QStringList tags = selectedTagTexts(list);
    if (tags.isEmpty())
        qDebug() << "Tag sel empty";
    else
        QGuiApplication::clipboard()->setText(tags.join(u','), QClipboard::Clipboard);
}

void sortTagList(QListWidget* list, Qt::SortOrder& order) {
    order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    list->sortItems(order);
}

} // namespace

void MainWindow::initTagViews() {
    setUpTagList(ui->lwImageTags);
    setUpTagList(ui->lwAllImagesTags);
    for (QPlainTextEdit* edit :
         {ui->pTETagsFromFile, ui->pTEPromptSystem, ui->pTEPromptUser, ui->pTEResponse})
        keepLongLinesQuick(edit);
}

void MainWindow::initTagPanelConnections() {
    connect(_imageTags, &TagRecord::changed, this, &MainWindow::onTagsChanged);
    connect(ui->lwImageTags, &QWidget::customContextMenuRequested, this,
            &MainWindow::onImageTagCustomContextMenu);
    connect(ui->lwAllImagesTags, &QWidget::customContextMenuRequested, this,
            &MainWindow::onImagesTagsCustomContextMenu);
    connect(ui->lwAllImagesTags, &QListWidget::itemSelectionChanged, this,
            &MainWindow::onAllImagesTagSelectedChanged);
    connect(ui->leFilterTag, &QLineEdit::textChanged, this, &MainWindow::onFilterTag);
    connect(ui->leFilterAllTags, &QLineEdit::textChanged, this, &MainWindow::onFilterAllTags);
    initTagPanelKeys();
}

void MainWindow::initTagPanelKeys() {
    const auto addKey = [this](const QKeySequence& keys, QListWidget* list, auto action) {
        auto* shortcut = new QShortcut(keys, list);
        // Only with the focus on this list: a text field copies and pastes its own text.
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
        return shortcut;
    };
    addKey(QKeySequence::Copy, ui->lwImageTags, &MainWindow::onTagCopyToClipboard);
    addKey(QKeySequence::Copy, ui->lwAllImagesTags, &MainWindow::onAllTagCopy);
    for (QListWidget* list : {ui->lwImageTags, ui->lwAllImagesTags})
        addKey(QKeySequence::Paste, list, &MainWindow::onTagsPaste);
    auto* deleteKey = addKey(Qt::Key_Delete, ui->lwImageTags, [this, list = ui->lwImageTags] {
        const int row = firstRow(list->selectionModel()->selectedIndexes());
        onTagDelete();
        // Selects the tag that moved up into this row, so that the next key press continues there.
        if (row >= 0)
            list->setCurrentRow(qMin(row, list->count() - 1));
    });
    // A key that is held would remove one tag after the other.
    deleteKey->setAutoRepeat(false);
    addKey(Qt::ALT | Qt::Key_Up, ui->lwImageTags, [this] { moveImageTag(TagMove::Up); });
    addKey(Qt::ALT | Qt::Key_Down, ui->lwImageTags, [this] { moveImageTag(TagMove::Down); });
    addKey(Qt::ALT | Qt::Key_Home, ui->lwImageTags, [this] { moveImageTag(TagMove::First); });
    addKey(Qt::ALT | Qt::Key_End, ui->lwImageTags, [this] { moveImageTag(TagMove::Last); });
}

void MainWindow::onTagsPaste() {
    QStringList tags = tagsFromText(QGuiApplication::clipboard()->text());
    tags.removeAll(QString());
    addTagsToSelected(tags);
}

void MainWindow::moveImageTag(TagMove move) {
    const QStringList files = selectedFilePaths();
    const QListWidget* list = ui->lwImageTags;
    const QListWidgetItem* current = list->currentItem();
    if (files.size() != 1 || !current)
        return;
    QStringList tags = imageTags(files.first());
    int row = list->currentRow();
    // A sorted list shows another order than the file's tags, so the tag is searched by its text.
    if (tags.value(row) != current->text())
        row = int(tags.indexOf(current->text()));
    if (row < 0)
        return;
    const qsizetype moved = movedTagRow(tags.size(), row, move);
    if (moved == row)
        return;
    tags.move(row, moved);
    setImageTags(files.first(), tags);
    refreshImageTags(files.first());
    ui->lwImageTags->setCurrentRow(int(moved));
}

void MainWindow::onTagsChanged(TagChange change) {
    if (change == TagChange::Saved)
        return;
    refreshAllTags();
    // An edit updates everything like a new selection; an undo leaves preview and message as they are.
    if (change == TagChange::Edited)
        onItemSelectedChanged();
    else if (change == TagChange::Undone)
        refreshSelectionTags(selectedFilePaths());
}

void MainWindow::refreshSelectionTags(const QStringList& filePaths) {
    QStringList tags;
    for (const QString& filePath : filePaths)
        // A tag that several files have is shown once for each.
        tags.append(imageTags(filePath));
    showTags(ui->lwImageTags, tags);
}

void MainWindow::refreshImageTags(const QString& filePath) {
    showTags(ui->lwImageTags, imageTags(filePath));
}

void MainWindow::refreshAllTags() {
    {
        const UpdatesOff updatesOff({ui->lwAllImagesTags});
        ui->lwAllImagesTags->clear();
        const QList<TagCount> counted = _imageTags->counted();
        for (const TagCount& tag : counted)
            ui->lwAllImagesTags->addItem(makeCountedTagItem(tag));
    }
    ui->lwAllImagesTags->doItemsLayout();
}

void MainWindow::onAllImagesTagSelectedChanged() {
    const QStringList tags = selectedTagTexts(ui->lwAllImagesTags);
    TagMatcher matcher(tags);
    int found = 0;
    // Replaces what the filter line has hidden: the search that ran last decides.
    hideFiles(tr("%1 hidden by the tag search"), [&](int /*row*/, const QString& filePath) {
        const bool matches = matcher.matchesAny(_imageTags->tags(filePath));
        // Without a selected tag none is found, yet every row is shown.
        found += matches ? 1 : 0;
        return !tags.isEmpty() && !matches;
    });
    onShowMessage(tr("Found %1 images for tag: %2").arg(QString::number(found), tags.join(u',')));
}

void MainWindow::onFilterTag(const QString& txt) {
    filterTagList(ui->lwImageTags, txt);
}

void MainWindow::onFilterAllTags(const QString& txt) {
    filterTagList(ui->lwAllImagesTags, txt);
}

void MainWindow::onTagCopyToClipboard() {
    copyTagsToClipboard(ui->lwImageTags);
}

void MainWindow::onAllTagCopy() {
    copyTagsToClipboard(ui->lwAllImagesTags);
}

void MainWindow::onTagDelete() {
    const QStringList files = selectedFilePaths();
    if (files.isEmpty()) {
        qDebug() << "Image sel empty";
        return;
    }
    const QStringList tags = selectedTagTexts(ui->lwImageTags);
    if (tags.isEmpty()) {
        qDebug() << "Tag sel empty";
        return;
    }
    const WaitCursor waitCursor;
    _imageTags->removeTags(files, tags);
}

void MainWindow::onTagsDelete() {
    deleteTagsEverywhere(selectedTagTexts(ui->lwImageTags));
}

void MainWindow::onAllTagDelete() {
    deleteTagsEverywhere(selectedTagTexts(ui->lwAllImagesTags));
}

void MainWindow::deleteTagsEverywhere(const QStringList& tags) {
    if (tags.isEmpty()) {
        qDebug() << "Tag sel empty";
        return;
    }
    const WaitCursor waitCursor;
    _imageTags->removeEverywhere(tags);
}

void MainWindow::onImageTagCustomContextMenu(const QPoint& pos) {
    QListWidget* list = ui->lwImageTags;
    QMenu menu;
    menu.addAction(tr("&Copy to clipboard"), this, &MainWindow::onTagCopyToClipboard);
    addTagListActions(menu, list, _imageTagsSortOrder);
    menu.addAction(tr("&Delete"), this, &MainWindow::onTagDelete);
    menu.addAction(tr("Delete &all"), this, &MainWindow::onTagsDelete);
    menu.exec(menuPosition(list, pos));
}

void MainWindow::onImagesTagsCustomContextMenu(const QPoint& pos) {
    QListWidget* list = ui->lwAllImagesTags;
    QMenu menu;
    menu.addAction(tr("&Copy to clipboard"), this, &MainWindow::onAllTagCopy);
    addTagListActions(menu, list, _allTagsSortOrder);
    menu.addSeparator();
    menu.addAction(tr("R&eplace text"), this, [this] { openTextDialog(ReplaceTextDialog::Replace); });
    menu.addAction(tr("Spli&t text"), this, [this] { openTextDialog(ReplaceTextDialog::Split); });
    menu.addSeparator();
    menu.addAction(tr("&Refresh"), this, &MainWindow::refreshAllTags);
    menu.addSeparator();
    menu.addAction(tr("&Delete"), this, &MainWindow::onAllTagDelete);
    menu.exec(menuPosition(list, pos));
}

void MainWindow::addTagListActions(QMenu& menu, QListWidget* list, Qt::SortOrder& order) {
    menu.addAction(tr("View &list"), this, [list] { setStaticViewMode(list, QListView::ListMode); });
    menu.addAction(tr("View &icon"), this, [list] { setStaticViewMode(list, QListView::IconMode); });
    // The order is a member of the window, so the reference outlives the menu.
    menu.addAction(tr("&Sort"), this, [list, &order] { sortTagList(list, order); });
}
