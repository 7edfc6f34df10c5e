#pragma once

#include <QString>

// A line of what failed: the file and the reason.
[[nodiscard]] inline QString fileFailure(const QString& filePath, const QString& reason) {
    return filePath + QLatin1StringView(": ") + reason;
}
