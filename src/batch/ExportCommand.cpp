#include "batch/Arguments.h"
#include "batch/Commands.h"
#include "batch/Console.h"
#include "batch/Run.h"
#include "batch/Sidecar.h"
#include "batch/WholeFile.h"
#include "catalogue/FileNaming.h"
#include "catalogue/MediaFormats.h"
#include "tags/TagText.h"
#include "tags/TagsExport.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum ExportFormat { ExportText, ExportJson, ExportCsv, ExportJsonl };

QString csvField(const QString& text) {
    if (!text.contains(u'"') && !text.contains(u',') && text == text.trimmed())
        return text;
    return u'"' + QString(text).replace(u'"', "\"\""_L1) + u'"';
}

// The tags of all files in the order of the export window's first look: the rarest first.
QString exportOfTags(const QStringList& tags, ExportFormat format) {
    const TagsExportOptions options;
    const QHash<QString, qsizetype> counts = tagCounts(tags);
    const QStringList exported = exportedTags(tags, counts, options);
    if (format == ExportText)
        return exportedTagText(exported, counts, options);
    QJsonArray array;
    QString csv = u"tag,count\n"_s;
    for (const QString& tag : exported) {
        const qsizetype count = counts.value(tag);
        array.append(QJsonObject{{u"tag"_s, tag}, {u"count"_s, count}});
        csv += u"%1,%2\n"_s.arg(csvField(tag), QString::number(count));
    }
    return format == ExportCsv ? csv : QString::fromUtf8(QJsonDocument(array).toJson());
}

QString metadataLine(const BatchFile& file, QStringList tags) {
    // Pieces of blanks between commas, which a sidecar may hold.
    tags.removeAll(QString());
    const QJsonObject line{{u"file_name"_s, file.relative}, {u"text"_s, tags.join(", "_L1)}};
    return QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)) + u'\n';
}

// One form for all names of a file, also of one that does not exist yet.
QString identity(const QString& path) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : canonical;
}

// Whether the path is one of the files, or of their sidecars. A new sidecar counts too, or the next run
// would take the export for its tags.
bool isExported(const FileList& files, const QString& path) {
    const QString wanted = identity(path);
    return !path.isNull() && std::ranges::any_of(files.all, [&](const QString& file) {
        return identity(file) == wanted || identity(imgFilePathToTxtFilePath(file)) == wanted;
    });
}

} // namespace

int exportCommand(const QStringList& words) {
    Arguments arguments(u"export"_s, Batch::tr("Exports the tags of media files."), u"FILE..."_s);
    arguments.add(u"format"_s,
                  Batch::tr("text, json or csv: tags by frequency; jsonl: one line a file, as image folder "
                            "loaders read a metadata.jsonl."),
                  u"FORMAT"_s, u"text"_s);
    arguments.add(u"output"_s, Batch::tr("Writes to FILE, whole or not at all."), u"FILE"_s);
    arguments.add(u"overwrite"_s, Batch::tr("Replaces a file that exists."));
    if (const std::optional<int> code = parseRun(arguments, words))
        return *code;
    RunOptions run = runOptions(arguments);
    run.isQuiet = true;
    const auto format = static_cast<ExportFormat>(
        arguments.choice(u"format"_s, {u"text"_s, u"json"_s, u"csv"_s, u"jsonl"_s}));
    const QString output = arguments.value(u"output"_s);
    if (run.printsJson && output.isNull())
        arguments.reject(Batch::tr("--json needs --output, since standard output takes the export"));
    const FileList files = listFiles(arguments, SuffixMatcher(mediaNameFilters()));
    if (arguments.isRejected())
        return arguments.wrongUsage();
    if (isExported(files, output)) {
        console::complain(output, Batch::tr("is a source, which no export replaces"));
        return SomeFailed;
    }

    QStringList tags;
    QString text;
    const int code =
        // Called on this thread in the order of the files, so text and tags need no lock.
        runOverFiles(files, run, tagsResult, [&](const BatchFile& file, const FileResult& result) {
            if (format == ExportJsonl && result.outcome == FileResult::Done)
                text += metadataLine(file, tagsOf(result));
            else
                tags += tagsOf(result);
            return true;
        });
    // A part of the export would pass for all of it. Not the code of the run, which is 0 where the interrupt
    // came after the last file.
    if (isInterrupted())
        return SomeFailed;
    if (format != ExportJsonl)
        text = exportOfTags(tags, format);
    if (output.isNull()) {
        console::print(text);
        return finishOutput(code);
    }
    const QString error = writeWholeFile(
        output, text.toUtf8(), arguments.isSet(u"overwrite"_s) ? Existing::Replace : Existing::Keep);
    if (!error.isEmpty())
        console::complain(output, error);
    return error.isEmpty() ? code : SomeFailed;
}
