#pragma once

#include <QString>

#include <optional>

class QDateTime;

// The format of a position bar that shows two times and leaves the percentage to the bar.
[[nodiscard]] QString positionFormat(qint64 position, qint64 duration);

// Name without suffix of a grabbed frame's file. The source is a path or URL; if it is empty, the name of the
// directory last opened in the video window is used, where there is one.
[[nodiscard]] QString grabbedFrameBaseName(const QString& source,
                                           const std::optional<QString>& openedDirectory,
                                           const QDateTime& time);

// The next free "name.png" or "name_N.png" in a directory, N from 1.
[[nodiscard]] QString grabbedFrameFilePath(const QString& directory, const QString& baseName);
