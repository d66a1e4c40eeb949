#include "CommandLine.h"
#include "HostWindow.h"
#include "Palettes.h"
#include "ScriptInterpreter.h"

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

/// The questions that need no desktop to be answered.
bool answer(const CommandLine& commandLine)
{
    QTextStream out(stdout);
    if (commandLine.help)
        out << CommandLine::helpText();
    else if (commandLine.version)
        out << "norvane-host " << NORVANE_HOST_VERSION << '\n';
    return commandLine.help || commandLine.version;
}

QStringList listOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char** argv)
{
    if (answer(CommandLine::parse(listOf(argc, argv))))
        return 0;

    UI::enableHighDensity();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QLatin1String("Norvane"));
    QApplication::setApplicationName(QLatin1String("norvane-host"));
    QApplication::setApplicationVersion(QLatin1String(NORVANE_HOST_VERSION));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    UI::AppSettings::SetName("norvane-host");

    // By now without the arguments that are Qt's own.
    const CommandLine commandLine = CommandLine::parse(QApplication::arguments());
    if (!commandLine.problem.isEmpty()) {
        QTextStream(stderr) << "norvane-host: " << commandLine.problem << '\n';
        return 2;
    }

    if (QStyleFactory::keys().contains(QLatin1String("Fusion"), Qt::CaseInsensitive))
        QApplication::setStyle(QLatin1String("Fusion"));
    Palettes::apply(commandLine.dark || QSettings().value(QLatin1String("Display/Dark")).toBool());

    HostWindow* const window = new HostWindow;
    window->start(commandLine);
    const int status = QApplication::exec();
    if (ScriptInterpreter::hasThreadsLeft())
        std::_Exit(status);
    return status;
}
