#include "app/OptionsDialog.h"

#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "ui_OptionsDialog.h"

namespace {

constexpr QSize defaultOptionsGridSize(240, 240);
constexpr int defaultPreviewThreadCount = 4;

} // namespace

OptionsDialog::OptionsDialog(QWidget* parent) : QDialog(parent), _ui(std::make_unique<Ui::OptionsDialog>()) {
    _ui->setupUi(this);
    setWindowTitle(tr("Settings"));
    loadOptions();
    connect(_ui->pBClose, &QPushButton::clicked, this, &QWidget::close);
}

OptionsDialog::~OptionsDialog() = default;

void OptionsDialog::loadOptions() {
    const Settings* settings = Settings::instance();
    const QByteArray geometry = settings->data(keys::optionDialogGeometry).toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
    const QSize gridSize = settings->data(keys::gridSizeListView, defaultOptionsGridSize).toSize();
    _ui->sBGridSizeW->setValue(gridSize.width());
    _ui->sBGridSizeH->setValue(gridSize.height());
    _ui->sBPreviewThreadCount->setValue(
        settings->data(keys::imagePreviewThreadCount, defaultPreviewThreadCount).toInt());
    _ui->cBImportFilesDeleteSrc->setChecked(settings->data(keys::importFilesDeleteSrc, false).toBool());
    _ui->cBImportFilesAutoRename->setChecked(settings->data(keys::importFilesAutoRename, false).toBool());
    _ui->cBSafetensorsIncMeta->setChecked(settings->data(keys::includeMetaInfo, true).toBool());
    _ui->cBSafetensorsIncTensors->setChecked(settings->data(keys::includeTensorInfo, false).toBool());
}

void OptionsDialog::storeOptions() const {
    Settings* settings = Settings::instance();
    settings->setData(keys::gridSizeListView, QSize(_ui->sBGridSizeW->value(), _ui->sBGridSizeH->value()));
    settings->setData(keys::includeTensorInfo, _ui->cBSafetensorsIncTensors->isChecked());
    settings->setData(keys::includeMetaInfo, _ui->cBSafetensorsIncMeta->isChecked());
    settings->setData(keys::optionDialogGeometry, saveGeometry());
    settings->setData(keys::importFilesDeleteSrc, _ui->cBImportFilesDeleteSrc->isChecked());
    settings->setData(keys::importFilesAutoRename, _ui->cBImportFilesAutoRename->isChecked());
    settings->setData(keys::imagePreviewThreadCount, _ui->sBPreviewThreadCount->value());
}

void OptionsDialog::closeEvent(QCloseEvent* event) {
    storeOptions();
    QDialog::closeEvent(event);
}

// Escape ends a dialog without a close event.
void OptionsDialog::done(int result) {
    storeOptions();
    QDialog::done(result);
}
