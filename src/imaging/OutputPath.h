#pragma once

#include <QString>

// Where a batch writes: a relative text counts from the working directory, an empty one stands for it.
[[nodiscard]] QString resolveOutputDirectory(const QString& workingPath, const QString& outputText);

// Makes the directory with its parents unless something of that name exists.
[[nodiscard]] bool ensureOutputDirectory(const QString& directory);

// The source's name in the output directory; the source path itself, untouched, if it lies there by its text.
[[nodiscard]] QString outputFilePath(const QString& sourcePath, const QString& outputDirectory);
