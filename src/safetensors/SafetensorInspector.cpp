#include "safetensors/SafetensorInspector.h"

#include <QDebug>

#include <cstdint>
#include <iostream>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString failureLine(const QString& fileName, const QString& what, const std::string& err) {
    return "Failed to load: "_L1 + fileName + ' '_L1 + what + QString::fromStdString(err) + '\n'_L1;
}

} // namespace

ModelHeader readModelHeader(const QString& fileName) {
    ModelHeader header;
    SafetensorsData data;
    std::uint64_t dataSize = 0;
    std::string err;
    // The reader expects paths in UTF-8, which toStdString() gives.
    const bool isRead = readSafetensorsHeader(fileName.toStdString(), data, dataSize, header.warning, err);
    if (!header.warning.empty())
        header.messages += "Warning:"_L1 + QString::fromStdString(header.warning) + '\n'_L1;
    if (!isRead) {
        qDebug() << "Failed to load: " << fileName;
        qDebug() << "  ERR: " << err.c_str();
        header.messages += failureLine(fileName, u"error: "_s, err);
    } else if (!validateDataOffsets(data, dataSize, err)) {
        qDebug() << "Invalid data_offsets\n" << err.c_str();
        header.messages += failureLine(fileName, u"invalid data offsets error: "_s, err);
    } else {
        header.data = std::move(data);
    }
    return header;
}

QMap<QString, QString> SafetensorInspector::insepctSafetensor(const QString& fileName, bool includeTensorInfo,
                                                              bool includeMetaInfo) {
    const ModelHeader header = readModelHeader(fileName);
    // Warnings are printed as well as shown.
    if (!header.warning.empty())
        std::cout << "WARN: " << header.warning << '\n' << std::flush;
    _messages += header.messages;
    if (!header.data)
        return {};

    const SafetensorsData& data = *header.data;
    // Sorted by name, whatever the order in the header.
    QMap<QString, QString> lines;
    for (std::size_t i = 0; includeTensorInfo && i < data.tensors.size(); ++i) {
        if (const TensorInfo* const tensor = data.tensors.at(i))
            lines.insert(QString::fromStdString(data.tensors.keys()[i]),
                         QString::fromStdString(tensorSummary(*tensor)));
    }
    // Last, so that a metadata key replaces a tensor of the same name.
    for (std::size_t i = 0; includeMetaInfo && i < data.metadata.size(); ++i) {
        if (const std::string* const value = data.metadata.at(i))
            lines.insert(QString::fromStdString(data.metadata.keys()[i]), QString::fromStdString(*value));
    }
    return lines;
}
