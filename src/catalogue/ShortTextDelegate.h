#pragma once

#include <QStyledItemDelegate>

// Shows the beginning of a very long text: laying out megabytes at each paint would stall the view. Editors
// get the whole text. Tool tips are plain text, whatever a file name looks like; a text that is cut off is
// shown as its own tool tip.
class ShortTextDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(const QVariant& value, const QLocale& locale) const override;
    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};
