#pragma once

#include <QStringList>

struct DirectoryMatches {
    qsizetype start = 0; // of the name that is typed
    QStringList names = {};
};

// The sub-directories whose names begin with what is typed after the last separator of an absolute path: at
// most twelve by name, hidden ones after a dot. Nothing is offered inside of the path.
[[nodiscard]] DirectoryMatches matchingDirectories(const QString& line, qsizetype cursor);
