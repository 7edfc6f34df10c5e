#include "catalogue/SortFilterProxyModel.h"

#include "catalogue/MediaModel.h"

bool SortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const {
    if (sourceModel()->index(sourceRow, ColName, sourceParent).data(RoleHidden).toBool())
        return false;
    return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
}
