#include "catalogue/FileNaming.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int lastFileNumber = 999999;

// The first of the candidates 0 to 999999 that does not exist.
template <typename MakeCandidate>
QString firstFreeFilePath(MakeCandidate makeCandidate) {
    for (int number = 0; number <= lastFileNumber; ++number) {
        if (const QString candidate = makeCandidate(number); !QFile::exists(candidate))
            return candidate;
    }
    qDebug() << "Error, backup file name exceeded 999999";
    return {};
}

} // namespace

QString imgFilePathToTxtFilePath(const QString& imgFilePath) {
    const QFileInfo info(imgFilePath);
    return u"%1/%2.txt"_s.arg(info.path(), info.completeBaseName());
}

QString txtFilePathBackupFilePath(const QString& txtFilePath) {
    const QFileInfo info(txtFilePath);
    const QString path = info.path();
    const QString baseName = info.completeBaseName();
    return firstFreeFilePath(
        [&](int number) { return u"%1/%2_backup_%3.txt"_s.arg(path, baseName, QString::number(number)); });
}

QString numberedFilePath(const QString& filePath) {
    const QFileInfo info(filePath);
    const QString path = info.path();
    const QString baseName = info.completeBaseName();
    const QString suffix = info.suffix();
    return firstFreeFilePath(
        [&](int number) { return u"%1/%2_%4.%3"_s.arg(path, baseName, suffix, QString::number(number)); });
}

QString pathInDirectory(const QString& directory, const QString& name) {
    const bool isClosed = directory.endsWith(u'/') || directory.endsWith(u'\\');
    return isClosed ? directory + name : directory + u'/' + name;
}

QString destinationFilePath(const QString& srcFilePath, const QString& directory) {
    return pathInDirectory(directory, QFileInfo(srcFilePath).fileName());
}

QString foldedCase(const QString& text) {
    // QString::toCaseFolded folds "ß" to two letters, but QString::compare folds each character by itself.
    std::u32string characters = text.toStdU32String();
    for (char32_t& character : characters)
        character = QChar::toCaseFolded(character);
    return QString::fromStdU32String(characters);
}
