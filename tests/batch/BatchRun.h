#pragma once

#include <QByteArray>
#include <QString>

struct BatchRun {
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs the built tessarine-batch in a directory with the words of a command line, quoted by '.
[[nodiscard]] BatchRun runBatch(const QString& directory, QString words, const QByteArray& input = {});
// The files below a directory by relative path, one a line: images with their size, others with their
// content; or all with their bytes in hexadecimal digits.
[[nodiscard]] QString treeText(const QString& directory, bool inBytes = false);
