#pragma once

#include "support/WindowDriver.h"

#include <QByteArray>
#include <QList>

#include <functional>

// What is wrong with the disk while an operation runs.
enum DiskFault { FilesGone, DirectoryGone, ThingsInPlace, ReadOnly, DiskFull };

// One thing that a user does with the selected files, and what the log then says under each fault. An empty
// text stands for an operation that the fault does not touch.
struct Operation {
    const char* name;
    std::function<void(WindowDriver&, const QString& target)> run;
    QByteArray complaints[DiskFull + 1] = {};
};

[[nodiscard]] const QList<Operation>& operations();
