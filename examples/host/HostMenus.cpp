// The menus of the main window and what the simple entries do.

#include "ControlHelp.h"
#include "DisplayOptions.h"
#include "HostWindow.h"
#include "NotesPanel.h"
#include "Palettes.h"

#include <ui/docking/Dock.h>
#include <ui/docking/WidgetUtils.h>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>

namespace Norvane { namespace Host {

void HostWindow::buildMenus()
{
    buildFileMenu();
    buildPanelsMenu();
    buildArrangementMenu();
    buildViewMenu();
    buildTasksMenu();
    QMenu* const help = menuBar()->addMenu(tr("&Help"));
    addEntry(help, tr("&What Is This?"), SLOT(askAboutControl()), tr("Shift+F1"));
    addEntry(help, tr("&About"), SLOT(about()));
}

QAction* HostWindow::addEntry(QMenu* menu, const QString& text, const char* slot, const QString& shortcut)
{
    QAction* const action = menu->addAction(text);
    action->setShortcut(QKeySequence(shortcut));
    // Floating windows have no menu bar; the keys work there as well.
    action->setShortcutContext(Qt::ApplicationShortcut);
    if (slot)
        connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

void HostWindow::buildFileMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&File"));
    addEntry(menu, tr("&Open Picture..."), SLOT(choosePictures()), tr("Ctrl+O"));
    addEntry(menu, tr("Open F&rame..."), SLOT(chooseFrame()), tr("Ctrl+Shift+F"));
    m_saveFrameAction = addEntry(menu, tr("Save &Frame..."), SLOT(saveFrame()), tr("Ctrl+Shift+S"));
    m_saveFrameAction->setEnabled(false);
    menu->addSeparator();
    addEntry(menu, tr("Open &Layout..."), SLOT(chooseLayoutToOpen()), tr("Ctrl+Shift+O"));
    addEntry(menu, tr("&Save Layout..."), SLOT(chooseLayoutToSave()), tr("Ctrl+S"));
    menu->addSeparator();
    addEntry(menu, tr("&Quit"), SLOT(close()), tr("Ctrl+Q"));
}

void HostWindow::buildPanelsMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&Panels"));
    QActionGroup* const kinds = new QActionGroup(this);
    kinds->setExclusive(false);
    for (const PanelOffer& offer : kPanelOffers) {
        QAction* const action = addEntry(menu, tr(offer.text), nullptr);
        action->setData(offer.kind);
        kinds->addAction(action);
    }
    connect(kinds, SIGNAL(triggered(QAction*)), this, SLOT(newPanel(QAction*)));
    menu->addSeparator();
    m_notesMenu = menu->addMenu(tr("&Closed Notes"));
    connect(menu, SIGNAL(aboutToShow()), this, SLOT(fillNotesMenu()));
    connect(m_notesMenu, SIGNAL(triggered(QAction*)), this, SLOT(reopenNotes(QAction*)));
}

void HostWindow::buildTasksMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&Tasks"));
    addEntry(menu, tr("&Show Tasks"), SLOT(showTasks()));
    addEntry(menu, tr("&Analyse Pictures"), SLOT(analysePictures()), tr("Ctrl+Shift+A"));
}

void HostWindow::buildViewMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&View"));
    QActionGroup* const options = new QActionGroup(this);
    options->setExclusive(false);
    for (int i = 0; i < kDisplayOptionCount; ++i) {
        const DisplayOption& option = kDisplayOptions[i];
        QAction* const action = menu->addAction(QApplication::translate("DisplayOptions", option.text));
        action->setCheckable(true);
        action->setChecked((this->*option.isOn)());
        action->setData(i);
        options->addAction(action);
    }
    connect(options, SIGNAL(triggered(QAction*)), this, SLOT(changeOption(QAction*)));

    menu->addSeparator();
    QMenu* const palettes = menu->addMenu(tr("&Palette"));
    QActionGroup* const looks = new QActionGroup(this);
    const bool dark = QSettings().value(QLatin1String("Display/Dark")).toBool();
    const QString names[] = {tr("&Light"), tr("&Dark")};
    for (int isDark = 0; isDark < 2; ++isDark) {
        QAction* const action = palettes->addAction(names[isDark]);
        action->setCheckable(true);
        action->setChecked(dark == bool(isDark));
        action->setData(bool(isDark));
        looks->addAction(action);
    }
    connect(looks, SIGNAL(triggered(QAction*)), this, SLOT(choosePalette(QAction*)));
    m_fullScreenAction = addEntry(menu, tr("&Full Screen"), SLOT(toggleFullScreen()), tr("F11"));
    m_fullScreenAction->setCheckable(true);

    menu->addSeparator();
    QAction* const focusActions[] = {nextDockAction(), prevDockAction(), nextTabAction(), prevTabAction()};
    for (QAction* const action : focusActions) {
        action->setShortcutContext(Qt::ApplicationShortcut);
        menu->addAction(action);
    }
}

void HostWindow::applyOptions()
{
    const QSettings settings;
    for (const DisplayOption& option : kDisplayOptions) {
        const bool on = settings.value(QLatin1String(option.key), option.isOnAtFirst).toBool();
        if (on != (this->*option.isOn)())
            (this->*option.setOn)(on);
    }
}

void HostWindow::changeOption(QAction* action)
{
    const DisplayOption& option = kDisplayOptions[action->data().toInt()];
    const bool on = action->isChecked();
    (this->*option.setOn)(on);
    QSettings().setValue(QLatin1String(option.key), on);
    if (option.needsNewPanes)
        rebuildPanes();
    showTitles();
}

void HostWindow::showTitles()
{
    const QList<UI::Dock*> panes = docks();
    for (UI::Dock* const pane : panes) {
        pane->setTitleVisible(!hideSingleTabs() || pane->count() != 1);
        pane->updateTabs();
    }
}

void HostWindow::toggleFullScreen()
{
    UI::WidgetUtils::ToggleFullscreen(this);
}

void HostWindow::choosePalette(QAction* action)
{
    const bool dark = action->data().toBool();
    QSettings().setValue(QLatin1String("Display/Dark"), dark);
    Palettes::apply(dark);
}

void HostWindow::fillNotesMenu()
{
    m_notesMenu->clear();
    const QList<NotesPanel*> notes = m_panels.notes();
    for (NotesPanel* const panel : notes) {
        if (UI::Dock::dockForWidget(panel))
            continue;
        QString text = panel->summary();
        m_notesMenu->addAction(text.replace(QLatin1Char('&'), QLatin1String("&&")))
            ->setData(panel->objectName());
    }
    m_notesMenu->setEnabled(!m_notesMenu->isEmpty());
}

void HostWindow::askAboutControl()
{
    m_controlHelp->ask();
}

void HostWindow::about()
{
    QMessageBox::about(
        this, tr("About norvane-host"),
        tr("<h3>norvane-host %1</h3>"
           "<p>A small media workstation, built to show how a program uses the panels, panes and "
           "layouts of the library.</p>"
           "<p>In a viewer the wheel zooms, dragging pans, and the keys +, -, 0 and F zoom in, zoom "
           "out, show one to one and fit.</p>")
            .arg(QApplication::applicationVersion()));
}

}} // namespace Norvane::Host
