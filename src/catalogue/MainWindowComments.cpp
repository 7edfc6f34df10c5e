#include "app/MainWindow.h"

#include "app/services/FileFailure.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/ReadInOrder.h"
#include "catalogue/ShortTextDelegate.h"
#include "catalogue/UpdatesOff.h"
#include "catalogue/VideoMeta.h"
#include "ui_MainWindow.h"

#include <QClipboard>
#include <QDebug>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QImageReader>
#include <QSaveFile>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The texts of more files are read only while the tree is visible.
constexpr qsizetype fewFiles = 100;

using Texts = QList<std::pair<QString, QString>>;

Texts embeddedTexts(const QString& path) {
    Texts texts;
    // Opening a named pipe would block until a process writes to it.
    if (!QFileInfo(path).isFile())
        return texts;
    const QImageReader reader(path);
    const QStringList keys = reader.textKeys();
    for (const QString& key : keys)
        texts.emplaceBack(key, reader.text(key));
    return texts;
}

// Calls a function whenever a widget is shown.
class ShowFilter : public QObject {
public:
    ShowFilter(QWidget* widget, std::function<void()> onShow) : QObject(widget), _onShow(std::move(onShow)) {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Show)
            _onShow();
        return false;
    }

private:
    std::function<void()> _onShow;
};

void addCommentItem(QTreeWidgetItem* parent, const QString& key, const QString& value) {
    auto* item = new QTreeWidgetItem(parent, {key, value});
    // Editable, so that the user can select and copy a part of the value.
    item->setFlags(item->flags() | Qt::ItemIsEditable);
}

} // namespace

void MainWindow::initComments() {
    ui->tWComments->setHeaderLabels({tr("Key"), tr("Value")});
    ui->tWComments->setItemDelegate(new ShortTextDelegate(ui->tWComments));
    // Only the visible rows are measured for the width of the key column: there may be many others.
    ui->tWComments->header()->setResizeContentsPrecision(0);
    ui->tWComments->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    new ShowFilter(ui->tWComments, [this] { showComments(); });
}

void MainWindow::updateComments() {
    _unreadCommentFiles = selectedFilePaths();
    if (_unreadCommentFiles.size() <= fewFiles || ui->tWComments->isVisible())
        showComments();
}

void MainWindow::showComments() {
    const QStringList files = std::exchange(_unreadCommentFiles, {});
    if (files.isEmpty())
        return;
    const UpdatesOff updatesOff({ui->tWComments});
    ui->tWComments->clear();
    QList<QTreeWidgetItem*> tops;
    const auto read = [&files](qsizetype index) {
        return isVideoFile(files.at(index)) ? Texts() : embeddedTexts(files.at(index));
    };
    readInOrder(files.size(), read, [&](qsizetype index, const Texts& texts) {
        const QString& path = files.at(index);
        auto* top = new QTreeWidgetItem({QFileInfo(path).fileName()});
        top->setToolTip(0, path);
        if (isVideoFile(path)) {
            const MediaItem* item = _itemModel->itemOf(path);
            const QVariantHash meta = item ? item->data(RoleVideoMeta).toHash() : QVariantHash();
            for (const auto& [key, value] : meta.asKeyValueRange())
                addCommentItem(top, key, videoMetaText(value));
        }
        for (const auto& [key, text] : texts)
            addCommentItem(top, key, text);
        tops.append(top);
    });
    // The first call that spans a column lays the tree out, so all items are added before.
    ui->tWComments->addTopLevelItems(tops);
    ui->tWComments->expandAll();
    for (QTreeWidgetItem* top : std::as_const(tops))
        top->setFirstColumnSpanned(true);
}

QString MainWindow::firstSelectedComment() const {
    const QModelIndexList selected = selectedIndexes();
    return selected.isEmpty() ? QString()
                              : selected.first().siblingAtColumn(ColComment).data(RoleComment).toString();
}

void MainWindow::onCopyComment() {
    if (!selectedIndexes().isEmpty())
        // A file without a comment empties the clipboard.
        QGuiApplication::clipboard()->setText(firstSelectedComment(), QClipboard::Clipboard);
}

void MainWindow::onExtractWorkflow() {
    const QStringList files = selectedFilePaths();
    if (files.isEmpty())
        return;
    const QString comment = firstSelectedComment();
    if (comment.isEmpty())
        return;
    const QString directory = selectDirectory();
    if (directory.isEmpty())
        return;
    const QByteArray text = comment.toUtf8();
    // An existing file is replaced without a question, but only by the whole text.
    QSaveFile file(u"%1/%2.json"_s.arg(directory, QFileInfo(files.first()).baseName()));
    // For a writable file in a read-only directory, where no temporary file can be created beside it.
    file.setDirectWriteFallback(true);
    QStringList failures;
    if (!file.open(QIODevice::WriteOnly)) {
        qDebug() << "Error, unable to open file for writting:" << file.errorString();
        failures = {fileFailure(file.fileName(), file.errorString())};
    } else if (file.write(text) != text.size() || !file.commit()) {
        qDebug() << "Error, unable to write content to the file:" << file.fileName()
                 << "error:" << file.errorString();
        failures = {fileFailure(file.fileName(), file.errorString())};
    }
    showResult(tr("extracted"), 1 - failures.size(), 1, failures);
}
