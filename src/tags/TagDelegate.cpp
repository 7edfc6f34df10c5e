#include "tags/TagDelegate.h"

#include <QPainter>

namespace {

constexpr int countMargin = 4;
constexpr qreal frameRadius = 5;
constexpr qreal frameStrength = 0.25; // of the text's colour

// All digits are taken to be of one width, as in nearly all fonts.
int countWidth(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QVariant count = index.data(RoleTagCount);
    if (!count.isValid())
        return 0;
    const auto digits = int(QString::number(count.toLongLong()).size());
    return digits * option.fontMetrics.horizontalAdvance(u'0') + countMargin;
}

} // namespace

QSize TagDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return SizeRememberingDelegate::sizeHint(option, index) + QSize(countWidth(option, index), 0);
}

void TagDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const int width = countWidth(option, index);
    QStyleOptionViewItem text = option;
    text.rect.adjust(0, 0, -width, 0);
    SizeRememberingDelegate::paint(painter, text, index);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QColor frame = option.palette.color(QPalette::Text);
    frame.setAlphaF(frameStrength);
    painter->setPen(frame);
    painter->drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), frameRadius, frameRadius);
    if (width > 0) {
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
        painter->drawText(option.rect.adjusted(0, 0, -countMargin, 0), Qt::AlignRight | Qt::AlignVCenter,
                          QString::number(index.data(RoleTagCount).toLongLong()));
    }
    painter->restore();
}
