#include "app/services/Trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

std::optional<QString> moveToTrash(const QString& filePath) {
    // Qt makes the trash inside this directory, but not the directory, which a fresh account has not got.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QFile file(filePath);
    if (file.moveToTrash())
        return std::nullopt;
    return file.errorString();
}
