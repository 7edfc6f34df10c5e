#pragma once

#include <QString>

#include <optional>

// The result of reading a sidecar.
struct SidecarRead {
    std::optional<QString> text; // decoded; nothing when the file is missing or cannot be opened
    QString error;               // of an existing file that cannot be opened or read to its end
    bool isValid = true;         // false where bytes could not be decoded
};

// Logs nothing, for threads that read ahead of the order in which files are logged.
[[nodiscard]] SidecarRead readSidecarFile(const QString& txtFileName);
// Logs a line for each problem of the read.
void logSidecarRead(const QString& txtFileName, const SidecarRead& read);

// The decoded text of a sidecar, with its log lines.
[[nodiscard]] std::optional<QString> sidecarText(const QString& txtFileName);

// How the write of one sidecar ended.
struct SidecarWrite {
    enum Outcome {
        Written,
        CutShort,     // only the first part is on the disk
        NoBackupName, // all numbers are in use; nothing was written
        NotOpened,    // the old text is whole, at worst in its backup
        NotWritten    // the old text may be lost
    };

    Outcome outcome = Written;
    QString error;       // of the file, where the outcome is not Written
    QString backupError; // of a rename that failed; the text was written all the same
    qint64 written = 0;  // bytes
    // What a failed write has left in the sidecar; nothing where that is the old text.
    std::optional<QString> left = {};
};

// Writes the text in place. With a backup an existing file is first renamed to its next free backup name.
[[nodiscard]] SidecarWrite writeSidecar(const QString& txtFileName, const QString& text, bool makesBackup);
