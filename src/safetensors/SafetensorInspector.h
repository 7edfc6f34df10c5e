#pragma once

#include "safetensors/SafetensorsFile.h"

#include <QMap>
#include <QString>

#include <optional>

#include <string>

// The header of one model file, and the messages about it.
struct ModelHeader {
    std::optional<SafetensorsData> data; // none for a file that cannot be read or has wrong offsets
    std::string warning;
    QString messages; // warning and failure, a line each
};
[[nodiscard]] ModelHeader readModelHeader(const QString& fileName);

// Converts one model file to the lines to show. An object is used for one call.
class SafetensorInspector {
public:
    // Metadata by key and, for tensors, dtype and shape by name; a metadata key replaces a tensor of the same
    // name. Empty for a file that cannot be read; messages() then contains the reason. The spelling of the
    // name is kept on purpose.
    [[nodiscard]] QMap<QString, QString> insepctSafetensor(const QString& fileName, bool includeTensorInfo,
                                                           bool includeMetaInfo);

    [[nodiscard]] const QString& messages() const { return _messages; }

private:
    QString _messages;
};
