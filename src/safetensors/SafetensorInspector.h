#pragma once

#include <QMap>
#include <QString>

#include <string>

// Turns one model file into the lines to show. Made for one call and dropped.
class SafetensorInspector {
public:
    // Metadata by key and, for tensors, dtype and shape by name; a metadata key goes before a tensor of its
    // name. Empty for a file that cannot be read, of which messages() then tells why.
    [[nodiscard]] QMap<QString, QString> insepctSafetensor(const QString& fileName, bool includeTensorInfo,
                                                           bool includeMetaInfo);

    [[nodiscard]] const QString& messages() const { return _messages; }

private:
    void addFailure(const QString& fileName, const QString& what, const std::string& err);

    QString _messages;
};
