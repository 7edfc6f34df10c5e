#include "safetensors/ModelFileNaming.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString previewImagePath(const QString& modelFile, const QStringList& suffixes) {
    const QFileInfo info(modelFile);
    QString candidate = u"%1/%2"_s.arg(info.path(), info.completeBaseName());
    // Each match is the base of the next try, so name.png.jpg is preferred to name.png.
    for (const QString& suffix : suffixes) {
        const QString longer = u"%1.%2"_s.arg(candidate, suffix);
        if (QFile::exists(longer))
            candidate = longer;
    }
    return candidate;
}

QStringList modelFilesBeside(const QString& filePath) {
    QStringList files;
    QDirIterator entries(QFileInfo(filePath).path(), {u"*.safetensors"_s}, QDir::Files);
    while (entries.hasNext())
        files.append(entries.next());
    return files;
}

QString steppedModelFile(const QStringList& files, const QString& current, bool isForward) {
    if (files.isEmpty())
        return {};
    // -1 for a file that is not listed, which leads to the first or the last one.
    const qsizetype index = files.indexOf(current);
    if (isForward)
        return files.at(index + 1 < files.size() ? index + 1 : 0);
    return files.at(index > 0 ? index - 1 : files.size() - 1);
}
