#pragma once

#include <QString>
#include <QStringList>

// The image beside a model file under the same base name, in the first of the suffixes that exists; without
// one a path that has no suffix.
[[nodiscard]] QString previewImagePath(const QString& modelFile, const QStringList& suffixes);

// The model files in the directory of a file, in the order of the directory.
[[nodiscard]] QStringList modelFilesBeside(const QString& filePath);

// The file after or before the current one, round the ends. A file that is not in the list stands before the
// first and after the last; empty for an empty list.
[[nodiscard]] QString steppedModelFile(const QStringList& files, const QString& current, bool isForward);
