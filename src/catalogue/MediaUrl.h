#pragma once

#include <QFile>
#include <QString>
#include <QUrl>

// The URL that a media player gets for a path or URL: the text itself as a URL where that denotes the file,
// otherwise a URL of the local file, so that '#', '%', '?' and other characters that a URL escapes stay part
// of its name.
[[nodiscard]] inline QUrl mediaUrl(const QString& pathOrUrl) {
    QUrl url(pathOrUrl);
    const bool meansThePath =
        url.scheme().isEmpty() && url.path() == pathOrUrl && url.toString() == pathOrUrl;
    if (meansThePath || !QFile::exists(pathOrUrl))
        return url;
    return QUrl::fromLocalFile(pathOrUrl);
}

// The inverse of mediaUrl, for names that are made from a player's source.
[[nodiscard]] inline QString mediaPath(const QUrl& url) {
    return url.isLocalFile() ? url.toLocalFile() : url.toString();
}
