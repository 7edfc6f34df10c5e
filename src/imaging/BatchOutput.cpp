#include "imaging/BatchOutput.h"

#include "app/services/FileFailure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString resolveOutputDirectory(const QString& workingPath, const QString& outputText) {
    return QDir::isRelativePath(outputText) ? QDir(workingPath).absoluteFilePath(outputText) : outputText;
}

bool ensureOutputDirectory(const QString& directory) {
    // A file of that name passes, too: each write into it then fails and is reported.
    return QFile::exists(directory) || QDir().mkpath(directory);
}

QString outputFilePath(const QString& sourcePath, const QString& outputDirectory) {
    const QFileInfo source(sourcePath);
    // The path is the key of the file in the catalogue, so it is not composed anew.
    if (source.path() == outputDirectory)
        return sourcePath;
    return u"%1/%2"_s.arg(outputDirectory, source.fileName());
}

ImageFileOptions batchImageOptions(int quality) {
    // For TIFF a compression of 1 is LZW, without loss.
    return {.format = {}, .quality = quality, .compression = 1};
}

BatchWriter::BatchWriter(int quality) : _quality(quality) {}

bool BatchWriter::write(const QImage& image, const QString& filePath) {
    if (!writeImageFile(image, filePath, batchImageOptions(_quality), &_errorString)) {
        noteFailure(filePath, _errorString);
        return false;
    }
    ++_writtenCount;
    // Two sources of one name, from different directories, are written to the same path.
    _written.insert(filePath);
    return true;
}

void BatchWriter::noteFailure(const QString& filePath, const QString& reason) {
    _failures.append(fileFailure(filePath, reason));
}
