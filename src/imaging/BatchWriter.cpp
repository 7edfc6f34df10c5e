#include "imaging/BatchWriter.h"

#include <QFileDevice>

namespace {

const QFileDevice* unwrittenFile(const QImageWriter& writer) {
    const auto* file = qobject_cast<const QFileDevice*>(writer.device());
    return file && file->error() != QFileDevice::NoError ? file : nullptr;
}

} // namespace

bool writeWholeImage(QImageWriter& writer, const QImage& image) {
    return writer.write(image) && !unwrittenFile(writer);
}

BatchWriter::BatchWriter(int quality) : _quality(quality) {}

bool BatchWriter::write(const QImage& image, const QString& filePath) {
    _writer.setFileName(filePath);
    _writer.setCompression(1);
    _writer.setQuality(_quality);
    if (!_writer.canWrite() || !writeWholeImage(_writer, image))
        return false;
    ++_writtenCount;
    _written.insert(filePath);
    return true;
}

QString BatchWriter::errorString() const {
    const QFileDevice* file = unwrittenFile(_writer);
    return _writer.error() == QImageWriter::UnknownError && file ? file->errorString()
                                                                 : _writer.errorString();
}
