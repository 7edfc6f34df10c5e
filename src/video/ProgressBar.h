#pragma once

#include <QProgressBar>

// A progress bar whose value follows clicks and drags; its range starts at 0.
class ProgressBar : public QProgressBar {
    Q_OBJECT

public:
    using QProgressBar::QProgressBar;

signals:
    // Never emitted; valueChanged() reports clicks and drags.
    void clicked(int value);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void setValueAt(QPointF position);
};
