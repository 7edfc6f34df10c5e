#include "app/services/Translations.h"
#include "batch/Arguments.h"
#include "batch/Commands.h"
#include "batch/Console.h"
#include "batch/Run.h"

#include <QGuiApplication>
#include <QLocale>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Command {
    QLatin1StringView name;
    const char* summary;
    int (*run)(const QStringList& arguments);
    bool needsGui = false; // plugins that draw text into images do, and players
};

constexpr std::array commands{
    Command{"inspect"_L1, QT_TRANSLATE_NOOP("Batch", "shows the header of model files"), inspectCommand},
    Command{"tags"_L1, QT_TRANSLATE_NOOP("Batch", "lists, counts and edits tags"), tagsCommand},
    Command{"export"_L1, QT_TRANSLATE_NOOP("Batch", "exports tags and captions"), exportCommand},
    Command{"resize"_L1, QT_TRANSLATE_NOOP("Batch", "resizes images"), resizeCommand, true},
    Command{"effects"_L1, QT_TRANSLATE_NOOP("Batch", "runs filters over images"), effectsCommand, true},
    Command{"caption"_L1, QT_TRANSLATE_NOOP("Batch", "asks an Ollama server for tags"), captionCommand, true},
    Command{"grab"_L1, QT_TRANSLATE_NOOP("Batch", "takes frames out of clips"), grabCommand, true},
    Command{"check"_L1, QT_TRANSLATE_NOOP("Batch", "reports on a dataset"), checkCommand, true},
};

QString usageText() {
    QString text =
        Batch::tr("Usage: tessarine-batch COMMAND [OPTIONS] FILE...\n\nThe commands; each takes --help:\n");
    for (const Command& command : commands)
        text += u"  %1  %2\n"_s.arg(QString(command.name).leftJustified(8), Batch::tr(command.summary));
    return text;
}

// The rules log for the window's log file. Here a failure is reported with its file.
void dropMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtFatalMsg)
        console::complain(text);
}

std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv, bool needsGui) {
    if (!needsGui)
        return std::make_unique<QCoreApplication>(argc, argv);
    // No window is shown, so no screen is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The media back end then logs as all others do, and not to standard error.
    qputenv("QT_FFMPEG_DEBUG", "1");
    return std::make_unique<QGuiApplication>(argc, argv);
}

int runCommand(const Command* command, const QStringList& words) {
    const QString name = words.value(0);
    if (command)
        return command->run(words.sliced(1));
    if (name == "--version"_L1) {
        console::print(u"tessarine-batch %1\n"_s.arg(QCoreApplication::applicationVersion()));
        return finishOutput(AllDone);
    }
    if (name == "--help"_L1 || name == "help"_L1) {
        console::print(usageText());
        return finishOutput(AllDone);
    }
    if (!name.isEmpty())
        console::complain(Batch::tr("there is no command %1").arg(shownPath(name)));
    console::show(usageText());
    return WrongUsage;
}

} // namespace

int main(int argc, char* argv[]) {
    const QLatin1StringView name(argc > 1 ? argv[1] : "");
    const auto found = std::ranges::find(commands, name, &Command::name);
    const Command* const command = found == commands.end() ? nullptr : &*found;
    // Before the application, whose plugins already log.
    qInstallMessageHandler(dropMessage);
    const auto application = makeApplication(argc, argv, command && command->needsGui);
    QCoreApplication::setApplicationName(u"Tessarine"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSARINE_VERSION));
    Translations translations;
    // Scripts that read messages set the C locale, whatever LANGUAGE lists.
    if (QLocale::system().language() != QLocale::C)
        translations.install(QLocale::system().uiLanguages());
    catchInterrupts();
    return runCommand(command, QCoreApplication::arguments().sliced(1));
}
