#include "safetensors/SafetensorInspector.h"

#include "safetensors/SafetensorsFile.h"

#include <QDebug>

#include <cstdint>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

QMap<QString, QString> SafetensorInspector::insepctSafetensor(const QString& fileName, bool includeTensorInfo,
                                                              bool includeMetaInfo) {
    SafetensorsData data;
    std::uint64_t dataSize = 0;
    std::string warn;
    std::string err;
    const bool isRead = readSafetensorsHeader(fileName.toStdString(), data, dataSize, warn, err);
    if (!warn.empty()) {
        std::cout << "WARN: " << warn << '\n' << std::flush;
        _messages += "Warning:"_L1 + QString::fromStdString(warn) + '\n'_L1;
    }
    if (!isRead) {
        qDebug() << "Failed to load: " << fileName;
        qDebug() << "  ERR: " << err.c_str();
        addFailure(fileName, u"error: "_s, err);
        return {};
    }
    if (!validateDataOffsets(data, dataSize, err)) {
        qDebug() << "Invalid data_offsets\n" << err.c_str();
        addFailure(fileName, u"invalid data offsets error: "_s, err);
        return {};
    }

    QMap<QString, QString> lines;
    for (std::size_t i = 0; includeTensorInfo && i < data.tensors.size(); ++i) {
        if (const TensorInfo* const tensor = data.tensors.at(i))
            lines.insert(QString::fromStdString(data.tensors.keys()[i]),
                         QString::fromStdString(tensorSummary(*tensor)));
    }
    for (std::size_t i = 0; includeMetaInfo && i < data.metadata.size(); ++i) {
        if (const std::string* const value = data.metadata.at(i))
            lines.insert(QString::fromStdString(data.metadata.keys()[i]), QString::fromStdString(*value));
    }
    return lines;
}

void SafetensorInspector::addFailure(const QString& fileName, const QString& what, const std::string& err) {
    _messages += "Failed to load: "_L1 + fileName + ' '_L1 + what + QString::fromStdString(err) + '\n'_L1;
}
