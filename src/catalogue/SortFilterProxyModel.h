#pragma once

#include <QSortFilterProxyModel>

// Sorts the catalogue by raw values and leaves out the rows that are flagged as hidden.
class SortFilterProxyModel : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    [[nodiscard]] bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
};
