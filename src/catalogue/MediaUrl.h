#pragma once

#include <QFile>
#include <QString>
#include <QUrl>

// What a media player is given for a path or URL: the text itself as a URL where that means the file,
// otherwise a URL of the local file, so that '#', '%', '?' and what else a URL writes in another way stay
// part of its name.
[[nodiscard]] inline QUrl mediaUrl(const QString& pathOrUrl) {
    QUrl url(pathOrUrl);
    const bool meansThePath =
        url.scheme().isEmpty() && url.path() == pathOrUrl && url.toString() == pathOrUrl;
    if (meansThePath || !QFile::exists(pathOrUrl))
        return url;
    return QUrl::fromLocalFile(pathOrUrl);
}

// The way back, for names made from a player's source.
[[nodiscard]] inline QString mediaPath(const QUrl& url) {
    return url.isLocalFile() ? url.toLocalFile() : url.toString();
}
