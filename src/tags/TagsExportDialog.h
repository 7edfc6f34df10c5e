#pragma once

#include <QDialog>
#include <QHash>
#include <QStringList>

#include <memory>

namespace Ui {
class TagsExportDialog;
}

// Shows a snapshot of all tags as text, shaped by a few options.
class TagsExportDialog : public QDialog {
    Q_OBJECT

public:
    explicit TagsExportDialog(QWidget* parent = nullptr);
    ~TagsExportDialog() override;

    // The full list with all its duplicates.
    void setTags(const QStringList& tags);

public slots:
    void updateText();

private:
    std::unique_ptr<Ui::TagsExportDialog> _ui;
    QStringList _tags;
    QHash<QString, qsizetype> _counts;
};
