#include "catalogue/SortFilterProxyModel.h"

#include "catalogue/MediaModel.h"

#include <QDateTime>
#include <QScopeGuard>

namespace {

template <typename T>
bool isLess(const QVariant& left, const QVariant& right) {
    return *get_if<T>(&left) < *get_if<T>(&right);
}

} // namespace

void SortFilterProxyModel::sort(int column, Qt::SortOrder order) {
    // The values belong to row numbers, which are valid only during this call.
    const auto clearValues = qScopeGuard([this] { _sortValues.clear(); });
    fetchSortValues(column);
    QSortFilterProxyModel::sort(column, order);
}

void SortFilterProxyModel::refilter() {
    const auto clearValues = qScopeGuard([this] { _sortValues.clear(); });
    fetchSortValues(sortColumn());
    invalidate();
}

void SortFilterProxyModel::fetchSortValues(int column) {
    const QAbstractItemModel* source = sourceModel();
    if (!source || column < 0 || column >= source->columnCount())
        return;
    const int rows = source->rowCount();
    _sortValues.reserve(static_cast<size_t>(rows));
    for (int row = 0; row < rows; ++row)
        _sortValues.push_back(source->index(row, column).data(sortRole()));
}

bool SortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const {
    if (sourceModel()->index(sourceRow, ColName, sourceParent).data(RoleHidden).toBool())
        return false;
    return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
}

bool SortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    // The base class sorts a single new row itself, outside of sort() and refilter().
    if (_sortValues.empty())
        return QSortFilterProxyModel::lessThan(left, right);
    const QVariant& leftValue = _sortValues[static_cast<size_t>(left.row())];
    const QVariant& rightValue = _sortValues[static_cast<size_t>(right.row())];
    // Cells without a value are sorted behind all others.
    if (!leftValue.isValid() || !rightValue.isValid())
        return leftValue.isValid();
    if (leftValue.metaType() == rightValue.metaType()) {
        switch (leftValue.typeId()) {
        case QMetaType::QString:
            return isLess<QString>(leftValue, rightValue);
        case QMetaType::Int:
            return isLess<int>(leftValue, rightValue);
        case QMetaType::LongLong:
            return isLess<qlonglong>(leftValue, rightValue);
        case QMetaType::Bool:
            return isLess<bool>(leftValue, rightValue);
        case QMetaType::QDateTime:
            return isLess<QDateTime>(leftValue, rightValue);
        default:
            break;
        }
    }
    return QSortFilterProxyModel::lessThan(left, right);
}
