#pragma once

#include <QStringList>

struct DirectoryMatches {
    qsizetype start = 0; // of the name that is typed
    QStringList names = {};
};

// The sub-directories whose names begin with what is typed after the last separator of an absolute path: at
// most twelve, sorted by name, hidden ones only if a dot is typed. Nothing is offered unless the cursor is at
// the end of the line.
[[nodiscard]] DirectoryMatches matchingDirectories(const QString& line, qsizetype cursor);
