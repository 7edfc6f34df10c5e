#pragma once

#include "tags/TagText.h"

#include <QDialog>
#include <QList>

#include <memory>

namespace Ui {
class AddTagsDialog;
}

// Lets the user type tag text: tags to add to the selected files, or the text of one sidecar.
class AddTagsDialog : public QDialog {
    Q_OBJECT

public:
    explicit AddTagsDialog(QWidget* parent = nullptr);
    ~AddTagsDialog() override;

    // Switches to editing the text of one sidecar; called once, after construction.
    void setTagFile(const QString& imageFilePath, const QString& filePath, const QString& tags);
    // The tags that are offered while one is typed.
    void setKnownTags(const QList<TagCount>& tags) { _knownTags = tags; }

signals:
    void aboutToBeDestroyed();
    void addTagsAccepted(QString text);
    void addTagsTxtAccepted(QString imageFilePath, QString filePath, QString tags);

public slots:
    void onAccepted();

private:
    std::unique_ptr<Ui::AddTagsDialog> _ui;
    QList<TagCount> _knownTags;
};
