#include "safetensors/SafetensorsDialog.h"

#include "app/services/LongLines.h"
#include "app/services/Themes.h"
#include "app/services/Utils.h"
#include "editor/EditImageWidget.h"
#include "safetensors/ModelFileNaming.h"
#include "safetensors/SafetensorInspector.h"
#include "ui_SafetensorsDialog.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileDialog>
#include <QFileInfo>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

void setCheckedQuietly(QCheckBox* box, bool checked) {
    const QSignalBlocker blocker(box);
    box->setChecked(checked);
}

QString inspectionText(const QMap<QString, QString>& entries) {
    QString text;
    for (const auto& [key, value] : entries.asKeyValueRange())
        text += key.trimmed() + "\t:\t"_L1 + value.trimmed() + '\n'_L1;
    return text;
}

} // namespace

SafetensorsDialog::SafetensorsDialog(QWidget* parent)
    : QDialog(parent), _ui(std::make_unique<Ui::SafetensorsDialog>()) {
    _ui->setupUi(this);
    keepLongLinesQuick(_ui->pTEOutput);
    // Equal halves until a stored state is restored.
    _ui->splitter->setSizes({width() / 2, width() / 2});
    connect(_ui->tBOpenSafetensorFile, &QToolButton::clicked, this, &SafetensorsDialog::onOpenSafetensorFile);
    connect(_ui->tBShowInFileBrowser, &QToolButton::clicked, this, &SafetensorsDialog::onShowInFileBrowser);
    connect(_ui->tBSafetensorPrev, &QToolButton::clicked, this, &SafetensorsDialog::onSafetensorNext);
    connect(_ui->tBSafetensorNext, &QToolButton::clicked, this, &SafetensorsDialog::onSafetensorNext);
    connect(_ui->cBMetainfo, &QCheckBox::toggled, this, &SafetensorsDialog::onSafetensorUpdate);
    connect(_ui->cBTensor, &QCheckBox::toggled, this, &SafetensorsDialog::onSafetensorUpdate);
    connect(Themes::instance(), &Themes::themeAccentChanged, this, &SafetensorsDialog::updateIcons);
    updateIcons(Themes::instance()->isDarkTheme());
}

SafetensorsDialog::~SafetensorsDialog() {
    emit aboutToBeDestroyed();
}

void SafetensorsDialog::setImageFormats(const QStringList& formats) {
    _imageFormats = formats;
}

void SafetensorsDialog::setImageWidget(QWidget* widget) {
    _imageWidget = widget;
    _ui->vLImageWidget->addWidget(widget);
}

void SafetensorsDialog::setSafetensorFile(const QString& fileName, bool includeTensorInfo,
                                          bool includeMetaInfo) {
    // A box that emits its change would read the file once more.
    setCheckedQuietly(_ui->cBTensor, includeTensorInfo);
    setCheckedQuietly(_ui->cBMetainfo, includeMetaInfo);
    _includeTensorInfo = includeTensorInfo;
    _includeMetaInfo = includeMetaInfo;
    SafetensorInspector inspector;
    const QMap<QString, QString> entries =
        inspector.insepctSafetensor(fileName, includeTensorInfo, includeMetaInfo);
    _ui->pTEOutput->clear();
    _ui->pTEOutput->appendPlainText(inspectionText(entries));
    if (!inspector.messages().isEmpty())
        _ui->pTEOutput->appendPlainText(inspector.messages());
    // The view has followed the appended text to its end.
    _ui->pTEOutput->moveCursor(QTextCursor::Start);
    // Also a file that could not be read, so that the user can step on from it.
    _currentFile = fileName;
    setWindowTitle(tr("File: %1").arg(QFileInfo(fileName).fileName()));
    showPreview(fileName);
}

void SafetensorsDialog::showPreview(const QString& fileName) {
    auto* view = qobject_cast<EditImageWidget*>(_imageWidget);
    if (!view)
        return;
    view->setImageFilePath(previewImagePath(fileName, _imageFormats));
    // Each setter also centres or fits the new picture.
    view->setAutoCenter(true);
    view->setAutoFit(true);
    view->update();
}

QByteArray SafetensorsDialog::saveSplitterState() const {
    return _ui->splitter->saveState();
}

bool SafetensorsDialog::restoreSplitterState(const QByteArray& state) {
    return _ui->splitter->restoreState(state);
}

void SafetensorsDialog::updateIcons(bool isDarkTheme) {
    const Themes* themes = Themes::instance();
    themes->tintActions(isDarkTheme, actions());
    themes->tintButtons(isDarkTheme, {_ui->tBOpenSafetensorFile, _ui->tBSafetensorNext, _ui->tBSafetensorPrev,
                                      _ui->tBShowInFileBrowser});
}

void SafetensorsDialog::onOpenSafetensorFile() {
    if (_currentFile.isEmpty())
        _currentFile = QCoreApplication::applicationDirPath();
    const QString fileName = QFileDialog::getOpenFileName(this, tr("Open safetensors file"), _currentFile,
                                                          tr("Safetensors (*.safetensors)"));
    if (fileName.isEmpty()) {
        qDebug() << "Error, safetensor filename is empty.";
        return;
    }
    // Replaced by the file right below; kept on purpose.
    _currentFile = QFileInfo(fileName).path();
    setSafetensorFile(fileName, _ui->cBTensor->isChecked(), _ui->cBMetainfo->isChecked());
}

void SafetensorsDialog::onShowInFileBrowser() {
    Utils::instance()->revealInFileBrowser(_currentFile, true, nullptr);
}

void SafetensorsDialog::onSafetensorNext() {
    // Both buttons use this slot.
    const bool isForward = sender() == _ui->tBSafetensorNext;
    // Read anew at each step, as files may have been added or removed.
    const QString current = _currentFile;
    const QStringList files = modelFilesBeside(current);
    if (files.isEmpty())
        qDebug() << "No files found";
    // Without a file the path is empty, and the failure to open it is shown.
    setSafetensorFile(steppedModelFile(files, current, isForward), _includeTensorInfo, _includeMetaInfo);
    // The next step lists the same directory again; an empty path would mean that of the process.
    if (files.isEmpty())
        _currentFile = current;
}

void SafetensorsDialog::onSafetensorUpdate() {
    setSafetensorFile(_currentFile, _ui->cBTensor->isChecked(), _ui->cBMetainfo->isChecked());
}
