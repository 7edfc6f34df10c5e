#pragma once

#include <QStringList>

// The subcommands. Each takes the words behind its name and returns the exit code.
[[nodiscard]] int inspectCommand(const QStringList& arguments);
[[nodiscard]] int tagsCommand(const QStringList& arguments);
[[nodiscard]] int exportCommand(const QStringList& arguments);
[[nodiscard]] int resizeCommand(const QStringList& arguments);
[[nodiscard]] int effectsCommand(const QStringList& arguments);
[[nodiscard]] int captionCommand(const QStringList& arguments);
[[nodiscard]] int grabCommand(const QStringList& arguments);
[[nodiscard]] int checkCommand(const QStringList& arguments);
