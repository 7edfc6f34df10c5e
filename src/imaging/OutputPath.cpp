#include "imaging/OutputPath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString resolveOutputDirectory(const QString& workingPath, const QString& outputText) {
    return QDir::isRelativePath(outputText) ? QDir(workingPath).absoluteFilePath(outputText) : outputText;
}

bool ensureOutputDirectory(const QString& directory) {
    return QFile::exists(directory) || QDir().mkpath(directory);
}

QString outputFilePath(const QString& sourcePath, const QString& outputDirectory) {
    const QFileInfo source(sourcePath);
    if (source.path() == outputDirectory)
        return sourcePath;
    return u"%1/%2"_s.arg(outputDirectory, source.fileName());
}
