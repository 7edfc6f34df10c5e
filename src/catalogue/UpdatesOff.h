#pragma once

#include <QAbstractItemView>
#include <QList>

// Switches the updates of views off for a scope in which many rows change.
class UpdatesOff {
public:
    explicit UpdatesOff(QList<QAbstractItemView*> views) : _views(std::move(views)) {
        for (QAbstractItemView* view : std::as_const(_views))
            view->setUpdatesEnabled(false);
    }
    ~UpdatesOff() {
        for (QAbstractItemView* view : std::as_const(_views))
            view->setUpdatesEnabled(true);
    }
    Q_DISABLE_COPY_MOVE(UpdatesOff)

private:
    QList<QAbstractItemView*> _views;
};
