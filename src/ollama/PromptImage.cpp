#include "ollama/PromptImage.h"

#include <QBuffer>
#include <QDebug>

QImage scaledPromptImage(const QImage& image, QSize size, bool keepAspectRatio) {
    if (image.isNull() || size == QSize(-1, -1))
        return image;
    if (size.width() == -1)
        return image.scaledToHeight(size.height(), Qt::FastTransformation);
    if (size.height() == -1)
        return image.scaledToWidth(size.width(), Qt::FastTransformation);
    return image.scaled(size, keepAspectRatio ? Qt::KeepAspectRatio : Qt::IgnoreAspectRatio,
                        Qt::FastTransformation);
}

QByteArray pngBytes(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG", -1))
        qDebug() << "Error, unable save image to QByteArray";
    return bytes;
}
