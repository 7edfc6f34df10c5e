#include "batch/BatchRun.h"

#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QProcess>

namespace {

QStringList filesBelow(const QString& directory) {
    QStringList files;
    QDirIterator entries(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext())
        files.append(entries.next());
    files.sort();
    return files;
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

BatchRun runBatch(const QString& directory, const QString& words, const QByteArray& input) {
    QProcess process;
    process.setWorkingDirectory(directory);
    // Single quotes keep the lines of the tables readable.
    process.start(TESSARINE_BATCH, QProcess::splitCommand(QString(words).replace("'", "\"")));
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120000))
        qFatal("tessarine-batch %s does not end", qPrintable(words));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString treeText(const QString& directory) {
    QString text;
    const QStringList files = filesBelow(directory);
    for (const QString& path : files) {
        const QSize size = QImageReader(path).size();
        text += QDir(directory).relativeFilePath(path) + " ";
        text += size.isValid() ? QString("%1x%2\n").arg(size.width()).arg(size.height())
                               : bytesOf(path).replace('\n', '|').replace('\0', ';') + "\n";
    }
    return text;
}

QByteArray treeBytes(const QString& directory) {
    QByteArray bytes;
    const QStringList files = filesBelow(directory);
    for (const QString& path : files)
        bytes += QDir(directory).relativeFilePath(path).toUtf8() + '\0' + bytesOf(path) + '\0';
    return bytes;
}
