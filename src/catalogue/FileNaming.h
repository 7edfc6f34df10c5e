#pragma once

#include <QString>

#include <optional>

class QDateTime;

// The sidecar of a media file: only the last suffix is replaced, so two files that differ in it share one.
[[nodiscard]] QString imgFilePathToTxtFilePath(const QString& imgFilePath);

// The free backup name of a sidecar; empty when all numbers are used up.
[[nodiscard]] QString txtFilePathBackupFilePath(const QString& txtFilePath);

// The next free name "name_N.suffix" for a file, N from 0; empty when all numbers are used up.
[[nodiscard]] QString numberedFilePath(const QString& filePath);

// The file's name in another directory.
[[nodiscard]] QString destinationFilePath(const QString& srcFilePath, const QString& directory);

// Equal for two paths exactly when QString::compare finds them equal regardless of case; for sets of paths.
[[nodiscard]] QString foldedPath(const QString& path);

// Where a frame grabbed from a video is saved: named after the video and the moment, counted up while the
// name is taken. Without a video's name it follows from the directory that the video's window opened last, if
// there is one.
[[nodiscard]] QString grabbedFramePath(const QString& directory, const QString& videoFileName,
                                       const std::optional<QString>& lastOpenPath, const QDateTime& moment);
