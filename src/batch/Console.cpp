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

} // namespace

void console::print(const QString& text) {
    write(stdout, text);
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
    // An escape sequence in a name could recolour the terminal or overwrite other lines.
    QString shown;
    shown.reserve(path.size());
    for (const QChar character : path) {
        if (character == u'\n')
            shown += "\\n"_L1;
        else if (character == u'\t')
            shown += "\\t"_L1;
        else if (character.unicode() < 0x20 || character.unicode() == 0x7f)
            shown += u"\\x%1"_s.arg(int(character.unicode()), 2, 16, QChar(u'0'));
        else
            shown += character;
    }
    return shown;
}
