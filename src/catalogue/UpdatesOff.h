#pragma once

#include <QAbstractItemView>
#include <QList>

// Switches the updates of views off for a scope in which many rows change. Scopes may be nested.
class UpdatesOff {
public:
    explicit UpdatesOff(const QList<QAbstractItemView*>& views) {
        for (QAbstractItemView* view : views) {
            // An inner scope skips the views that an outer one will switch on again.
            if (!view->updatesEnabled())
                continue;
            view->setUpdatesEnabled(false);
            _views.append(view);
        }
    }
    ~UpdatesOff() {
        for (QAbstractItemView* view : std::as_const(_views)) {
            view->setUpdatesEnabled(true);
            // A table whose row header shrank to no width and grew again would stay painted over its
            // neighbours.
            view->window()->update();
        }
    }
    Q_DISABLE_COPY_MOVE(UpdatesOff)

private:
    QList<QAbstractItemView*> _views;
};
