#pragma once

#include <QImageWriter>
#include <QSet>
#include <QString>

// Writes the images of one batch with one quality; the suffix of a file decides its format.
class BatchWriter {
public:
    // Quality from 1 to 100.
    explicit BatchWriter(int quality);

    // Existing files are overwritten.
    [[nodiscard]] bool write(const QImage& image, const QString& filePath);
    [[nodiscard]] QString errorString() const { return _writer.errorString(); }
    [[nodiscard]] qsizetype writtenCount() const { return _writtenCount; }
    // Whether this batch has written that file before.
    [[nodiscard]] bool isWrittenAlready(const QString& filePath) const { return _written.contains(filePath); }

private:
    QImageWriter _writer;
    int _quality;
    qsizetype _writtenCount = 0;
    QSet<QString> _written;
};
