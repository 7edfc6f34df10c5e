#include "reference/PlainView.h"

#include <QPainter>

namespace reference {

PlainView::PlainView(const QPixmap& pixmap) : _pixmap(pixmap) {}

void PlainView::zoomTo(double zoom) {
    _transform = QTransform::fromScale(zoom, zoom);
    update();
}

void PlainView::moveBy(QPoint distance) {
    _transform.translate(distance.x() / _transform.m11(), distance.y() / _transform.m11());
    update();
}

void PlainView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setTransform(_transform);
    painter.drawPixmap(0, 0, _pixmap);
}

} // namespace reference
