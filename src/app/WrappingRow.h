#pragma once

#include <QBoxLayout>

#include <algorithm>

// Places layouts in a row, or in a column where the width is too small for a row. A stretching layout counts
// with its minimum width, any other with its size hint. The minimum width is that of the widest layout, so
// the window can become narrower than the row.
class WrappingRow : public QBoxLayout {
public:
    WrappingRow() : QBoxLayout(LeftToRight) {}

    [[nodiscard]] QSize minimumSize() const override {
        int width = 0;
        for (int index = 0; index < count(); ++index)
            width = std::max(width, itemAt(index)->minimumSize().width());
        return {width, QBoxLayout::minimumSize().height()};
    }

    void setGeometry(const QRect& rect) override {
        int width = (count() - 1) * spacing();
        for (int index = 0; index < count(); ++index) {
            const QLayoutItem* item = itemAt(index);
            width += (stretch(index) > 0 ? item->minimumSize() : item->sizeHint()).width();
        }
        // setDirection invalidates the layout, which makes the parent update the height.
        if (const Direction fitting = width > rect.width() ? TopToBottom : LeftToRight;
            fitting != direction())
            setDirection(fitting);
        QBoxLayout::setGeometry(rect);
    }
};
