#include "tags/TagDelegate.h"

#include <QListView>
#include <QPainter>

namespace {

constexpr qreal frameRadius = 4;
constexpr int frameAlpha = 70; // of 255

} // namespace

void TagDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    SizeRememberingDelegate::paint(painter, option, index);
    painter->save();
    const bool isSelected = option.state & QStyle::State_Selected;
    QColor frame = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    frame.setAlpha(frameAlpha);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(frame);
    // Half a pixel inwards, where a line one pixel wide is drawn sharply.
    painter->drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), frameRadius, frameRadius);

    const auto* list = qobject_cast<const QListView*>(option.widget);
    if (const QVariant count = index.data(tagCountRole); list && list->spacing() > 0 && count.isValid()) {
        // Drawn into the spacing below the item: taller items would change the layout of the whole list.
        const QRect gap(option.rect.left(), option.rect.bottom() + 1, option.rect.width(), list->spacing());
        QFont small = option.font;
        small.setPixelSize(gap.height());
        painter->setFont(small);
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
        painter->drawText(gap, Qt::AlignCenter, option.locale.toString(count.toInt()));
    }
    painter->restore();
}
