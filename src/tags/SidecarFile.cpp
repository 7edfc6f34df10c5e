#include "tags/SidecarFile.h"

#include <QDebug>
#include <QFile>

std::optional<QString> sidecarText(const QString& txtFileName) {
    QFile file(txtFileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        if (file.exists())
            qDebug() << "Error:" << file.errorString() << "unable to open file:" << txtFileName;
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    // What cannot be decoded is replaced by the next save, so the loss gets a name.
    if (!QUtf8StringView(bytes).isValidUtf8())
        qDebug() << "Warning, sidecar is not valid UTF-8:" << txtFileName;
    return QString::fromUtf8(bytes);
}
