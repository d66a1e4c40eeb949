#include "CommandLine.h"

#include "FrameFormat.h"

#include <QCoreApplication>

namespace Norvane { namespace Host {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

struct Switch {
    const char* name;
    bool CommandLine::*isOn;
};

const Switch kSwitches[] = {{"--fresh", &CommandLine::fresh},     {"--dark", &CommandLine::dark},
                            {"--help", &CommandLine::help},       {"-h", &CommandLine::help},
                            {"--version", &CommandLine::version}, {"-v", &CommandLine::version}};

/// Given as "--name VALUE" or "--name=VALUE".
struct ValueOption {
    const char* name;
    QString CommandLine::*value;
    /// What is told if the value is missing.
    const char* problem;
};

const ValueOption kValueOptions[] = {
    {"--layout", &CommandLine::layoutPath, QT_TRANSLATE_NOOP("CommandLine", "--layout needs a file.")},
    {"--script", &CommandLine::scriptPath, QT_TRANSLATE_NOOP("CommandLine", "--script needs a file.")},
    {"--language", &CommandLine::language,
     QT_TRANSLATE_NOOP("CommandLine", "--language needs a code, such as de.")}};

bool takeSwitch(const QString& argument, CommandLine* line)
{
    for (const Switch& known : kSwitches) {
        if (argument != QLatin1String(known.name))
            continue;
        line->*known.isOn = true;
        return true;
    }
    return false;
}

bool takeValue(const QString& argument, QStringList* rest, CommandLine* line)
{
    for (const ValueOption& known : kValueOptions) {
        const QString name = QLatin1String(known.name);
        if (argument.startsWith(name + QLatin1Char('=')))
            line->*known.value = argument.mid(name.size() + 1);
        else if (argument != name)
            continue;
        else if (rest->isEmpty())
            line->problem = Texts::tr(known.problem);
        else
            line->*known.value = rest->takeFirst();
        return true;
    }
    return false;
}

bool takeFrame(const QString& argument, QStringList* rest, CommandLine* line)
{
    if (argument != QLatin1String("--frame"))
        return false;
    if (rest->size() < 2) {
        line->problem = Texts::tr("--frame needs a layout with a size, and a file.");
        return true;
    }
    FrameAddress address;
    address.format = rest->takeFirst();
    address.path = rest->takeFirst();
    line->pictures.append(address.toString());
    return true;
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    CommandLine line;
    QStringList rest = arguments.mid(1);
    while (!rest.isEmpty() && line.problem.isEmpty()) {
        const QString argument = rest.takeFirst();
        if (argument == QLatin1String("--")) {
            line.pictures += rest;
            break;
        }
        if (!argument.startsWith(QLatin1Char('-')))
            line.pictures.append(argument);
        else if (!takeSwitch(argument, &line) && !takeValue(argument, &rest, &line) &&
                 !takeFrame(argument, &rest, &line))
            line.problem = Texts::tr("Unknown option \"%1\".").arg(argument);
    }
    return line;
}

QString CommandLine::helpText()
{
    return QCoreApplication::translate(
        "CommandLine", "Usage: norvane-host [OPTION...] [PICTURE...]\n"
                       "Looks at pictures in panels that can be arranged freely.\n"
                       "\n"
                       "  --frame LAYOUT:WIDTHxHEIGHT[:MATRIX] FILE\n"
                       "                 open the raw samples of a frame, such as\n"
                       "                 --frame v210:1920x1080 FILE; may be given again\n"
                       "  --layout FILE  restore the arrangement from FILE and save it there\n"
                       "                 on quitting, instead of that of the last session\n"
                       "  --fresh        start with the default arrangement\n"
                       "  --dark         use the dark palette\n"
                       "  --script FILE  run the Python script FILE in a Script panel\n"
                       "  --language CODE\n"
                       "                 show all texts in this language, such as de or en,\n"
                       "                 instead of the user's\n"
                       "  -h, --help     show this text\n"
                       "  -v, --version  show the version\n");
}

}} // namespace Norvane::Host
