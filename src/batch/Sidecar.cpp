#include "batch/Sidecar.h"

#include "batch/Console.h"
#include "catalogue/FileNaming.h"
#include "tags/SidecarFile.h"
#include "tags/TagText.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

QStringList Sidecar::tags() const {
    return tagsFromText(text);
}

Sidecar readSidecar(const QString& mediaPath) {
    Sidecar sidecar;
    sidecar.path = imgFilePathToTxtFilePath(mediaPath);
    const SidecarRead read = readSidecarFile(sidecar.path);
    // One that cannot be opened has an error in place of a text.
    sidecar.exists = read.text || !read.error.isEmpty();
    sidecar.error = read.error;
    if (read.error.isEmpty() && !read.isValid)
        sidecar.error = Batch::tr("the sidecar is not valid UTF-8");
    sidecar.text = read.text.value_or(QString());
    return sidecar;
}

FileResult tagsResult(const BatchFile& file) {
    const Sidecar sidecar = readSidecar(file.path);
    if (!sidecar.error.isEmpty())
        return FileResult::failed(sidecar.error);
    FileResult result;
    result.json.insert("tags"_L1, QJsonArray::fromStringList(sidecar.tags()));
    return result;
}

QStringList tagsOf(const FileResult& result) {
    return result.json.value("tags"_L1).toVariant().toStringList();
}
