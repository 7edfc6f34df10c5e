#include "tags/TagRecord.h"

#include "catalogue/FileNaming.h"
#include "catalogue/ReadInOrder.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype shownLabelCharacters = 40;

QStringList sidecarTags(const QString& key) {
    return tagsFromText(sidecarText(imgFilePathToTxtFilePath(key)).value_or(QString()));
}

// The bytes that a list would occupy if it shared no strings with other lists.
qsizetype tagBytes(const QStringList& tags) {
    qsizetype bytes = 0;
    for (const QString& tag : tags)
        bytes += qsizetype(sizeof(QString)) + tag.size() * qsizetype(sizeof(QChar));
    return bytes;
}

// Tags as part of a label.
QString quotedTags(const QStringList& tags) {
    QString text = tags.join(", "_L1);
    if (text.size() > shownLabelCharacters)
        text = text.first(shownLabelCharacters) + QChar(0x2026);
    return u'"' + text.simplified() + u'"';
}

} // namespace

const QList<TagCount>& TagRecord::counted() const {
    if (!_counted)
        _counted = countedTags(_tags);
    return *_counted;
}

const QStringList& TagRecord::differentTags() const {
    if (!_differentTags) {
        _differentTags.emplace();
        for (const TagCount& count : counted())
            _differentTags->append(count.tag);
    }
    return *_differentTags;
}

void TagRecord::announce(TagChange change) {
    // Saving changes no tag, so the counts stay valid.
    if (change != TagChange::Saved) {
        _counted.reset();
        _differentTags.reset();
    }
    emit changed(change);
}

void TagRecord::load(const QStringList& keys) {
    read(keys);
    if (!keys.isEmpty())
        announce(TagChange::Read);
}

void TagRecord::importFiles(const QStringList& keys) {
    QStringList added = keys;
    // Before the read, which makes an entry for each of them.
    added.removeIf([this](const QString& key) { return contains(key); });
    read(keys);
    Step step{.pattern = tr("import %1 files"), .isImport = true};
    for (const QString& key : std::as_const(added)) {
        // A file without tags has nothing that an undo would remove.
        if (!tags(key).isEmpty())
            step.before.insert(key, {});
    }
    finish(std::move(step), TagChange::Read);
}

void TagRecord::read(const QStringList& keys) {
    // A file that reappears keeps the tags that the user has not saved.
    QStringList wanted = keys;
    wanted.removeIf([this](const QString& key) { return isUnsaved(key); });
    _tags.reserve(_tags.size() + wanted.size());
    struct Sidecar {
        QString txtFileName;
        SidecarRead read;
        QStringList tags;
    };
    readInOrder(
        wanted.size(),
        // Each reader thread copies this function and so has a pool of its own.
        [&wanted, pool = TagPool()](qsizetype index) mutable {
            Sidecar sidecar;
            sidecar.txtFileName = imgFilePathToTxtFilePath(wanted.at(index));
            sidecar.read = readSidecarFile(sidecar.txtFileName);
            sidecar.tags = tagsFromText(sidecar.read.text.value_or(QString()), pool);
            // Only the tags are used, and the text may be long.
            sidecar.read.text.reset();
            return sidecar;
        },
        [&](qsizetype index, Sidecar&& sidecar) {
            logSidecarRead(sidecar.txtFileName, sidecar.read);
            _tags.insert(wanted.at(index), std::move(sidecar.tags));
        });
}

void TagRecord::remove(const QStringList& keys) {
    for (const QString& key : keys) {
        _tags.remove(key);
        _sidecarTags.remove(key);
    }
    if (!keys.isEmpty())
        announce(TagChange::Read);
}

void TagRecord::clear() {
    _tags.clear();
    _sidecarTags.clear();
    _undo.clear();
    _redo.clear();
    _undoBytes = 0;
    announce(TagChange::Read);
}

void TagRecord::setTags(const QString& key, const QStringList& tags) {
    Step step{tr("edit %1"), QFileInfo(key).fileName()};
    change(step, entryOf(key), tags);
    finish(std::move(step), TagChange::Stored);
}

void TagRecord::append(const QStringList& keys, const QStringList& tags) {
    Step step{tr("add %1 to %2 files"), quotedTags(tags)};
    for (const QString& key : keys) {
        const auto entry = entryOf(key);
        change(step, entry, *entry + tags);
    }
    finish(std::move(step), TagChange::Edited);
}

