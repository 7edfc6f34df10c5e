#pragma once

#include <QImage>
#include <QString>

// The image of a file; a null image after a failure, which sets `error`.
[[nodiscard]] QImage readPicture(const QString& path, QString& error);
