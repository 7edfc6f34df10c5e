#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class Arguments;
class SuffixMatcher;

// A file to work on.
struct BatchFile {
    QString path;
    QString relative; // below the directory given, or the name of a file given by itself

    bool operator==(const BatchFile&) const = default;
};

struct BatchFailure {
    QString path;
    QString reason;
};

struct FileList {
    QList<BatchFile> files;     // of this share
    QStringList all;            // paths of all shares
    QSet<QString> colliding;    // paths whose relative name another file before them has
    QList<BatchFailure> unread; // directories that could not be read, with a slash at their end
};

// The options with which every subcommand chooses its files.
void addFileOptions(Arguments& arguments);

// The files that the arguments name: a directory means those of its files that match, sorted by name,
// without what lies in the excluded directory. Wrong arguments are rejected.
[[nodiscard]] FileList listFiles(Arguments& arguments, const SuffixMatcher& suffixes,
                                 const QString& excludedDirectory = {});

// The share, from 0, that a file belongs to. Files that differ only in their suffix belong together, since
// they have one sidecar.
[[nodiscard]] int shareOf(const QString& relativePath, int shares);
