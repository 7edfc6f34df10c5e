#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

// Lower-case suffixes without a dot.
[[nodiscard]] QStringList supportedImageFormats();
[[nodiscard]] QStringList supportedWriteFormats();
[[nodiscard]] QStringList supportedVideoFormats();

// Whether the file's suffix, in any case, is one of a video.
[[nodiscard]] bool isVideoFile(const QString& filePath);

// Name filters as "*.png": of images; of videos; of images followed by videos.
[[nodiscard]] QStringList imageNameFilters();
[[nodiscard]] QStringList videoNameFilters();
[[nodiscard]] QStringList mediaNameFilters();

// Whether a path ends in the suffix of one of many name filters "*.suffix", decided by one look-up.
class SuffixMatcher {
public:
    explicit SuffixMatcher(const QStringList& nameFilters);
    [[nodiscard]] bool matches(const QString& path) const;

private:
    QSet<QString> _suffixes;
};

// Filters for file dialogs.
[[nodiscard]] QString imageDialogFilter();
[[nodiscard]] QString videoDialogFilter();

// A file size in steps of 1024; sizes from a megabyte on have `precision` decimals.
[[nodiscard]] QString formatSize(qint64 bytes, int precision);