void TagRecord::removeTags(const QStringList& keys, const QStringList& tags) {
    Step step{tr("delete %1 from %2 files"), quotedTags(tags)};
    for (const QString& key : keys) {
        const auto entry = entryOf(key);
        QStringList kept = *entry;
        ::removeTags(kept, tags);
        change(step, entry, kept);
    }
    finish(std::move(step), TagChange::Edited);
}

void TagRecord::removeEverywhere(const QStringList& tags) {
    removeTags(_tags.keys(), tags);
}

void TagRecord::replaceText(const QString& src, const QString& dst) {
    Step step{tr("replace %1 in %2 files"), quotedTags({src})};
    // change() assigns to an entry and inserts none, so the iterator stays valid.
    for (auto entry = _tags.begin(); entry != _tags.end(); ++entry) {
        // Entries without the text keep sharing the memory of their lists.
        if (std::ranges::none_of(std::as_const(*entry),
                                 [&](const QString& tag) { return tag.contains(src); }))
            continue;
        QStringList replaced = *entry;
        replaceInTags(replaced, src, dst);
        change(step, entry, replaced);
    }
    finish(std::move(step), TagChange::Edited);
}

void TagRecord::splitText(const QString& src) {
    Step step{tr("split by %1 in %2 files"), quotedTags({src})};
    for (auto entry = _tags.begin(); entry != _tags.end(); ++entry) {
        QStringList split = *entry;
        splitTags(split, src);
        change(step, entry, split);
    }
    finish(std::move(step), TagChange::Edited);
}

void TagRecord::setSavedTags(const QString& key, const QStringList& tags) {
    Step step{tr("save the text of %1"), QFileInfo(key).fileName()};
    // Not entryOf: the sidecar already has the new tags, so reading it would leave nothing to undo.
    change(step, _tags.tryEmplace(key).iterator, tags);
    // change() has just marked the file as unsaved.
    _sidecarTags.remove(key);
    finish(std::move(step), TagChange::Stored);
}

void TagRecord::setSidecarText(const QString& key, const QString& text) {
    if (!contains(key))
        return;
    if (const QStringList left = tagsFromText(text); left == tags(key))
        _sidecarTags.remove(key);
    else
        _sidecarTags.insert(key, left);
    announce(TagChange::Saved);
}

void TagRecord::appendAnswer(const QString& key, const QStringList& tags, int batch) {
    Step step{.pattern = tr("captions of %1 files"), .batch = batch};
    const auto entry = entryOf(key);
    change(step, entry, *entry + tags);
    finish(std::move(step), TagChange::Stored);
}

int TagRecord::newBatch() {
    static int lastBatch = 0;
    return ++lastBatch;
}

qsizetype TagRecord::restore(const Tags& tags) {
    Step step{.pattern = tr("restore %1 files")};
    for (const auto& [key, restored] : tags.asKeyValueRange()) {
        if (const auto entry = _tags.find(key); entry != _tags.end())
            change(step, entry, restored);
    }
    // finish() takes the step over.
    const qsizetype count = step.before.size();
    finish(std::move(step), TagChange::Edited);
    return count;
}

TagRecord::Tags::iterator TagRecord::entryOf(const QString& key) {
    const auto entry = _tags.find(key);
    return entry != _tags.end() ? entry : _tags.insert(key, sidecarTags(key));
}

// Sets the tags of an entry and stores the previous ones in the step. Does nothing if both are equal.
void TagRecord::change(Step& step, Tags::iterator entry, const QStringList& tags) {
    if (*entry == tags)
        return;
    const QStringList before = std::exchange(*entry, tags);
    noteSidecarTags(entry.key(), before, tags);
    step.bytes += tagBytes(before);
    step.before.insert(entry.key(), before);
}

void TagRecord::noteSidecarTags(const QString& key, const QStringList& before, const QStringList& now) {
    const auto unsaved = _sidecarTags.find(key);
    if (unsaved == _sidecarTags.end())
        _sidecarTags.insert(key, before);
    else if (*unsaved == now)
        _sidecarTags.erase(unsaved);
}

void TagRecord::finish(Step&& step, TagChange change) {
    if (!step.before.isEmpty()) {
        for (const Step& undone : std::as_const(_redo))
            _undoBytes -= undone.bytes;
        _redo.clear();
        _undoBytes += step.bytes;
        // Consecutive answers of a batch are one step, which keeps each file's tags from before its first
        // answer.
        if (step.batch != 0 && canUndo() && _undo.last().batch == step.batch) {
            Step& batch = _undo.last();
            batch.bytes += step.bytes;
            for (const auto& [key, before] : std::as_const(step.before).asKeyValueRange())
                batch.before.tryEmplace(key, before);
        } else {
            _undo.append(std::move(step));
        }
        dropOldSteps();
    }
    announce(change);
}

