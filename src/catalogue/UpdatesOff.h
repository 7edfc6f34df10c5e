#pragma once

#include <QAbstractItemView>
#include <QList>

// Switches the updates of views off for a scope in which many rows change. Scopes may be nested.
class UpdatesOff {
public:
    explicit UpdatesOff(const QList<QAbstractItemView*>& views) {
        for (QAbstractItemView* view : views) {
            // An inner scope leaves alone what the outer one switches on again.
            if (!view->updatesEnabled())
                continue;
            view->setUpdatesEnabled(false);
            _views.append(view);
        }
    }
    ~UpdatesOff() {
        for (QAbstractItemView* view : std::as_const(_views)) {
            view->setUpdatesEnabled(true);
            // A table whose row header went to no width and back is left painted over its neighbours.
            view->window()->update();
        }
    }
    Q_DISABLE_COPY_MOVE(UpdatesOff)

private:
    QList<QAbstractItemView*> _views;
};
