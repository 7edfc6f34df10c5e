#include "catalogue/ThumbnailDelegate.h"

#include "catalogue/MediaModel.h"

#include <QApplication>
#include <QStyle>

QSize ThumbnailDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QVariant canvasSize = index.data(RoleCanvasSize);
    if (!canvasSize.isValid())
        return QStyledItemDelegate::sizeHint(option, index);
    QStyleOptionViewItem sized = option;
    sized.index = index;
    sized.features |= QStyleOptionViewItem::HasDecoration;
    sized.decorationSize = canvasSize.toSize();
    if (const QVariant text = index.data(Qt::DisplayRole); !text.isNull()) {
        sized.features |= QStyleOptionViewItem::HasDisplay;
        sized.text = displayText(text, option.locale);
    }
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    return style->sizeFromContents(QStyle::CT_ItemViewItem, &sized, {}, option.widget);
}
