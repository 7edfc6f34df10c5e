#pragma once

#include <QString>

// The change of a file as one hunk, which patch takes. A null text means that there is no file.
[[nodiscard]] QString unifiedDiff(const QString& path, const QString& before, const QString& after);
