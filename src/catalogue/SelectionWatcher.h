#pragma once

#include <QAbstractItemView>
#include <QList>
#include <QModelIndexList>
#include <QObject>
#include <QStackedWidget>
#include <QStringList>

// The selection of the media view that is shown, one view a page. Views keep selections of their own; rows
// that are hidden, removed or replaced leave them without a signal, so that files are compared.
class SelectionWatcher : public QObject {
    Q_OBJECT

public:
    // Holds reports back for a scope that changes rows; its end compares once.
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

    // The views have their models already.
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
