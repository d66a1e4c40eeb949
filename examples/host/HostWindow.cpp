#include "HostWindow.h"

#include "ArrangementRecorder.h"
#include "ControlHelp.h"
#include "FilesPanel.h"
#include "InspectorPanel.h"
#include "NotesPanel.h"
#include "Pictures.h"
#include "PicturesPanel.h"
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

HostWindow::HostWindow(UI::ProgressManager* progress)
    : m_recorder(new ArrangementRecorder(this))
    , m_progress(progress)
    , m_analysis(PictureList::thumbnailSize() * 2)
    , m_scripts(&m_pictures)
    , m_panels(&m_pictures, &m_scripts)
    , m_focus(this, &m_panels)
    , m_placer(this, &m_panels, &m_focus)
    , m_controlHelp(new ControlHelp(this))
{
    setObjectName(QLatin1String("HostWindow"));
    setWhatsThis(
        tr("A pane. It holds panels as tabs, which can be dragged to other places of this pane, to another "
           "one, or out of the window."));
    progress->deleteProgressWidget();
    progress->createProgressWidget(this, tr("Tasks"), QString());
    applyOptions();
    buildMenus();
    showViewer(nullptr);
    connect(&m_focus, SIGNAL(viewerChanged(Norvane::Host::ViewerPanel*)), this,
            SLOT(showViewer(Norvane::Host::ViewerPanel*)));
    connect(&m_analysis, SIGNAL(analysed(QString, QImage, QImage)), &m_pictures,
            SLOT(setAnalysis(QString, QImage, QImage)));
    connect(&m_panels, SIGNAL(created(QWidget*)), this, SLOT(connectPanel(QWidget*)));
    connect(this, SIGNAL(widgetRemoved(Norvane::UI::Dock*, QWidget*)), this, SLOT(panelRemoved()));
}

HostWindow::~HostWindow()
{
    // The panels go before their panes do, and panes report.
    disconnect(this, nullptr, this, nullptr);
    // Their tasks are the manager's, and they may ask for anything here.
    m_scripts.finish();
}

QWidget* HostWindow::createPage(QString& id)
{
    // What is a window as a rule can be a panel as well.
    QWidget* const tasks = m_progress->progressWidget();
    return id == tasks->objectName() ? tasks : m_panels.panel(id);
}

void HostWindow::connectPanel(QWidget* panel)
{
    m_focus.addFollower(panel);
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
    } else if (qobject_cast<NotesPanel*>(panel)) {
        connect(panel, SIGNAL(textReplaced(QString)), this, SLOT(keepText(QString)));
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
    m_focus.update();
}

ViewerPanel* HostWindow::focusedViewer() const
{
    return m_focus.viewer();
}

void HostWindow::showViewer(ViewerPanel* viewer)
{
    if (viewer && !viewer->picturePath().isEmpty())
        setWindowTitle(tr("%1 - norvane-host").arg(viewer->windowTitle()));
    else
        setWindowTitle(tr("norvane-host"));
    m_saveFrameAction->setEnabled(viewer && !viewer->picture().isNull());
}

void HostWindow::pictureChanged()
{
    ViewerPanel* const viewer = qobject_cast<ViewerPanel*>(sender());
    m_pictures.addPicture(viewer->picturePath());
    if (Dock* const pane = Dock::dockForWidget(viewer))
        pane->updateTitles();
    m_focus.update();
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

void HostWindow::showTasks()
{
    m_placer.show(m_progress->progressWidget());
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
            m_placer.show(viewer);
            return;
        }
    }
    ViewerPanel* viewer = focusedViewer();
    if (viewer && viewer->picturePath().isEmpty())
        m_placer.show(viewer);
    else
        viewer = static_cast<ViewerPanel*>(m_placer.showNew(PanelRegistry::ViewerKind));
    viewer->openPicture(canonical);
}

void HostWindow::newPanel(QAction* action)
{
    m_placer.showNew(PanelRegistry::Kind(action->data().toInt()));
}

void HostWindow::reopenNotes(QAction* action)
{
    if (QWidget* const notes = m_panels.find(action->data().toString()))
        m_placer.show(notes);
}

}} // namespace Norvane::Host
