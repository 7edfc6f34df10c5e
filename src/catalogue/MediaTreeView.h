#pragma once

#include <QTreeView>

// The tree of the catalogue. Its rows have a height of their own, whatever their thumbnail is, so a changed
// thumbnail only repaints them; QTreeView would measure all columns of each row again.
class MediaTreeView : public QTreeView {
    Q_OBJECT

public:
    using QTreeView::QTreeView;

    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QList<int>& roles = {}) override {
        if (roles == QList<int>{Qt::DecorationRole})
            viewport()->update();
        else
            QTreeView::dataChanged(topLeft, bottomRight, roles);
    }
};
