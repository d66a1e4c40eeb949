// Uses the host application at random for a while and tells what that leaves behind.
//
//   scripts/desktop bench_soak [MINUTES [SEED]]    10 minutes unless told
//
// Prints heap, files, threads and widgets after a minute of use, in which caches fill, and after the rest;
// each time the program rests with the arrangement that it began with. Fails if more files, threads or
// widgets are left, or a tenth more heap.

#include <benchmarks/soak/RandomUser.h>
#include <benchmarks/soak/Residue.h>

#include <examples/host/CommandLine.h>
#include <examples/host/HostWindow.h>
#include <examples/host/Palettes.h>

#include <ui/progress/DialogProgressManager.h>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPixmapCache>
#include <QSettings>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

using namespace Norvane;
using namespace Norvane::Benchmarks;

namespace {

const int kMinute = 60 * 1000;
/// In which caches fill, and the fifty steps that can be undone.
const int kWarmUp = 3 * kMinute;

const char kEmptyLayout[] = "<layout version=\"1.0\"><window x=\"50\" y=\"50\" w=\"800\" h=\"600\" "
                            "screen=\"0\"><splitter orientation=\"1\"/>"
                            "</window></layout>";

void write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("%s cannot be written.", qPrintable(path));
}

void wait(RandomUser* user)
{
    QEventLoop loop;
    QObject::connect(user, SIGNAL(finished()), &loop, SLOT(quit()));
    loop.exec();
}

Residue residueAfter(RandomUser* user, int milliseconds)
{
    user->use(milliseconds);
    wait(user);
    user->rest();
    wait(user);
    // It grows up to a limit of its own.
    QPixmapCache::clear();
    return Residue::now();
}

/// Triggers the entries of menus whose text begins like this.
void choose(const QMainWindow* window, const char* text)
{
    const QList<QAction*> menus = window->menuBar()->actions();
    for (const QAction* const entry : menus) {
        const QList<QAction*> actions = entry->menu()->actions();
        for (QAction* const action : actions) {
            if (action->text().startsWith(QLatin1String(text)))
                action->trigger();
        }
    }
}

bool grew(const Residue& start, const Residue& end)
{
    return end.files > start.files || end.threads > start.threads || end.widgets > start.widgets ||
           end.heap > start.heap + start.heap / 10;
}

void print(const char* when, const QString& text)
{
    std::printf("%-7s %s\n", when, text.toLocal8Bit().constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const int minutes = argc > 1 ? std::atoi(argv[1]) : 10;
    const unsigned seed = argc > 2 ? unsigned(std::atoi(argv[2])) : 1;
    if (minutes < 1) {
        std::fprintf(stderr, "usage: bench_soak [MINUTES [SEED]]\n");
        return 2;
    }
    // Nothing of the user's own is read or written.
    const QString folder =
        QDir::temp().filePath(QString::fromLatin1("norvane-soak-%1").arg(application.applicationPid()));
    QDir().mkpath(folder);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    QApplication::setApplicationName(QLatin1String("norvane-soak"));
    Host::Palettes::apply(false);

    Host::CommandLine commandLine;
    commandLine.fresh = true;
    commandLine.layoutPath = QDir(folder).filePath(QLatin1String("session.layout"));
    UI::DialogProgressManager progress;
    Host::HostWindow* const window = new Host::HostWindow(&progress);
    window->start(commandLine);

    // Every picture is to be seen, as those that are not are not read; and there is a panel of each kind.
    choose(window, "&Review");
    choose(window, "New ");
    const QString layout = QDir(folder).filePath(QLatin1String("start.layout"));
    const QString emptyLayout = QDir(folder).filePath(QLatin1String("empty.layout"));
    QBuffer present;
    present.open(QIODevice::WriteOnly);
    window->saveLayout(&present, nullptr);
    write(layout, present.data());
    write(emptyLayout, kEmptyLayout);

    RandomUser user(seed, layout, emptyLayout);
    const Residue start = residueAfter(&user, kWarmUp);
    print("start", start.toString());
    const Residue end = residueAfter(&user, minutes * kMinute);
    print("end", end.toString());
    if (end.widgets > start.widgets)
        print("", end.moreWidgetsThan(start));
    for (QMap<QString, int>::const_iterator i = user.deeds().begin(); i != user.deeds().end(); ++i)
        std::printf("%6d  %s\n", i.value(), i.key().toLatin1().constData());
    std::fflush(stdout);
    // The window asks for nothing on its way out.
    std::_Exit(grew(start, end) ? 1 : 0);
}
