#include "batch/Arguments.h"
#include "batch/Commands.h"
#include "batch/Console.h"
#include "batch/Run.h"
#include "batch/Sidecar.h"
#include "batch/UnifiedDiff.h"
#include "batch/WholeFile.h"
#include "catalogue/FileNaming.h"
#include "catalogue/MediaFormats.h"
#include "tags/TagText.h"

#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using TagEdit = std::function<void(QStringList& tags)>;

struct EditOptions {
    bool isDryRun = false;
    bool makesBackups = false;
    bool keepsDuplicates = false;
};

FileResult listTags(const BatchFile& file) {
    FileResult result = tagsResult(file);
    if (result.outcome == FileResult::Done)
        result.text = u"%1\t%2\n"_s.arg(shownPath(file.path), tagsOf(result).join(", "_L1));
    return result;
}

FileResult editTags(const BatchFile& file, const TagEdit& edit, const EditOptions& options) {
    const Sidecar sidecar = readSidecar(file.path);
    if (!sidecar.error.isEmpty())
        return FileResult::failed(sidecar.error);
    const QStringList before = sidecar.tags();
    QStringList tags = before;
    edit(tags);
    const QString text = savedTagText(tags, options.keepsDuplicates);
    // A save in the window writes "a, b" as "a,b"; here that alone is no change.
    if (tags == before || tagsFromText(text) == before)
        return FileResult::skipped(Batch::tr("nothing to change"));
    FileResult result;
    result.json.insert("tags"_L1, QJsonArray::fromStringList(tagsFromText(text)));
    if (options.isDryRun) {
        // An empty file may read as a null text, which would be a missing file to the diff.
        const QString old = sidecar.text.isNull() ? u""_s : sidecar.text;
        result.text = unifiedDiff(sidecar.path, sidecar.exists ? old : QString(), text);
        return result;
    }
    const QString error = writeWholeSidecar(sidecar.path, text, options.makesBackups);
    return error.isEmpty() ? result : FileResult::failed(error);
}

int countTags(const FileList& files, RunOptions run) {
    QHash<QString, qsizetype> counts;
    // The sums are printed as JSON in place of a line a file.
    const bool printsJson = std::exchange(run.printsJson, false);
    const int code = runOverFiles(files, run, tagsResult, [&](const BatchFile&, const FileResult& result) {
        const QStringList tags = tagsOf(result);
        for (const QString& tag : tags)
            ++counts[tag];
        return true;
    });
    // Sums over a part of the files would mislead.
    if (isInterrupted())
        return SomeFailed;
    QList<TagCount> counted;
    for (const auto& [tag, count] : counts.asKeyValueRange())
        counted.append({tag, count});
    std::ranges::sort(counted, [](const TagCount& left, const TagCount& right) {
        return left.count != right.count ? left.count > right.count : left.tag < right.tag;
    });
    for (const TagCount& tag : std::as_const(counted)) {
        if (printsJson)
            console::print(
                QString::fromUtf8(QJsonDocument(QJsonObject{{u"tag"_s, tag.tag}, {u"count"_s, tag.count}})
                                      .toJson(QJsonDocument::Compact)) +
                u'\n');
        else
            console::print(u"%1\t%2\n"_s.arg(QString::number(tag.count), tag.tag));
    }
    return finishOutput(code);
}

// Leaves each sidecar to the first of the existing files that share it. A missing one edits nothing, and is
// kept to be reported.
void dropSharers(FileList& files) {
    QSet<QString> sidecars;
    files.files.removeIf([&](const BatchFile& file) {
        if (!QFileInfo::exists(file.path))
            return false;
        const qsizetype before = sidecars.size();
        // Absolute, since one directory may be given in different forms.
        sidecars.insert(QFileInfo(imgFilePathToTxtFilePath(file.path)).absoluteFilePath());
        return sidecars.size() == before;
    });
}

QString requiredText(Arguments& arguments, const QString& name) {
    const QString text = arguments.value(name);
    if (text.isEmpty())
        arguments.reject(Batch::tr("--%1 needs a text").arg(name));
    return text;
}

