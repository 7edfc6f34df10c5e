#include "app/SettingsWidgetDebugDialog.h"

#include "ui_SettingsWidgetDebugDialog.h"

SettingsWidgetDebugDialog::SettingsWidgetDebugDialog(QWidget* parent)
    : QDialog(parent), _ui(std::make_unique<Ui::SettingsWidgetDebugDialog>()) {
    _ui->setupUi(this);
    _ui->treeWidget->setHeaderLabels({tr("Key"), tr("Value"), tr("Type"), tr("Size")});
    connect(_ui->pBClose, &QPushButton::clicked, this, &QWidget::close);
    connect(_ui->pBApply, &QPushButton::clicked, this, &SettingsWidgetDebugDialog::onApply);
    connect(_ui->pBRemoveSelected, &QPushButton::clicked, this, &SettingsWidgetDebugDialog::onRemoveSelected);
}

SettingsWidgetDebugDialog::~SettingsWidgetDebugDialog() = default;

void SettingsWidgetDebugDialog::onRemoveSelected() {
    QTreeWidget* tree = _ui->treeWidget;
    const QList<QTreeWidgetItem*> items = tree->selectedItems();
    for (QTreeWidgetItem* item : items) {
        const int index = tree->indexOfTopLevelItem(item);
        if (index < 0)
            continue;
        _data.remove(item->text(0));
        delete tree->takeTopLevelItem(index);
    }
}

void SettingsWidgetDebugDialog::onApply() {
    emit replaceSettings(_data);
    close();
}
