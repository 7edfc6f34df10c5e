#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

#include <memory>

namespace Ui {
class SafetensorsDialog;
}

// Shows what a model file declares, beside the picture of the same name, and walks its directory.
class SafetensorsDialog : public QDialog {
    Q_OBJECT

public:
    explicit SafetensorsDialog(QWidget* parent = nullptr);
    ~SafetensorsDialog() override;

    // Suffixes to try for the preview image, the preferred first.
    void setImageFormats(const QStringList& formats);
    // The dialog's layout takes the widget over; only an EditImageWidget gets images.
    void setImageWidget(QWidget* widget);
    void setSafetensorFile(const QString& fileName, bool includeTensorInfo, bool includeMetaInfo);

    [[nodiscard]] QByteArray saveSplitterState() const;
    bool restoreSplitterState(const QByteArray& state);

public slots:
    void onOpenSafetensorFile();
    void onShowInFileBrowser();
    void onSafetensorNext();
    void onSafetensorUpdate();

signals:
    // The form still exists.
    void aboutToBeDestroyed();

private:
    void updateIcons(bool isDarkTheme);
    void showPreview(const QString& fileName);

    std::unique_ptr<Ui::SafetensorsDialog> _ui;
    QWidget* _imageWidget = nullptr;
    QStringList _imageFormats;
    QString _currentFile;
    bool _includeTensorInfo = false;
    bool _includeMetaInfo = false;
};
