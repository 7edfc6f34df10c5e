#include "batch/Outputs.h"

#include "batch/Arguments.h"
#include "batch/Console.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

QString makeDirectory(const QString& path) {
    std::error_code error;
    // QDir gives no reason for a failure.
    std::filesystem::create_directories(std::filesystem::path(QFile::encodeName(path).toStdString()), error);
    if (error)
        return QString::fromLocal8Bit(error.message());
    return QFileInfo(path).isDir() ? QString() : Batch::tr("is no directory");
}

} // namespace

void addOutputOptions(Arguments& arguments, bool mayWorkInPlace) {
    arguments.add(u"output"_s, Batch::tr("Writes below DIR; files of sub-directories keep theirs."),
                  u"DIR"_s);
    if (mayWorkInPlace)
        arguments.add(u"in-place"_s, Batch::tr("Replaces the files themselves."));
    arguments.add(u"overwrite"_s, Batch::tr("Replaces results that exist."));
    arguments.add(u"resume"_s, Batch::tr("Skips results that are no older than their source."));
}

OutputOptions outputOptions(Arguments& arguments) {
    const bool isInPlace = arguments.isSet(u"in-place"_s);
    OutputOptions options{.directory = arguments.value(u"output"_s),
                          .overwrites = arguments.isSet(u"overwrite"_s),
                          .resumes = arguments.isSet(u"resume"_s)};
    if (isInPlace && (!options.directory.isEmpty() || options.resumes))
        arguments.reject(Batch::tr("--in-place goes with neither --output nor --resume"));
    else if (!isInPlace && options.directory.isEmpty())
        arguments.reject(Batch::tr("--output DIR says where the results go"));
    while (options.directory.size() > 1 && options.directory.endsWith(u'/'))
        options.directory.chop(1);
    return options;
}

QString prepareOutput(const OutputOptions& options) {
    return options.directory.isEmpty() ? QString() : makeDirectory(options.directory);
}

Outputs::Target Outputs::target(const BatchFile& file) const {
    if (_options.directory.isEmpty())
        return {.path = file.path, .existing = Existing::Replace};
    return target(file, file.relative);
}

Outputs::Target Outputs::target(const BatchFile& file, const QString& relative) const {
    Target target{.path = _options.directory + u'/' + relative};
    const QFileInfo info(target.path);
    if (_files.colliding.contains(file.path))
        target.refusal = FileResult::failed(
            Batch::tr("another file has the result %1; --base keeps their directories").arg(target.path));
    else if (!info.exists())
        return target;
    else if (info.isDir())
        target.refusal = FileResult::failed(Batch::tr("%1 is a directory").arg(target.path));
    else if (isSource(target.path))
        target.refusal =
            FileResult::failed(Batch::tr("%1 is a source, which only --in-place replaces").arg(target.path));
    else if (_options.resumes && info.lastModified() >= QFileInfo(file.path).lastModified())
        target.refusal = FileResult::skipped(Batch::tr("%1 is there").arg(target.path));
    else if (_options.overwrites)
        target.existing = Existing::Replace;
    else
        target.refusal =
            FileResult::failed(Batch::tr("%1 exists, which only --overwrite replaces").arg(target.path));
    return target;
}

FileResult Outputs::write(const Target& target, const QByteArray& bytes) {
    const QString directory = QFileInfo(target.path).path();
    if (const QString error = makeDirectory(directory); !error.isEmpty())
        return FileResult::failed(Batch::tr("%1: %2").arg(directory, error));
    if (const QString error = writeWholeFile(target.path, bytes, target.existing); !error.isEmpty())
        return FileResult::failed(Batch::tr("%1: %2").arg(target.path, error));
    FileResult result;
    result.json.insert("output"_L1, target.path);
    return result;
}

bool Outputs::isSource(const QString& path) const {
    std::call_once(_sourcesAreKnown, [this] {
        // Canonical paths, so that a link to a source is found too. Made only when a result exists.
        for (const QString& source : _files.all)
            _sources.insert(QFileInfo(source).canonicalFilePath());
    });
    return _sources.contains(QFileInfo(path).canonicalFilePath());
}
