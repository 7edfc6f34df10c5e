#pragma once

#include <QPixmap>
#include <QTransform>
#include <QWidget>

namespace reference {

// Shows a pixmap in its own size or zoomed, as a painter does it by itself.
class PlainView : public QWidget {
public:
    explicit PlainView(const QPixmap& pixmap);

    // From the picture's corner in the view's.
    void zoomTo(double zoom);
    // In pixels of the view.
    void moveBy(QPoint distance);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap _pixmap;
    QTransform _transform;
};

} // namespace reference
