#include "batch/Console.h"

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void write(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    // A failure stays in the stream, where flush() finds it at the end of the run.
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

// Control characters as escapes but those to keep: a sequence in a name or a tag could recolour the terminal
// or overwrite other lines.
QString escaped(const QString& text, QLatin1StringView kept) {
    QString shown;
    shown.reserve(text.size());
    for (const QChar character : text) {
        const bool isControl = character.unicode() < 0x20 || character.unicode() == 0x7f;
        if (!isControl || kept.contains(character))
            shown += character;
        else if (character == u'\n')
            shown += "\\n"_L1;
        else if (character == u'\t')
            shown += "\\t"_L1;
        else
            shown += u"\\x%1"_s.arg(int(character.unicode()), 2, 16, QChar(u'0'));
    }
    return shown;
}

} // namespace

void console::print(const QString& text) {
    static const bool isTerminal = isatty(STDOUT_FILENO) != 0;
    // A script needs the tags as they are.
    write(stdout, isTerminal ? escaped(text, "\n\t"_L1) : text);
}

bool console::flush() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

void console::complain(const QString& text) {
    write(stderr, "tessarine-batch: "_L1 + text + u'\n');
}

void console::complain(const QString& filePath, const QString& reason) {
    // The reason may be text of a server or of a file, with line ends.
    complain(shownPath(filePath) + ": "_L1 + shownPath(reason));
}

void console::show(const QString& text) {
    write(stderr, text);
    std::fflush(stderr);
}

bool console::errorsGoToTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

QString shownPath(const QString& path) {
    return escaped(path, {});
}
