#include "app/services/LogService.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QMutexLocker>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString logLevelName(int level) {
    switch (level) {
    case LogService::NoLog:
        return u"NoLog"_s;
    case LogService::Default:
        return u"Default"_s;
    case LogService::Verbose:
        return u"Verbose"_s;
    default:
        return u"Unknown log level"_s;
    }
}

} // namespace

std::atomic<LogService*> LogService::_instance = nullptr;
// Static, as a thread that enters the handler may lock it after the service was deleted.
QBasicMutex LogService::_mutex;

int logLevelFromArguments(const QStringList& arguments) {
    if (arguments.contains("--no-log"_L1))
        return LogService::NoLog;
    // A regular expression, although it looks like a wildcard: it matches "--log" anywhere in an argument,
    // with or without a "=".
    static const QRegularExpression logOption(u"--log=*"_s);
    const QStringList options = arguments.filter(logOption);
    if (options.isEmpty())
        return LogService::Default;
    // Without a "=" the index is -1, which leaves the whole entry.
    const QString value = options.first().mid(options.first().indexOf(u'=') + 1);
    bool ok = false;
    const int level = value.toInt(&ok, 16);
    return ok ? level : LogService::Default;
}

LogService* LogService::instance() {
    if (!_instance) {
        _instance = new LogService;
        // For standard error; messageHandler composes the lines of the file to the same pattern.
        qSetMessagePattern(u"[%{time h:mm:ss.zzz}] %{if-category}%{category}: %{endif}%{message}"_s);
    }
    return _instance;
}

void LogService::destroy() {
    const QMutexLocker locker(&_mutex);
    LogService* service = _instance;
    if (!service)
        return;
    if (service->_file) {
        service->_stream.flush();
        service->_stream.setDevice(nullptr);
        service->_file->flush();
        service->_file->close();
        service->_file.reset();
    }
    qInstallMessageHandler(nullptr);
    _instance = nullptr;
    delete service;
}

LogService::LogService() = default;
LogService::~LogService() = default;

void LogService::setApplicationInfo(const QString& settingsPath) {
    _logDirectory = QCoreApplication::applicationDirPath();
    _applicationName = QCoreApplication::applicationName();
    _applicationVersion = QCoreApplication::applicationVersion();
    _settingsPath = settingsPath;
}

// Reports a problem of the service itself to the previous handler: qDebug would lock the mutex that is held.
void LogService::report(const char* text, const QString& detail) const {
    const QString message =
        detail.isEmpty() ? QString::fromLatin1(text) : QString::fromLatin1(text) + u' ' + detail;
    const QMessageLogContext context;
    if (_previousHandler)
        _previousHandler(QtDebugMsg, context, message);
    else
        // Only during the first init, before a handler was installed.
        fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(QtDebugMsg, context, message)));
}

void LogService::rotateFiles() {
    _stream.setDevice(nullptr);
    _file = std::make_unique<QFile>();
    if (!QFile::exists(_logDirectory))
        report("Error, path doesn't exist at:", _logDirectory);
    const QString previous = QDir(_logDirectory).filePath("app-previous.log"_L1);
    const QString current = QDir(_logDirectory).filePath("app-current.log"_L1);
    if (QFile::exists(current)) {
        // rename() replaces no file. Where it fails, the new log overwrites that of the last run.
        QFile::remove(previous);
        QFile::rename(current, previous);
    }
    _logFilePath = current;
}

void LogService::init(const QStringList& givenArguments) {
    QStringList arguments = givenArguments;
    if (arguments.isEmpty())
        arguments.append(u"--empty"_s);

    const QMutexLocker locker(&_mutex);
    _logLevel = logLevelFromArguments(arguments);
    rotateFiles();
    // In a second init this handler is already installed; as its own previous handler it would call itself
    // forever.
    const QtMessageHandler handler = qInstallMessageHandler(messageHandler);
    if (handler != messageHandler)
        _previousHandler = handler;
    _file->setFileName(_logFilePath);
    if (!_file->open(QIODevice::WriteOnly | QIODevice::Text)) {
        report("Could not open log file for writing!");
        return;
    }
    _stream.setDevice(_file.get());
    _stream.setEncoding(QStringConverter::Utf8);
    writeHeader(arguments);
}

void LogService::writeHeader(const QStringList& arguments) {
    // Internal version and build date are never set; the header keeps their empty fields.
    _stream << "##########\n"
            << _applicationName << " log " << QDateTime::currentDateTime().toString(u"yyyy-MM-dd hh:mm:ss"_s)
            << "\nArguments:\n\t" << arguments.join("\n\t"_L1) << "\nLog level: " << _logLevel << " ("
            << logLevelName(_logLevel) << ")"
            << "\nApplication version: " << _applicationVersion << " internal: " << _internalVersion
            << " build date: " << _buildDate << ' ' << _buildTime << "\nUsing paths:"
            << "\n\tSettings path: " << _settingsPath << "\n";
    _stream.flush();
}

// The time of the message pattern. Local time is the slowest part of a line and a directory of thousands of
// files logs a line for each, so it is computed once a second.
const QString& LogService::wallClock() {
    constexpr int perSecond = 1000;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (now / perSecond != _second) {
        _second = now / perSecond;
        _secondText = QDateTime::fromMSecsSinceEpoch(now).toString(u"h:mm:ss."_s);
    }
    _wallClock = _secondText;
    const auto milliseconds = static_cast<int>(now % perSecond);
    for (const int digit : {milliseconds / 100, milliseconds / 10 % 10, milliseconds % 10})
        _wallClock += QChar(u'0' + digit);
    return _wallClock;
}

void LogService::messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const int requiredLevel = type == QtInfoMsg ? Verbose : Default;
    const QMutexLocker locker(&_mutex);
    LogService* service = _instance;
    // Another thread may have destroyed the service while this one waited for the mutex.
    if (!service)
        return;
    if (requiredLevel <= service->_logLevel && service->_stream.device()) {
        // The same text as qFormatLogMessage makes of the pattern.
        service->_stream << '[' << service->wallClock() << "] ";
        if (const QLatin1StringView category(context.category);
            !category.isEmpty() && category != "default"_L1)
            service->_stream << category << ": ";
        // Flushed by line, so that the last lines before a crash are in the file.
        service->_stream << message << '\n';
        service->_stream.flush();
    }
    if (service->_previousHandler)
        service->_previousHandler(type, context, message);
}
