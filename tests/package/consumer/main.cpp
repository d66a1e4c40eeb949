/// A program of somebody else's: a window with two panels side by side. It ends by itself, with 0 if all is
/// there.

#include <NorvaneCoreVersion.h>
#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>
#include <ui/docking/DockSplitter.h>

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QTimer>

#include <cstdio>
#include <cstring>

using namespace Norvane::UI;

namespace {

Dock* addPane(DockMainWindow* window, DockSplitter* splitter, const char* title)
{
    QLabel* panel = new QLabel(QLatin1String(title));
    panel->setObjectName(QLatin1String(title));
    panel->setWindowTitle(QLatin1String(title));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    Dock* pane = window->createDock();
    splitter->addWidget(pane);
    pane->addWidget(panel, true, false);
    return pane;
}

bool check(bool holds, const char* what)
{
    if (!holds)
        std::fprintf(stderr, "wrong: %s\n", what);
    return holds;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    DockMainWindow* window = new DockMainWindow;
    DockSplitter* splitter = new DockSplitter(Qt::Horizontal);
    window->setRootSplitter(splitter);
    Dock* left = addPane(window, splitter, "Left");
    Dock* right = addPane(window, splitter, "Right");
    window->show();

    bool complete = check(window->docks() == (QList<Dock*>() << left << right), "the panes");
    complete &=
        check(!QIcon(QLatin1String(":/ui/qrc/images/PanelMenu.png")).pixmap(16).isNull(), "the icons");
    complete &= check(std::strcmp(Norvane::coreVersion(), NORVANE_CORE_VERSION_STRING) == 0, "the version");
    complete &= check(window->isVisible(), "the window");
    QTimer::singleShot(0, window, SLOT(close()));
    return application.exec() == 0 && complete ? 0 : 1;
}
