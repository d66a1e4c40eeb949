#include <ui/docking/DockTree.h>

#include <ui/docking/Dock.h>
#include <ui/docking/DockSplitter.h>

namespace Norvane { namespace UI {

void collectDocks(const QSplitter* splitter, QList<Dock*>& docks)
{
    for (int i = 0; splitter && i < splitter->count(); ++i) {
        QWidget* const child = splitter->widget(i);
        if (const DockSplitter* const inner = qobject_cast<DockSplitter*>(child))
            collectDocks(inner, docks);
        else if (Dock* const dock = qobject_cast<Dock*>(child))
            docks.append(dock);
    }
}

}} // namespace Norvane::UI
