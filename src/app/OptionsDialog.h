#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class OptionsDialog;
}

// Edits the settings that have no widget in the main window. There is no cancel: however the dialog is
// closed, its values are stored.
class OptionsDialog : public QDialog {
    Q_OBJECT

public:
    explicit OptionsDialog(QWidget* parent = nullptr);
    ~OptionsDialog() override;

    void done(int result) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void loadOptions();
    void storeOptions() const;

    std::unique_ptr<Ui::OptionsDialog> _ui;
};
