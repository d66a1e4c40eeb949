#include "HostWindow.h"

#include "ArrangementRecorder.h"
#include "ColourPanel.h"
#include "ControlHelp.h"
#include "ControlsPanel.h"
#include "FilesPanel.h"
#include "InspectorPanel.h"
#include "NotesPanel.h"
#include "Pictures.h"
#include "PicturesPanel.h"
#include "ScopesPanel.h"
#include "ViewerPanel.h"

#include <ui/docking/Dock.h>
#include <ui/docking/WidgetUtils.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QTimer>

namespace Norvane { namespace Host {

using UI::Dock;

HostWindow::HostWindow()
    : m_recorder(new ArrangementRecorder(this))
    , m_progress(this)
    , m_analysis(PictureList::thumbnailSize() * 2)
    , m_scripts(&m_pictures)
    , m_panels(&m_pictures, &m_scripts)
    , m_controlHelp(new ControlHelp(this))
{
    setObjectName(QLatin1String("HostWindow"));
    setWhatsThis(
        tr("A pane. It holds panels as tabs, which can be dragged to other places of this pane, to another "
           "one, or out of the window."));
    applyOptions();
    buildMenus();
    updateTitle();
    connect(&m_analysis, SIGNAL(analysed(QString, QImage, QImage)), &m_pictures,
            SLOT(setAnalysis(QString, QImage, QImage)));
    connect(&m_panels, SIGNAL(created(QWidget*)), this, SLOT(connectPanel(QWidget*)));
    connect(this, SIGNAL(widgetRemoved(Norvane::UI::Dock*, QWidget*)), this, SLOT(panelRemoved()));
    connect(this, SIGNAL(widgetActivated(Norvane::UI::Dock*, QWidget*)), this,
            SLOT(panelActivated(Norvane::UI::Dock*, QWidget*)));
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(focusMoved(QWidget*, QWidget*)));
}

HostWindow::~HostWindow()
{
    // The panels go before their panes do, and panes report.
    disconnect(this, nullptr, this, nullptr);
    disconnect(qApp, nullptr, this, nullptr);
    // Their tasks are the manager's, and they may ask for anything here.
    m_scripts.finish();
}

QWidget* HostWindow::createPage(QString& id)
{
    return m_panels.panel(id);
}

void HostWindow::connectPanel(QWidget* panel)
{
    if (qobject_cast<ViewerPanel*>(panel)) {
        connect(panel, SIGNAL(pictureChanged()), this, SLOT(pictureChanged()));
        connect(panel, SIGNAL(pictureWanted()), this, SLOT(choosePictures()));
        connect(panel, SIGNAL(picturesDropped(QStringList)), this, SLOT(openPictures(QStringList)));
    } else if (qobject_cast<PicturesPanel*>(panel)) {
        connect(panel, SIGNAL(pictureChosen(QString)), this, SLOT(openPicture(QString)));
    } else if (qobject_cast<FilesPanel*>(panel)) {
        connect(panel, SIGNAL(pictureChosen(QString)), this, SLOT(openPicture(QString)));
        connect(panel, SIGNAL(picturesDropped(QStringList)), this, SLOT(openPictures(QStringList)));
    } else if (qobject_cast<InspectorPanel*>(panel)) {
        connect(panel, SIGNAL(frameChanged(QString, QString)), this,
                SLOT(reinterpretFrame(QString, QString)));
        updateInspectors();
    } else if (qobject_cast<NotesPanel*>(panel)) {
        connect(panel, SIGNAL(textReplaced(QString)), this, SLOT(keepText(QString)));
    } else if (ControlsPanel* const controls = qobject_cast<ControlsPanel*>(panel)) {
        connect(this, SIGNAL(focusedViewerChanged(Norvane::Host::ViewerPanel*)), controls,
                SLOT(setViewer(Norvane::Host::ViewerPanel*)));
        controls->setViewer(focusedViewer());
    } else if (ColourPanel* const colour = qobject_cast<ColourPanel*>(panel)) {
        connect(this, SIGNAL(focusedViewerChanged(Norvane::Host::ViewerPanel*)), colour,
                SLOT(setViewer(Norvane::Host::ViewerPanel*)));
        colour->setViewer(focusedViewer());
    } else if (ScopesPanel* const scopes = qobject_cast<ScopesPanel*>(panel)) {
        connect(this, SIGNAL(focusedViewerChanged(Norvane::Host::ViewerPanel*)), scopes,
                SLOT(setViewer(Norvane::Host::ViewerPanel*)));
        scopes->setViewer(focusedViewer());
    }
}

void HostWindow::panelRemoved()
{
    // It may be on its way into another pane, or be closing at this moment.
    QTimer::singleShot(0, this, SLOT(tidyUp()));
}

void HostWindow::tidyUp()
{
    if (m_restoring)
        return;
    m_recorder->keepStates(m_panels.closedPanels());
    m_panels.deleteClosedPanels();
    viewerMayHaveChanged();
}

void HostWindow::panelActivated(Dock*, QWidget* panel)
{
    if (ViewerPanel* const viewer = qobject_cast<ViewerPanel*>(panel)) {
        m_activeViewer = viewer;
        viewerMayHaveChanged();
    }
}

ViewerPanel* HostWindow::focusedViewer() const
{
    if (Dock::dockForWidget(m_activeViewer))
        return m_activeViewer;
    const QList<ViewerPanel*> viewers = m_panels.viewers();
    for (ViewerPanel* const viewer : viewers) {
        if (Dock::dockForWidget(viewer))
            return viewer;
    }
    return nullptr;
}

void HostWindow::viewerMayHaveChanged()
{
    updateTitle();
    updateInspectors();
    m_saveFrameAction->setEnabled(focusedViewer() && !focusedViewer()->picture().isNull());
    Q_EMIT focusedViewerChanged(focusedViewer());
}

void HostWindow::focusMoved(QWidget*, QWidget* to)
{
    Dock* const pane = Dock::dockForWidget(to);
    if (!pane)
        return;
    m_activePane = pane;
    panelActivated(pane, pane->currentWidget());
}

void HostWindow::pictureChanged()
{
    ViewerPanel* const viewer = qobject_cast<ViewerPanel*>(sender());
    m_pictures.addPicture(viewer->picturePath());
    if (Dock* const pane = Dock::dockForWidget(viewer))
        pane->updateTitles();
    viewerMayHaveChanged();
}

void HostWindow::updateTitle()
{
    if (m_activeViewer && !m_activeViewer->picturePath().isEmpty())
        setWindowTitle(tr("%1 - norvane-host").arg(m_activeViewer->windowTitle()));
    else
        setWindowTitle(tr("norvane-host"));
}

void HostWindow::updateInspectors()
{
    const ViewerPanel* const viewer = focusedViewer();
    const QList<InspectorPanel*> inspectors = m_panels.inspectors();
    for (InspectorPanel* const inspector : inspectors) {
        if (viewer)
            inspector->setPicture(viewer->picturePath(), viewer->picture());
        else
            inspector->setPicture(QString(), QImage());
    }
}

void HostWindow::changeEvent(QEvent* event)
{
    DockMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        m_fullScreenAction->setChecked(UI::WidgetUtils::GetFullscreen(this));
}

void HostWindow::choosePictures()
{
    const QString folderKey = QLatin1String("Folders/Pictures");
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, tr("Open Pictures"), QSettings().value(folderKey).toString(), Pictures::fileFilter());
    if (paths.isEmpty())
        return;
    QSettings().setValue(folderKey, QFileInfo(paths.first()).path());
    openPictures(paths);
}

