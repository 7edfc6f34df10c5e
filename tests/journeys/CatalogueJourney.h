#pragma once

#include "support/Facts.h"
#include "support/MediaFolder.h"
#include "support/WindowDriver.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <optional>

class QRandomGenerator;

// A window on a directory of pictures, and beside it a model in plain containers. Each step is one thing that
// a user or another program does: it is done to both, and then all that can be seen is compared.
class CatalogueJourney {
public:
    CatalogueJourney();

    // "verb: argument|argument". Returns what differs afterwards, or nothing.
    [[nodiscard]] QString perform(const QString& step);
    // A step that makes sense now.
    [[nodiscard]] QString randomStep(QRandomGenerator& random) const;
    [[nodiscard]] QString difference();

    const MediaFolder folder;
    WindowDriver driver;

private:
    using Arguments = QStringList;
    struct Row {
        QStringList tags;
        QString cells;    // as the views have shown them since the row was made
        QString searched; // what the filter line looks into besides the tags
        QString texts;    // embedded in the file
        QString preview;
    };
    struct Sorting {
        int column = -1;
        Qt::SortOrder order = Qt::AscendingOrder;
    };
    struct Verb;
    static const QMap<QString, Verb>& verbs();

    // --- steps
    void select(const Arguments& names);
    void filter(const Arguments& text);
    void searchTags(const Arguments& tags);
    void filterTags(const Arguments& text);
    void addTags(const Arguments& text);
    void deleteTag(const Arguments& tags);
    void deleteTagEverywhere(const Arguments& tags);
    void deleteListedTags(const Arguments& tags);
    void replaceText(const Arguments& texts);
    void splitText(const Arguments& text);
    void save(const Arguments&);
    void check(const Arguments& boxName);
    void type(const Arguments& text);
    void saveTyped(const Arguments&);
    void editTagFile(const Arguments& nameAndText);
    void writeOutside(const Arguments& nameAndContent);
    void removeOutside(const Arguments& names);
    void renameOutside(const Arguments& names);
    void deleteFiles(const Arguments&);
    void sort(const Arguments& entry);
    void view(const Arguments& entry);
    void refresh(const Arguments& answer);
    void restart(const Arguments&);

    // --- the model
    void scanned();
    void addRows(const QStringList& names);
    void removeRows(const QStringList& names);
    void compareSelection();
    void selectionChanged();
    void tagsChanged();
    void takeTags(const QString& name, const QString& text);
    void removeTags(const QStringList& fromFiles, const QStringList& tags);
    void applyFilter();
    void hide(const QSet<QString>& names);
    void bindEditor(const QStringList& candidates) { _bindings = candidates; }
    void resolveBinding();
    void writeSidecar(const QString& txtName, const QString& text);
    void say(const QString& message) { _said.append(message); }
    [[nodiscard]] Row makeRow(const QString& name) const;
    [[nodiscard]] QSet<QString>& selected() { return _selected[_view]; }
    [[nodiscard]] QStringList shown() const;
    [[nodiscard]] bool isTagHidden(const QString& tag) const;
    [[nodiscard]] QString textOf(const QString& txtName) const;
    [[nodiscard]] Facts expected();
    [[nodiscard]] Facts seen();
    [[nodiscard]] QString acceptableStatus();
    [[nodiscard]] QString cellsOf(const QModelIndex& row) const;
    [[nodiscard]] bool isInOrder(const char* viewName) const;
    [[nodiscard]] int countedInLog(const QString& pattern) const;

    QMap<QString, QByteArray> _disk;
    QMap<QString, Row> _rows;
    QSet<QString> _hidden;
    QMap<QString, QSet<QString>> _selected; // by view
    QSet<QString> _reported;
    QString _view = "listView";
    QString _viewMode = "icon";
    QString _filter;
    QStringList _searched;
    QStringList _shownTags;
    QString _tagFilter;
    bool _tagFilterCounts = false; // a rebuilt list shows all tags until the text changes
    QString _label;
    QString _metadata;
    QString _editorFile;
    QString _editorText;
    bool _isSidecarThere = false;
    bool _isTyped = false; // and not yet saved
    QString _preview;
    // Which of several files comes first is the window's choice, so one of these.
    QStringList _bindings;
    bool _isPreviewDue = false;
    std::optional<Sorting> _sorting;
    std::optional<Sorting> _storedSorting;
    bool _keepsDuplicates = false;
    bool _makesBackups = false;
    // Of the running step.
    QSet<QString> _namesBefore;
    QStringList _log;
    QStringList _complaints;
    QStringList _said; // what the status bar showed before, and the messages since
    int _added = 0;
    int _removed = 0;
};
