#pragma once

#include <QByteArray>
#include <QString>

struct BatchRun {
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs the built tessarine-batch in a directory with the words of a command line.
[[nodiscard]] BatchRun runBatch(const QString& directory, const QString& words, const QByteArray& input = {});
// The regular files below a directory by relative path, one a line: images with their size, others with their
// content.
[[nodiscard]] QString treeText(const QString& directory);
// All bytes of a tree, for comparing two of them.
[[nodiscard]] QByteArray treeBytes(const QString& directory);
