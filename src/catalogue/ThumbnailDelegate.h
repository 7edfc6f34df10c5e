#pragma once

#include <QStyledItemDelegate>

// Sizes the catalogue's items without composing their canvases: a layout asks for the size of every row, and
// the canvas of a row costs more than all the rest of it.
class ThumbnailDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
