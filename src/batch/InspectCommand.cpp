#include "batch/Arguments.h"
#include "batch/Commands.h"
#include "batch/Console.h"
#include "batch/Run.h"
#include "catalogue/MediaFormats.h"
#include "safetensors/SafetensorInspector.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

struct InspectOptions {
    bool showsMetadata = true;
    bool showsTensors = true;
    bool printsJson = false;
    bool namesFiles = false;
};

QString fromModel(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString tensorLine(const QString& name, const TensorInfo& tensor) {
    return u"%1\t%2\t%3\n"_s.arg(shownPath(name), QString::fromStdString(tensorSummary(tensor)),
                                 QString::number(tensor.dataOffsets.end - tensor.dataOffsets.begin));
}

QJsonObject tensorJson(const QString& name, const TensorInfo& tensor) {
    QJsonArray shape;
    for (const std::uint64_t side : tensor.shape)
        shape.append(static_cast<qint64>(side));
    return {{u"name"_s, name},
            {u"dtype"_s, fromModel(dtypeText(tensor.dtype))},
            {u"shape"_s, shape},
            {u"bytes"_s, static_cast<qint64>(tensor.dataOffsets.end - tensor.dataOffsets.begin)}};
}

FileResult inspect(const BatchFile& file, const InspectOptions& options) {
    const ModelHeader header = readModelHeader(file.path);
    if (!header.data)
        return FileResult::failed(header.messages.trimmed());
    FileResult result;
    if (!header.messages.isEmpty())
        result.json.insert("messages"_L1, header.messages.trimmed());
    if (options.namesFiles)
        result.text = u"==> %1 <==\n"_s.arg(shownPath(file.path));
    const SafetensorsData& data = *header.data;
    QJsonObject metadata;
    for (std::size_t i = 0; options.showsMetadata && i < data.metadata.size(); ++i) {
        const QString key = fromModel(data.metadata.keys()[i]);
        const QString value = fromModel(*data.metadata.at(i));
        if (options.printsJson)
            metadata.insert(key, value);
        else
            result.text += u"%1\t%2\n"_s.arg(shownPath(key), shownPath(value));
    }
    QJsonArray tensors;
    for (std::size_t i = 0; options.showsTensors && i < data.tensors.size(); ++i) {
        const QString name = fromModel(data.tensors.keys()[i]);
        if (options.printsJson)
            tensors.append(tensorJson(name, *data.tensors.at(i)));
        else
            result.text += tensorLine(name, *data.tensors.at(i));
    }
    if (options.showsMetadata)
        result.json.insert("metadata"_L1, metadata);
    if (options.showsTensors)
        result.json.insert("tensors"_L1, tensors);
    return result;
}

} // namespace

int inspectCommand(const QStringList& words) {
    Arguments arguments(u"inspect"_s, Batch::tr("Shows the header of model files."), u"FILE..."_s);
    arguments.add(u"metadata"_s, Batch::tr("Shows the metadata alone."));
    arguments.add(u"tensors"_s, Batch::tr("Shows name, type, shape and bytes of the tensors alone."));
    if (const std::optional<int> code = parseRun(arguments, words))
        return *code;
    RunOptions run = runOptions(arguments);
    run.isQuiet = true;
    const FileList files = listFiles(arguments, SuffixMatcher({u"*.safetensors"_s}));
    if (arguments.isRejected())
        return arguments.wrongUsage();
    InspectOptions options;
    // Both options together show what none shows: all.
    if (arguments.isSet(u"metadata"_s) != arguments.isSet(u"tensors"_s)) {
        options.showsMetadata = arguments.isSet(u"metadata"_s);
        options.showsTensors = !options.showsMetadata;
    }
    options.printsJson = run.printsJson;
    // Counted over all shares, so that their outputs can be joined.
    options.namesFiles = !run.printsJson && files.all.size() > 1;
    return runOverFiles(
        files, run, [&](const BatchFile& file) { return inspect(file, options); },
        [](const BatchFile& file, FileResult& result) {
            // Warnings about files that were read. Printed here, on one thread, in the order of the files.
            const QString messages = result.json.value("messages"_L1).toString();
            if (!messages.isEmpty())
                console::complain(file.path, messages);
            return true;
        });
}
