#pragma once

#include <QString>

// The change of a file as one hunk, which patch takes. A null text stands for a file that is not there.
[[nodiscard]] QString unifiedDiff(const QString& path, const QString& before, const QString& after);
