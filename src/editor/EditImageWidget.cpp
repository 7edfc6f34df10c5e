#include "editor/EditImageWidget.h"

#include "app/services/ImageFile.h"
#include "catalogue/FileNaming.h"
#include "catalogue/MediaFormats.h"
#include "editor/CutGeometry.h"
#include "editor/ViewGeometry.h"

#include <QCursor>
#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

// Values of the axis lock.
constexpr int noAxisLock = 0;
constexpr int horizontalMovesOnly = 1;
constexpr int verticalMovesOnly = 2;

constexpr QColor cutColour(180, 180, 180, 128);

int cutKeyStep(Qt::KeyboardModifiers modifiers) {
    if (modifiers == Qt::ControlModifier)
        return 40;
    return modifiers == Qt::ShiftModifier ? 1 : 8;
}

bool isSaveKey(const QKeyEvent* event) {
    if (event->key() == Qt::Key_Save)
        return true;
    // The second test accepts Ctrl together with other modifiers.
    return event->key() == Qt::Key_S &&
           (event->modifiers() == Qt::ControlModifier ||
            QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier));
}

} // namespace

EditImageWidget::EditImageWidget(QWidget* parent) : QWidget(parent) {
    qRegisterMetaType<EditImageWidget::Tool>();
    setObjectName(u"EditImageWidget"_s);
    resize(397, 325);
    setWindowTitle(tr("Form"));
    setFocusPolicy(Qt::WheelFocus);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &EditImageWidget::onContextMenu);
    // Connected first, so that every other receiver finds the view changed already.
    connect(this, &EditImageWidget::autoCenterChanged, this, &EditImageWidget::updateAutoCenter);
    connect(this, &EditImageWidget::autoFitChanged, this, &EditImageWidget::fitImage);
}

// --- image ---------------------------------------------------------------------------------------

void EditImageWidget::setImage(const QImage& image, const QString& filePath, const QString& noSaveReason) {
    qDebug() << "EditImageWidget::setImage" << image << filePath;
    _imageFilePath = filePath;
    _noSaveReason = noSaveReason;
    _pixmap = QPixmap::fromImage(image);
    showLoadedImage();
}

void EditImageWidget::setImageFilePath(const QString& filePath) {
    _noSaveReason.clear();
    if (!QFile::exists(filePath)) {
        qDebug() << "Error, file don't exists:" << filePath;
        // Saving then fails with a message. The steps of undo stay, from which the user can save a copy.
        _imageFilePath.clear();
        _pixmap = {};
        update();
        return;
    }
    _imageFilePath = filePath;
    // Through a reader, as the pixmap cache may have an older state of the file.
    QImageReader reader(filePath);
    // Opening a named pipe would block until a process writes to it.
    _pixmap = QFileInfo(filePath).isFile() ? QPixmap::fromImageReader(&reader) : QPixmap();
    showLoadedImage();
}

void EditImageWidget::showLoadedImage() {
    updateView();
    update();
    // The steps of undo belong to the previous image.
    _pixUndoRedo.clear();
    emit undoAvailableChanged(undoAvailable());
}

QString EditImageWidget::imageSizeText() const {
    return u"%1x%2"_s.arg(_pixmap.width()).arg(_pixmap.height());
}

// --- view ----------------------------------------------------------------------------------------

void EditImageWidget::setAutoCenter(bool on) {
    _autoCenter = on;
    // Emitted without a change, too: the receivers centre the image again.
    emit autoCenterChanged(on);
}

void EditImageWidget::setAutoFit(bool on) {
    _autoFit = on;
    emit autoFitChanged(on);
}

void EditImageWidget::toggleAutoCenter() {
    setAutoCenter(!_autoCenter);
}

void EditImageWidget::toggleAutoFit() {
    setAutoFit(!_autoFit);
}

void EditImageWidget::resetZoom() {
    qDebug() << "Reset zoom and transformations.";
    _transform = {};
    _zoom = {1.0, 1.0};
    emit zoomChanged(_zoom);
    update();
}

