#include "video/ProgressBar.h"

#include <QMouseEvent>

void ProgressBar::mousePressEvent(QMouseEvent* event) {
    setValueAt(event->position());
    QWidget::mousePressEvent(event);
}

void ProgressBar::mouseMoveEvent(QMouseEvent* event) {
    setValueAt(event->position());
    QWidget::mouseMoveEvent(event);
}

void ProgressBar::setValueAt(QPointF position) {
    setValue(static_cast<int>(static_cast<double>(maximum()) / width() * position.x()));
}
