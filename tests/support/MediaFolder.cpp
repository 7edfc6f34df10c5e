#include "support/MediaFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

MediaFolder::MediaFolder() {
    if (!_dir.isValid())
        qFatal("no temporary directory");
}

QString MediaFolder::addImage(const QString& name, const QSize& size, const QColor& color,
                              const QHash<QString, QString>& texts) const {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    for (const auto& [key, text] : texts.asKeyValueRange())
        image.setText(key, text);
    return addImage(name, image);
}

QString MediaFolder::addImage(const QString& name, const QImage& image) const {
    const QString path = filePath(name);
    if (!QDir().mkpath(QFileInfo(path).path()) || !image.save(path))
        qFatal("cannot save %s", qPrintable(path));
    return path;
}

QString MediaFolder::addFile(const QString& name, const QByteArray& content) const {
    const QString path = filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

QString MediaFolder::addTags(const QString& mediaName, const QByteArray& text) const {
    const QFileInfo info(mediaName);
    return addFile(QDir(info.path()).filePath(info.completeBaseName() + ".txt"), text);
}

QByteArray MediaFolder::content(const QString& name) const {
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool MediaFolder::exists(const QString& name) const {
    return QFile::exists(filePath(name));
}

QStringList MediaFolder::names() const {
    return QDir(path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}