// Runs when auto fit is switched off as well, which fits the image once more.
void EditImageWidget::fitImage() {
    // Without an image there is nothing to fit; loading the next one updates the view.
    if (_pixmap.isNull())
        return;
    const double zoom = fittingZoom(size(), _pixmap.size());
    _zoom = {zoom, zoom};
    _transform = withOffset(withScale(_transform, zoom), centredOffset(size(), _pixmap.size(), zoom));
    update();
}

void EditImageWidget::updateAutoCenter() {
    if (!_autoCenter || _pixmap.isNull())
        return;
    _transform = withOffset(_transform, centredOffset(size(), _pixmap.size(), _zoom.x()));
    update();
}

void EditImageWidget::updateView() {
    if (_autoCenter)
        updateAutoCenter();
    if (_autoFit) {
        fitImage();
        emit zoomChanged(_zoom);
    }
}

void EditImageWidget::resizeEvent(QResizeEvent* event) {
    if (_updateOnResize)
        updateView();
    QWidget::resizeEvent(event);
}

void EditImageWidget::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        // Stays accepted: the base class would pass the event on to the parent.
        emit requestImage(wheelDegrees(event->angleDelta()).y() < 0);
        return;
    }
    const double change = wheelZoomChange(event->angleDelta(), event->pixelDelta(),
                                          event->modifiers().testFlag(Qt::ShiftModifier));
    // Added, not multiplied: a notch changes the zoom by the same amount everywhere.
    _zoom += QPointF(change, change);
    applyZoom(QCursor::pos());
    emit zoomChanged(_zoom);
    QWidget::wheelEvent(event);
}

void EditImageWidget::applyZoom(QPoint globalPos) {
    const double zoom = clampedViewZoom(_zoom.x());
    _zoom = {zoom, zoom};
    // A cursor at the origin of the screen counts as an unknown position.
    const QPoint position = globalPos.isNull() ? QPoint() : mapFromGlobal(globalPos);
    _transform = zoomedAround(_transform, position, zoom);
    update();
}

void EditImageWidget::paintEvent(QPaintEvent*) {
    if (_pixmap.isNull())
        return;
    QPainter painter(this);
    painter.setTransform(_transform);
    // The whole pixmap, whatever part is exposed. A part alone would be scaled from other sample points, and
    // the picture would jitter while it moves; the painter clips anyway.
    painter.drawPixmap(_pixmap.rect(), _pixmap);
    if (_tool == ToolCut)
        paintCutRect(painter);
}

void EditImageWidget::paintCutRect(QPainter& painter) const {
    // The painter is scaled, and the outline is to have its width on the screen.
    const double width = _cutOutlineWidth / _zoom.x();
    painter.setPen(QPen(QBrush(cutColour), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRects(&_cutRect, 1);
    if (_cutPartRect.isValid()) {
        painter.setBrush(cutColour);
        painter.drawRects(&_cutPartRect, 1);
    }
}

// --- mouse and keys ------------------------------------------------------------------------------

void EditImageWidget::mousePressEvent(QMouseEvent* event) {
    _lastMousePos = event->position();
    if (_tool == ToolCut && event->buttons().testFlag(Qt::LeftButton)) {
        // Outside of all regions the part is none, and the drag pans the picture.
        const CutRegion region = cutRegionAt(_cutRect, _transform, _zoom.x(), event->position());
        _cutPart = region.part;
        _cutPartRect = region.rect;
    }
    update();
    QWidget::mousePressEvent(event);
}

void EditImageWidget::mouseMoveEvent(QMouseEvent* event) {
    // A view without width fits its image at zoom 0, by which a distance cannot be divided.
    const double zoom = _zoom.x();
    const QPointF moved = zoom > 0.0 ? (event->position() - _lastMousePos) / zoom : QPointF();
    const QPointF delta = lockedToAxis(moved);
    if (_tool == ToolCut && _cutPart != CutPartNone && event->buttons().testFlag(Qt::LeftButton)) {
        _cutPartRect = {};
        _cutRect = draggedCutRect(_cutRect, _cutPart, delta, _aspectRatioKeep);
    } else if (!hasMouseTracking()) { // without tracking, a move means that a button is pressed
        _transform.translate(delta.x(), delta.y());
    }
    update();
    _lastMousePos = event->position();
    QWidget::mouseMoveEvent(event);
}

void EditImageWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (_tool == ToolCut) {
        qDebug() << "EditImageWidget::mouseReleaseEvent" << _cutRect;
        _cutPartRect = {};
        // Only now: the number fields are not updated at every move of a drag.
        emit cutSizeChanged(_cutRect);
    }
    _cutPart = CutPartNone;
    update();
    QWidget::mouseReleaseEvent(event);
}

void EditImageWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (_tool == ToolCut && event->buttons().testFlag(Qt::LeftButton))
        applyCut();
    // A double click replaces the second press, from which a drag may start.
    mousePressEvent(event);
}

