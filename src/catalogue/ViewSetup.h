#pragma once

#include "catalogue/MediaModel.h"

#include <QCursor>
#include <QHeaderView>
#include <QListView>
#include <QModelIndexList>

#include <algorithm>

// Switches a list between icons and lines. Icon mode makes items movable and the list a drop target.
// setMovement resets only a part of that, so the drag mode is set last.
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

// The same for the columns of a new scan. Without a stored state the name column is made wider than the
// style's default.
inline void restoreMediaHeader(QHeaderView* header, const QByteArray& state) {
    constexpr int firstNameWidth = 220;
    if (!restoreHeader(header, state))
        header->resizeSection(ColName, firstNameWidth);
}

// Where a context menu opens on the screen: at the requested position in the view, which the menu key sets to
// the current item, or at the mouse cursor for a null position.
inline QPoint menuPosition(const QAbstractItemView* view, const QPoint& pos) {
    return pos.isNull() ? QCursor::pos() : view->viewport()->mapToGlobal(pos);
}

// The number of the topmost row; -1 without any. Where these rows are removed, the next row takes that place.
inline int firstRow(const QModelIndexList& indexes) {
    return indexes.isEmpty() ? -1 : std::ranges::min(indexes, {}, &QModelIndex::row).row();
}
