#pragma once

#include <QCoreApplication>
#include <QString>

// The texts of the command-line program.
struct Batch {
    Q_DECLARE_TR_FUNCTIONS(Batch)
};

namespace console {

// Results, in UTF-8: to a terminal with control characters as escapes but for line ends and tabs, otherwise
// as they are.
void print(const QString& text);
// False where standard output did not take everything.
[[nodiscard]] bool flush();
// A line to standard error, under the program's name.
void complain(const QString& text);
void complain(const QString& filePath, const QString& reason);
// Text for a terminal alone, without a line end.
void show(const QString& text);
[[nodiscard]] bool errorsGoToTerminal();

} // namespace console

// A path on one line: control characters as escapes.
[[nodiscard]] QString shownPath(const QString& path);
