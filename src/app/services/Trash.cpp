#include "app/services/Trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

std::optional<QString> moveToTrash(const QString& filePath) {
    // Qt creates the trash inside this directory but not the directory itself, which a new account lacks.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QFile file(filePath);
    if (file.moveToTrash())
        return std::nullopt;
    return file.errorString();
}
