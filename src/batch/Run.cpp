#include "batch/Run.h"

#include "batch/Arguments.h"
#include "batch/Console.h"
#include "batch/WholeFile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QThread>

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <csignal>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostJobs = 1024;
constexpr qint64 progressIntervalMs = 100;
constexpr int barWidth = 24;

volatile std::sig_atomic_t interrupted = 0;

void onInterrupt(int /*signal*/) {
    interrupted = 1;
}

QString timeText(double seconds) {
    const qint64 whole = qRound64(seconds);
    const auto twoDigits = [](qint64 number) { return QString::number(number).rightJustified(2, u'0'); };
    return u"%1:%2:%3"_s.arg(QString::number(whole / 3600), twoDigits(whole / 60 % 60),
                             twoDigits(whole % 60));
}

class ProgressLine {
public:
    ProgressLine(bool isShown, qsizetype total)
        : _isShown(isShown && console::errorsGoToTerminal()), _total(total) {
        _timer.start();
    }
    ~ProgressLine() { clear(); }
    Q_DISABLE_COPY_MOVE(ProgressLine)

    void advance() {
        ++_done;
        const qint64 now = _timer.elapsed();
        if (!_isShown || now - _drawn < progressIntervalMs)
            return;
        _drawn = now;
        const double rate =
            static_cast<double>(_done) * 1000.0 / static_cast<double>(std::max<qint64>(now, 1));
        const auto filled = static_cast<int>(barWidth * _done / _total);
        console::show(u"\r[%1%2] %3/%4  %5/s  %6 left\x1b[K"_s.arg(
            QString(filled, u'#'), QString(barWidth - filled, u'-'), QString::number(_done),
            QString::number(_total), QString::number(rate, 'f', 1),
            timeText(static_cast<double>(_total - _done) / rate)));
        _isDrawn = true;
    }

    // Makes room for a message.
    void clear() {
        if (_isDrawn)
            console::show(u"\r\x1b[K"_s);
        _isDrawn = false;
    }

private:
    bool _isShown;
    bool _isDrawn = false;
    qsizetype _total;
    qsizetype _done = 0;
    qint64 _drawn = 0;
    QElapsedTimer _timer;
};

FileResult resultOf(const BatchFile& file, const FileWork& work) {
    std::error_code error;
    const std::filesystem::path path(QFile::encodeName(file.path).toStdString());
    // QFileInfo takes a file in a directory that may not be entered for a missing one.
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        if (QFileInfo(file.path).isSymLink())
            return FileResult::failed(Batch::tr("a link to nothing"));
        // Names are decoded with this character for bytes that are not valid UTF-8, and then lead to no file.
        return FileResult::failed(file.path.contains(QChar::ReplacementCharacter)
                                      ? Batch::tr("its name is not valid UTF-8")
                                      : Batch::tr("no such file"));
    }
    if (error)
        return FileResult::failed(QString::fromLocal8Bit(error.message()));
    if (std::filesystem::is_directory(status))
        return FileResult::failed(Batch::tr("is a directory"));
    return work(file);
}

// The results of a list, handed out in its order. With one job everything happens on the calling thread.
class OrderedResults {
public:
    OrderedResults(const QList<BatchFile>& files, int jobs, const FileWork& work)
        : _files(files), _work(work) {
        if (jobs <= 1)
            return;
        _results.resize(static_cast<std::size_t>(files.size()));
        const auto count = static_cast<int>(std::min<qsizetype>(jobs, files.size()));
        // Before the first thread starts, since each counts itself out.
        _running = count;
        for (int i = 0; i < count; ++i) {
            _threads.emplace_back(QThread::create([this] { workOff(); }));
            _threads.back()->start();
        }
    }
    ~OrderedResults() {
        // The threads use the lists of the caller.
        for (const auto& thread : _threads)
            thread->wait();
    }
    Q_DISABLE_COPY_MOVE(OrderedResults)

    // Nothing for a file that an interrupt has left.
    std::optional<FileResult> take(qsizetype index) {
        if (_threads.empty())
            return isInterrupted() ? std::nullopt : std::optional(resultOf(_files.at(index), _work));
        std::unique_lock lock(_mutex);
        auto& result = _results[static_cast<std::size_t>(index)];
        // After an interrupt the threads end without a result for the rest.
        _changed.wait(lock, [&] { return result.has_value() || _running == 0; });
        // Moved out, so that the results of a long list do not pile up.
        return std::exchange(result, std::nullopt);
    }

private:
    void workOff() {
        while (!isInterrupted()) {
            const qsizetype index = _next.fetch_add(1);
            if (index >= _files.size())
                break;
            FileResult result = resultOf(_files.at(index), _work);
            const std::scoped_lock lock(_mutex);
            _results[static_cast<std::size_t>(index)] = std::move(result);
            _changed.notify_all();
        }
        const std::scoped_lock lock(_mutex);
        --_running;
        _changed.notify_all();
    }

    const QList<BatchFile>& _files;
    const FileWork& _work;
    std::vector<std::unique_ptr<QThread>> _threads;
    std::vector<std::optional<FileResult>> _results;
    std::atomic<qsizetype> _next = 0;
    int _running = 0;
    std::mutex _mutex;
    std::condition_variable _changed;
};

