#pragma once

#include <QByteArray>
#include <QString>

enum class Existing { Keep, Replace };

// Writes a file whole or not at all, through a hidden file beside it and a rename. Links, and the permissions
// of a file that is replaced, are kept. Gives the reason of a failure; empty after a success.
//
// The hidden file's name follows from the file's, so that a run after one that was killed replaces what it
// left, and a lock on it keeps two runs apart.
[[nodiscard]] QString writeWholeFile(const QString& filePath, const QByteArray& bytes, Existing existing);

// The same for a sidecar, of which a backup is made first as in the window if there is one.
[[nodiscard]] QString writeWholeSidecar(const QString& txtFileName, const QString& text, bool makesBackup);
