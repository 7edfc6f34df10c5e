#pragma once

#include "catalogue/SizeRememberingDelegate.h"

// How often a tag is used; absent where no count is shown.
constexpr int tagCountRole = Qt::UserRole;

// Draws a faint frame around each tag, and its count into the spacing below it. Sizes and texts are those of
// the base class.
class TagDelegate : public SizeRememberingDelegate {
    Q_OBJECT

public:
    using SizeRememberingDelegate::SizeRememberingDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
