#pragma once

#include <QString>

// The sidecar of a media file: only the last suffix is replaced, so two files that differ in it share one.
[[nodiscard]] QString imgFilePathToTxtFilePath(const QString& imgFilePath);

// The free backup name of a sidecar; empty when all numbers are used up.
[[nodiscard]] QString txtFilePathBackupFilePath(const QString& txtFilePath);

// The next free name "name_N.suffix" for a file, N from 0; empty when all numbers are used up.
[[nodiscard]] QString numberedFilePath(const QString& filePath);

// The file's name in another directory.
[[nodiscard]] QString destinationFilePath(const QString& srcFilePath, const QString& directory);

// Equal for two texts exactly when QString::compare finds them equal regardless of case; for sets of paths or
// tags.
[[nodiscard]] QString foldedCase(const QString& text);
