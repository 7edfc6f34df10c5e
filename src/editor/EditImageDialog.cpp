#include "editor/EditImageDialog.h"

#include "app/services/PlainText.h"
#include "app/services/StatusTipFilter.h"
#include "app/services/Themes.h"
#include "ui_EditImageDialog.h"

#include <QCloseEvent>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QKeySequence>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

QString keyText(const QKeySequence& keys) {
    return keys.toString(QKeySequence::PortableText);
}

template <typename Control, typename Value>
void setQuietly(Control* control, Value value) {
    const QSignalBlocker blocker(control);
    control->setValue(value);
}

} // namespace

EditImageDialog::EditImageDialog(QWidget* parent)
    : QMainWindow(parent), _ui(std::make_unique<Ui::EditImageDialog>()) {
    _ui->setupUi(this);
    keepMessages(this);
    initActions();
    // The fields of the cut rectangle, shown with the cut tool only.
    _ui->stackedWidget->hide();
    connect(Themes::instance(), &Themes::themeAccentChanged, this, &EditImageDialog::updateIcons);
    updateIcons(Themes::instance()->isDarkTheme());
    initControlConnections();
    initViewConnections();
    // The keys of the view work without a click into it first.
    _ui->imgWidget->setFocus();
}

EditImageDialog::~EditImageDialog() = default;

void EditImageDialog::setImageFile(const QString& filePath, const QString& positionText) {
    // The file was removed in the meantime, or the only file of the catalogue was deleted from here.
    if (!QFile::exists(filePath)) {
        qDebug() << "Error, file don't exists:" << filePath;
        return;
    }
    // The status reports that the previous file holds no picture.
    if (isEmpty())
        showStatus({});
    _positionText = positionText;
    // Shows the title, too, as it changes the steps of undo.
    _ui->imgWidget->setImageFilePath(filePath);
}

bool EditImageDialog::isEmpty() const {
    return _ui->imgWidget->imageSize().isEmpty();
}

void EditImageDialog::showTitle() {
    const QSize size = _ui->imgWidget->imageSize();
    setWindowTitle(tr("Edit image: %1 [%2x%3] %4")
                       .arg(QFileInfo(_ui->imgWidget->imageFilePath()).fileName(),
                            QString::number(size.width()), QString::number(size.height()), _positionText));
}

void EditImageDialog::initActions() {
    EditImageWidget* view = _ui->imgWidget;
    // Two steps, the Save key and then Ctrl+S: on purpose, as the texts show both. The view handles each of
    // the keys by itself.
    const auto save =
        addToolBarAction(tr("&Save image [%1]"), tr("Save image [%1]"),
                         QKeySequence(QKeyCombination(Qt::Key_Save), Qt::CTRL | Qt::Key_S), u"save"_s);
    const auto saveAs = addToolBarAction(tr("&Save image as [%1]"), tr("Save image as [%1]"),
                                         QKeySequence(Qt::SHIFT | Qt::Key_S), u"saveAs"_s);
    const auto previous = addToolBarAction(tr("&Previous image [%1]"), tr("Previous image [%1]"),
                                           QKeySequence(Qt::Key_PageUp), u"arrow_square_left"_s);
    const auto next = addToolBarAction(tr("&Next image [%1]"), tr("Next image [%1]"),
                                       QKeySequence(Qt::Key_PageDown), u"arrow_square_right"_s);
    const auto pan =
        addToolBarAction(tr("&Pan image [%1]"), tr("Pan image [%1]"), QKeySequence(Qt::Key_Q), u"toolPan"_s);
    const auto cut =
        addToolBarAction(tr("&Cut image [%1]"), tr("Cut image [%1]"), QKeySequence(Qt::Key_W), u"toolCut"_s);
    const auto remove = addToolBarAction(tr("&Delete image [%1]"), tr("&Delete image [%1]"),
                                         QKeySequence(Qt::Key_Delete), u"delete"_s);
    const auto undo =
        addToolBarAction(tr("&Undo [%1]"), tr("&Undo [%1]"), QKeySequence(Qt::Key_Undo), u"back_undo"_s);
    undo->setEnabled(view->undoAvailable());
    initToolTips(pan->shortcut(), cut->shortcut());

    connect(save, &QAction::triggered, view, &EditImageWidget::saveImage);
    connect(saveAs, &QAction::triggered, view, &EditImageWidget::saveImageAs);
    connect(previous, &QAction::triggered, this, [this] { onRequestImage(false); });
    connect(next, &QAction::triggered, this, [this] { onRequestImage(true); });
    connect(pan, &QAction::triggered, view, [view] { view->setTool(EditImageWidget::ToolPan); });
    connect(cut, &QAction::triggered, view, [view] { view->setTool(EditImageWidget::ToolCut); });
    connect(remove, &QAction::triggered, this,
            [this] { emit requestDeleteImage(_ui->imgWidget->imageFilePath()); });
    connect(undo, &QAction::triggered, view, &EditImageWidget::undoLastAction);
    connect(view, &EditImageWidget::undoAvailableChanged, undo, &QAction::setEnabled);
}

