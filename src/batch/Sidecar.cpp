#include "batch/Sidecar.h"

#include "batch/Console.h"
#include "catalogue/FileNaming.h"
#include "tags/TagText.h"

#include <QFile>
#include <QJsonArray>

using namespace Qt::StringLiterals;

QStringList Sidecar::tags() const {
    return tagsFromText(text);
}

Sidecar readSidecar(const QString& mediaPath) {
    Sidecar sidecar;
    sidecar.path = imgFilePathToTxtFilePath(mediaPath);
    QFile file(sidecar.path);
    sidecar.exists = file.exists();
    if (!sidecar.exists)
        return sidecar;
    QByteArray bytes;
    const bool isOpen = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    if (isOpen)
        bytes = file.readAll();
    if (!isOpen || file.error() != QFileDevice::NoError)
        sidecar.error = file.errorString();
    else if (!QUtf8StringView(bytes).isValidUtf8())
        sidecar.error = Batch::tr("the sidecar is not valid UTF-8");
    sidecar.text = QString::fromUtf8(bytes);
    return sidecar;
}

FileResult tagsResult(const BatchFile& file) {
    const Sidecar sidecar = readSidecar(file.path);
    if (!sidecar.error.isEmpty())
        return FileResult::failed(sidecar.error);
    FileResult result;
    result.json.insert("tags"_L1, QJsonArray::fromStringList(sidecar.tags()));
    return result;
}

QStringList tagsOf(const FileResult& result) {
    return result.json.value("tags"_L1).toVariant().toStringList();
}
