#include "batch/Picture.h"

#include "batch/Console.h"

#include <QFileInfo>
#include <QImageReader>

QImage readPicture(const QString& path, QString& error) {
    QImageReader reader(path);
    QImage image = reader.read();
    if (!image.isNull())
        error.clear();
    else
        // The reader takes a file that may not be read for one that is not there.
        error = QFileInfo(path).isReadable() ? reader.errorString() : Batch::tr("may not be read");
    return image;
}
