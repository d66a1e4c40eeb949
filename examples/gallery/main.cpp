// Shows the widgets of the library, each in a small form.
//
//   norvane-gallery [--dark] [PAGE]    all of them, or one: bubble, disclosure, drop-list, filename, search

#include "Pages.h"

#include <examples/host/Palettes.h>
#include <ui/toolkit/Application.h>

#include <QApplication>
#include <QStringList>
#include <QStyleFactory>
#include <QTabWidget>

#include <cstdio>
#include <memory>

using namespace Norvane;

namespace {

struct Page {
    const char* name;
    const char* title;
    QWidget* (*create)();
};

const Page kPages[] = {
    {"search", QT_TRANSLATE_NOOP("Gallery", "Search field"), Gallery::createSearchPage},
    {"disclosure", QT_TRANSLATE_NOOP("Gallery", "Disclosure button"), Gallery::createDisclosurePage},
    {"filename", QT_TRANSLATE_NOOP("Gallery", "File-name field"), Gallery::createFilenamePage},
    {"bubble", QT_TRANSLATE_NOOP("Gallery", "Bubble"), Gallery::createBubblePage},
    {"drop-list", QT_TRANSLATE_NOOP("Gallery", "Drop-accepting list"), Gallery::createDropListPage},
};

QString titleOf(const Page& page)
{
    return QApplication::translate("Gallery", page.title);
}

QWidget* createAllPages()
{
    QTabWidget* const tabs = new QTabWidget;
    for (const Page& page : kPages)
        tabs->addTab(page.create(), titleOf(page));
    tabs->setWindowTitle(QApplication::translate("Gallery", "Widgets"));
    return tabs;
}

QWidget* createWindow(const QString& name)
{
    if (name.isEmpty())
        return createAllPages();
    for (const Page& page : kPages) {
        if (name != QLatin1String(page.name))
            continue;
        QWidget* const window = page.create();
        window->setWindowTitle(titleOf(page));
        return window;
    }
    return nullptr;
}

} // namespace

int main(int argc, char* argv[])
{
    UI::enableHighDensity();
    QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool isDark = arguments.removeAll(QLatin1String("--dark")) > 0;
    if (QStyleFactory::keys().contains(QLatin1String("Fusion"), Qt::CaseInsensitive))
        QApplication::setStyle(QLatin1String("Fusion"));
    Host::Palettes::apply(isDark);

    const std::unique_ptr<QWidget> window(createWindow(arguments.value(0)));
    if (!window) {
        std::fprintf(stderr, "norvane-gallery: there is no page \"%s\"\n", qPrintable(arguments.value(0)));
        return 2;
    }
    window->show();
    return QApplication::exec();
}
