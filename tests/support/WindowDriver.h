#pragma once

#include "app/MainWindow.h"

#include <QString>
#include <QStringList>
#include <QTest>

#include <memory>

class QAbstractItemModel;
class QAbstractItemView;

// Drives the real main window by the object names of its widgets.
class WindowDriver {
public:
    // Removes what an earlier run left beside the executable.
    static void forgetSettings();
    [[nodiscard]] static QString emptyDirectory();
    // Before the application is made: the offscreen platform's own screen is smaller than any desktop.
    static void useScreen(QSize size);

    // Opens the window on a directory, as its start does. With an empty path on an empty one.
    explicit WindowDriver(const QString& workingPath = {});
    ~WindowDriver();
    Q_DISABLE_COPY_MOVE(WindowDriver)

    [[nodiscard]] MainWindow& window() { return *_window; }
    void close() { _window.reset(); }
    // Ends the program and starts it again with what it stored.
    void restart();

    template <typename T>
    [[nodiscard]] T* widget(const char* name) const {
        auto* found = _window->findChild<T*>(QLatin1StringView(name));
        if (!found)
            qFatal("no widget %s", name);
        return found;
    }

    // Waits until rows and previews are complete.
    [[nodiscard]] bool waitForLoad();
    void rescan();

    void click(const char* buttonName) const;
    // Triggers an action of a menu or of the tool bar, by its object name or its data.
    void trigger(const char* name) const;
    // Opens the context menu of a widget and picks an entry; false if no menu came.
    bool choose(const char* widgetName, const QString& entry) const;
    // The tool window or dialog of that object name which is open and was opened last.
    [[nodiscard]] QWidget* toolWindow(const char* name) const;
    // What a label, button, line or text edit shows.
    [[nodiscard]] QString text(const char* name) const;
    // Processes events until none is pending, not even one of the watched directory.
    static void settle();
    [[nodiscard]] QString statusText() const;
    [[nodiscard]] static QString log();
    [[nodiscard]] static qsizetype logCount(const QString& text);
    // The log lines since the last call, without their times.
    [[nodiscard]] QStringList freshLog();
    // The last message of a load must not arrive in the middle of the next step.
    [[nodiscard]] static bool isLoadOver();

    [[nodiscard]] QAbstractItemModel* catalogue() const;
    // Texts of one column of the catalogue by file name.
    [[nodiscard]] QString cell(const QString& fileName, int column, int role = Qt::DisplayRole) const;
    [[nodiscard]] QVariant cellData(const QString& fileName, int column, int role) const;
    [[nodiscard]] QStringList catalogueNames() const;
    // File names in the order of a view.
    [[nodiscard]] QStringList shownNames(const char* viewName = "listView") const;
    [[nodiscard]] QStringList selectedNames() const;
    [[nodiscard]] QAbstractItemView* currentView() const;
    void select(const QStringList& fileNames) const;
    [[nodiscard]] QStringList tagTexts(const char* listName, bool onlySelected = false) const;

private:
    std::unique_ptr<MainWindow> _window;
    qsizetype _readLog = 0;
};
