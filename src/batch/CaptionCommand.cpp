#include "app/services/ImageFile.h"
#include "batch/Arguments.h"
#include "batch/Commands.h"
#include "batch/Console.h"
#include "batch/Picture.h"
#include "batch/Run.h"
#include "batch/Sidecar.h"
#include "batch/SizeOption.h"
#include "batch/WholeFile.h"
#include "catalogue/MediaFormats.h"
#include "ollama/OllamaMessages.h"
#include "ollama/PromptImage.h"
#include "tags/TagText.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRetries = 1000;
constexpr int longestTimeoutSeconds = 86400;
constexpr qsizetype shownReplyBytes = 300;
constexpr std::chrono::milliseconds firstPause{250};
constexpr std::chrono::milliseconds longestPause{8000};

struct CaptionOptions {
    QString url;
    QString model;
    QString system;
    QString prompt;
    QString separator;
    QSize size{-1, -1};
    bool keepsAspectRatio = true;
    bool onlyUntagged = false;
    bool makesBackups = false;
    bool keepsDuplicates = false;
    int retries = 0;
    std::chrono::seconds timeout{0};
};

struct Answer {
    QString text;
    QString error;
};

// Blocks in an event loop of the calling thread.
Answer askServer(const CaptionOptions& options, const QByteArray& request) {
    // One a request, as a manager works on the thread that made it and this runs on any of them.
    QNetworkAccessManager manager;
    QNetworkRequest target(QUrl(ollamaUrl(options.url, u"/api/generate"_s), QUrl::TolerantMode));
    target.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    const std::unique_ptr<QNetworkReply> reply(manager.post(target, request));
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    bool isLate = false;
    // The reply as context ends the timer with this call, whose variables it captures.
    QTimer::singleShot(options.timeout, reply.get(), [&] {
        isLate = true;
        reply->abort();
    });
    if (!reply->isFinished())
        loop.exec();
    // Asked first: the text of the aborted reply says nothing about time.
    if (isLate)
        return {.text = {}, .error = Batch::tr("no answer within %1 s").arg(options.timeout.count())};
    const QByteArray data = reply->readAll();
    const QString shown = QString::fromUtf8(data.first(std::min(data.size(), shownReplyBytes)));
    if (reply->error() != QNetworkReply::NoError)
        return {.text = {},
                .error = data.isEmpty() ? reply->errorString() : reply->errorString() + " - "_L1 + shown};
    const GenerateReply read = readGenerateReply(data);
    if (!read.isGood)
        return {.text = {}, .error = read.parserText + " - "_L1 + shown};
    return {.text = answerText(read), .error = {}};
}

Answer askPatiently(const CaptionOptions& options, const QByteArray& request) {
    Answer answer = askServer(options, request);
    std::chrono::milliseconds pause = firstPause;
    for (int i = 0; i < options.retries && !answer.error.isEmpty() && !isInterrupted(); ++i) {
        QThread::sleep(pause);
        // A server that is starting or overloaded gets more time with each failure.
        pause = std::min(2 * pause, longestPause);
        answer = askServer(options, request);
    }
    return answer;
}

bool isLeftOut(const Sidecar& sidecar, const CaptionOptions& options) {
    return options.onlyUntagged && !sidecar.text.trimmed().isEmpty();
}

// The sidecar is read when the answer is in: it may be shared, and an answer takes its time.
FileResult appendAnswer(const BatchFile& file, const QStringList& added, const CaptionOptions& options) {
    // One lock for all sidecars: two files of the run may share one.
    static std::mutex sidecars;
    const std::scoped_lock lock(sidecars);
    const Sidecar sidecar = readSidecar(file.path);
    if (!sidecar.error.isEmpty())
        return FileResult::failed(sidecar.error);
    // Another thread may have tagged a file that shares the sidecar.
    if (isLeftOut(sidecar, options))
        return FileResult::skipped(Batch::tr("has tags"));
    const QString text = savedTagText(sidecar.tags() + added, options.keepsDuplicates);
    if (const QString error = writeWholeSidecar(sidecar.path, text, options.makesBackups); !error.isEmpty())
        return FileResult::failed(error);
    FileResult result;
    result.json.insert("tags"_L1, QJsonArray::fromStringList(tagsFromText(text)));
    return result;
}

