#include "CommandLine.h"

#include "FrameFormat.h"

#include <QCoreApplication>

namespace Norvane { namespace Host {

CommandLine CommandLine::parse(const QStringList& arguments)
{
    CommandLine line;
    const QString layoutPrefix = QLatin1String("--layout=");
    bool onlyPictures = false;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (onlyPictures || !argument.startsWith(QLatin1Char('-'))) {
            line.pictures.append(argument);
        } else if (argument == QLatin1String("--")) {
            onlyPictures = true;
        } else if (argument == QLatin1String("--fresh")) {
            line.fresh = true;
        } else if (argument == QLatin1String("--dark")) {
            line.dark = true;
        } else if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            line.help = true;
        } else if (argument == QLatin1String("--version") || argument == QLatin1String("-v")) {
            line.version = true;
        } else if (argument.startsWith(layoutPrefix)) {
            line.layoutPath = argument.mid(layoutPrefix.size());
        } else if (argument == QLatin1String("--layout") && i + 1 < arguments.size()) {
            line.layoutPath = arguments[++i];
        } else if (argument == QLatin1String("--language") && i + 1 < arguments.size()) {
            line.language = arguments[++i];
        } else if (argument == QLatin1String("--frame") && i + 2 < arguments.size()) {
            FrameAddress address;
            address.format = arguments[++i];
            address.path = arguments[++i];
            line.pictures.append(address.toString());
        } else if (argument == QLatin1String("--frame")) {
            line.problem =
                QCoreApplication::translate("CommandLine", "--frame needs a layout with a size, and a file.");
            return line;
        } else if (argument == QLatin1String("--language")) {
            line.problem = QCoreApplication::translate("CommandLine", "--language needs a code, such as de.");
            return line;
        } else if (argument == QLatin1String("--layout")) {
            line.problem = QCoreApplication::translate("CommandLine", "--layout needs a file.");
            return line;
        } else {
            line.problem = QCoreApplication::translate("CommandLine", "Unknown option \"%1\".").arg(argument);
            return line;
        }
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
                       "  --language CODE\n"
                       "                 show all texts in this language, such as de or en,\n"
                       "                 instead of the user's\n"
                       "  -h, --help     show this text\n"
                       "  -v, --version  show the version\n");
}

}} // namespace Norvane::Host