// Whether nothing but the list of an earlier run is replaced: paths that each end in a NUL.
bool mayHoldFailedList(const QString& path) {
    constexpr qint64 lookedAtBytes = 65536;
    QFile file(path);
    if (path.isNull() || !file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.read(lookedAtBytes);
    if (start.isEmpty())
        return file.atEnd();
    const bool isEnded = file.seek(file.size() - 1) && file.read(1) == QByteArray(1, '\0');
    // Two NUL in a row would be an empty path: no list has them, most binary files do.
    return isEnded && !start.startsWith('\0') && !start.contains(QByteArray(2, '\0'));
}

// Counts and reports what came of each file.
class RunReport {
public:
    RunReport(const RunOptions& options, qsizetype total)
        : _options(options), _progress(options.showsProgress, total) {}

    void add(const BatchFile& file, const FileResult& result) {
        ++_counts[result.outcome];
        if (result.outcome == FileResult::Failed)
            fail(file.path, result.reason);
        print(_options.printsJson ? jsonLine(file, result) : result.text);
        _progress.advance();
    }

    void fail(const QString& path, const QString& reason) {
        _failed.append(path);
        _progress.clear();
        console::complain(path, reason);
    }

    void addLeft(const BatchFile& file) {
        ++_left;
        fail(file.path, Batch::tr("not done, interrupted"));
    }

    [[nodiscard]] int finish() {
        _progress.clear();
        if (!_options.failedListPath.isNull())
            // Also without failures, since the list of an earlier run must not remain.
            writeFailedList();
        if (!_options.isQuiet) {
            const QString left = _left > 0 ? Batch::tr(", %1 left").arg(_left) : QString();
            console::complain(Batch::tr("%1: %2 done, %3 skipped, %4 failed%5")
                                  .arg(_options.command, QString::number(_counts[FileResult::Done]),
                                       QString::number(_counts[FileResult::Skipped]),
                                       QString::number(_failed.size() - _left), left));
        }
        return finishOutput(_failed.isEmpty() && !_hasTrouble ? AllDone : SomeFailed);
    }

private:
    // The bar shares the terminal with what is printed.
    void print(const QString& text) {
        if (text.isEmpty())
            return;
        _progress.clear();
        console::print(text);
    }

    [[nodiscard]] static QString jsonLine(const BatchFile& file, const FileResult& result) {
        constexpr std::array names{"done"_L1, "skipped"_L1, "failed"_L1};
        QJsonObject line = result.json;
        line.insert("file"_L1, file.path);
        line.insert("status"_L1, names.at(result.outcome));
        if (!result.reason.isEmpty())
            line.insert("reason"_L1, result.reason);
        return QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)) + u'\n';
    }

    void writeFailedList() {
        // A path may hold a line end; none holds a NUL.
        QByteArray bytes;
        for (const QString& path : std::as_const(_failed))
            bytes += QFile::encodeName(path) + '\0';
        const QString error = writeWholeFile(_options.failedListPath, bytes, Existing::Replace);
        _hasTrouble = !error.isEmpty();
        if (_hasTrouble)
            console::complain(_options.failedListPath, error);
    }

    const RunOptions& _options;
    ProgressLine _progress;
    std::array<qsizetype, 3> _counts{};
    qsizetype _left = 0;
    QStringList _failed;
    bool _hasTrouble = false;
};

} // namespace

std::optional<int> parseRun(Arguments& arguments, const QStringList& words) {
    addFileOptions(arguments);
    arguments.add(u"jobs"_s, Batch::tr("Works on N files at once; 0 stands for one a processor."), u"N"_s,
                  u"1"_s);
    arguments.add(u"progress"_s, Batch::tr("Shows a bar on standard error if that is a terminal."));
    arguments.add(u"json"_s, Batch::tr("Prints one JSON object a line."));
    arguments.add(u"quiet"_s, Batch::tr("Prints no summary, only failures."));
    arguments.add(u"failed"_s,
                  Batch::tr("Writes the paths of files that failed or were left to FILE, for --files-from."),
                  u"FILE"_s);
    return arguments.parse(words);
}

RunOptions runOptions(Arguments& arguments) {
    RunOptions options;
    options.command = arguments.command();
    options.jobs = arguments.wholeNumber(u"jobs"_s, 0, mostJobs);
    if (options.jobs == 0)
        options.jobs = QThread::idealThreadCount();
    options.showsProgress = arguments.isSet(u"progress"_s);
    options.printsJson = arguments.isSet(u"json"_s);
    options.isQuiet = arguments.isSet(u"quiet"_s);
    options.failedListPath = arguments.value(u"failed"_s);
    // Checked before the run, which may take hours.
    if (!mayHoldFailedList(options.failedListPath))
        arguments.reject(Batch::tr("--failed %1: the file exists and is no such list")
                             .arg(shownPath(options.failedListPath)));
    return options;
}

int runOverFiles(const FileList& list, const RunOptions& options, const FileWork& work,
                 const FileCompletion& complete) {
    RunReport report(options, list.files.size());
    for (const BatchFailure& failure : list.unread)
        report.fail(failure.path, failure.reason);
    OrderedResults results(list.files, options.jobs, work);
    for (qsizetype i = 0; i < list.files.size(); ++i) {
        const BatchFile& file = list.files.at(i);
        std::optional<FileResult> result = results.take(i);
        if (result && complete && !complete(file, *result))
            result.reset();
        if (result)
            report.add(file, *result);
        else
            report.addLeft(file);
    }
    return report.finish();
}

int finishOutput(int exitCode) {
    if (console::flush())
        return exitCode;
    console::complain(Batch::tr("standard output took only a part"));
    return SomeFailed;
}

void catchInterrupts() {
    struct sigaction action{};
    action.sa_handler = onInterrupt;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

bool isInterrupted() {
    return interrupted != 0;
}
