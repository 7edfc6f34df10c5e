#pragma once

#include "catalogue/SizeRememberingDelegate.h"

// The number beside a tag; items without it show none.
constexpr int RoleTagCount = Qt::UserRole;

// Draws each tag in a faint frame, and its count quieter beside it.
class TagDelegate : public SizeRememberingDelegate {
    Q_OBJECT

public:
    using SizeRememberingDelegate::SizeRememberingDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