QAction* EditImageDialog::addToolBarAction(const QString& text, const QString& iconText,
                                           const QKeySequence& shortcut, const QString& iconName) {
    auto* action = new QAction(QIcon(u":/resources/icons/%1.svg"_s.arg(iconName)), {}, this);
    action->setShortcut(shortcut);
    action->setText(text.arg(keyText(shortcut)));
    action->setIconText(iconText.arg(keyText(shortcut)));
    _ui->toolBar->addAction(action);
    // The shortcuts of a hidden tool bar do not work, so the window has the actions as well.
    addAction(action);
    return action;
}

void EditImageDialog::initToolTips(const QKeySequence& pan, const QKeySequence& cut) {
    const QString panText = tr("Pan image [%1]").arg(keyText(pan));
    _ui->tBToolPan->setText(panText);
    _ui->tBToolPan->setToolTip(panText);
    const QString cutText = tr("Cut image [%1]").arg(keyText(cut));
    _ui->tBToolCut->setText(cutText);
    _ui->tBToolCut->setToolTip(cutText);
    // The view handles these keys; they are not shortcuts of the window.
    _ui->tBAutoFit->setToolTip(tr("Auto fit image to view. Changes zoom. [%1]").arg(keyText(Qt::Key_F)));
    _ui->tBAutoCenter->setToolTip(tr("Auto center image. Dont change zoom. [%1]").arg(keyText(Qt::Key_C)));
    _ui->tBKeepAspectRatio->setToolTip(
        tr("Keep aspect ration while resizing cut rectangle. [%1]").arg(keyText(Qt::Key_A)));
}

void EditImageDialog::initControlConnections() {
    EditImageWidget* view = _ui->imgWidget;
    connect(_ui->tBToolPan, &QToolButton::clicked, view, [view] { view->setTool(EditImageWidget::ToolPan); });
    connect(_ui->tBToolCut, &QToolButton::clicked, view, [view] { view->setTool(EditImageWidget::ToolCut); });
    connect(_ui->tBAutoCenter, &QToolButton::toggled, view, &EditImageWidget::setAutoCenter);
    connect(_ui->tBAutoFit, &QToolButton::toggled, view, &EditImageWidget::setAutoFit);
    connect(_ui->tBKeepAspectRatio, &QToolButton::toggled, view, &EditImageWidget::setAspectRatioKeep);
    for (QDoubleSpinBox* box : {_ui->dSBCutX, _ui->dSBCutY, _ui->dSBCutWidth, _ui->dSBCutHeight})
        connect(box, &QDoubleSpinBox::valueChanged, this, &EditImageDialog::onCutRectChanged);
    connect(_ui->sBCutOutlineWidth, &QSpinBox::valueChanged, view, &EditImageWidget::setCutOutlineWidth);
}