void HostWindow::analysePictures()
{
    m_analysis.start(m_pictures.paths());
}

void HostWindow::openPictures(const QStringList& paths)
{
    for (const QString& path : paths)
        openPicture(path);
}

void HostWindow::openPicture(const QString& path)
{
    const QString canonical = Pictures::canonicalPath(path);
    const QList<ViewerPanel*> viewers = m_panels.viewers();
    for (ViewerPanel* const viewer : viewers) {
        if (viewer->picturePath() == canonical && Dock::dockForWidget(viewer)) {
            // What could not be read, or was cancelled, is tried once more.
            if (viewer->picture().isNull())
                viewer->openPicture(canonical);
            showPanel(viewer);
            return;
        }
    }
    ViewerPanel* viewer = m_activeViewer;
    if (!viewer || !viewer->picturePath().isEmpty() || !Dock::dockForWidget(viewer)) {
        Dock* const pane = paneForViewers();
        viewer = qobject_cast<ViewerPanel*>(m_panels.createPanel(PanelRegistry::ViewerKind));
        addPanel(viewer, pane);
    }
    viewer->openPicture(canonical);
    showPanel(viewer);
}

void HostWindow::newViewer()
{
    addPanel(m_panels.createPanel(PanelRegistry::ViewerKind), paneForPanels());
}

