#pragma once

#include "batch/FileList.h"

#include <QJsonObject>
#include <QString>

#include <functional>
#include <optional>

class Arguments;

struct FileResult {
    enum Outcome { Done, Skipped, Failed };

    Outcome outcome = Done;
    QString reason;        // of anything but Done
    QString text = {};     // for standard output, with its line ends
    QJsonObject json = {}; // what a line for machines says besides path and outcome

    [[nodiscard]] static FileResult failed(const QString& reason) { return {Failed, reason}; }
    [[nodiscard]] static FileResult skipped(const QString& reason) { return {Skipped, reason}; }
};

// Adds the options by which all subcommands choose files and report, and parses. The exit code where the
// run ends here.
[[nodiscard]] std::optional<int> parseRun(Arguments& arguments, const QStringList& words);

struct RunOptions {
    QString command;
    int jobs = 1;
    bool showsProgress = false;
    bool printsJson = false;
    bool isQuiet = false;   // no summary
    QString failedListPath; // null for none
};
[[nodiscard]] RunOptions runOptions(Arguments& arguments);

// Called for one file, from several threads at once where there are several jobs.
using FileWork = std::function<FileResult(const BatchFile&)>;
// Called afterwards on the calling thread, in the order of the list. False where an interrupt leaves the
// file.
using FileCompletion = std::function<bool(const BatchFile&, FileResult&)>;

// Works on the files and prints what comes of them in their order. A file that is missing fails without a
// call. An interrupt lets the files under way end and names the rest. Returns the exit code.
[[nodiscard]] int runOverFiles(const FileList& list, const RunOptions& options, const FileWork& work,
                               const FileCompletion& complete = {});

// The exit code of a run that ends here: wrong where standard output has not taken everything.
[[nodiscard]] int finishOutput(int exitCode);

// From here on SIGINT and SIGTERM end a run in an orderly way; the second one ends the program.
void catchInterrupts();
[[nodiscard]] bool isInterrupted();
