#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A temporary working directory with media files of a test's making.
class MediaFolder {
public:
    MediaFolder();

    [[nodiscard]] QString path() const { return _dir.path(); }
    [[nodiscard]] QString filePath(const QString& name) const { return _dir.filePath(name); }

    // Each returns the file's path; the format follows from the suffix.
    QString addImage(const QString& name, const QSize& size = {32, 24}, const QColor& color = Qt::red,
                     const QHash<QString, QString>& texts = {}) const;
    QString addImage(const QString& name, const QImage& image) const;
    QString addFile(const QString& name, const QByteArray& content = {}) const;
    // The sidecar of a media file.
    QString addTags(const QString& mediaName, const QByteArray& text) const;

    [[nodiscard]] QByteArray content(const QString& name) const;
    [[nodiscard]] bool exists(const QString& name) const;
    // Names of all files, sorted.
    [[nodiscard]] QStringList names() const;

private:
    QTemporaryDir _dir;
};
