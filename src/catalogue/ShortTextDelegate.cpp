#include "catalogue/ShortTextDelegate.h"

#include "app/services/PlainText.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

#include <limits>

namespace {

constexpr qsizetype shownCharacters = 2000;

} // namespace

QString ShortTextDelegate::displayText(const QVariant& value, const QLocale& locale) const {
    const QString text = QStyledItemDelegate::displayText(value, locale);
    return text.size() <= shownCharacters ? text : text.first(shownCharacters) + QChar(0x2026);
}

QWidget* ShortTextDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* edit = qobject_cast<QLineEdit*>(editor))
        // A line edit cuts texts at 32767 characters by default.
        edit->setMaxLength(std::numeric_limits<int>::max());
    return editor;
}

bool ShortTextDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                  const QStyleOptionViewItem& option, const QModelIndex& index) {
    QString text = index.data(Qt::ToolTipRole).toString();
    // The base class would interpret a file name that looks like markup.
    if (event->type() != QEvent::ToolTip || (!text.isEmpty() && !Qt::mightBeRichText(text)))
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    // A text that is cut off and has no tool tip of its own is shown as the tool tip.
    if (text.isEmpty() && sizeHint(option, index).width() > option.rect.width())
        text = displayText(index.data(Qt::DisplayRole), option.locale);
    if (text.isEmpty())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), plainToolTip(text), view);
    return true;
}
