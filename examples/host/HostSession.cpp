// How the main window restores and saves arrangements.

#include "ArrangementRecorder.h"
#include "Arrangements.h"
#include "CommandLine.h"
#include "HostWindow.h"
#include "LayoutStore.h"
#include "NotesPanel.h"
#include "Pictures.h"
#include "ViewerPanel.h"

#include <ui/docking/Dock.h>
#include <ui/toolkit/Screens.h>

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace Norvane { namespace Host {

namespace {

const QSize kDefaultSize(1180, 760);

QStringList samplePictures()
{
    const QDir folder(QLatin1String(":/samples"));
    QStringList paths;
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names)
        paths.append(folder.filePath(name));
    return paths;
}

/// For a layout that was not restored: quitting writes another one in its place, and it may hold notes.
void keepFormerLayout(const QString& path)
{
    const QString copy = path + QLatin1Char('~');
    if (!QFile::exists(path))
        return;
    QFile::remove(copy);
    QFile::copy(path, copy);
}

QString layoutFilter()
{
    return HostWindow::tr("Layouts (*.layout);;All files (*)");
}

} // namespace

void HostWindow::start(const CommandLine& commandLine)
{
    const QString path =
        commandLine.layoutPath.isEmpty() ? LayoutStore::defaultPath() : commandLine.layoutPath;
    m_layoutPath = QFileInfo(path).absoluteFilePath();
    const QRect available = UI::Screens::availableGeometry(0);
    resize(kDefaultSize.boundedTo(available.size()));
    QRect frame = frameGeometry();
    frame.moveCenter(available.center());
    move(frame.topLeft());
    show();
    if (commandLine.fresh)
        keepFormerLayout(m_layoutPath);
    const bool restored = !commandLine.fresh && restoreSession();
    m_started = true;
    if (restored)
        openPictures(commandLine.pictures);
    else
        showFirstArrangement(commandLine.pictures);
    if (!commandLine.scriptPath.isEmpty())
        runScript(commandLine.scriptPath);
    m_recorder->start();
}

void HostWindow::runScript(const QString& path)
{
    QWidget* panel = m_panels.find(openIds(PanelRegistry::ScriptKind).value(0));
    if (panel)
        m_placer.show(panel);
    else
        panel = m_placer.showNew(PanelRegistry::ScriptKind);
    // When the program is ready for its user, as scripts find it later.
    QMetaObject::invokeMethod(panel, "runFile", Qt::QueuedConnection, Q_ARG(QString, path));
}

void HostWindow::showFirstArrangement(const QStringList& pictures)
{
    const QStringList shown = pictures.isEmpty() ? samplePictures() : pictures;
    for (const QString& picture : shown)
        qobject_cast<ViewerPanel*>(m_panels.createPanel(PanelRegistry::ViewerKind))->openPicture(picture);
    arrange(kSideBySideArrangement);
}

bool HostWindow::restoreSession()
{
    const QMap<QString, QString> closedNotes = LayoutStore::readClosedNotes(m_layoutPath);
    const bool restored = QFile::exists(m_layoutPath) && restoreFile(m_layoutPath);
    if (!restored)
        keepFormerLayout(m_layoutPath);
    for (QMap<QString, QString>::const_iterator i = closedNotes.begin(); i != closedNotes.end(); ++i) {
        QWidget* const known = m_panels.find(i.key());
        QWidget* const panel =
            known ? m_panels.createPanel(PanelRegistry::NotesKind) : m_panels.panel(i.key());
        if (NotesPanel* const notes = qobject_cast<NotesPanel*>(panel))
            notes->setLayoutState(i.value());
    }
    return restored;
}

bool HostWindow::saveSession(QString* problem)
{
    QMap<QString, QString> closedNotes;
    const QList<NotesPanel*> notes = m_panels.notes();
    for (NotesPanel* const panel : notes) {
        if (!UI::Dock::dockForWidget(panel) && !panel->layoutState().isEmpty())
            closedNotes.insert(panel->objectName(), panel->layoutState());
    }
    if (!LayoutStore::write(m_layoutPath, LayoutStore::layoutOf(this), problem))
        return false;
    if (LayoutStore::writeClosedNotes(m_layoutPath, closedNotes))
        return true;
    *problem = tr("The closed notes cannot be written.");
    return false;
}

void HostWindow::closeEvent(QCloseEvent* event)
{
    // The script has yet to return to a window that is there.
    if (m_scripts.isRunning()) {
        connect(&m_scripts, SIGNAL(runningChanged(bool)), this, SLOT(closeAfterScript(bool)),
                Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
        m_scripts.interrupt();
        event->ignore();
        return;
    }
    QString problem;
    // Before the panes are closed, and with them the arrangement.
    if (m_started && !saveSession(&problem)) {
        const QString text = tr("The arrangement cannot be saved in \"%1\".\n%2\n\nQuit all the same?");
        const QMessageBox::StandardButton answer =
            QMessageBox::warning(this, tr("Quit"), text.arg(QDir::toNativeSeparators(m_layoutPath), problem),
                                 QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
        if (answer != QMessageBox::Discard) {
            event->ignore();
            return;
        }
    }
    // A window that was never shown has no place; as a panel it is the layout's.
    const QWidget* const tasks = m_progress->progressWidget();
    if (tasks->isWindow() && tasks->testAttribute(Qt::WA_WState_Created))
        m_progress->saveState();
    DockMainWindow::closeEvent(event);
}

void HostWindow::closeAfterScript(bool isRunning)
{
    if (isRunning)
        return;
    disconnect(&m_scripts, nullptr, this, SLOT(closeAfterScript(bool)));
    close();
}

void HostWindow::chooseLayoutToSave()
{
    QFileDialog dialog(this, tr("Save Layout"), QFileInfo(m_layoutPath).path(), layoutFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QLatin1String("layout"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().first();
    QString problem;
    if (!LayoutStore::write(path, LayoutStore::layoutOf(this), &problem)) {
        QMessageBox::warning(
            this, tr("Save Layout"),
            tr("\"%1\" cannot be written.\n\n%2").arg(QDir::toNativeSeparators(path), problem));
    }
}

void HostWindow::chooseLayoutToOpen()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open Layout"), QFileInfo(m_layoutPath).path(), layoutFilter());
    if (!path.isEmpty())
        restoreFile(path);
}

bool HostWindow::restoreFile(const QString& path)
{
    const QString name = tr("\"%1\"").arg(QDir::toNativeSeparators(path));
    QByteArray layout;
    QString problem;
    if (LayoutStore::read(path, &layout, &problem))
        return restoreSafely(layout, name);
    QMessageBox::warning(this, tr("Layout"), tr("%1 cannot be read.\n\n%2").arg(name, problem));
    return false;
}

bool HostWindow::restoreSafely(const QByteArray& layout, const QString& name)
{
    const QString problems = LayoutStore::problemsOf(layout);
    if (!problems.isEmpty()) {
        QMessageBox::warning(
            this, tr("Layout"),
            tr("%1 cannot be restored. Nothing has been changed.\n\n%2").arg(name, problems));
        return false;
    }
    const QByteArray before = LayoutStore::layoutOf(this);
    const QPointer<ViewerPanel> viewer = focusedViewer();
    m_restoring = true;
    setFocusPage(QString());
    const bool restored = LayoutStore::restore(this, layout);
    if (!restored && LayoutStore::restore(this, before))
        m_keptTexts.clear();
    m_restoring = false;
    restoreKeptTexts();
    m_focus.setViewer(viewer);
    focusAfterRestore();
    panelRemoved();
    if (!restored) {
        QMessageBox::warning(this, tr("Layout"),
                             tr("%1 could not be restored. The former arrangement is back.").arg(name));
    }
    return restored;
}

void HostWindow::rebuildPanes()
{
    restoreSafely(LayoutStore::layoutOf(this), tr("The arrangement"));
}

void HostWindow::focusAfterRestore()
{
    if (QWidget* const panel = m_panels.find(getFocusPage()))
        panel->setFocus(Qt::OtherFocusReason);
    else if (focusedViewer())
        focusedViewer()->setFocus(Qt::OtherFocusReason);
}

void HostWindow::keepText(const QString& text)
{
    m_keptTexts.append(text);
}

void HostWindow::restoreKeptTexts()
{
    while (!m_keptTexts.isEmpty()) {
        NotesPanel* const notes = qobject_cast<NotesPanel*>(m_panels.createPanel(PanelRegistry::NotesKind));
        notes->setLayoutState(m_keptTexts.takeFirst());
    }
}

}} // namespace Norvane::Host
