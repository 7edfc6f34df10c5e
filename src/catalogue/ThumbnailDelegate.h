#pragma once

#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>

// Sizes the catalogue's items without composing their canvases: a layout asks for the size of every row, and
// the canvas of a row costs more than all the rest of it. Texts that have been laid out once keep their size,
// since each sort and each filter asks for all of them again.
class ThumbnailDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    // All that the size of an item depends on besides its text.
    struct Shape {
        QSize canvas;
        QSize room;
        QFont font;
        QStyleOptionViewItem::ViewItemFeatures features;
        QStyleOptionViewItem::Position position = QStyleOptionViewItem::Left;
        Qt::Alignment decorationAlignment;
        Qt::Alignment displayAlignment;
        Qt::TextElideMode elideMode = Qt::ElideNone;
        Qt::LayoutDirection direction = Qt::LeftToRight;
        const QStyle* style = nullptr;

        bool operator==(const Shape&) const = default;
    };

    mutable Shape _shape;
    mutable QHash<QString, QSize> _sizes; // of texts in this shape
};
