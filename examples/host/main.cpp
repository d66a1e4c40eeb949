#include "CommandLine.h"
#include "HostWindow.h"
#include "Language.h"
#include "Palettes.h"
#include "ScriptInterpreter.h"

#include <ui/progress/DialogProgressManager.h>
#include <ui/toolkit/Application.h>
#include <ui/widgets/AppSettings.h>

#include <QApplication>
#include <QSettings>
#include <QStyleFactory>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>

using namespace Norvane;
using namespace Norvane::Host;

namespace {

/// The command line in the language that it asks for itself: what is wrong with it is told in that one, too.
CommandLine parsedCommandLine()
{
    const QStringList arguments = QCoreApplication::arguments();
    CommandLine commandLine = CommandLine::parse(arguments);
    const bool isKnown = Language::choose(commandLine.language);
    commandLine = CommandLine::parse(arguments);
    if (!isKnown && commandLine.problem.isEmpty()) {
        commandLine.problem =
            QCoreApplication::translate("CommandLine", "There is no language \"%1\". There are %2.")
                .arg(commandLine.language, Language::available().join(QLatin1String(", ")));
    }
    return commandLine;
}

/// The questions that need no desktop to be answered.
bool answer(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const CommandLine commandLine = parsedCommandLine();
    QTextStream out(stdout);
    if (commandLine.help)
        out << CommandLine::helpText();
    else if (commandLine.version)
        out << "norvane-host " << NORVANE_HOST_VERSION << '\n';
    return commandLine.help || commandLine.version;
}

} // namespace

int main(int argc, char** argv)
{
    if (answer(argc, argv))
        return 0;

    UI::enableHighDensity();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QLatin1String("Norvane"));
    QApplication::setApplicationName(QLatin1String("norvane-host"));
    QApplication::setApplicationVersion(QLatin1String(NORVANE_HOST_VERSION));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    UI::AppSettings::SetName("norvane-host");

    // By now without the arguments that are Qt's own.
    const CommandLine commandLine = parsedCommandLine();
    if (!commandLine.problem.isEmpty()) {
        QTextStream(stderr) << "norvane-host: " << commandLine.problem << '\n';
        return 2;
    }

    if (QStyleFactory::keys().contains(QLatin1String("Fusion"), Qt::CaseInsensitive))
        QApplication::setStyle(QLatin1String("Fusion"));
    Palettes::apply(commandLine.dark || QSettings().value(QLatin1String("Display/Dark")).toBool());

    UI::DialogProgressManager progress;
    HostWindow* const window = new HostWindow(&progress);
    window->start(commandLine);
    const int status = QApplication::exec();
    if (ScriptInterpreter::hasThreadsLeft())
        std::_Exit(status);
    return status;
}