void HostWindow::newPictures()
{
    addPanel(m_panels.createPanel(PanelRegistry::PicturesKind), paneForPanels());
}

void HostWindow::newNotes()
{
    addPanel(m_panels.createPanel(PanelRegistry::NotesKind), paneForPanels());
}

void HostWindow::newFiles()
{
    addPanel(m_panels.createPanel(PanelRegistry::FilesKind), paneForControls());
}

void HostWindow::newInspector()
{
    addPanel(m_panels.createPanel(PanelRegistry::InspectorKind), paneForControls());
}

void HostWindow::newControls()
{
    addPanel(m_panels.createPanel(PanelRegistry::ControlsKind), paneForControls());
}

void HostWindow::newColour()
{
    addPanel(m_panels.createPanel(PanelRegistry::ColourKind), paneForControls());
}

void HostWindow::newScript()
{
    // Below the pictures, where there is room for lines.
    Dock* const pane = findDockByName(QLatin1String("Notes."), false, true);
    addPanel(m_panels.createPanel(PanelRegistry::ScriptKind), pane ? pane : paneForPanels());
}

void HostWindow::newScopes()
{
    addPanel(m_panels.createPanel(PanelRegistry::ScopesKind), paneForControls());
}

void HostWindow::reopenNotes(QAction* action)
{
    const QString id = action->data().toString();
    // Where the layout had it, or others like it.
    Dock* const pane = findDockByName(id, false, true);
    if (QWidget* const notes = m_panels.find(id))
        addPanel(notes, pane ? pane : paneForPanels());
}

void HostWindow::addPanel(QWidget* panel, Dock* pane)
{
    pane->addWidget(panel, true, false);
    showPanel(panel);
}

void HostWindow::showPanel(QWidget* panel)
{
    Dock::dockForWidget(panel)->setCurrentWidget(panel);
    panel->window()->raise();
    panel->activateWindow();
    panel->setFocus(Qt::OtherFocusReason);
}

Dock* HostWindow::paneForPanels()
{
    const QList<Dock*> panes = docks();
    if (m_activePane && panes.contains(m_activePane))
        return m_activePane;
    if (!panes.isEmpty())
        return panes.first();
    Dock* const pane = createDock();
    addWidget(pane);
    return pane;
}

// Not in front of the viewer that they act on.
Dock* HostWindow::paneForControls()
{
    Dock* const pane = findDockByName(QLatin1String("Pictures."), false, true);
    return pane ? pane : paneForPanels();
}

Dock* HostWindow::paneForViewers()
{
    if (Dock* const pane = Dock::dockForWidget(m_activeViewer))
        return pane;
    // Any pane that has viewers or was made for them: names match up to the dot.
    Dock* const pane = findDockByName(QLatin1String("Viewer."), false, true);
    return pane ? pane : paneForPanels();
}

}} // namespace Norvane::Host
