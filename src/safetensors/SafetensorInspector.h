#pragma once

#include "safetensors/SafetensorsFile.h"

#include <QMap>
#include <QString>

#include <optional>

#include <string>

// The header of one model file and what is to be said about it.
struct ModelHeader {
    std::optional<SafetensorsData> data; // none for a file that cannot be read or whose offsets are wrong
    std::string warning;
    QString messages; // warning and failure, a line each
};
[[nodiscard]] ModelHeader readModelHeader(const QString& fileName);

// Turns one model file into the lines to show. Made for one call and dropped.
class SafetensorInspector {
public:
    // Metadata by key and, for tensors, dtype and shape by name; a metadata key goes before a tensor of its
    // name. Empty for a file that cannot be read, of which messages() then tells why.
    [[nodiscard]] QMap<QString, QString> insepctSafetensor(const QString& fileName, bool includeTensorInfo,
                                                           bool includeMetaInfo);

    [[nodiscard]] const QString& messages() const { return _messages; }

private:
    QString _messages;
};
