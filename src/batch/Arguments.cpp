#include "batch/Arguments.h"

#include "batch/Console.h"

#include <QCoreApplication>

#include <cmath>

using namespace Qt::StringLiterals;

Arguments::Arguments(const QString& command, const QString& description, const QString& operands)
    : _command(command) {
    _parser.setApplicationDescription(description);
    // For the help alone; the parser takes any number of operands.
    _parser.addPositionalArgument(operands, {}, operands);
    _parser.addOption({u"help"_s, Batch::tr("Shows this text.")});
}

void Arguments::add(const QString& name, const QString& description, const QString& valueName,
                    const QString& defaultValue) {
    _parser.addOption({name, description, valueName, defaultValue});
}

std::optional<int> Arguments::parse(const QStringList& arguments) {
    // The parser takes the first word for the program's name.
    if (!_parser.parse(QStringList("tessarine-batch "_L1 + _command) + arguments)) {
        reject(_parser.errorText());
        return wrongUsage();
    }
    if (!_parser.isSet(u"help"_s))
        return std::nullopt;
    // The parser's text begins with the path of the program and leaves the command out.
    const QString help = _parser.helpText();
    const QString program = QCoreApplication::arguments().constFirst();
    console::print(Batch::tr("Usage: tessarine-batch %1 ").arg(_command) +
                   help.sliced(help.indexOf(program) + program.size() + 1));
    return console::flush() ? AllDone : SomeFailed;
}

int Arguments::wholeNumber(const QString& name, int minimum, int maximum) {
    const QString text = value(name);
    bool ok = false;
    const int number = text.toInt(&ok);
    // Null where an option without a default is not given: 0, and no fault.
    if (!text.isNull() && !(ok && number >= minimum && number <= maximum))
        reject(Batch::tr("--%1 takes a whole number from %2 to %3, not \"%4\"")
                   .arg(name, QString::number(minimum), QString::number(maximum), text));
    return number;
}

double Arguments::number(const QString& name, double minimum, double maximum) {
    const QString text = value(name);
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (!text.isNull() && !(ok && std::isfinite(number) && number >= minimum && number <= maximum))
        reject(Batch::tr("--%1 takes a number from %2 to %3, not \"%4\"")
                   .arg(name, QString::number(minimum), QString::number(maximum), text));
    return number;
}

int Arguments::choice(const QString& name, const QStringList& choices) {
    const qsizetype index = choices.indexOf(value(name));
    if (index < 0)
        reject(Batch::tr("--%1 is one of %2, not \"%3\"").arg(name, choices.join(", "_L1), value(name)));
    return static_cast<int>(index);
}

int Arguments::wrongUsage() const {
    for (const QString& fault : _faults)
        console::complain(fault);
    console::complain(Batch::tr("see tessarine-batch %1 --help").arg(_command));
    return WrongUsage;
}
