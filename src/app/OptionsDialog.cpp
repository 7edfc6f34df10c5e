#include "app/OptionsDialog.h"

#include "app/WindowPlace.h"
#include "ui_OptionsDialog.h"

OptionsDialog::OptionsDialog(QWidget* parent) : QDialog(parent), _ui(std::make_unique<Ui::OptionsDialog>()) {
    _ui->setupUi(this);
    setWindowTitle(tr("Settings"));
    loadOptions();
    connect(_ui->pBClose, &QPushButton::clicked, this, &QWidget::close);
}

OptionsDialog::~OptionsDialog() = default;

void OptionsDialog::loadOptions() {
    const Settings* settings = Settings::instance();
    restoreWindow(this, keys::optionDialogGeometry);
    const QSize gridSize = settings->get(keys::gridSizeListView);
    _ui->sBGridSizeW->setValue(gridSize.width());
    _ui->sBGridSizeH->setValue(gridSize.height());
    _ui->sBPreviewThreadCount->setValue(settings->get(keys::imagePreviewThreadCount));
    _ui->cBImportFilesDeleteSrc->setChecked(settings->get(keys::importFilesDeleteSrc));
    _ui->cBImportFilesAutoRename->setChecked(settings->get(keys::importFilesAutoRename));
    _ui->cBSafetensorsIncMeta->setChecked(settings->get(keys::includeMetaInfo));
    _ui->cBSafetensorsIncTensors->setChecked(settings->get(keys::includeTensorInfo));
}

void OptionsDialog::storeOptions() const {
    Settings* settings = Settings::instance();
    settings->set(keys::gridSizeListView, QSize(_ui->sBGridSizeW->value(), _ui->sBGridSizeH->value()));
    settings->set(keys::includeTensorInfo, _ui->cBSafetensorsIncTensors->isChecked());
    settings->set(keys::includeMetaInfo, _ui->cBSafetensorsIncMeta->isChecked());
    settings->set(keys::optionDialogGeometry, saveGeometry());
    settings->set(keys::importFilesDeleteSrc, _ui->cBImportFilesDeleteSrc->isChecked());
    settings->set(keys::importFilesAutoRename, _ui->cBImportFilesAutoRename->isChecked());
    settings->set(keys::imagePreviewThreadCount, _ui->sBPreviewThreadCount->value());
}

void OptionsDialog::closeEvent(QCloseEvent* event) {
    storeOptions();
    // Calls done() for a visible dialog, which then stores the same values once more.
    QDialog::closeEvent(event);
}

// Escape ends a dialog without a close event.
void OptionsDialog::done(int result) {
    storeOptions();
    QDialog::done(result);
}
