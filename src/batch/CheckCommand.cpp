#include "app/services/ImageFile.h"
#include "batch/Arguments.h"
#include "batch/ClipFrames.h"
#include "batch/Commands.h"
#include "batch/Console.h"
#include "batch/Picture.h"
#include "batch/Run.h"
#include "batch/Sidecar.h"
#include "catalogue/FileNaming.h"
#include "catalogue/MediaFormats.h"
#include "catalogue/MediaModel.h"
#include "tags/TagText.h"

#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QMap>

#include <algorithm>
#include <cmath>
#include <limits>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

// One line of the report.
QString reportLine(bool isJson, QLatin1StringView kind, const QString& what, const QString& detail = {}) {
    if (!isJson) {
        const QString end = detail.isEmpty() ? QString() : u'\t' + shownPath(detail);
        return kind + u'\t' + shownPath(what) + end + u'\n';
    }
    QJsonObject line{{u"kind"_s, kind}, {u"what"_s, what}};
    if (!detail.isEmpty())
        line.insert("detail"_L1, detail);
    return QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)) + u'\n';
}

// The faults that were found, as lines, with their number.
class Findings {
public:
    explicit Findings(bool isJson) : _isJson(isJson) {}

    void add(QLatin1StringView kind, const QString& what, const QString& detail = {}) {
        ++_count;
        note(kind, what, detail);
    }
    // What is worth a look and no fault.
    void note(QLatin1StringView kind, const QString& what, const QString& detail) {
        _text += reportLine(_isJson, kind, what, detail);
    }
    [[nodiscard]] qsizetype count() const { return _count; }
    [[nodiscard]] const QString& text() const { return _text; }

private:
    bool _isJson;
    qsizetype _count = 0;
    QString _text;
};

// What the looks at single files, from several threads, leave for the summary.
struct Dataset {
    std::mutex mutex;
    qsizetype findings = 0;
    QStringList tags;
    QHash<QString, qsizetype> resolutions;
    QHash<QString, qsizetype> buckets;
};

QString quoted(const QString& tag) {
    return u'"' + tag + u'"';
}

void checkSidecar(const BatchFile& file, const Sidecar& sidecar, Findings& findings) {
    if (!sidecar.exists)
        findings.add("missing-sidecar"_L1, file.path);
    else if (!sidecar.error.isEmpty())
        findings.add("bad-sidecar"_L1, file.path, sidecar.error);
    else if (sidecar.text.trimmed().isEmpty())
        findings.add("empty-sidecar"_L1, file.path);
    QStringList repeated;
    for (const auto& [tag, count] : tagCounts(sidecar.tags()).asKeyValueRange()) {
        if (count > 1)
            repeated.append(quoted(tag));
    }
    // The order of the hash differs from run to run.
    repeated.sort();
    if (!repeated.isEmpty())
        findings.add("repeated-tag"_L1, file.path, repeated.join(", "_L1));
}

// Files that have one name: those that share a sidecar, and those that a flat output would mix up.
template <typename NameOf>
void checkShared(const FileList& files, QLatin1StringView kind, const NameOf& nameOf, Findings& findings) {
    QMap<QString, QStringList> sharers;
    for (const BatchFile& file : files.files)
        sharers[nameOf(file)].append(file.path);
    for (const auto& [name, paths] : sharers.asKeyValueRange()) {
        if (paths.size() > 1)
            findings.add(kind, name, paths.join(", "_L1));
    }
}

void checkTags(const QStringList& all, int rare, Findings& findings) {
    const QHash<QString, qsizetype> counts = tagCounts(all);
    QMap<QString, QStringList> forms; // of tags that are equal but for case and blanks
    QStringList rareTags;
    for (const auto& [tag, count] : counts.asKeyValueRange()) {
        forms[foldedCase(tag.simplified())].append(quoted(tag));
        // A piece of blanks between two commas reads as an empty tag.
        if (count <= rare && !tag.isEmpty())
            rareTags.append(tag);
    }
    for (auto [form, tags] : forms.asKeyValueRange()) {
        tags.sort();
        if (tags.size() > 1)
            findings.add("similar-tags"_L1, form, tags.join(", "_L1));
    }
    rareTags.sort();
    for (const QString& tag : std::as_const(rareTags))
        findings.note("rare-tag"_L1, tag, QString::number(counts.value(tag)));
}

