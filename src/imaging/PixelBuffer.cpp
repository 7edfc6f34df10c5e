#include "imaging/PixelBuffer.h"

#include <QColorSpace>

QImage blankLike(const QImage& image) {
    QImage blank(image.size(), image.format());
    if (blank.isNull())
        return blank;
    blank.setDotsPerMeterX(image.dotsPerMeterX());
    blank.setDotsPerMeterY(image.dotsPerMeterY());
    blank.setDevicePixelRatio(image.devicePixelRatio());
    blank.setOffset(image.offset());
    const QStringList textKeys = image.textKeys();
    for (const QString& key : textKeys)
        blank.setText(key, image.text(key));
    blank.setColorSpace(image.colorSpace());
    return blank;
}

bool isFlat32Bit(const QImage& image) {
    return image.depth() == 32 && image.bytesPerLine() == qsizetype{4} * image.width();
}
