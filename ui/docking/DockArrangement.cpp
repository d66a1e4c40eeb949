// A pane in its window: splitting, floating, expanding, full screen.

#include <ui/docking/DockPrivate.h>
#include <ui/docking/DockSplitter.h>
#include <ui/docking/WidgetUtils.h>

#include <QApplication>
#include <QFile>
#include <QStackedWidget>

namespace Norvane { namespace UI {

namespace {

/// Keeps the keyboard focus in a pane while the pane moves to another parent, which would take it away.
class FocusKeeper
{
public:
    explicit FocusKeeper(QWidget* pane)
    {
        QWidget* const focus = QApplication::focusWidget();
        if (focus && (focus == pane || pane->isAncestorOf(focus)))
            m_focus = focus;
    }
    ~FocusKeeper()
    {
        if (m_focus)
            m_focus->setFocus(Qt::OtherFocusReason);
    }

private:
    QPointer<QWidget> m_focus;
};

} // namespace

DockWindow* Dock::dockWindow() const
{
    for (QWidget* ancestor = parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        if (DockWindow* const window = qobject_cast<DockWindow*>(ancestor))
            return window;
    }
    return nullptr;
}

bool Dock::isTopLevel(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const QSplitter* const splitter = qobject_cast<const QSplitter*>(widget);
        if (splitter && splitter->count() > 1)
            return false;
    }
    return true;
}

bool Dock::Private::parentCanBeClosed() const
{
    const DockWindow* const window = q->dockWindow();
    return stack->count() == 0 && window && window != controller && isTopLevel(q);
}

Dock* Dock::split(Qt::Orientation orientation, bool before)
{
    DockSplitter* const splitter = qobject_cast<DockSplitter*>(parentWidget());
    Dock* const pane = splitter && d->controller ? d->controller->createDock() : nullptr;
    if (!pane)
        return nullptr;
    const FocusKeeper focus(this);
    const int index = splitter->indexOf(this);
    QList<int> sizes = splitter->sizes();

    if (splitter->orientation() != orientation && splitter->count() > 1) {
        DockSplitter* const inner = new DockSplitter(orientation);
        splitter->insertWidget(index, inner);
        inner->addWidget(before ? pane : this);
        inner->addWidget(before ? this : pane);
        const int extent = orientation == Qt::Horizontal ? inner->width() : inner->height();
        inner->setSizes(QList<int>() << extent << extent);
        inner->updateDocks();
    } else {
        splitter->setOrientation(orientation);
        splitter->insertWidget(before ? index : index + 1, pane);
        sizes[index] /= 2;
        sizes.insert(index + 1, sizes[index]);
    }
    splitter->setSizes(sizes);
    splitter->updateDocks();
    return pane;
}

void Dock::splitHorizontal()
{
    split(Qt::Horizontal, false);
}

void Dock::splitVertical()
{
    split(Qt::Vertical, false);
}

void Dock::transposeDock()
{
    if (DockSplitter* const splitter = qobject_cast<DockSplitter*>(parentWidget()))
        splitter->setOrientation(splitter->orientation() == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal);
}

void Dock::Private::showInWindow(DockWindow* window, Dock* content, const QPoint& position) const
{
    window->addWidget(content);
    controller->addFloatingDock(window);
    window->move(position);
    window->resize(q->size());
    window->show();
    window->activateWindow();
    window->raise();
}

bool Dock::Private::floatAt(QWidget* widget, const QPoint& position)
{
    DockWindow* const window = controller ? controller->createWindow() : nullptr;
    Dock* const pane = window ? controller->createDock() : nullptr;
    if (!pane) {
        delete window;
        return false;
    }
    const QPointer<Dock> self(q);
    pane->addWidget(widget, true, false);
    if (!self)
        return true;
    showInWindow(window, pane, position);
    if (self && parentCanBeClosed())
        q->dockWindow()->close();
    return true;
}

void Dock::floatWidgetAt(QWidget* widget, QPoint globalPosition)
{
    if (widget)
        d->floatAt(widget, globalPosition);
}

void Dock::floatActiveTab()
{
    if (currentWidget())
        floatWidgetAt(currentWidget(), mapToGlobal(QPoint(0, 0)));
}

void Dock::floatDock()
{
    const QPoint position = mapToGlobal(QPoint(0, 0));
    DockWindow* const window = d->controller ? d->controller->createWindow() : nullptr;
    Dock* const pane = window ? d->controller->createDock() : nullptr;
    if (!pane) {
        delete window;
        return;
    }
    const QPointer<Dock> self(this);
    const QList<QPointer<QWidget>> panels = d->panels;
    for (int i = static_cast<int>(panels.size()) - 1; i >= 0; --i) {
        if (panels[i])
            pane->addWidget(panels[i], true, false);
    }
    if (self)
        d->showInWindow(window, pane, position);
}

void Dock::setExpanded(bool expanded)
{
    if (expanded == d->expanded)
        return;
    QList<DockSplitter*> splitters;
    QList<int> indexes;
    QWidget* child = this;
    for (QWidget* ancestor = parentWidget(); ancestor;
         child = ancestor, ancestor = ancestor->parentWidget()) {
        if (DockSplitter* const splitter = qobject_cast<DockSplitter*>(ancestor)) {
            splitters.append(splitter);
            indexes.append(splitter->indexOf(child));
        }
    }
    if (expanded) {
        for (int i = 0; i < splitters.size(); ++i) {
            if (indexes[i] != -1)
                splitters[i]->expand(indexes[i]);
        }
    } else {
        for (int i = static_cast<int>(splitters.size()) - 1; i >= 0; --i)
            splitters[i]->expand(-1);
    }
    d->expanded = expanded;
}

void Dock::fullscreenDock()
{
    WidgetUtils::SetFullscreen(window(), !WidgetUtils::GetFullscreen(window()), nullptr);
}

bool Dock::isFullscreenDock() const
{
    return window() && WidgetUtils::GetFullscreen(window());
}

void Dock::dumpLayout()
{
    QFile file(QLatin1String("/tmp/layout.xml"));
    if (d->controller && file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        d->controller->saveLayout(&file, nullptr);
}

}} // namespace Norvane::UI