void TagRecord::undo() {
    revertStep(_undo, _redo);
}

void TagRecord::redo() {
    revertStep(_redo, _undo);
}

// Undo and redo alike revert the last step of one list and append the opposite step to the other.
void TagRecord::revertStep(QList<Step>& from, QList<Step>& to) {
    if (from.isEmpty())
        return;
    Step step = from.takeLast();
    _undoBytes -= step.bytes;
    // An import has no earlier tags to set: its entries are removed or read again as a whole.
    if (step.isImport) {
        revertImport(step.before.keys(), &from == &_undo);
        to.append(std::move(step));
        announce(TagChange::Undone);
        return;
    }
    Step back{step.pattern, step.what};
    for (const auto& [key, before] : std::as_const(step.before).asKeyValueRange()) {
        // Files that were removed from the record are not added again.
        if (const auto entry = _tags.find(key); entry != _tags.end())
            change(back, entry, before);
    }
    _undoBytes += back.bytes;
    if (!back.before.isEmpty())
        to.append(std::move(back));
    dropOldSteps();
    announce(TagChange::Undone);
}

void TagRecord::revertImport(const QStringList& keys, bool isUndone) {
    QStringList absent;
    for (const QString& key : keys) {
        if (isUndone) {
            _tags.remove(key);
            _sidecarTags.remove(key);
            // The file may have been deleted since, or have a row and an entry again.
        } else if (!contains(key) && QFileInfo::exists(key)) {
            absent.append(key);
        }
    }
    read(absent);
}

void TagRecord::setUndoLimit(qsizetype bytes) {
    _undoLimit = bytes;
    dropOldSteps();
}

void TagRecord::dropOldSteps() {
    // The oldest steps of undo first. Only without any, those of redo, from the one farthest away.
    while (_undoBytes > _undoLimit && !(_undo.isEmpty() && _redo.isEmpty())) {
        QList<Step>& steps = _undo.isEmpty() ? _redo : _undo;
        _undoBytes -= steps.takeFirst().bytes;
    }
}

QString TagRecord::textOf(const Step& step) {
    const QString count = QString::number(step.before.size());
    if (step.what.isNull())
        return step.pattern.arg(count);
    // One call of arg() for both texts: a "%2" in a tag is not taken for the number.
    return step.pattern.contains("%2"_L1) ? step.pattern.arg(step.what, count) : step.pattern.arg(step.what);
}

TagSaveReport TagRecord::save(const TagSaveOptions& options) {
    TagSaveReport report;
    QHash<QString, QString> writers; // by sidecar, the key whose tags were written last
    for (const auto& [key, tags] : std::as_const(_tags).asKeyValueRange()) {
        const QString text = savedTagText(tags, options.keepsDuplicates);
        TagSaveRemark remark{imgFilePathToTxtFilePath(key), {}, false};
        const QString replacedKey = writers.value(remark.txtFileName);
        remark.isShared = !replacedKey.isNull();
        // Every entry is written, changed or not, and one without tags gives an empty file.
        remark.write = writeSidecar(remark.txtFileName, text, options.makesBackups);
        const bool isWhole = remark.write.outcome == SidecarWrite::Written;
        const std::optional<QString> left = isWhole ? text : remark.write.left;
        if (isWhole) {
            writers.insert(remark.txtFileName, key);
            _sidecarTags.remove(key);
        } else if (left) {
            // A write that failed midway has replaced the old text, so these tags are only in memory.
            _sidecarTags.insert(key, tagsFromText(*left));
        }
        // The file whose tags were written earlier now differs from its sidecar.
        if (left && remark.isShared &&
            savedTagText(_tags.value(replacedKey), options.keepsDuplicates) != left)
            _sidecarTags.insert(replacedKey, tagsFromText(*left));
        ++(isWhole ? report.written : report.failed);
        // Paints the window without handling events, so the record does not change in this loop.
        if (options.progress)
            options.progress(report.written + report.failed, _tags.size());
        if (!isWhole || remark.isShared || !remark.write.backupError.isEmpty())
            report.remarks.append(remark);
        if (remark.write.outcome == SidecarWrite::NoBackupName) {
            report.isStopped = true;
            break;
        }
    }
    announce(TagChange::Saved);
    return report;
}
