#pragma once

#include "app/services/ImageFile.h"

#include <QSet>
#include <QString>
#include <QStringList>

class QImage;

// Where a batch writes. A relative text counts from the working directory, an empty one means that directory.
[[nodiscard]] QString resolveOutputDirectory(const QString& workingPath, const QString& outputText);

// Makes the directory with its parents unless something of that name exists.
[[nodiscard]] bool ensureOutputDirectory(const QString& directory);

// The source's name in the output directory. The source path itself, unchanged, if its directory is that one
// in the same spelling.
[[nodiscard]] QString outputFilePath(const QString& sourcePath, const QString& outputDirectory);

// How a batch writes its images, with a quality from 1 to 100.
[[nodiscard]] ImageFileOptions batchImageOptions(int quality);

// Writes the images of one batch with one quality; the suffix of a file decides its format.
class BatchWriter {
public:
    // Quality from 1 to 100.
    explicit BatchWriter(int quality);

    // Existing files are replaced, or kept as they are if this fails.
    [[nodiscard]] bool write(const QImage& image, const QString& filePath);
    // Of the last write.
    [[nodiscard]] QString errorString() const { return _errorString; }
    // Records a file without output. write() records its own failures.
    void noteFailure(const QString& filePath, const QString& reason);
    // A line each: file and reason.
    [[nodiscard]] const QStringList& failures() const { return _failures; }
    [[nodiscard]] qsizetype writtenCount() const { return _writtenCount; }
    // Whether this batch has written that file before.
    [[nodiscard]] bool isWrittenAlready(const QString& filePath) const { return _written.contains(filePath); }

private:
    int _quality;
    qsizetype _writtenCount = 0;
    QSet<QString> _written;
    QString _errorString;
    QStringList _failures;
};
