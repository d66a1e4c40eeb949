#include "PanelRegistry.h"

#include "ColourPanel.h"
#include "ControlsPanel.h"
#include "FilesPanel.h"
#include "InspectorPanel.h"
#include "NotesPanel.h"
#include "PictureList.h"
#include "PicturesPanel.h"
#include "ScopesPanel.h"
#include "ScriptPanel.h"
#include "ViewerPanel.h"

#include <ui/docking/Dock.h>

namespace Norvane { namespace Host {

namespace {

/// By Kind.
const char* const kKindNames[] = {"Viewer",   "Pictures", "Notes",  "Files", "Inspector",
                                  "Controls", "Colour",   "Script", "Scopes"};
const int kKindCount = sizeof kKindNames / sizeof kKindNames[0];

template <class Panel>
QList<Panel*> panelsOfType(const QMap<int, QPointer<QWidget>>& panels)
{
    QList<Panel*> found;
    for (const QPointer<QWidget>& panel : panels) {
        if (Panel* const typed = qobject_cast<Panel*>(panel.data()))
            found.append(typed);
    }
    return found;
}

} // namespace

PanelRegistry::PanelRegistry(PictureList* pictures, ScriptInterpreter* scripts, QObject* parent)
    : QObject(parent)
    , m_pictures(pictures)
    , m_scripts(scripts)
{
}

PanelRegistry::~PanelRegistry()
{
    for (const QMap<int, QPointer<QWidget>>& panels : m_panels) {
        for (const QPointer<QWidget>& panel : panels)
            delete panel;
    }
}

QWidget* PanelRegistry::panel(const QString& id)
{
    Id wanted;
    if (!readId(id, &wanted))
        return nullptr;
    QWidget* const known = m_panels.value(wanted.kind).value(wanted.number);
    return known ? known : create(wanted.kind, wanted.number);
}

QWidget* PanelRegistry::createPanel(Kind kind)
{
    int number = 1;
    while (m_panels.value(kind).value(number))
        ++number;
    return create(kind, number);
}

QWidget* PanelRegistry::find(const QString& id) const
{
    Id wanted;
    return readId(id, &wanted) ? m_panels.value(wanted.kind).value(wanted.number).data() : nullptr;
}

QStringList PanelRegistry::ids(Kind kind) const
{
    QStringList ids;
    const QList<QWidget*> panels = panelsOfType<QWidget>(m_panels.value(kind));
    for (const QWidget* panel : panels)
        ids.append(panel->objectName());
    return ids;
}

QList<ViewerPanel*> PanelRegistry::viewers() const
{
    return panelsOfType<ViewerPanel>(m_panels.value(ViewerKind));
}

QList<NotesPanel*> PanelRegistry::notes() const
{
    return panelsOfType<NotesPanel>(m_panels.value(NotesKind));
}

QList<QWidget*> PanelRegistry::closedPanels() const
{
    QList<QWidget*> closed;
    for (const QMap<int, QPointer<QWidget>>& panels : m_panels) {
        const QList<QWidget*> existing = panelsOfType<QWidget>(panels);
        for (QWidget* panel : existing) {
            // A panel under the mouse, between two panes, is a visible window of its own.
            if (!UI::Dock::dockForWidget(panel) && !panel->isVisible())
                closed.append(panel);
        }
    }
    return closed;
}

void PanelRegistry::deleteClosedPanels()
{
    const QList<QWidget*> closed = closedPanels();
    for (QWidget* panel : closed) {
        const NotesPanel* const notes = qobject_cast<NotesPanel*>(panel);
        if (!notes || notes->layoutState().isEmpty())
            delete panel;
    }
}

bool PanelRegistry::readId(const QString& text, Id* id)
{
    const int dot = int(text.lastIndexOf(QLatin1Char('.')));
    const QString kind = text.left(qMax(0, dot));
    for (int i = 0; i < kKindCount; ++i) {
        if (kind != QLatin1String(kKindNames[i]))
            continue;
        id->kind = Kind(i);
        id->number = text.mid(dot + 1).toInt();
        // "Viewer.01" would be a second name of "Viewer.1".
        return id->number > 0 && text == idText(id->kind, id->number);
    }
    return false;
}

QString PanelRegistry::idText(Kind kind, int number)
{
    return QString::fromLatin1("%1.%2").arg(QLatin1String(kKindNames[kind])).arg(number);
}

QWidget* PanelRegistry::create(Kind kind, int number)
{
    QWidget* panel = nullptr;
    switch (kind) {
    case ViewerKind:
        panel = new ViewerPanel(number);
        break;
    case PicturesKind:
        panel = new PicturesPanel(m_pictures, number);
        break;
    case NotesKind:
        panel = new NotesPanel(number);
        break;
    case FilesKind:
        panel = new FilesPanel(number);
        break;
    case InspectorKind:
        panel = new InspectorPanel(number);
        break;
    case ControlsKind:
        panel = new ControlsPanel(m_pictures, number);
        break;
    case ColourKind:
        panel = new ColourPanel(number);
        break;
    case ScriptKind:
        panel = new ScriptPanel(m_scripts, number);
        break;
    case ScopesKind:
        panel = new ScopesPanel(number);
        break;
    }
    panel->setObjectName(idText(kind, number));
    m_panels[kind][number] = panel;
    Q_EMIT created(panel);
    return panel;
}

}} // namespace Norvane::Host
