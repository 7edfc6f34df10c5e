#pragma once

#include <QBoxLayout>

#include <algorithm>

// Layouts beside each other, or below each other where the width does not hold them: those that stretch at
// their smallest, the others whole. The widest of them alone limits how far a window can be narrowed.
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
        // Another direction invalidates the layout, so the room for another row follows by itself.
        if (const Direction fitting = width > rect.width() ? TopToBottom : LeftToRight;
            fitting != direction())
            setDirection(fitting);
        QBoxLayout::setGeometry(rect);
    }
};
