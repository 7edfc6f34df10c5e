#pragma once

#include "catalogue/ShortTextDelegate.h"

#include <QFont>
#include <QHash>

// Knows the size of an item whose text it has met before: a layout asks for the size of every item, each sort
// and filter lays all rows out again, and many files have the same tags. Items are sized without composing
// their canvases, which cost more than all the rest of a row. For items that have no font, alignment or check
// box to themselves.
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
        const QMetaObject* styleClass = nullptr; // another style may come to the same address

        bool operator==(const Shape&) const = default;
    };

    mutable Shape _shape;
    mutable QHash<QString, QSize> _sizes; // of texts in this shape
};