QStringList requiredTags(Arguments& arguments) {
    const QString text = requiredText(arguments, u"tags"_s);
    QStringList tags = tagsFromText(text);
    tags.removeAll(QString());
    // requiredText has rejected an empty text.
    if (tags.isEmpty() && !text.isEmpty())
        arguments.reject(Batch::tr("--tags holds no tag"));
    return tags;
}

TagEdit tagEdit(Arguments& arguments, const QString& action) {
    if (action == "add"_L1)
        return [added = requiredTags(arguments)](QStringList& tags) { tags += added; };
    if (action == "remove"_L1)
        return [removed = requiredTags(arguments)](QStringList& tags) { removeTags(tags, removed); };
    if (action == "replace"_L1)
        return [from = requiredText(arguments, u"from"_s),
                to = requiredText(arguments, u"to"_s)](QStringList& tags) { replaceInTags(tags, from, to); };
    return [by = requiredText(arguments, u"by"_s)](QStringList& tags) { splitTags(tags, by); };
}

void addEditOptions(Arguments& arguments, const QString& action) {
    if (action == "add"_L1 || action == "remove"_L1)
        arguments.add(u"tags"_s, Batch::tr("The tags, separated by commas."), u"TAGS"_s);
    if (action == "replace"_L1) {
        arguments.add(u"from"_s, Batch::tr("The text inside of tags to replace."), u"TEXT"_s);
        arguments.add(u"to"_s, Batch::tr("The text to put in its place."), u"TEXT"_s);
    }
    if (action == "split"_L1)
        arguments.add(u"by"_s, Batch::tr("The text at which to split tags."), u"TEXT"_s);
    arguments.add(u"dry-run"_s, Batch::tr("Prints a unified diff and writes nothing."));
    arguments.add(u"backup"_s, Batch::tr("Keeps the old sidecar beside the new one."));
    arguments.add(u"keep-duplicates"_s, Batch::tr("Keeps tags that a file has twice."));
}

} // namespace

int tagsCommand(const QStringList& words) {
    const QStringList actions{u"list"_s, u"count"_s, u"add"_s, u"remove"_s, u"replace"_s, u"split"_s};
    const QString action = words.value(0);
    const bool isQuery = action == "list"_L1 || action == "count"_L1;
    const bool isKnown = actions.contains(action);
    const QString command = isKnown ? "tags "_L1 + action : u"tags"_s;
    Arguments arguments(command,
                        Batch::tr("Lists, counts and edits the tags in the sidecars of media files."),
                        isKnown ? u"FILE..."_s : actions.join(u'|') + " FILE..."_L1);
    if (!isQuery && isKnown)
        addEditOptions(arguments, action);
    // Also without a known action, so that --help names them.
    if (const std::optional<int> code = parseRun(arguments, words.sliced(isKnown ? 1 : 0)))
        return *code;
    if (!isKnown)
        arguments.reject(Batch::tr("tags takes one of %1").arg(actions.join(", "_L1)));
    RunOptions run = runOptions(arguments);
    run.isQuiet = run.isQuiet || isQuery;
    const TagEdit edit = isQuery || !isKnown ? TagEdit() : tagEdit(arguments, action);
    FileList files = listFiles(arguments, SuffixMatcher(mediaNameFilters()));
    if (arguments.isRejected())
        return arguments.wrongUsage();
    if (action == "count"_L1)
        return countTags(files, run);
    if (action == "list"_L1)
        return runOverFiles(files, run, listTags);
    const EditOptions options{.isDryRun = arguments.isSet(u"dry-run"_s),
                              .makesBackups = arguments.isSet(u"backup"_s),
                              .keepsDuplicates = arguments.isSet(u"keep-duplicates"_s)};
    // Files that share a sidecar would each edit it, in several threads even at once.
    dropSharers(files);
    return runOverFiles(files, run, [&](const BatchFile& file) { return editTags(file, edit, options); });
}
