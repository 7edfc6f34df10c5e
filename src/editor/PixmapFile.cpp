#include "editor/PixmapFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPixmap>
#include <QSaveFile>

bool savePixmap(const QPixmap& pixmap, const QString& filePath) {
    // Encoded first: writing a format without a writer straight to the file would empty it.
    QBuffer encoded;
    const QByteArray format = QFileInfo(filePath).suffix().toLower().toLatin1();
    if (format.isEmpty() || !encoded.open(QIODevice::WriteOnly) || !pixmap.save(&encoded, format.constData()))
        return false;
    QSaveFile file(filePath);
    // A writable file in a read-only directory.
    file.setDirectWriteFallback(true);
    return file.open(QIODevice::WriteOnly) && file.write(encoded.data()) == encoded.size() && file.commit();
}

QPixmap loadPixmap(const QString& filePath) {
    QImageReader reader(filePath);
    return QPixmap::fromImageReader(&reader);
}
