#pragma once

#include <QHash>
#include <QList>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QWidget>

class QMenu;

// Shows one image under pan and zoom, cuts it, and saves it. It has no access to the catalogue: the next or
// the previous image is requested by a signal.
class EditImageWidget : public QWidget {
    Q_OBJECT

public:
    enum Tool { ToolNone = 0, ToolPan = 1, ToolCut = 2 };
    Q_ENUM(Tool)

    explicit EditImageWidget(QWidget* parent = nullptr);

    // A reason not to save marks a picture that must not replace the file: saveImage() then only reports it.
    void setImage(const QImage& image, const QString& filePath, const QString& noSaveReason = {});
    void setImageFilePath(const QString& filePath);
    [[nodiscard]] QString imageFilePath() const { return _imageFilePath; }
    [[nodiscard]] QSize imageSize() const { return _pixmap.size(); }
    [[nodiscard]] QString imageSizeText() const;

    void setTool(EditImageWidget::Tool tool);
    // In image coordinates; may reach outside the image.
    [[nodiscard]] QRectF cutRect() const { return _cutRect; }
    // In screen pixels.
    void setCutOutlineWidth(int width);
    [[nodiscard]] int cutOutlineWidth() const { return _cutOutlineWidth; }

    void setAutoCenter(bool on);
    [[nodiscard]] bool autoCenter() const { return _autoCenter; }
    void setAutoFit(bool on);
    [[nodiscard]] bool autoFit() const { return _autoFit; }
    // Emits nothing.
    void setAspectRatioKeep(bool on);

    [[nodiscard]] bool undoAvailable() const { return !_pixUndoRedo.isEmpty(); }
    void undoLastAction();

    void saveImage();
    // The user chooses a name; the image still belongs to its first file afterwards.
    void saveImageAs();

public slots:
    void onCutRectSet(QRectF r);
    void onContextMenu(QPoint position);
    void resetZoom();

signals:
    void zoomChanged(QPointF zoom);
    void autoCenterChanged(bool autoCenter);
    void autoFitChanged(bool autoFit);
    void aspectRatioKeepChanged(bool aspectRatioKeep);
    void requestImage(bool next);
    void message(QString msg);
    void toolChanged(EditImageWidget::Tool tool);
    void cutSizeChanged(QRectF cutSize);
    void saveFailed(QString filePath, QString reason);
    void savedFile(QString fileName);
    void newlySavedFile(QString fileName);
    void undoAvailableChanged(bool undoAvailable);

protected:
    // Reserves the keys that save or undo here before they trigger shortcuts of the window.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void showLoadedImage();
    void fitImage();
    void updateAutoCenter();
    void updateView();
    void applyZoom(QPoint globalPos);
    void paintCutRect(QPainter& painter) const;
    [[nodiscard]] QPointF lockedToAxis(QPointF delta) const;
    void toggleAutoCenter();
    void toggleAutoFit();
    [[nodiscard]] Qt::KeyboardModifiers releasedModifiers(const QKeyEvent* event);
    void handleViewKey(int key, Qt::KeyboardModifiers modifiers);
    void handleCutKey(const QKeyEvent* event, Qt::KeyboardModifiers modifiers);
    void moveCutRect(const char* direction, QPointF delta);
    void applyCut();
    void saveImageToFile(const QString& filePath);
    void reportSaveFailure(const QString& filePath, const QString& reason);
    void addViewEntries(QMenu* menu);
    void addCutEntries(QMenu* menu);

    QPixmap _pixmap;
    QString _imageFilePath;
    QString _noSaveReason;
    QTransform _transform;
    QPointF _zoom{1.0, 1.0};
    QPointF _lastMousePos;
    int _axisLock = 0;
    // The modifiers at the press of each key, until its release.
    QHash<int, Qt::KeyboardModifiers> _pressedModifiers;
    Tool _tool = ToolNone;
    int _cutPart = 0;
    QRectF _cutRect{0, 0, 320, 240};
    // Shown filled until the first move or the release.
    QRectF _cutPartRect;
    int _cutOutlineWidth = 8;
    bool _updateOnResize = false;
    bool _autoCenter = false;
    bool _autoFit = false;
    bool _aspectRatioKeep = false;
    // One pixmap a cut, oldest first.
    QList<QPixmap> _pixUndoRedo;
};
