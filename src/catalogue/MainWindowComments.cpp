#include "app/MainWindow.h"

#include "app/services/FileFailure.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaItemModel.h"
#include "catalogue/UpdatesOff.h"
#include "catalogue/VideoMeta.h"
#include "ui_MainWindow.h"

#include <QClipboard>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {

void addCommentItem(QTreeWidgetItem* parent, const QString& key, const QString& value) {
    auto* item = new QTreeWidgetItem(parent, {key, value});
    // Editable, so that a value can be marked and copied in place.
    item->setFlags(item->flags() | Qt::ItemIsEditable);
}

} // namespace

void MainWindow::updateComments() {
    const UpdatesOff updatesOff({ui->tWComments});
    ui->tWComments->clear();
    QImageReader reader;
    QList<QTreeWidgetItem*> tops;
    const QStringList files = selectedFilePaths();
    for (const QString& path : files) {
        auto* top = new QTreeWidgetItem({QFileInfo(path).fileName()});
        top->setToolTip(0, path);
        if (isVideoFile(path)) {
            const MediaItem* item = _itemModel->itemOf(path);
            const QVariantHash meta = item ? item->data(RoleVideoMeta).toHash() : QVariantHash();
            for (const auto& [key, value] : meta.asKeyValueRange())
                addCommentItem(top, key, videoMetaText(value));
        } else {
            reader.setFileName(path);
            const QStringList keys = reader.textKeys();
            for (const QString& key : keys)
                addCommentItem(top, key, reader.text(key));
        }
        tops.append(top);
    }
    // Spanning lays the tree out if that is due, so all items come first.
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
    QFile file(u"%1/%2.json"_s.arg(directory, QFileInfo(files.first()).baseName()));
    QStringList failures;
    if (!file.open(QIODevice::WriteOnly)) {
        qDebug() << "Error, unable to open file for writting:" << file.errorString();
        failures = {fileFailure(file.fileName(), file.errorString())};
    } else if (file.write(comment.toUtf8()) == -1 || !file.flush()) { // a short text is written by the flush
        qDebug() << "Error, unable to write content to the file:" << file.fileName()
                 << "error:" << file.errorString();
        failures = {fileFailure(file.fileName(), file.errorString())};
    }
    showResult(tr("extracted"), 1 - failures.size(), 1, failures);
}