void EditImageDialog::initViewConnections() {
    EditImageWidget* view = _ui->imgWidget;
    const auto follow = [view](auto signal, QToolButton* button) {
        // Blocked, as the button would set the view again.
        connect(view, signal, button, [button](bool on) {
            const QSignalBlocker blocker(button);
            button->setChecked(on);
        });
    };
    follow(&EditImageWidget::autoCenterChanged, _ui->tBAutoCenter);
    follow(&EditImageWidget::autoFitChanged, _ui->tBAutoFit);
    follow(&EditImageWidget::aspectRatioKeepChanged, _ui->tBKeepAspectRatio);
    connect(view, &EditImageWidget::zoomChanged, this, &EditImageDialog::onZoomChanged);
    // After a load, a cut and an undo, each of which may change the size.
    connect(view, &EditImageWidget::undoAvailableChanged, this, &EditImageDialog::showTitle);
    connect(view, &EditImageWidget::requestImage, this, &EditImageDialog::onRequestImage);
    connect(view, &EditImageWidget::message, this, &EditImageDialog::message);
    connect(view, &EditImageWidget::message, this, &EditImageDialog::showStatus);
    connect(view, &EditImageWidget::saveFailed, this, &EditImageDialog::saveFailed);
    connect(view, &EditImageWidget::savedFile, this, &EditImageDialog::savedFile);
    connect(view, &EditImageWidget::newlySavedFile, this, &EditImageDialog::newlySavedFile);
    connect(view, &EditImageWidget::toolChanged, this, &EditImageDialog::onToolChanged);
    connect(view, &EditImageWidget::cutSizeChanged, this, &EditImageDialog::onToolCutSizeChanged);
}

void EditImageDialog::updateIcons(bool dark) {
    const Themes* themes = Themes::instance();
    themes->tintActions(dark, actions());
    themes->tintActions(dark, _ui->toolBar->actions());
    themes->tintButtons(
        dark, {_ui->tBAutoCenter, _ui->tBAutoFit, _ui->tBToolPan, _ui->tBToolCut, _ui->tBKeepAspectRatio});
}

void EditImageDialog::onRequestImage(bool next) {
    const QString filePath = _ui->imgWidget->imageFilePath();
    if (next)
        emit requestImgNext(filePath);
    else
        emit requestImgPrev(filePath);
}

void EditImageDialog::onZoomChanged(QPointF zoom) {
    showStatus(tr("zoom level: %1").arg(zoom.x()));
}

// The label cuts off a long path; the tool tip has all of it.
void EditImageDialog::showStatus(const QString& text) {
    _ui->labelStatus->setText(text);
    _ui->labelStatus->setToolTip(plainToolTip(text));
}

void EditImageDialog::onToolChanged(EditImageWidget::Tool tool) {
    _ui->stackedWidget->hide();
    if (tool != EditImageWidget::ToolCut)
        return;
    // The view has set the rectangle to the whole picture.
    onToolCutSizeChanged(_ui->imgWidget->cutRect());
    setQuietly(_ui->sBCutOutlineWidth, _ui->imgWidget->cutOutlineWidth());
    _ui->stackedWidget->show();
}

void EditImageDialog::onToolCutSizeChanged(QRectF cutRect) {
    // Blocked, as each box would set a rectangle of which the other fields are still the old ones.
    setQuietly(_ui->dSBCutX, cutRect.x());
    setQuietly(_ui->dSBCutY, cutRect.y());
    setQuietly(_ui->dSBCutWidth, cutRect.width());
    setQuietly(_ui->dSBCutHeight, cutRect.height());
}

void EditImageDialog::onCutRectChanged() {
    _ui->imgWidget->onCutRectSet(QRectF(_ui->dSBCutX->value(), _ui->dSBCutY->value(),
                                        _ui->dSBCutWidth->value(), _ui->dSBCutHeight->value()));
}

void EditImageDialog::closeEvent(QCloseEvent* event) {
    emit widgetState(saveState());
    emit widgetGeometry(saveGeometry());
    QMainWindow::closeEvent(event);
}
