#pragma once

#include "batch/Run.h"

#include <QString>
#include <QStringList>

// What the sidecar of a media file holds.
struct Sidecar {
    QString path;
    QString text; // empty where it is missing
    bool exists = false;
    QString error; // of one that cannot be read, or is no UTF-8 and would lose bytes by an edit

    [[nodiscard]] QStringList tags() const;
};
[[nodiscard]] Sidecar readSidecar(const QString& mediaPath);

// The tags of a file as "tags" in what its result says to machines, and taken from there.
[[nodiscard]] FileResult tagsResult(const BatchFile& file);
[[nodiscard]] QStringList tagsOf(const FileResult& result);
