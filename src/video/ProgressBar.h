#pragma once

#include <QProgressBar>

// A progress bar that takes its value from where it is clicked or dragged; its range starts at 0.
class ProgressBar : public QProgressBar {
    Q_OBJECT

public:
    using QProgressBar::QProgressBar;

signals:
    void clicked(int value);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void setValueAt(QPointF position);
};
