#include "support/Facts.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QStringList>

#include <algorithm>

QString difference(const Facts& expected, const Facts& actual) {
    QStringList lines;
    Facts all = expected;
    all.insert(actual);
    for (auto fact = all.cbegin(); fact != all.cend(); ++fact) {
        const QString wanted = expected.value(fact.key(), "(nothing)");
        const QString found = actual.value(fact.key(), "(nothing)");
        if (wanted != found)
            lines.append(QString("%1\n  must be: %2\n  but is:  %3").arg(fact.key(), wanted, found));
    }
    return lines.join('\n');
}

QString contentFact(const QByteArray& content) {
    const bool isText =
        content.size() < 2000 && QUtf8StringView(content).isValidUtf8() && !content.contains('\0');
    return isText ? "\"" + QString::fromUtf8(content) + "\""
                  : QCryptographicHash::hash(content, QCryptographicHash::Md5).toHex();
}

Facts diskFacts(const QString& directory) {
    Facts facts;
    QDirIterator entries(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        if (file.open(QIODevice::ReadOnly))
            facts.insert("disk " + entries.filePath().mid(directory.size() + 1), contentFact(file.readAll()));
    }
    return facts;
}

QString colourName(const QColor& colour) {
    constexpr int tolerance = 60;
    for (const char* name : {"red", "lime", "blue", "yellow", "magenta", "cyan"}) {
        const QColor pure = QColor::fromString(QLatin1StringView(name));
        const int away = std::max({qAbs(pure.red() - colour.red()), qAbs(pure.green() - colour.green()),
                                   qAbs(pure.blue() - colour.blue())});
        if (colour.alpha() > 0 && away < tolerance)
            return QLatin1StringView(name);
    }
    return "none";
}

QString middleColour(const QImage& image) {
    return image.isNull() ? "none" : colourName(image.pixelColor(image.width() / 2, image.height() / 2));
}
