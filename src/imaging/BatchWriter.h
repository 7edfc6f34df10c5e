#pragma once

#include <QImageWriter>
#include <QSet>
#include <QString>

// Also false where the end of the file did not reach the disk, which the writer itself does not tell.
[[nodiscard]] bool writeWholeImage(QImageWriter& writer, const QImage& image);

// Writes the images of one batch with one quality; the suffix of a file decides its format.
class BatchWriter {
public:
    // Quality from 1 to 100.
    explicit BatchWriter(int quality);

    // Existing files are overwritten.
    [[nodiscard]] bool write(const QImage& image, const QString& filePath);
    [[nodiscard]] QString errorString() const;
    [[nodiscard]] qsizetype writtenCount() const { return _writtenCount; }
    // Whether this batch has written that file before.
    [[nodiscard]] bool isWrittenAlready(const QString& filePath) const { return _written.contains(filePath); }

private:
    QImageWriter _writer;
    int _quality;
    qsizetype _writtenCount = 0;
    QSet<QString> _written;
};