// The ratio of small whole numbers that is nearest to that of the sides.
QString aspectBucket(const QSize& size) {
    constexpr int largestPart = 16;
    const double ratio = double(size.width()) / size.height();
    double nearest = std::numeric_limits<double>::max();
    QString bucket;
    for (int height = 1; height <= largestPart; ++height) {
        // Not limited to 16 as the height is: a panorama may exceed 16:1.
        const int width = std::clamp(qRound(ratio * height), 1, largestPart * largestPart);
        const double distance = std::abs(double(width) / height - ratio);
        // Equal ratios may differ by rounding: 6:4 must not replace 3:2.
        if (distance < nearest - 1e-9) {
            nearest = distance;
            bucket = u"%1:%2"_s.arg(QString::number(width), QString::number(height));
        }
        // Within a percent: 1366x768 counts as 16:9.
        if (distance <= ratio / 100)
            break;
    }
    return bucket;
}

void printMostFrequentFirst(QLatin1StringView kind, const QHash<QString, qsizetype>& counts,
                            Findings& findings) {
    QList<TagCount> sorted;
    for (const auto& [text, count] : counts.asKeyValueRange())
        sorted.append({text, count});
    std::ranges::sort(sorted, [](const TagCount& left, const TagCount& right) {
        return left.count != right.count ? left.count > right.count : left.tag < right.tag;
    });
    for (const TagCount& entry : std::as_const(sorted))
        findings.note(kind, entry.tag, QString::number(entry.count));
}

// Players live on the main thread.
bool checkClip(const BatchFile& file, FileResult& result, Dataset& dataset, bool isJson) {
    if (result.outcome != FileResult::Done || !isVideoFile(file.path))
        return true;
    if (isInterrupted())
        // The file is reported as left, since its clip was not opened.
        return false;
    ClipFrames clip;
    const QString error = clip.open(file.path);
    if (error.isEmpty())
        return true;
    result.text += reportLine(isJson, "undecodable"_L1, file.path, error);
    const std::scoped_lock lock(dataset.mutex);
    ++dataset.findings;
    return true;
}

FileResult checkFile(const BatchFile& file, Dataset& dataset, bool isJson) {
    Findings findings(isJson);
    const Sidecar sidecar = readSidecar(file.path);
    checkSidecar(file, sidecar, findings);
    QSize size;
    if (!isVideoFile(file.path)) {
        QString error;
        // Decoded to the end, as a file that was cut short still has its header.
        size = readPicture(file.path, error).size();
        if (size.isEmpty())
            findings.add("undecodable"_L1, file.path, error);
    }
    const std::scoped_lock lock(dataset.mutex);
    dataset.findings += findings.count();
    // Tags of wrong bytes would be reported once more as rare or similar.
    if (sidecar.error.isEmpty())
        dataset.tags += sidecar.tags();
    if (!size.isEmpty()) {
        ++dataset.resolutions[resolutionText(size)];
        ++dataset.buckets[aspectBucket(size)];
    }
    FileResult result;
    result.text = findings.text();
    return result;
}

} // namespace

int checkCommand(const QStringList& words) {
    Arguments arguments(u"check"_s, Batch::tr("Reports what is wrong with a dataset and what is in it."),
                        u"FILE..."_s);
    arguments.add(u"rare"_s, Batch::tr("Names tags that occur at most N times."), u"N"_s, u"1"_s);
    if (const std::optional<int> code = parseRun(arguments, words))
        return *code;
    RunOptions run = runOptions(arguments);
    run.isQuiet = true;
    // The report has JSON lines of its own in place of one a file.
    const bool isJson = std::exchange(run.printsJson, false);
    const int rare = arguments.wholeNumber(u"rare"_s, 0, std::numeric_limits<int>::max());
    const FileList files = listFiles(arguments, SuffixMatcher(mediaNameFilters()));
    if (arguments.isRejected())
        return arguments.wrongUsage();
    raiseImageAllocationLimit();

    Dataset dataset;
    const int code = runOverFiles(
        files, run, [&](const BatchFile& file) { return checkFile(file, dataset, isJson); },
        [&](const BatchFile& file, FileResult& result) { return checkClip(file, result, dataset, isJson); });
    // Sums over a part of the files would mislead.
    if (isInterrupted())
        return SomeFailed;
    Findings findings(isJson);
    checkShared(
        files, "shared-sidecar"_L1, [](const BatchFile& file) { return imgFilePathToTxtFilePath(file.path); },
        findings);
    checkShared(
        files, "same-name"_L1, [](const BatchFile& file) { return QFileInfo(file.path).fileName(); },
        findings);
    checkTags(dataset.tags, rare, findings);
    printMostFrequentFirst("resolution"_L1, dataset.resolutions, findings);
    printMostFrequentFirst("aspect"_L1, dataset.buckets, findings);
    console::print(findings.text());
    return finishOutput(dataset.findings + findings.count() > 0 ? SomeFailed : code);
}
