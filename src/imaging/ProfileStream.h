#pragma once

#include "imaging/Profile.h"

#include <QByteArray>
#include <QDataStream>
#include <QList>

// What a stored profile list holds. A profile that cannot be read leaves the list empty; the current index is
// as stored and may lie outside the list.
struct ProfileStreamContents {
    QList<Profile> profiles;
    qint32 current = 0;
    QDataStream::Status status = QDataStream::Ok;
};

// Every count and length is compared with the bytes that are left before memory is allocated for it. Values
// other than plain numbers, texts, simple geometry, lists and maps of these and effect lists count as
// corrupt.
[[nodiscard]] ProfileStreamContents readProfileStream(const QByteArray& bytes);

[[nodiscard]] QByteArray writeProfileStream(const QList<Profile>& profiles, qint32 current,
                                            QDataStream::Status* status = nullptr);
