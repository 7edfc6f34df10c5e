#pragma once

#include <QImage>
#include <QString>

inline QString clipPath(const QString& name) {
    return QStringLiteral(TESSARINE_CLIPS "/") + name;
}

// The number that a frame of the test clips carries, at any scale; -1 if there is none.
inline int frameNumber(const QImage& frame) {
    int number = 0;
    for (int bit = 0; bit < 10; ++bit) {
        const int x = frame.width() * (2 * bit + 1) / 20;
        const bool upper = qGray(frame.pixel(x, frame.height() / 4)) > 127;
        const bool lower = qGray(frame.pixel(x, frame.height() * 3 / 4)) > 127;
        if (upper == lower)
            return -1;
        number |= (upper ? 1 : 0) << bit;
    }
    return number;
}
