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

// The kind of a change of the record, for the panels that show it.
enum class TagChange {
    Read,   // sidecars were read, or files removed
    Edited, // the user changed the tags of files
    Stored, // a text or an answer changed the tags of one file
    Undone, // an edit was undone or redone
    Saved   // sidecars were written, the tags are unchanged
};

struct TagSaveOptions {
    bool makesBackups = false;
    bool keepsDuplicates = false;
    std::function<void(qsizetype done, qsizetype total)> progress = {}; // after each sidecar
};

// A sidecar whose save failed or has a warning.
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

// The tags of all files of the catalogue in memory, by file key, with undo of edits. Records which files
// differ from their sidecars. GUI thread only.
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
    // The tags of counted() alone.
    [[nodiscard]] const QStringList& differentTags() const;
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
    // Sets the tags of a text that has just been written to the file's sidecar.
    void setSavedTags(const QString& key, const QStringList& tags);
    // Records what a failed write has left in the file's sidecar. The tags do not change, and nothing is done
    // for a file without an entry.
    void setSidecarText(const QString& key, const QString& text);
    // Appends the tags of an answer. Answers of one batch in a row are one step.
    void appendAnswer(const QString& key, const QStringList& tags, int batch);
    // Reads the sidecars of imported files. Undo removes their entries and does not change the sidecars, so
    // nothing is unsaved afterwards.
    void importFiles(const QStringList& keys);
    [[nodiscard]] static int newBatch();
    // Sets recovered tags; keys without an entry are skipped. Returns how many entries were changed.
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
    // The tags of the changed files before an edit. Reverting it gives a step with the tags after the edit.
    struct Step {
        QString pattern;   // of its label: what was edited, then the number of files
        QString what = {}; // null where the label has only the number
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
    void revertStep(QList<Step>& from, QList<Step>& to);
    void revertImport(const QStringList& keys, bool isUndone);
    void dropOldSteps();
    void announce(TagChange change);

    Tags _tags;
    mutable std::optional<QList<TagCount>> _counted;
    mutable std::optional<QStringList> _differentTags;
    // Of the files that differ from their sidecar: what the sidecar holds. Equal lists share their memory.
    Tags _sidecarTags;
    QList<Step> _undo;
    QList<Step> _redo;
    qsizetype _undoBytes = 0;
    qsizetype _undoLimit = qsizetype{64} * 1024 * 1024;
};
