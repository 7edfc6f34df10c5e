#include "imaging/BatchWriter.h"

BatchWriter::BatchWriter(int quality) : _quality(quality) {}

bool BatchWriter::write(const QImage& image, const QString& filePath) {
    _writer.setFileName(filePath);
    _writer.setCompression(1);
    _writer.setQuality(_quality);
    if (!_writer.canWrite() || !_writer.write(image))
        return false;
    ++_writtenCount;
    _written.insert(filePath);
    return true;
}
