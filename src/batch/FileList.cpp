#include "batch/FileList.h"

#include "batch/Arguments.h"
#include "batch/Console.h"
#include "catalogue/MediaFormats.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

constexpr int mostShares = 1'000'000;

QString slashed(const QString& directory) {
    return directory.endsWith(u'/') ? directory : directory + u'/';
}

struct Share {
    int index = 0;
    int count = 1;
};

Share shareOption(Arguments& arguments) {
    const QString text = arguments.value(u"shard"_s);
    if (text.isNull())
        return {};
    const QStringList parts = text.split(u'/');
    bool isIndex = false;
    bool isCount = false;
    // Without a slash both are the same part; its number is checked below.
    const int index = parts.first().toInt(&isIndex);
    const int count = parts.last().toInt(&isCount);
    if (parts.size() != 2 || !isIndex || !isCount || index < 1 || index > count || count > mostShares) {
        arguments.reject(Batch::tr("--shard takes I/N with I from 1 to N, not \"%1\"").arg(text));
        return {};
    }
    return {index - 1, count};
}

class FileCollector {
public:
    FileCollector(const SuffixMatcher& suffixes, const QString& excludedDirectory, bool isRecursive,
                  const QString& base)
        : _suffixes(suffixes)
        , _excluded(QFileInfo(excludedDirectory).canonicalFilePath())
        , _base(base.isEmpty() ? QString() : slashed(base))
        , _isRecursive(isRecursive) {}

    void addOperand(const QString& path) {
        if (QFileInfo(path).isDir())
            addDirectory(path);
        else
            addFile(path);
    }

    void addFile(const QString& path) { append(path, QFileInfo(path).fileName(), path); }

    // The files of one share; all paths and collisions stay those of the whole list.
    [[nodiscard]] FileList take(const Share& share) {
        FileList list;
        list.unread = _unread;
        list.all.reserve(_entries.size());
        QSet<QString> relatives;
        for (const Entry& entry : std::as_const(_entries)) {
            list.all.append(entry.file.path);
            // The first file of a name keeps its result. All shares agree which one that is.
            if (relatives.contains(entry.file.relative))
                list.colliding.insert(entry.file.path);
            relatives.insert(entry.file.relative);
            if (share.count == 1 || shareOf(entry.key, share.count) == share.index)
                list.files.append(entry.file);
        }
        return list;
    }

private:
    struct Entry {
        BatchFile file;
        QString key; // of the share
    };

    void addDirectory(const QString& directory) {
        QStringList relatives;
        QStringList waiting{QString()};
        while (!waiting.isEmpty()) {
            const QString below = waiting.takeLast();
            const QString current = below.isEmpty() ? directory : slashed(directory) + below;
            // QDirIterator shows a directory that cannot be read as empty; this reports it.
            std::error_code error;
            fs::directory_iterator entries(fs::path(QFile::encodeName(current).toStdString()), error);
            for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
                const QString name = QFile::decodeName(entries->path().filename().c_str());
                // The window lists no hidden files either.
                if (name.startsWith(u'.'))
                    continue;
                const QString relative = below.isEmpty() ? name : below + u'/' + name;
                std::error_code unknown;
                if (entries->is_directory(unknown)) {
                    // A link to a directory may lead in a circle.
                    if (_isRecursive && !entries->is_symlink(unknown) && !isExcluded(directory, relative))
                        waiting.append(relative);
                } else if (_suffixes.matches(name)) {
                    relatives.append(relative);
                }
            }
            // The files found before the failure are taken all the same.
            if (error)
                _unread.append({slashed(current), QString::fromLocal8Bit(error.message())});
        }
        relatives.sort();
        for (const QString& relative : std::as_const(relatives))
            append(slashed(directory) + relative, relative, relative);
    }

    [[nodiscard]] bool isExcluded(const QString& directory, const QString& relative) const {
        return !_excluded.isEmpty() &&
               QFileInfo(slashed(directory) + relative).canonicalFilePath() == _excluded;
    }

    // Below the base both the relative path and the key count from there.
    void append(const QString& path, const QString& relative, const QString& key) {
        // One file may be named twice in different forms.
        const QString absolute = QDir::cleanPath(QDir::current().absoluteFilePath(path));
        if (_paths.contains(absolute))
            return;
        _paths.insert(absolute);
        // Compared as text, so the base is to be spelled as in the paths.
        if (!_base.isEmpty() && path.startsWith(_base))
            _entries.append({{path, path.sliced(_base.size())}, path.sliced(_base.size())});
        else
            _entries.append({{path, relative}, key});
    }

    const SuffixMatcher& _suffixes;
    QString _excluded;
    QString _base;
    bool _isRecursive;
    QList<Entry> _entries;
    QSet<QString> _paths;
    QList<BatchFailure> _unread;
};

QStringList listedPaths(Arguments& arguments) {
    const QString name = arguments.value(u"files-from"_s);
    if (name.isNull())
        return {};
    QFile file(name);
    const bool isOpen =
        name == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    // A part of the list would pass for all of it.
    if (file.error() != QFileDevice::NoError) {
        arguments.reject(Batch::tr("--files-from %1: %2").arg(shownPath(name), file.errorString()));
        return {};
    }
    // A path may hold a line end, but no NUL.
    const char separator = bytes.contains('\0') ? '\0' : '\n';
    QStringList paths;
    const QList<QByteArray> pieces = bytes.split(separator);
    for (const QByteArray& path : pieces) {
        if (!path.isEmpty())
            paths.append(QFile::decodeName(path));
    }
    return paths;
}

} // namespace

void addFileOptions(Arguments& arguments) {
    arguments.add(u"recursive"_s, Batch::tr("Takes the files of sub-directories as well."));
    arguments.add(
        u"files-from"_s,
        Batch::tr("Takes paths from FILE, or from standard input for -: one a line, or each ended by NUL."),
        u"FILE"_s);
    arguments.add(u"base"_s, Batch::tr("Lets paths below DIR count from there, as those of a directory do."),
                  u"DIR"_s);
    arguments.add(u"shard"_s, Batch::tr("Takes the I-th of N shares of the files."), u"I/N"_s);
}

FileList listFiles(Arguments& arguments, const SuffixMatcher& suffixes, const QString& excludedDirectory) {
    const Share share = shareOption(arguments);
    const QStringList listed = listedPaths(arguments);
    const QStringList operands = arguments.operands();
    if (operands.isEmpty() && !arguments.isSet(u"files-from"_s))
        arguments.reject(Batch::tr("no files are given"));
    if (arguments.isRejected())
        return {};
    FileCollector collector(suffixes, excludedDirectory, arguments.isSet(u"recursive"_s),
                            arguments.value(u"base"_s));
    for (const QString& operand : operands)
        collector.addOperand(operand);
    // The list of an earlier run marks a directory that it could not read by a slash. One without a slash is
    // reported and not walked: find prints the directories between the files that it has chosen.
    for (const QString& path : listed) {
        if (path.endsWith(u'/'))
            collector.addOperand(path);
        else
            collector.addFile(path);
    }
    return collector.take(share);
}

int shareOf(const QString& relativePath, int shares) {
    const qsizetype name = relativePath.lastIndexOf(u'/') + 1;
    const qsizetype dot = relativePath.lastIndexOf(u'.');
    // Without the suffix as sidecars are named, so that those who share one get into one share.
    const QString key = dot > name ? relativePath.first(dot) : relativePath;
    const QByteArray hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256);
    // The byte order is fixed, since shares may run on different machines.
    return static_cast<int>(qFromBigEndian<quint64>(hash.constData()) % static_cast<quint64>(shares));
}
