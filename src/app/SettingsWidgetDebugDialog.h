#pragma once

#include <QDialog>
#include <QHash>
#include <QString>
#include <QVariant>

#include <memory>

namespace Ui {
class SettingsWidgetDebugDialog;
}

// A small editor of the raw settings table for developers: no menu entry opens it. It edits a copy, which
// replaceSettings carries when the user applies it.
class SettingsWidgetDebugDialog : public QDialog {
    Q_OBJECT

public:
    explicit SettingsWidgetDebugDialog(QWidget* parent = nullptr);
    ~SettingsWidgetDebugDialog() override;

signals:
    void replaceSettings(QHash<QString, QVariant> data);

public slots:
    void onRemoveSelected();
    void onApply();

private:
    std::unique_ptr<Ui::SettingsWidgetDebugDialog> _ui;
    QHash<QString, QVariant> _data;
};