QPointF EditImageWidget::lockedToAxis(QPointF delta) const {
    if (_axisLock == horizontalMovesOnly)
        return {delta.x(), 0.0};
    return _axisLock == verticalMovesOnly ? QPointF(0.0, delta.y()) : delta;
}

void EditImageWidget::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() == Qt::ShiftModifier)
        _axisLock = horizontalMovesOnly;
    else if (event->modifiers() == Qt::ControlModifier)
        _axisLock = verticalMovesOnly;
    // Keys act on release, when the user may have released the modifiers already. A repeat alone is no press:
    // the key may have been pressed in a dialog that has closed since.
    if (!event->isAutoRepeat() || _pressedModifiers.contains(event->key()))
        _pressedModifiers.insert(event->key(), event->modifiers());
    update();
    if (isSaveKey(event))
        saveImage();
    QWidget::keyPressEvent(event);
}

bool EditImageWidget::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* keys = static_cast<QKeyEvent*>(event);
        const bool isUndo = keys->key() == Qt::Key_Z && keys->modifiers().testFlag(Qt::ControlModifier);
        if (isUndo || (isSaveKey(keys) && !_imageFilePath.isEmpty())) {
            // An accepted override arrives as a key press here instead of triggering a shortcut.
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void EditImageWidget::keyReleaseEvent(QKeyEvent* event) {
    // By any key: the lock begins anew with the next press under a modifier.
    _axisLock = noAxisLock;
    // A release without its press belongs to a dialog that the press has closed.
    const bool isPressedHere = _pressedModifiers.contains(event->key());
    const Qt::KeyboardModifiers modifiers = releasedModifiers(event);
    if (isPressedHere)
        handleViewKey(event->key(), modifiers);
    // Reported after any key, whether it moved the rectangle or not.
    if (_tool == ToolCut) {
        if (isPressedHere)
            handleCutKey(event, modifiers);
        emit cutSizeChanged(_cutRect);
        update();
    }
    QWidget::keyReleaseEvent(event);
}

// On Ctrl+Z the user may release Ctrl before Z.
Qt::KeyboardModifiers EditImageWidget::releasedModifiers(const QKeyEvent* event) {
    // A held key reports a release at each repeat.
    const Qt::KeyboardModifiers pressed =
        event->isAutoRepeat() ? _pressedModifiers.value(event->key()) : _pressedModifiers.take(event->key());
    return event->modifiers() == Qt::NoModifier ? pressed : event->modifiers();
}

void EditImageWidget::handleViewKey(int key, Qt::KeyboardModifiers modifiers) {
    if (key == Qt::Key_C) {
        qDebug() << "Auto center toggled.";
        toggleAutoCenter();
    } else if (key == Qt::Key_F) {
        qDebug() << "Fit image.";
        toggleAutoFit();
    } else if (key == Qt::Key_R) {
        resetZoom();
    } else if (key == Qt::Key_A) {
        setAspectRatioKeep(!_aspectRatioKeep);
        emit aspectRatioKeepChanged(_aspectRatioKeep);
    } else if (key == Qt::Key_Undo || (key == Qt::Key_Z && modifiers == Qt::ControlModifier)) {
        undoLastAction();
    }
}

void EditImageWidget::handleCutKey(const QKeyEvent* event, Qt::KeyboardModifiers modifiers) {
    const int step = cutKeyStep(modifiers);
    switch (event->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Space:
        // Held, it would add a step of undo at each repeat.
        if (!event->isAutoRepeat())
            applyCut();
        break;
    case Qt::Key_Left:
        moveCutRect("cut move left", QPointF(-step, 0));
        break;
    case Qt::Key_Right:
        moveCutRect("cut move right", QPointF(step, 0));
        break;
    case Qt::Key_Up:
        moveCutRect("cut move up", QPointF(0, -step));
        break;
    case Qt::Key_Down:
        moveCutRect("cut move down", QPointF(0, step));
        break;
    default:
        break;
    }
}

void EditImageWidget::moveCutRect(const char* direction, QPointF delta) {
    qDebug() << direction;
    _cutRect.moveCenter(_cutRect.center() + delta);
}

// --- cut -----------------------------------------------------------------------------------------

void EditImageWidget::setTool(EditImageWidget::Tool tool) {
    _tool = tool;
    if (tool == ToolCut)
        _cutRect = _pixmap.rect();
    update();
    emit toolChanged(tool);
}

void EditImageWidget::onCutRectSet(QRectF r) {
    _cutRect = r;
    update();
}

void EditImageWidget::setCutOutlineWidth(int width) {
    _cutOutlineWidth = width;
    update();
}

void EditImageWidget::setAspectRatioKeep(bool on) {
    _aspectRatioKeep = on;
}

void EditImageWidget::applyCut() {
    // Of a rectangle without a pixel of the picture, copy() would take the whole picture.
    const QRect pixels = _cutRect.toRect() & _pixmap.rect();
    if (!_cutRect.isValid() || pixels.isEmpty()) {
        qDebug() << "Invalid cut rect:" << _cutRect;
        return;
    }
    _pixUndoRedo.append(_pixmap);
    _pixmap = _pixmap.copy(pixels);
    const CutShift shift = shiftAfterCut(_cutRect);
    _transform.translate(shift.translation.x(), shift.translation.y());
    _cutRect = shift.cutRect;
    update();
    emit undoAvailableChanged(undoAvailable());
}

void EditImageWidget::undoLastAction() {
    qDebug() << "EditImageWidget::undoLastAction" << _pixUndoRedo;
    if (undoAvailable()) {
        // The view and the cut rectangle stay as the cut has moved them.
        _pixmap = _pixUndoRedo.takeLast();
        update();
    }
    emit undoAvailableChanged(undoAvailable());
}

// --- save ----------------------------------------------------------------------------------------

void EditImageWidget::saveImage() {
    // The picture differs from the file, for instance by a preview of effects.
    if (!_noSaveReason.isEmpty()) {
        emit message(_noSaveReason);
        return;
    }
    if (QString error; !writeImageFile(_pixmap.toImage(), _imageFilePath, {}, &error)) {
        reportSaveFailure(_imageFilePath, error);
        return;
    }
    qDebug() << "Saved image:" << _imageFilePath;
    emit message(tr("Save image: %1").arg(_imageFilePath));
    emit savedFile(_imageFilePath);
}

void EditImageWidget::saveImageAs() {
    QString startName = _imageFilePath;
    if (startName.isEmpty())
        startName = u"%1.png"_s.arg(QDateTime::currentDateTime().toString(u"dd_MM_yyyyThh_mm_ss_zzz"_s));
    // A free name is proposed, so that accepting it replaces no file.
    const QString filePath = QFileDialog::getSaveFileName(this, tr("Save image as"),
                                                          numberedFilePath(startName), imageDialogFilter());
    if (!filePath.isEmpty())
        saveImageToFile(filePath);
}

void EditImageWidget::saveImageToFile(const QString& filePath) {
    if (filePath.isEmpty()) {
        qDebug() << "Error, file name is empty.";
        return;
    }
    if (QString error; !writeImageFile(_pixmap.toImage(), filePath, {}, &error)) {
        reportSaveFailure(filePath, error);
        return;
    }
    qDebug() << "Saved image as:" << filePath;
    emit message(tr("Saved image as: %1").arg(filePath));
    emit newlySavedFile(filePath);
}

void EditImageWidget::reportSaveFailure(const QString& filePath, const QString& reason) {
    qDebug() << "Error, unable save image:" << filePath;
    emit message(tr("Error, unable to save image: %1").arg(filePath));
    emit saveFailed(filePath, reason);
}
