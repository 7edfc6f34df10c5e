#include "app/MainWindow.h"

#include "app/WaitCursor.h"
#include "app/WindowPlace.h"
#include "app/services/Settings.h"
#include "catalogue/FileNaming.h"
#include "tags/AddTagsDialog.h"
#include "tags/CompletionPopup.h"
#include "tags/ReplaceTextDialog.h"
#include "tags/SidecarFile.h"
#include "tags/TagCompletion.h"
#include "tags/TagRecord.h"
#include "tags/TagsExportDialog.h"
#include "ui_MainWindow.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype shownTagCharacters = 200;

// Opens the dialog window-modal, without a nested event loop. It stores its geometry and deletes itself when
// closed.
void openTagsDialog(AddTagsDialog* dialog) {
    QObject::connect(dialog, &AddTagsDialog::aboutToBeDestroyed, dialog, [dialog] {
        Settings::instance()->set(keys::addTagsDialogGeometry, dialog->saveGeometry());
    });
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    restoreWindow(dialog, keys::addTagsDialogGeometry);
    dialog->open();
}

} // namespace

void MainWindow::initTagEntryConnections() {
    connect(ui->tBExportTags, &QToolButton::clicked, this, &MainWindow::onTagsExport);
    ui->leFilterAllTags->setToolTip(
        tr("Shows the tags that contain the text. Ctrl+Enter adds the typed tag to the selected files."));
    auto* completions =
        new CompletionPopup(ui->leFilterAllTags, [this](const QString& line, qsizetype cursor) {
            return tagCompletions(_imageTags->counted(), line, cursor);
        });
    connect(completions, &CompletionPopup::accepted, this, &MainWindow::addTypedTags);
}

void MainWindow::addTypedTags(const QString& chosen) {
    const QStringList tags = tagsToAdd(_imageTags->counted(), ui->leFilterAllTags->text(), chosen);
    if (tags.isEmpty() || selectedFilePaths().isEmpty())
        return;
    // The line shows what is added, as the same key adds it to the next file, too.
    ui->leFilterAllTags->setText(tags.join(", "_L1));
    addTagsToSelected(tags);
    // Selected, so that typing the next tag replaces this one.
    ui->leFilterAllTags->selectAll();
}

void MainWindow::addTagsToSelected(const QStringList& tags) {
    const QStringList files = selectedFilePaths();
    if (files.isEmpty() || tags.isEmpty())
        return;
    const WaitCursor waitCursor;
    _imageTags->append(files, tags);
    QString added = tags.join(", "_L1);
    if (added.size() > shownTagCharacters)
        added = added.first(shownTagCharacters) + QChar(0x2026);
    onShowMessage(tr("Added \"%1\" to %2 files.").arg(added, QString::number(files.size())));
}

void MainWindow::addTagToSelected() {
    if (selectedFilePaths().isEmpty())
        qDebug() << "Error, selection is empty...";
    auto* dialog = new AddTagsDialog(this);
    // Opened even without a selection: onAddTagsAccepted reads the selection anew.
    connect(dialog, &AddTagsDialog::addTagsAccepted, this, &MainWindow::onAddTagsAccepted);
    dialog->setKnownTags(_imageTags->counted());
    openTagsDialog(dialog);
}

void MainWindow::onAddTagsAccepted(const QString& text) {
    const QStringList files = selectedFilePaths();
    if (files.isEmpty())
        qDebug() << "Error, selection is empty...";
    const WaitCursor waitCursor;
    _imageTags->append(files, tagsFromEntry(text));
}

void MainWindow::editTagFor(const QString& filePath) {
    const QString txtFileName = imgFilePathToTxtFilePath(filePath);
    const SidecarRead read = readSidecarFile(txtFileName);
    logSidecarRead(txtFileName, read);
    // The context menu has this entry only for a filled sidecar, which may be gone by now. Of a text that was
    // not read to its end, "Save" would drop the rest.
    if (!read.text || !read.error.isEmpty())
        return;
    auto* dialog = new AddTagsDialog(this);
    connect(dialog, &AddTagsDialog::addTagsTxtAccepted, this, &MainWindow::onTxtTagsAccepted);
    dialog->setKnownTags(_imageTags->counted());
    dialog->setTagFile(filePath, txtFileName, *read.text);
    openTagsDialog(dialog);
}

void MainWindow::openTextDialog(int operationType) {
    ReplaceTextDialog dialog;
    dialog.setOperationType(operationType);
    if (operationType == ReplaceTextDialog::Replace) {
        connect(&dialog, &ReplaceTextDialog::replaceText, this, &MainWindow::replaceTagText);
        if (const auto selected = ui->lwAllImagesTags->selectedItems(); selected.size() == 1)
            dialog.setSourceText(selected.first()->text());
    } else {
        connect(&dialog, &ReplaceTextDialog::splitText, this, &MainWindow::splitTagText);
    }
    dialog.exec();
}

void MainWindow::replaceTagText(const QString& src, const QString& dst) {
    if (src.isEmpty() || dst.isEmpty()) {
        qDebug() << "Source or dest text is empty:" << src << dst;
        ui->statusbar->showMessage(
            tr("Unable to replace text, source \"%1\" or replacement \"%2\" is empty").arg(src, dst));
        return;
    }
    const WaitCursor waitCursor;
    ui->statusbar->showMessage(tr("Replacing text \"%1\" with \"%2\".").arg(src, dst));
    _imageTags->replaceText(src, dst);
}

void MainWindow::splitTagText(const QString& src) {
    if (src.isEmpty()) {
        qDebug() << "Source text is empty:" << src;
        ui->statusbar->showMessage(tr("Source text is empty \"%1\"").arg(src));
        return;
    }
    const WaitCursor waitCursor;
    ui->statusbar->showMessage(tr("Splitting text by \"%1\".").arg(src));
    _imageTags->splitText(src);
}

void MainWindow::onTagsExport() {
    auto* dialog = new TagsExportDialog(this);
    // Not modal, and each window keeps the tags of the moment at which it was opened.
    dialog->setWindowFlag(Qt::Dialog);
    dialog->setWindowTitle(tr("All tags"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setTags(_imageTags->flattened());
    dialog->show();
}
