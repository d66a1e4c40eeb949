// How the main window shows arrangements, the user's own and the steps that were recorded.

#include "ArrangementMenu.h"
#include "ArrangementRecorder.h"
#include "Arrangements.h"
#include "HostWindow.h"
#include "LayoutDocument.h"
#include "ViewerPanel.h"

#include <ui/docking/Dock.h>
#include <ui/docking/LayoutInspector.h>
#include <ui/toolkit/Screens.h>

#include <QBuffer>
#include <QMenuBar>

namespace Norvane { namespace Host {

void HostWindow::buildArrangementMenu()
{
    m_arrangementMenu = new ArrangementMenu(this, ArrangementFolder::defaultPath());
    menuBar()->addMenu(m_arrangementMenu);
    connect(m_arrangementMenu, SIGNAL(builtInChosen(int)), this, SLOT(showBuiltIn(int)));
    connect(m_arrangementMenu, SIGNAL(ownChosen(QString, QByteArray)), this,
            SLOT(showOwn(QString, QByteArray)));
    connect(m_arrangementMenu, SIGNAL(undoChosen()), this, SLOT(undoArrangement()));
    connect(m_arrangementMenu, SIGNAL(redoChosen()), this, SLOT(redoArrangement()));
    connect(m_recorder, SIGNAL(changed()), this, SLOT(updateArrangementSteps()));
}

UI::DockWindow* HostWindow::createWindow()
{
    UI::DockWindow* const window = DockMainWindow::createWindow();
    m_recorder->watch(window);
    return window;
}

UI::Dock* HostWindow::createDock()
{
    UI::Dock* const pane = DockMainWindow::createDock();
    m_recorder->watch(pane);
    return pane;
}

void HostWindow::arrange(Arrangement arrangement)
{
    ArrangedPanels panels;
    panels.viewers = idsToArrange(PanelRegistry::ViewerKind);
    panels.pictures = idsToArrange(PanelRegistry::PicturesKind);
    // They share the pane of the pictures.
    for (const PanelRegistry::Kind kind :
         {PanelRegistry::FilesKind, PanelRegistry::InspectorKind, PanelRegistry::ControlsKind,
          PanelRegistry::ColourKind, PanelRegistry::ScopesKind})
        panels.pictures += openIds(kind);
    panels.notes = idsToArrange(PanelRegistry::NotesKind) + openIds(PanelRegistry::ScriptKind);
    panels.currentViewer = focusedViewer() ? focusedViewer()->objectName() : panels.viewers.first();
    restoreSafely(arrangementDocument(arrangement, panels, place()), tr("The arrangement"));
}

QStringList HostWindow::idsToArrange(PanelRegistry::Kind kind)
{
    const QStringList open = openIds(kind);
    if (!open.isEmpty())
        return open;
    const QStringList all = m_panels.ids(kind);
    return all.isEmpty() ? QStringList(m_panels.createPanel(kind)->objectName()) : all;
}

QStringList HostWindow::openIds(PanelRegistry::Kind kind) const
{
    QStringList open;
    const QStringList all = m_panels.ids(kind);
    for (const QString& id : all) {
        if (UI::Dock::dockForWidget(m_panels.find(id)))
            open.append(id);
    }
    return open;
}

MainWindowPlace HostWindow::place() const
{
    MainWindowPlace place;
    place.screen = UI::Screens::numberOf(this);
    place.frame = frameGeometry();
    place.maximized = isMaximized();
    place.fullscreen = isFullScreen();
    return place;
}

void HostWindow::showBuiltIn(int arrangement)
{
    m_recorder->recordNow();
    arrange(Arrangement(arrangement));
}

void HostWindow::showOwn(const QString& name, const QByteArray& layout)
{
    m_recorder->recordNow();
    const QStringList viewers = openIds(PanelRegistry::ViewerKind);
    if (!restoreSafely(withoutStatesOfPanels(layout), tr("The arrangement \"%1\"").arg(name)))
        return;
    // Pictures that are open stay open, wherever it was made.
    for (const QString& id : viewers) {
        QWidget* const viewer = m_panels.find(id);
        // The panes of before, which are about to go, still have those panels that are in no pane now.
        if (docks().contains(UI::Dock::dockForWidget(viewer)))
            continue;
        m_placer.paneFor(id)->addWidget(viewer, false, false);
    }
}

void HostWindow::undoArrangement()
{
    showStep(m_recorder->undo());
}

void HostWindow::redoArrangement()
{
    showStep(m_recorder->redo());
}

void HostWindow::showStep(const QByteArray& layout)
{
    if (layout.isEmpty())
        return;
    restoreSafely(withoutStatesOfPanels(layout), tr("The arrangement"));
    // It may be from a time when the display options were others.
    showTitles();
}

/// What panels show is theirs, only their places are the arrangement's. Those that come back from being
/// closed get their states.
QByteArray HostWindow::withoutStatesOfPanels(const QByteArray& layout) const
{
    QBuffer buffer;
    buffer.setData(layout);
    buffer.open(QIODevice::ReadOnly);
    const UI::LayoutInspector inspector(&buffer);
    // One that cannot be restored is left as it is, so that its problems are told with their lines.
    if (!inspector.isRestorable())
        return layout;
    QMap<QString, QString> none;
    const QStringList ids = inspector.pageIds();
    for (const QString& id : ids) {
        if (m_panels.find(id))
            none.insert(id, QString());
    }
    return LayoutDocument::withStates(layout, none);
}

void HostWindow::updateArrangementSteps()
{
    m_arrangementMenu->setCanUndo(m_recorder->canUndo());
    m_arrangementMenu->setCanRedo(m_recorder->canRedo());
}

}} // namespace Norvane::Host
