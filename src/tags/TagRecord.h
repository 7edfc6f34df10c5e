#pragma once

#include "tags/SidecarFile.h"
#include "tags/TagText.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// What a change of the record was, for those who show it.
enum class TagChange {
    Read,   // sidecars were read, or files removed
    Edited, // the user changed the tags of files
    Stored, // the tags of one file were taken from a text or an answer
    Undone, // an edit was taken back or done again
    Saved   // the tags stayed, their sidecars were written
};

struct TagSaveOptions {
    bool makesBackups = false;
    bool keepsDuplicates = false;
    std::function<void(qsizetype done, qsizetype total)> progress = {}; // after each sidecar
};

// A sidecar of a save that went otherwise than expected.
struct TagSaveRemark {
    QString txtFileName;
    SidecarWrite write;
    bool isShared = false; // another file of this save had the same sidecar, whose text is replaced
};

struct TagSaveReport {
    qsizetype written = 0; // sidecars that hold their whole text
    qsizetype failed = 0;
    bool isStopped = false;       // no backup name was left; the files after it were not reached
    QList<TagSaveRemark> remarks; // in the order of the writes
};

// The tags of all files of the catalogue in memory, by file key, and how to take edits back. Remembers which
// files differ from their sidecars. GUI thread only.
class TagRecord : public QObject {
    Q_OBJECT

public:
    using Tags = QHash<QString, QStringList>;

    explicit TagRecord(QObject* parent = nullptr) : QObject(parent) {}

    [[nodiscard]] qsizetype size() const { return _tags.size(); }
    [[nodiscard]] bool contains(const QString& key) const { return _tags.contains(key); }
    [[nodiscard]] QStringList tags(const QString& key) const { return _tags.value(key); }
    // Counted once after each change.
    [[nodiscard]] const QList<TagCount>& counted() const;
    [[nodiscard]] QStringList flattened() const { return flattenedTags(_tags); }

    // The files whose tags are not those of their sidecar when it was last read or written.
    [[nodiscard]] QStringList unsavedKeys() const { return _sidecarTags.keys(); }
    [[nodiscard]] qsizetype unsavedCount() const { return _sidecarTags.size(); }
    [[nodiscard]] bool isUnsaved(const QString& key) const { return _sidecarTags.contains(key); }

    // Reads the sidecars; a missing one gives an empty list. Unsaved tags stay as they are.
    void load(const QStringList& keys);
    void remove(const QStringList& keys);
    // Removes all entries and all steps of undo.
    void clear();

    // Edits, each one step of undo. A file without an entry first gets the tags of its sidecar, or the next
    // save would replace them.
    void setTags(const QString& key, const QStringList& tags);
    void append(const QStringList& keys, const QStringList& tags);
    void removeTags(const QStringList& keys, const QStringList& tags);
    void removeEverywhere(const QStringList& tags);
    void replaceText(const QString& src, const QString& dst);
    void splitText(const QString& src);
    // Takes the tags of a text that has just been written to the file's sidecar.
    void setSavedTags(const QString& key, const QStringList& tags);
    // Appends the tags of an answer. Answers of one batch in a row are one step.
    void appendAnswer(const QString& key, const QStringList& tags, int batch);
    // Reads the sidecars of files that are new here. Taking it back removes their entries and leaves the
    // sidecars alone: nothing is unsaved afterwards.
    void importFiles(const QStringList& keys);
    [[nodiscard]] static int newBatch();
    // Takes over what was recovered; keys without an entry are left out. Returns how many were changed.
    qsizetype restore(const Tags& tags);

    // Writes every entry to its sidecar. Stops only where no backup name is left.
    TagSaveReport save(const TagSaveOptions& options);

    [[nodiscard]] bool canUndo() const { return !_undo.isEmpty(); }
    [[nodiscard]] bool canRedo() const { return !_redo.isEmpty(); }
    // The step in words; empty without one.
    [[nodiscard]] QString undoText() const { return canUndo() ? textOf(_undo.last()) : QString(); }
    [[nodiscard]] QString redoText() const { return canRedo() ? textOf(_redo.last()) : QString(); }
    void undo();
    void redo();
    // Bytes of tags that the steps of undo may hold; the oldest are dropped first.
    void setUndoLimit(qsizetype bytes);

signals:
    // Once per operation, however many files it touched.
    void changed(TagChange change);

private:
    // What the touched files had before; taking it back leaves here what they had after.
    struct Step {
        QString pattern;   // of its text: what was edited, then the number of files
        QString what = {}; // null where the number alone says it
        Tags before = {};
        qsizetype bytes = 0;
        int batch = 0;         // of answers; 0 for any other step
        bool isImport = false; // the touched files had no entry
    };

    [[nodiscard]] static QString textOf(const Step& step);
    [[nodiscard]] Tags::iterator entryOf(const QString& key);
    void read(const QStringList& keys);
    void change(Step& step, Tags::iterator entry, const QStringList& tags);
    void noteSidecarTags(const QString& key, const QStringList& before, const QStringList& now);
    void finish(Step&& step, TagChange change);
    void takeBack(QList<Step>& from, QList<Step>& to);
    void takeBackImport(const QStringList& keys, bool isUndone);
    void dropOldSteps();
    void announce(TagChange change);

    Tags _tags;
    mutable std::optional<QList<TagCount>> _counted;
    // Of the files that differ from their sidecar: what the sidecar holds. Equal lists share their memory.
    Tags _sidecarTags;
    QList<Step> _undo;
    QList<Step> _redo;
    qsizetype _undoBytes = 0;
    qsizetype _undoLimit = qsizetype{64} * 1024 * 1024;
};
