#pragma once

#include <QString>
#include <QStringList>

// The image beside a model file that has its base name and the first of the suffixes for which a file exists;
// the path without a suffix if there is none.
[[nodiscard]] QString previewImagePath(const QString& modelFile, const QStringList& suffixes);

// The model files in the directory of a file, in the order of the directory.
[[nodiscard]] QStringList modelFilesBeside(const QString& filePath);

// The file after or before the current one, wrapping around. From a file that is not in the list, the first
// or the last one; empty for an empty list.
[[nodiscard]] QString steppedModelFile(const QStringList& files, const QString& current, bool isForward);
