#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class ReplaceTextDialog;
}

// Asks for the text of a bulk replace or split over all tags.
class ReplaceTextDialog : public QDialog {
    Q_OBJECT

public:
    enum OperationType { Split = 1, Replace = 2 };

    explicit ReplaceTextDialog(QWidget* parent = nullptr);
    ~ReplaceTextDialog() override;

    void setOperationType(int type);
    // The text to start from, selected so that typing replaces it.
    void setSourceText(const QString& text);

signals:
    void replaceText(QString src, QString dst);
    void splitText(QString src);

public slots:
    void onClose();

private:
    std::unique_ptr<Ui::ReplaceTextDialog> _ui;
    int _operationType = 0;
};
