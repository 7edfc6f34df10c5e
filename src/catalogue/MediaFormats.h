#pragma once

#include <QString>
#include <QStringList>

// Lower-case suffixes without a dot.
[[nodiscard]] QStringList supportedImageFormats();
[[nodiscard]] QStringList supportedWriteFormats();
[[nodiscard]] QStringList supportedVideoFormats();

// Whether the file's suffix, in any case, is one of a video.
[[nodiscard]] bool isVideoFile(const QString& filePath);

// Name filters as "*.png": of videos; of images followed by videos.
[[nodiscard]] QStringList videoNameFilters();
[[nodiscard]] QStringList mediaNameFilters();

// Filters for file dialogs.
[[nodiscard]] QString imageDialogFilter();
[[nodiscard]] QString videoDialogFilter();

// A file size in steps of 1024; decimals count from the megabyte on.
[[nodiscard]] QString formatSize(qint64 bytes, int precision);
