#include <ui/docking/DockDrag.h>

#include <ui/docking/DockPrivate.h>
#include <ui/docking/DockTabBar.h>
#include <ui/docking/HoverWidget.h>
#include <ui/toolkit/NativeWindow.h>

#include <QApplication>
#include <QCursor>
#include <QStackedWidget>

namespace Norvane { namespace UI {

namespace {

const Qt::WindowFlags kFlyingFlags = Qt::Tool | Qt::WindowStaysOnTopHint;
const qreal kFlyingOpacity = 0.75;

/// Whether the host has put the flying \a panel somewhere itself. There it stays.
bool wasTaken(QWidget* panel)
{
    if (!panel->parentWidget())
        return false;
    // Not setWindowFlags(), which hides.
    panel->overrideWindowFlags(Qt::Widget);
    panel->setWindowOpacity(1.0);
    return true;
}

void land(QWidget* panel)
{
    panel->hide();
    panel->setWindowFlags(Qt::Widget);
    panel->setWindowOpacity(1.0);
    releaseNativeWindow(panel);
}

} // namespace

DockDrag::DockDrag() = default;

DockDrag& DockDrag::shared()
{
    static DockDrag drag;
    return drag;
}

bool DockDrag::isRunning() const
{
    return m_bar;
}

QWidget* DockDrag::panel() const
{
    return m_panel;
}

DropSide DockDrag::side() const
{
    return m_side;
}

bool DockDrag::begin(DockTabBar* bar, Dock* source, int index, const QPoint& grab, const QPoint& topLeft)
{
    QWidget* const panel = source->widget(index);
    if (!panel)
        return false;
    cancel();
    m_bar = bar;
    m_source = source;
    m_panel = panel;
    m_sourceIndex = index;
    m_grab = grab;
    bar->grabMouse();
    qApp->installEventFilter(bar);

    const QPointer<Dock> pane(source);
    // No title rule here: a title that hides would take the grabbing tab bar with it.
    source->d->release(panel);
    if (m_panel && m_source)
        source->d->reportRemoved(panel);
    // A host that hears of the loss may end the drag or take the panel for itself.
    if (!isRunning() || !m_source || !m_panel || panel->parentWidget()) {
        stop();
        if (pane)
            pane->d->settle();
        return true;
    }
    panel->move(topLeft);
    panel->setWindowFlags(kFlyingFlags);
    panel->setWindowOpacity(kFlyingOpacity);
    panel->show();
    if (!pane)
        return true;
    // An empty tab bar stays as it is: it must not lose the mouse.
    if (source->count() > 0)
        source->d->relayout(source->size());
    source->update();
    source->d->settle();
    return true;
}

Dock* DockDrag::paneAt(const QPoint& mouse) const
{
    const DockMainWindow* const controller = m_source ? m_source->controller() : nullptr;
    return controller ? controller->findDockAt(mouse) : nullptr;
}

void DockDrag::moveTo(const QPoint& mouse, const QPoint& topLeft)
{
    if (!m_panel || wasTaken(m_panel)) {
        stop();
        return;
    }
    m_panel->move(topLeft);
    Dock* const target = paneAt(mouse);
    DropSide side = kDropCentre;
    if (target && target->controller() && target->controller()->splitPanelsByDragging()) {
        const QWidget* const stack = target->stack();
        side = dropSideAt(stack->mapFromGlobal(mouse), stack->rect(), target->size());
    }
    mark(target, side);
}

void DockDrag::mark(Dock* target, DropSide side)
{
    if (target == m_target && side == m_side)
        return;
    m_side = side;
    if (target != m_target) {
        if (m_target)
            m_target->setHover(false);
        m_target = target;
        if (target)
            target->setHover(true);
    }
    if (m_overlay)
        m_overlay->updateOutline();
}

void DockDrag::letGoOfMouse()
{
    if (m_bar) {
        m_bar->releaseMouse();
        qApp->removeEventFilter(m_bar);
    }
    mark(nullptr, kDropCentre);
    // The option that brought it may be off by now.
    hideOverlay();
}

void DockDrag::stop()
{
    letGoOfMouse();
    m_bar = nullptr;
    m_panel = nullptr;
    m_source = nullptr;
}

void DockDrag::drop(const QPoint& mouse, bool floating)
{
    const QPointer<Dock> source(m_source);
    const QPointer<QWidget> panel(m_panel);
    const QPointer<Dock> target(paneAt(mouse));
    const DropSide side = m_side;
    const int index = m_sourceIndex;
    stop();
    if (!source || !panel || wasTaken(panel))
        return;
    land(panel);
    if (target && !floating)
        insertInto(source, destination(target, side), panel);
    else if (!source->d->floatAt(panel, QCursor::pos() - m_grab))
        putBack(source, index, panel);
    if (source)
        source->d->applyTitleRule();
}

Dock* DockDrag::destination(Dock* target, DropSide side)
{
    Dock* part = nullptr;
    switch (side) {
    case kDropLeft:
        part = target->split(Qt::Horizontal, true);
        break;
    case kDropRight:
        part = target->split(Qt::Horizontal, false);
        break;
    case kDropTop:
        part = target->split(Qt::Vertical, true);
        break;
    case kDropBottom:
        part = target->split(Qt::Vertical, false);
        break;
    case kDropCentre:
        break;
    }
    return part ? part : target;
}

void DockDrag::insertInto(Dock* source, Dock* destination, QWidget* panel)
{
    DockWindow* const window = source->dockWindow();
    const bool emptied = destination != source && source->count() == 0 && Dock::isTopLevel(source);
    if (emptied && window && window != source->controller())
        window->close();
    // A panel becomes the last tab of its target, wherever over the tabs it is let go.
    destination->insertWidget(-1, panel);
    destination->setCurrentWidget(panel);
}

void DockDrag::cancel()
{
    const QPointer<Dock> source(m_source);
    const QPointer<QWidget> panel(m_panel);
    const int index = m_sourceIndex;
    stop();
    if (!source || !panel || wasTaken(panel))
        return;
    land(panel);
    putBack(source, index, panel);
}

void DockDrag::putBack(const QPointer<Dock>& source, int index, const QPointer<QWidget>& panel)
{
    source->insertWidget(index, panel);
    if (source && panel)
        source->setCurrentWidget(panel);
}

void DockDrag::cancelFrom(DockTabBar* bar)
{
    if (bar == m_bar)
        cancel();
}

void DockDrag::forgetTarget()
{
    m_target = nullptr;
}

void DockDrag::barHides(DockTabBar* bar)
{
    if (bar != m_bar)
        return;
    letGoOfMouse();
    if (m_panel && !wasTaken(m_panel))
        land(m_panel);
    QCoreApplication::postEvent(bar, new QEvent(QEvent::User));
}

void DockDrag::paneDies(Dock* dock)
{
    if (dock == m_target)
        m_target = nullptr;
    if (m_overlay && m_overlay->pane() == dock)
        hideOverlay();
    if (dock != m_source)
        return;
    const QPointer<QWidget> panel(m_panel);
    stop();
    if (!panel || wasTaken(panel))
        return;
    land(panel);
    if (panel->testAttribute(Qt::WA_DeleteOnClose))
        panel->deleteLater();
}

HoverWidget* DockDrag::overlay() const
{
    return m_overlay;
}

void DockDrag::showOverlay(Dock* dock)
{
    m_overlay = new HoverWidget(dock);
    m_overlay->show();
    if (m_panel)
        m_panel->raise();
}

void DockDrag::hideOverlay()
{
    delete m_overlay.data();
}

}} // namespace Norvane::UI
