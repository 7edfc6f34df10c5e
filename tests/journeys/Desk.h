#pragma once

#include "support/Facts.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <functional>

class QWidget;

// One thing that a user does, and all that it changes: "THING=VALUE ; THING=VALUE". The value
// "(nothing)" means that the thing no longer exists, "*" that any value is accepted.
//
//   NAME                     clicks a button or triggers an action
//   NAME = VALUE             sets a line, a box, a slider or a list's current entry
//   NAME > ENTRY             picks an entry of a context menu, "&Sort/&Name" of a submenu
//   select A|B               selects rows, whose files decide most of what it changes, or items of a list by
//                            "select A|B in NAME"
//   press KEYS in NAME       a key or a shortcut
//   write FILE COLOUR WxH    what another program does; also: remove FILE
//   restart
//
// NAME is an object name, a text or data; in a tool window with that window's name before it,
// "VideoWidget.tBFileNext".
// "-> ANSWER, ANSWER" answers the questions that follow: a button's name, or a path for a file dialog.
struct Step {
    const char* what;
    const char* changes;
};

// A window on a directory with all that can be seen of it, its tool windows and the files.
class Desk : public QObject {
    Q_OBJECT

public:
    using Fill = std::function<void(const MediaFolder&)>;
    // Pictures are filled in before the window opens.
    explicit Desk(const Fill& fill);
    ~Desk() override;
    Q_DISABLE_COPY_MOVE(Desk)

    // Performs the steps. Returns the first difference, or nothing.
    [[nodiscard]] QString perform(const QList<Step>& steps);

    // Every action, button and context menu entry that can be reached now, by the names that steps use.
    void walk();
    // The actions that walks have found and no step has used.
    [[nodiscard]] static QStringList neverUsed();

    const MediaFolder folder;
    WindowDriver driver;
    // Words that replace values of this run, in steps and in facts.
    QMap<QString, QString> words;

public slots:
    // Called by the program instead of the desktop.
    void open(const QUrl& url);

private:
    [[nodiscard]] QString perform(const Step& step);
    [[nodiscard]] Facts selectionFacts(QStringList names) const;
    [[nodiscard]] static Facts withWindows(Facts expected, const Facts& before, const Facts& now);
    void act(const QString& what);
    [[nodiscard]] Facts world();
    [[nodiscard]] QString fileFact(const QString& name, const QByteArray& content);
    [[nodiscard]] QList<QWidget*> windows();
    [[nodiscard]] QWidget* widget(const QString& name);
    [[nodiscard]] QString meant(QString text) const;
    [[nodiscard]] QString plain(QString text) const;

    QMap<QString, QList<QByteArray>> _versions;
    QStringList _asked;
    QStringList _opened;
    QStringList _log;
    bool _sorts = false;
    bool _sortsTags = false;
    inline static QSet<QString> _found;
    inline static QSet<QString> _used;
};
