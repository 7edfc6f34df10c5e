#pragma once

#include "app/MainWindow.h"

#include <QString>
#include <QStringList>
#include <QTest>

#include <memory>

class QAbstractItemModel;

// Drives the real main window by the object names of its widgets.
class WindowDriver {
public:
    // Removes what an earlier run left beside the executable.
    static void forgetSettings();
    [[nodiscard]] static QString emptyDirectory();

    // Opens the window on a directory, as its start does. With an empty path on an empty one.
    explicit WindowDriver(const QString& workingPath = {});
    ~WindowDriver();
    Q_DISABLE_COPY_MOVE(WindowDriver)

    [[nodiscard]] MainWindow& window() { return *_window; }
    void close() { _window.reset(); }

    template <typename T>
    [[nodiscard]] T* widget(const char* name) const {
        auto* found = _window->findChild<T*>(QLatin1StringView(name));
        if (!found)
            qFatal("no widget %s", name);
        return found;
    }

    // Waits until rows and previews are in.
    [[nodiscard]] bool waitForLoad();
    void rescan();

    void click(const char* buttonName) const;
    [[nodiscard]] QString statusText() const;
    [[nodiscard]] static QString log();
    [[nodiscard]] static qsizetype logCount(const QString& text);

    [[nodiscard]] QAbstractItemModel* catalogue() const;
    // Texts of one column of the catalogue by file name.
    [[nodiscard]] QString cell(const QString& fileName, int column, int role = Qt::DisplayRole) const;
    [[nodiscard]] QVariant cellData(const QString& fileName, int column, int role) const;
    [[nodiscard]] QStringList catalogueNames() const;
    // File names in the order that the list view shows.
    [[nodiscard]] QStringList shownNames() const;
    void select(const QStringList& fileNames) const;
    [[nodiscard]] QStringList tagTexts(const char* listName) const;

    // Opens the context menu of the media views and picks an entry.
    bool chooseFromMediaMenu(const QString& entry) const;

private:
    std::unique_ptr<MainWindow> _window;
};
