#pragma once

#include <QString>

#include <optional>

// The decoded text of a sidecar; nothing when it is missing or cannot be read, the latter with a log line.
[[nodiscard]] std::optional<QString> sidecarText(const QString& txtFileName);

// How the write of one sidecar ended.
struct SidecarWrite {
    enum Outcome {
        Written,
        CutShort,     // the disk took only the first part
        NoBackupName, // all numbers are taken; nothing was written
        NotOpened,    // the old text is whole
        NotWritten    // the old text may be gone
    };

    Outcome outcome = Written;
    QString error;       // of the file, where the outcome is not Written
    QString backupError; // of a rename that failed; the write went ahead all the same
    qint64 written = 0;  // bytes
};

// Writes the text in place. With a backup an existing file is first renamed to its next free backup name.
[[nodiscard]] SidecarWrite writeSidecar(const QString& txtFileName, const QString& text, bool makesBackup);
