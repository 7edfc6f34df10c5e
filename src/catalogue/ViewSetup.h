#pragma once

#include "catalogue/MediaModel.h"

#include <QCursor>
#include <QHeaderView>
#include <QListView>

// Switches a list between icons and lines. Icon mode makes items movable and the list a target of drags,
// which the movement takes back only in part, so that the drag mode is set last.
inline void setStaticViewMode(QListView* list, QListView::ViewMode mode) {
    list->setViewMode(mode);
    list->setMovement(QListView::Static);
    list->setDragDropMode(QAbstractItemView::NoDragDrop);
}

// False without a stored state. A header that sorts by no column keeps the order of the scan: a descending
// indicator without a column, as Qt starts with, would reverse it.
inline bool restoreHeader(QHeaderView* header, const QByteArray& state) {
    const bool isRestored = header->restoreState(state);
    if (header->sortIndicatorSection() < 0)
        header->setSortIndicator(-1, Qt::AscendingOrder);
    return isRestored;
}

// The same for the columns of a scan, which come with the widths of the style.
inline void restoreMediaHeader(QHeaderView* header, const QByteArray& state) {
    constexpr int firstNameWidth = 220;
    if (!restoreHeader(header, state))
        header->resizeSection(ColName, firstNameWidth);
}

// Where a context menu opens on the screen: at the place in the view that was asked for, which is the current
// item for the menu key, or at the mouse.
inline QPoint menuPlace(const QAbstractItemView* view, const QPoint& pos) {
    return pos.isNull() ? QCursor::pos() : view->viewport()->mapToGlobal(pos);
}
