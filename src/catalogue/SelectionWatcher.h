#pragma once

#include <QAbstractItemView>
#include <QList>
#include <QModelIndexList>
#include <QObject>
#include <QStackedWidget>
#include <QStringList>

// The selection of the media view that is shown, one view a page. Each view has its own selection. Rows that
// are hidden, removed or replaced leave it without a signal, so the selected files are compared instead.
class SelectionWatcher : public QObject {
    Q_OBJECT

public:
    // Suspends reports for a scope that changes rows; at its end the selection is compared once.
    class Hold {
    public:
        explicit Hold(SelectionWatcher& watcher) : _watcher(watcher) { ++_watcher._holds; }
        ~Hold() {
            if (--_watcher._holds == 0)
                _watcher.compare();
        }
        Q_DISABLE_COPY_MOVE(Hold)

    private:
        SelectionWatcher& _watcher;
    };

    // Precondition: the views have their models.
    SelectionWatcher(QStackedWidget* pages, const QList<QAbstractItemView*>& views, QObject* parent);

    [[nodiscard]] const QList<QAbstractItemView*>& views() const { return _views; }
    [[nodiscard]] QAbstractItemView* currentView() const;
    // Column 0 indexes of the selected rows, in terms of the model of the view that is shown.
    [[nodiscard]] QModelIndexList indexes() const;
    // The keys of the selected files in the order of the indexes.
    [[nodiscard]] QStringList files() const;

signals:
    // The selected files are not those of the last report.
    void changed();

private:
    void compare();

    QStackedWidget* _pages;
    QList<QAbstractItemView*> _views;
    QStringList _reported;
    int _holds = 0;
};
