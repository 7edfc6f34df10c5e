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
    // A drag past an end gives a value out of the range, which the bar ignores.
    setValue(static_cast<int>(static_cast<double>(maximum()) / width() * position.x()));
}
