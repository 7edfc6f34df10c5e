#pragma once

#include <QSortFilterProxyModel>
#include <QVariant>

#include <vector>

// Sorts the catalogue by raw values and leaves out the rows that are flagged as hidden.
class SortFilterProxyModel : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    // Sorts as the base class does, but fetches each value once a row instead of once a comparison.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    // invalidate() with values fetched likewise: filters all rows by their hidden flags and sorts them again.
    void refilter();

protected:
    [[nodiscard]] bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    void fetchSortValues(int column);

    std::vector<QVariant> _sortValues; // by source row; empty outside of a sort
};
