#pragma once

class QPixmap;
class QString;

// Writes the pixmap in the format of the file's suffix. A file that exists stays whole when this fails.
[[nodiscard]] bool savePixmap(const QPixmap& pixmap, const QString& filePath);

// The picture as it is on the disk now, past the pixmap cache; null if it cannot be decoded.
[[nodiscard]] QPixmap loadPixmap(const QString& filePath);
