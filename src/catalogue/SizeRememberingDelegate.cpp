#include "catalogue/SizeRememberingDelegate.h"

#include "catalogue/MediaModel.h"

#include <QApplication>
#include <QStyle>

namespace {

// About ten megabytes.
constexpr qsizetype maxRememberedTexts = 200000;

} // namespace

QSize SizeRememberingDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QVariant canvasSize = index.data(RoleCanvasSize);
    const QString text = displayText(index.data(Qt::DisplayRole), option.locale);
    if (text.isEmpty())
        // An item without a text has no HasDisplay feature, which is assumed below.
        return ShortTextDelegate::sizeHint(option, index);
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    const Shape shape{canvasSize.isValid() ? canvasSize.toSize() : QSize(),
                      option.rect.size(),
                      option.font,
                      option.features,
                      option.decorationPosition,
                      option.decorationAlignment,
                      option.displayAlignment,
                      option.textElideMode,
                      option.direction,
                      style,
                      style->metaObject()};
    if (shape != _shape || _sizes.size() >= maxRememberedTexts) {
        _sizes.clear();
        _shape = shape;
    }
    if (const auto known = _sizes.constFind(text); known != _sizes.cend())
        return *known;
    // What initStyleOption() would set, except for the canvas, of which the size is enough.
    QStyleOptionViewItem sized = option;
    sized.index = index;
    sized.features |= QStyleOptionViewItem::HasDisplay;
    if (canvasSize.isValid()) {
        sized.features |= QStyleOptionViewItem::HasDecoration;
        sized.decorationSize = shape.canvas;
    }
    sized.text = text;
    return *_sizes.insert(text, style->sizeFromContents(QStyle::CT_ItemViewItem, &sized, {}, option.widget));
}
