#pragma once

#include <QString>

#include <optional>

// The decoded text of a sidecar; nothing when it is missing or cannot be read, the latter with a log line.
[[nodiscard]] std::optional<QString> sidecarText(const QString& txtFileName);
