#include "batch/Sidecar.h"

#include "batch/Console.h"
#include "catalogue/FileNaming.h"
#include "tags/TagText.h"

#include <QFile>

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