FileResult caption(const BatchFile& file, const CaptionOptions& options) {
    const Sidecar sidecar = readSidecar(file.path);
    if (!sidecar.error.isEmpty())
        return FileResult::failed(sidecar.error);
    if (isLeftOut(sidecar, options))
        return FileResult::skipped(Batch::tr("has tags"));
    QString error;
    const QImage read = readPicture(file.path, error);
    if (read.isNull())
        return FileResult::failed(error);
    const QImage image = scaledPromptImage(read, options.size, options.keepsAspectRatio);
    if (image.isNull())
        return FileResult::failed(Batch::tr("the new size is empty or too large"));
    const Answer answer = askPatiently(
        options, generateRequest(options.model, options.prompt, pngBytes(image).toBase64(), options.system));
    if (!answer.error.isEmpty())
        return FileResult::failed(answer.error);
    const QStringList tags = tagsFromAnswer(answer.text, options.separator);
    // Blanks between separators alone would be saved as empty tags.
    if (tagsFromText(savedTagText(tags, false)).isEmpty())
        return FileResult::failed(Batch::tr("the answer is empty"));
    return appendAnswer(file, tags, options);
}

CaptionOptions captionOptions(Arguments& arguments) {
    CaptionOptions options{.url = arguments.value(u"url"_s),
                           .model = arguments.value(u"model"_s),
                           .system = arguments.value(u"system"_s),
                           .prompt = arguments.value(u"prompt"_s),
                           .separator = arguments.value(u"separator"_s)};
    if (options.model.isEmpty())
        arguments.reject(Batch::tr("--model names the model to ask"));
    if (!QUrl(options.url, QUrl::TolerantMode).scheme().startsWith("http"_L1))
        arguments.reject(
            Batch::tr("--url takes an address that begins with http, not \"%1\"").arg(options.url));
    if (arguments.isSet(u"size"_s))
        options.size = sizeOption(arguments);
    options.keepsAspectRatio = arguments.choice(u"aspect"_s, {u"ignore"_s, u"keep"_s}) == 1;
    options.onlyUntagged = arguments.isSet(u"only-untagged"_s);
    options.makesBackups = arguments.isSet(u"backup"_s);
    options.keepsDuplicates = arguments.isSet(u"keep-duplicates"_s);
    options.retries = arguments.wholeNumber(u"retry"_s, 0, mostRetries);
    options.timeout = std::chrono::seconds(arguments.wholeNumber(u"timeout"_s, 1, longestTimeoutSeconds));
    return options;
}

} // namespace

int captionCommand(const QStringList& words) {
    Arguments arguments(u"caption"_s,
                        Batch::tr("Asks an Ollama server for tags and adds them to the sidecars."),
                        u"FILE..."_s);
    arguments.add(u"url"_s, Batch::tr("Address of the server."), u"URL"_s, u"http://localhost:11434/"_s);
    arguments.add(u"model"_s, Batch::tr("Name of the model."), u"NAME"_s);
    arguments.add(u"system"_s, Batch::tr("System prompt in place of the model's own."), u"TEXT"_s);
    arguments.add(u"prompt"_s, Batch::tr("What the model is asked about each picture."), u"TEXT"_s,
                  // The prompt of the window. It is sent to a model and so is not translated.
                  u"Describe image using danbooru tags. Dont format output. Maximum 50 words."_s);
    arguments.add(u"size"_s, Batch::tr("Size of the pictures sent; -1 lets one side follow the other."),
                  u"WxH"_s);
    arguments.add(u"aspect"_s, Batch::tr("What becomes of the aspect ratio: keep or ignore."), u"MODE"_s,
                  u"keep"_s);
    arguments.add(u"separator"_s, Batch::tr("Text that separates the tags of an answer."), u"TEXT"_s, u","_s);
    arguments.add(u"only-untagged"_s, Batch::tr("Skips files that have tags."));
    arguments.add(u"backup"_s, Batch::tr("Keeps the old sidecar beside the new one."));
    arguments.add(u"keep-duplicates"_s, Batch::tr("Keeps tags that a file has twice."));
    arguments.add(u"retry"_s, Batch::tr("Asks up to N times more after a failure."), u"N"_s, u"0"_s);
    arguments.add(u"timeout"_s, Batch::tr("Waits so many seconds for an answer."), u"SECONDS"_s, u"300"_s);
    if (const std::optional<int> code = parseRun(arguments, words))
        return *code;
    const RunOptions run = runOptions(arguments);
    const CaptionOptions options = captionOptions(arguments);
    const FileList files = listFiles(arguments, SuffixMatcher(imageNameFilters()));
    if (arguments.isRejected())
        return arguments.wrongUsage();
    raiseImageAllocationLimit();
    return runOverFiles(files, run, [&](const BatchFile& file) { return caption(file, options); });
}
