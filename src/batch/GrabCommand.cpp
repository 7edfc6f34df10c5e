#include "app/services/ImageFile.h"
#include "batch/Arguments.h"
#include "batch/ClipFrames.h"
#include "batch/Commands.h"
#include "batch/Console.h"
#include "batch/Outputs.h"
#include "batch/Run.h"
#include "catalogue/MediaFormats.h"

#include <QJsonArray>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr double longestInterval = 1e6; // in seconds
constexpr int digits = 9;

struct GrabOptions {
    qint64 interval = 0; // in milliseconds
    int count = 0;       // where there is no interval
};

// The position of a frame of the series; nothing behind its end. Without a duration the pictures end it.
std::optional<qint64> seriesPosition(const GrabOptions& options, qint64 index, qint64 duration) {
    if (options.interval == 0)
        return index < options.count ? std::optional(duration * index / options.count) : std::nullopt;
    const qint64 position = options.interval * index;
    return duration <= 0 || position < duration ? std::optional(position) : std::nullopt;
}

FileResult grab(const BatchFile& file, const Outputs& outputs, const GrabOptions& options) {
    ClipFrames clip;
    if (const QString error = clip.open(file.path); !error.isEmpty())
        return FileResult::failed(error);
    // Two frames of one millisecond would get one name.
    if (options.interval == 0 && clip.duration() < options.count)
        return FileResult::failed(Batch::tr("the clip is too short, or has no duration"));
    QJsonArray written;
    std::optional<FileResult> refusal;
    for (qint64 index = 0;; ++index) {
        const std::optional<qint64> position = seriesPosition(options, index, clip.duration());
        if (!position)
            break;
        const QString number = QString::number(*position).rightJustified(digits, u'0');
        const Outputs::Target target = outputs.target(file, u"%1_%2.png"_s.arg(file.relative, number));
        if (target.refusal) {
            // Not decoded: a run that resumes seeks only to the frames that are missing.
            refusal = target.refusal;
            if (refusal->outcome == FileResult::Failed)
                break;
            continue;
        }
        const std::optional<QImage> frame = clip.frameAt(*position);
        // A clip that has a duration lacks a frame; without one it has ended.
        if (!frame && clip.duration() > 0)
            return FileResult::failed(Batch::tr("no picture at %1 ms").arg(*position));
        if (!frame)
            break;
        QString error;
        const QByteArray bytes = encodedImageFile(*frame, target.path, {}, &error);
        FileResult result = error.isEmpty() ? Outputs::write(target, bytes) : FileResult::failed(error);
        if (result.outcome == FileResult::Failed)
            return result;
        written.append(target.path);
    }
    // Skipped where all frames are there, failed where one must not be written.
    if (refusal && (written.isEmpty() || refusal->outcome == FileResult::Failed))
        return *refusal;
    FileResult result;
    result.json.insert("outputs"_L1, written);
    return result;
}

} // namespace

int grabCommand(const QStringList& words) {
    Arguments arguments(u"grab"_s,
                        Batch::tr("Takes frames out of clips, as PNG files with their milliseconds."),
                        u"FILE..."_s);
    arguments.add(u"every"_s, Batch::tr("Takes a frame every so many seconds."), u"SECONDS"_s);
    arguments.add(u"count"_s, Batch::tr("Takes N frames, evenly over the clip."), u"N"_s);
    addOutputOptions(arguments, false);
    if (const std::optional<int> code = parseRun(arguments, words))
        return *code;
    RunOptions run = runOptions(arguments);
    // Players live on the main thread. What they decode is spread over processors by themselves.
    run.jobs = 1;
    if (arguments.isSet(u"every"_s) == arguments.isSet(u"count"_s))
        arguments.reject(Batch::tr("either --every or --count is needed"));
    const GrabOptions options{.interval =
                                  qRound64(arguments.number(u"every"_s, 0.001, longestInterval) * 1000),
                              .count = arguments.wholeNumber(u"count"_s, 1, std::numeric_limits<int>::max())};
    const OutputOptions output = outputOptions(arguments);
    const FileList files = listFiles(arguments, SuffixMatcher(videoNameFilters()), output.directory);
    if (arguments.isRejected())
        return arguments.wrongUsage();
    if (const QString error = prepareOutput(output); !error.isEmpty()) {
        console::complain(output.directory, error);
        return SomeFailed;
    }
    const Outputs outputs(output, files);
    return runOverFiles(files, run, [&](const BatchFile& file) { return grab(file, outputs, options); });
}
