#include "batch/BatchRun.h"

#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QTest>

BatchRun runBatch(const QString& directory, QString words, const QByteArray& input) {
    QProcess process;
    process.setWorkingDirectory(directory);
    process.start(TESSARINE_BATCH, QProcess::splitCommand(words.replace("'", "\"")));
    process.write(input);
    process.closeWriteChannel();
    // The server that the program asks is served by the event loop of this process.
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 120000))
        qFatal("tessarine-batch %s does not end", qPrintable(words));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString treeText(const QString& directory, bool inBytes) {
    QStringList lines;
    QDirIterator entries(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
        const QSize size = QImageReader(file.fileName()).size();
        if (inBytes)
            text = text.toHex();
        else if (size.isValid())
            text = QByteArray::number(size.width()) + "x" + QByteArray::number(size.height());
        text.replace('\n', '|').replace('\0', ';');
        lines.append(QDir(directory).relativeFilePath(file.fileName()) + " " + QString::fromUtf8(text) +
                     "\n");
    }
    lines.sort();
    return lines.join("");
}
