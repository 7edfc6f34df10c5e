#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

#include <memory>

namespace Ui {
class SafetensorsDialog;
}

// Shows the header of a model file beside the picture of the same name, and steps through the model files of
// its directory.
class SafetensorsDialog : public QDialog {
    Q_OBJECT

public:
    explicit SafetensorsDialog(QWidget* parent = nullptr);
    ~SafetensorsDialog() override;

    // Suffixes to try for the preview image, the preferred first.
    void setImageFormats(const QStringList& formats);
    // The dialog becomes the owner of the widget. Only an EditImageWidget shows images.
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
    // Emitted while the form still exists.
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
