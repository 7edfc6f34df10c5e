#pragma once

#include "catalogue/ShortTextDelegate.h"

#include <QFont>
#include <QHash>

// Caches the sizes of items by their texts: a layout requests the size of every item, each sort and filter
// lays all rows out again, and many files have the same tags. Sizes are computed without composing the
// canvases, which would take longer than all the rest of a row. Only for items without a font, alignment or
// check box of their own.
class SizeRememberingDelegate : public ShortTextDelegate {
    Q_OBJECT

public:
    using ShortTextDelegate::ShortTextDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    // All that the size of an item depends on besides its text.
    struct Shape {
        QSize canvas; // of the decoration; invalid without one
        QSize room;
        QFont font;
        QStyleOptionViewItem::ViewItemFeatures features;
        QStyleOptionViewItem::Position position = QStyleOptionViewItem::Left;
        Qt::Alignment decorationAlignment;
        Qt::Alignment displayAlignment;
        Qt::TextElideMode elideMode = Qt::ElideNone;
        Qt::LayoutDirection direction = Qt::LeftToRight;
        const QStyle* style = nullptr;
        const QMetaObject* styleClass = nullptr; // another style may get the same address

        bool operator==(const Shape&) const = default;
    };

    mutable Shape _shape;
    mutable QHash<QString, QSize> _sizes; // of texts in this shape
};
