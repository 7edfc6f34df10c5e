#pragma once

#include <QFile>
#include <QString>

// The sidecar of a media file: only the last suffix is replaced, so two files that differ in it share one.
[[nodiscard]] QString imgFilePathToTxtFilePath(const QString& imgFilePath);

// The free backup name of a sidecar; empty when all numbers are used up.
[[nodiscard]] QString txtFilePathBackupFilePath(const QString& txtFilePath);

// The next free name "name_N.suffix" for a file, N from 0; empty when all numbers are used up.
[[nodiscard]] QString numberedFilePath(const QString& filePath);

// A name in a directory, which may end in a separator of either kind.
[[nodiscard]] QString pathInDirectory(const QString& directory, const QString& name);

// The first candidate, numbered from 0, that is the path of no existing file.
template <typename MakeCandidate>
[[nodiscard]] QString firstFreePath(MakeCandidate makeCandidate) {
    for (int number = 0;; ++number) {
        if (const QString candidate = makeCandidate(number); !QFile::exists(candidate))
            return candidate;
    }
}

// The path of a file of the same name in another directory.
[[nodiscard]] QString destinationFilePath(const QString& srcFilePath, const QString& directory);

// Equal for two texts exactly when QString::compare finds them equal regardless of case; for sets of paths or
// tags.
[[nodiscard]] QString foldedCase(const QString& text);
