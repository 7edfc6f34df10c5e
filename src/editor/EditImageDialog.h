#pragma once

#include "editor/EditImageWidget.h"

#include <QMainWindow>

#include <memory>

namespace Ui {
class EditImageDialog;
}

// A tool window around one image view. Forwards the user's actions to the view, and by signals to its owner
// what concerns the catalogue.
class EditImageDialog : public QMainWindow {
    Q_OBJECT

public:
    explicit EditImageDialog(QWidget* parent = nullptr);
    ~EditImageDialog() override;

    // A file that does not exist leaves the window as it is.
    void setImageFile(const QString& filePath, const QString& positionText);
    // Whether no picture is shown, as of a file that holds none.
    [[nodiscard]] bool isEmpty() const;
    void showStatus(const QString& text);

public slots:
    void updateIcons(bool dark);
    void onZoomChanged(QPointF zoom);
    void onToolChanged(EditImageWidget::Tool tool);
    void onToolCutSizeChanged(QRectF cutRect);
    void onCutRectChanged();

signals:
    void requestImgPrev(QString currFilePath);
    void requestImgNext(QString currFilePath);
    void message(QString msg);
    void widgetState(QByteArray data);
    void widgetGeometry(QByteArray data);
    void requestDeleteImage(QString filePath);
    void saveFailed(QString filePath, QString reason);
    void savedFile(QString fileName);
    void newlySavedFile(QString fileName);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void initActions();
    void initToolTips(const QKeySequence& pan, const QKeySequence& cut);
    void initViewConnections();
    void initControlConnections();
    QAction* addToolBarAction(const QString& text, const QString& iconText, const QKeySequence& shortcut,
                              const QString& iconName);
    void onRequestImage(bool next);
    void showTitle();

    std::unique_ptr<Ui::EditImageDialog> _ui;
    QString _positionText;
};
