#pragma once

#include <QMutex>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <QtLogging>

#include <atomic>
#include <memory>

class QFile;

// Sends every message of Qt's logging to a text file beside the executable and keeps the file of the last
// run.
class LogService {
public:
    enum LogLevel { NoLog = 0, Default = 1, Verbose = 2 };

    static LogService* instance();
    static void destroy();

    void setApplicationInfo(const QString& settingsPath);
    // Sets the level from the arguments, renames the last log file, opens a new one and installs Qt's message
    // handler.
    void init(const QStringList& arguments);

    static void messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

private:
    LogService();
    ~LogService();
    Q_DISABLE_COPY_MOVE(LogService)

    void rotateFiles();
    void writeHeader(const QStringList& arguments);
    void report(const char* text, const QString& detail = {}) const;
    [[nodiscard]] const QString& wallClock();

    static std::atomic<LogService*> _instance;
    // Guards the instance, its stream and its file; not recursive, so nothing may log while it is held.
    static QBasicMutex _mutex;

    QString _logFilePath;
    std::unique_ptr<QFile> _file;
    QTextStream _stream;
    int _logLevel = Default;
    QString _logDirectory;
    QString _applicationName;
    QString _applicationVersion;
    QString _internalVersion;
    QString _buildDate;
    QString _buildTime;
    QString _settingsPath;
    QtMessageHandler _previousHandler = nullptr;
    qint64 _second = 0; // since the epoch; that of _secondText
    QString _secondText;
    QString _wallClock;
};

// The level that an argument list requests.
[[nodiscard]] int logLevelFromArguments(const QStringList& arguments);
