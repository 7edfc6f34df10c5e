#include "ollama/PromptImage.h"

#include "app/services/ImageFile.h"

#include <QBuffer>
#include <QDebug>
#include <QSizeF>

QImage scaledPromptImage(const QImage& image, QSize size, bool keepAspectRatio) {
    if (image.isNull() || size == QSize(-1, -1))
        return image;
    QSizeF target = size;
    if (size.width() == -1)
        target.setWidth(target.height() * image.width() / image.height());
    if (size.height() == -1)
        target.setHeight(target.width() * image.height() / image.width());
    const auto mode = keepAspectRatio ? Qt::KeepAspectRatio : Qt::IgnoreAspectRatio;
    if (exceedsImageAllocationLimit(QSizeF(image.size()).scaled(target, mode)))
        return {};
    if (size.width() == -1)
        return image.scaledToHeight(size.height(), Qt::FastTransformation);
    if (size.height() == -1)
        return image.scaledToWidth(size.width(), Qt::FastTransformation);
    return image.scaled(size, mode, Qt::FastTransformation);
}

QByteArray pngBytes(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG", -1))
        qDebug() << "Error, unable save image to QByteArray";
    return bytes;
}
