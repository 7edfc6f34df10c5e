#include "tags/TagsExportDialog.h"

#include "app/services/LongLines.h"
#include "tags/TagText.h"
#include "tags/TagsExport.h"
#include "ui_TagsExportDialog.h"

#include <QDebug>
#include <QScrollBar>

TagsExportDialog::TagsExportDialog(QWidget* parent)
    : QDialog(parent), _ui(std::make_unique<Ui::TagsExportDialog>()) {
    _ui->setupUi(this);
    keepLongLinesQuick(_ui->plainTextEdit);
    for (const QCheckBox* box : {_ui->cBRemoveDuplicates, _ui->cBNumOccurance, _ui->cBSortByNumOccurance})
        connect(box, &QCheckBox::checkStateChanged, this, &TagsExportDialog::updateText);
    connect(_ui->gBSort, &QGroupBox::toggled, this, &TagsExportDialog::updateText);
    for (const QComboBox* box : {_ui->cBSortDirection, _ui->cBSortCaseSensitivity})
        connect(box, &QComboBox::currentIndexChanged, this, &TagsExportDialog::updateText);
    connect(_ui->pBClose, &QPushButton::clicked, this, &QWidget::close);
}

TagsExportDialog::~TagsExportDialog() = default;

void TagsExportDialog::setTags(const QStringList& tags) {
    _tags = tags;
    // Of the full list, so that they are right when only unique tags are shown.
    _counts = tagCounts(tags);
    updateText();
    // Appending leaves the view at the last line.
    _ui->plainTextEdit->moveCursor(QTextCursor::Start);
}

void TagsExportDialog::updateText() {
    TagsExportOptions options;
    options.removesDuplicates = _ui->cBRemoveDuplicates->isChecked();
    options.appendsCount = _ui->cBNumOccurance->isChecked();
    options.sortsByCount = _ui->cBSortByNumOccurance->isChecked();
    options.sortsByName = _ui->gBSort->isChecked();
    options.isReversed = _ui->cBSortDirection->currentIndex() == 1;
    options.nameCase =
        _ui->cBSortCaseSensitivity->currentIndex() == 1 ? Qt::CaseInsensitive : Qt::CaseSensitive;

    QScrollBar* scrollBar = _ui->plainTextEdit->verticalScrollBar();
    const int position = scrollBar->value();
    _ui->plainTextEdit->setUpdatesEnabled(false);
    _ui->plainTextEdit->clear();
    const QStringList exported = exportedTags(_tags, _counts, options);
    if (options.removesDuplicates)
        qDebug() << "Removed duplicated tags:" << _tags.size() - exported.size();
    _ui->plainTextEdit->appendPlainText(exportedTagText(exported, _counts, options));
    scrollBar->setValue(position);
    _ui->plainTextEdit->setUpdatesEnabled(true);
    _ui->labelStatus->setText(tr("Tags count: %1").arg(exported.size()));
}
