#include "tags/AddTagsDialog.h"

#include "app/services/LongLines.h"
#include "tags/CompletionPopup.h"
#include "tags/TagCompletion.h"
#include "ui_AddTagsDialog.h"

AddTagsDialog::AddTagsDialog(QWidget* parent) : QDialog(parent), _ui(std::make_unique<Ui::AddTagsDialog>()) {
    _ui->setupUi(this);
    keepLongLinesQuick(_ui->plainTextEdit);
    setWindowTitle(tr("Add tags, one per line or/and \",\" separated.."));
    connect(_ui->pBAdd, &QPushButton::clicked, this, &AddTagsDialog::onAccepted);
    connect(_ui->pBCancel, &QPushButton::clicked, this, &QWidget::close);
    auto* completions =
        new CompletionPopup(_ui->plainTextEdit, [this](const QString& line, qsizetype cursor) {
            return tagCompletions(_knownTags, line, cursor);
        });
    // Ctrl+Enter presses the button, whichever of the two actions that has.
    connect(completions, &CompletionPopup::accepted, _ui->pBAdd, &QPushButton::click);
}

AddTagsDialog::~AddTagsDialog() {
    // While this is still a whole dialog, so that its geometry can be read and stored.
    emit aboutToBeDestroyed();
}

void AddTagsDialog::setTagFile(const QString& imageFilePath, const QString& filePath, const QString& tags) {
    _ui->plainTextEdit->setUpdatesEnabled(false);
    _ui->labelTags->setText(tr("Tags from: %1").arg(filePath));
    setWindowTitle(tr("Edit tags, one per line or/and \",\" separated.."));
    _ui->pBAdd->setText(tr("Save"));
    // "Save" writes the one sidecar; the selection, to which "Add" applies, has no part in it.
    disconnect(_ui->pBAdd, &QPushButton::clicked, this, &AddTagsDialog::onAccepted);
    connect(_ui->pBAdd, &QPushButton::clicked, this, [this, imageFilePath, filePath] {
        emit addTagsTxtAccepted(imageFilePath, filePath, _ui->plainTextEdit->toPlainText());
        accept();
    });
    _ui->plainTextEdit->clear();
    _ui->plainTextEdit->setPlainText(tags);
    _ui->plainTextEdit->setUpdatesEnabled(true);
}

void AddTagsDialog::onAccepted() {
    emit addTagsAccepted(_ui->plainTextEdit->toPlainText());
    accept();
}
