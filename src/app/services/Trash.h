#pragma once

#include <QString>

#include <optional>

// Moves a file to the desktop's trash. Returns the error text on failure; the file stays then.
[[nodiscard]] std::optional<QString> moveToTrash(const QString& filePath);
