#include "catalogue/SelectionWatcher.h"

#include "catalogue/MediaModel.h"

#include <QItemSelectionModel>

#include <algorithm>

namespace {

bool holdSameFiles(QStringList left, QStringList right) {
    if (left == right || left.size() != right.size())
        return left == right;
    // Sorting changes only the order of the selected rows.
    left.sort();
    right.sort();
    return left == right;
}

} // namespace

SelectionWatcher::SelectionWatcher(QStackedWidget* pages, const QList<QAbstractItemView*>& views,
                                   QObject* parent)
    : QObject(parent), _pages(pages), _views(views) {
    for (const QAbstractItemView* view : std::as_const(_views)) {
        connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                &SelectionWatcher::compare);
    }
    connect(pages, &QStackedWidget::currentChanged, this, &SelectionWatcher::compare);
}

QAbstractItemView* SelectionWatcher::currentView() const {
    const auto shown = std::ranges::find_if(_views, [this](const QAbstractItemView* view) {
        return _pages->currentWidget() && _pages->currentWidget()->isAncestorOf(view);
    });
    return shown == _views.cend() ? _views.first() : *shown;
}

QModelIndexList SelectionWatcher::indexes() const {
    // By ranges: a selection of all rows would otherwise make an index for each cell.
    QModelIndexList indexes;
    const QItemSelection selection = currentView()->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        if (range.left() > ColName)
            continue;
        for (int row = range.top(); row <= range.bottom(); ++row)
            indexes.append(range.model()->index(row, ColName, range.parent()));
    }
    return indexes;
}

QStringList SelectionWatcher::files() const {
    QStringList files;
    const QModelIndexList selected = indexes();
    files.reserve(selected.size());
    for (const QModelIndex& index : selected)
        files.append(index.data(RoleValue).toString());
    return files;
}

void SelectionWatcher::compare() {
    if (_holds > 0)
        return;
    QStringList selected = files();
    if (holdSameFiles(selected, _reported))
        return;
    // Stored before the signal, as a slot may change the selection and so call this again.
    _reported = std::move(selected);
    emit changed();
}
