#pragma once

#include "batch/FileList.h"
#include "batch/Run.h"
#include "batch/WholeFile.h"

#include <QSet>
#include <QString>

#include <mutex>
#include <optional>

class Arguments;

// Where results are written and what they may replace.
struct OutputOptions {
    QString directory; // null for a run in place
    bool overwrites = false;
    bool resumes = false;
};

void addOutputOptions(Arguments& arguments, bool mayWorkInPlace);
[[nodiscard]] OutputOptions outputOptions(Arguments& arguments);
// Makes the directory; the reason of a failure.
[[nodiscard]] QString prepareOutput(const OutputOptions& options);

// Decides for each file whether and where its result is written. Several threads may ask and write at once.
class Outputs {
public:
    Outputs(const OutputOptions& options, const FileList& files) : _options(options), _files(files) {}

    struct Target {
        QString path;
        Existing existing = Existing::Keep;
        std::optional<FileResult> refusal = {}; // what comes of the file that is not written
    };
    [[nodiscard]] Target target(const BatchFile& file) const;
    // The same for a result of another name, which is relative to the output.
    [[nodiscard]] Target target(const BatchFile& file, const QString& relative) const;
    [[nodiscard]] static FileResult write(const Target& target, const QByteArray& bytes);

private:
    [[nodiscard]] bool isSource(const QString& path) const;

    OutputOptions _options;
    const FileList& _files;
    mutable std::once_flag _sourcesAreKnown;
    mutable QSet<QString> _sources; // canonical paths
};
