#pragma once

#include "support/WindowDriver.h"

#include <QByteArray>
#include <QList>

#include <functional>

// What is wrong with the disk while an operation runs.
enum DiskFault { FilesGone, DirectoryGone, ThingsInPlace, ReadOnly, DiskFull };

// One operation on the selected files, and what the log contains after it under each fault. An empty text
// means that the fault does not affect the operation.
struct Operation {
    const char* name;
    std::function<void(WindowDriver&, const QString& target)> run;
    QByteArray complaints[DiskFull + 1] = {};
};

[[nodiscard]] const QList<Operation>& operations();
