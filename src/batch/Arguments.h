#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>

enum ExitCode { AllDone = 0, SomeFailed = 1, WrongUsage = 2 };

// The command line of one subcommand. What is wrong with it is collected, so that the user sees all of it.
class Arguments {
public:
    // The operands in the form of a help text, as in "FILE...".
    Arguments(const QString& command, const QString& description, const QString& operands);

    // A flag, or with a value name an option that takes a value.
    void add(const QString& name, const QString& description, const QString& valueName = {},
             const QString& defaultValue = {});
    // The exit code where the run ends here: help was asked for, or an option is unknown.
    [[nodiscard]] std::optional<int> parse(const QStringList& arguments);

    [[nodiscard]] const QString& command() const { return _command; }
    [[nodiscard]] bool isSet(const QString& name) const { return _parser.isSet(name); }
    [[nodiscard]] QString value(const QString& name) const { return _parser.value(name); }
    [[nodiscard]] QStringList values(const QString& name) const { return _parser.values(name); }
    [[nodiscard]] QStringList operands() const { return _parser.positionalArguments(); }

    // Values outside the range are rejected; without a value nothing is.
    [[nodiscard]] int wholeNumber(const QString& name, int minimum, int maximum);
    [[nodiscard]] double number(const QString& name, double minimum, double maximum);
    // The index of the value in the list; -1 where it is rejected.
    [[nodiscard]] int choice(const QString& name, const QStringList& choices);

    void reject(const QString& why) { _faults.append(why); }
    [[nodiscard]] bool isRejected() const { return !_faults.isEmpty(); }
    // Names what was rejected.
    [[nodiscard]] int wrongUsage() const;

private:
    QString _command;
    QCommandLineParser _parser;
    QStringList _faults;
};
