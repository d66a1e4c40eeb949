#include <ui/docking/DockTabBar.h>

#include <ui/docking/Dock.h>
#include <ui/docking/DockDrag.h>
#include <ui/docking/DockMainWindow.h>
#include <ui/docking/DockTitleBar.h>
#include <ui/toolkit/Events.h>
#include <ui/toolkit/Painting.h>

#include <QApplication>
#include <QStackedWidget>
#include <QStylePainter>

namespace Norvane { namespace UI {

namespace {

const int kTearOffMargin = 5;
const QPoint kNoPress(-1, -1);

} // namespace

DockTabBar::DockTabBar(Dock* dock, DockTitleBar* parent)
    : QTabBar(parent)
    , m_dock(dock)
    , m_titleBar(parent)
{
    setFocusPolicy(Qt::NoFocus);
    if (dock->controller() && dock->controller()->tabsAreClosable()) {
        setTabsClosable(true);
        connect(this, SIGNAL(tabCloseRequested(int)), dock, SLOT(closeTab(int)));
    }
}

DockTabBar::~DockTabBar() = default;

QRect DockTabBar::fullTabRect(int index) const
{
    QRect rect = tabRect(index);
    rect.setHeight(qMax(rect.height(), fontMetrics().lineSpacing()));
    return rect;
}

int DockTabBar::dropIndexAt(const QPoint& position) const
{
    const int index = tabAt(position);
    if (index < 0)
        return -1;
    const QRect tab = fullTabRect(index);
    return position.x() > (tab.left() + tab.right()) / 2 ? index + 1 : index;
}

void DockTabBar::onMouseOverDock(bool on)
{
    if (on == m_mouseOverDock)
        return;
    m_mouseOverDock = on;
    update();
}

void DockTabBar::mousePressEvent(QMouseEvent* event)
{
    DockDrag::shared().forgetTarget();
    // A tab that is half scrolled away moves when it is pressed: the one to drag is the one that was hit.
    m_pressedPanel = m_dock->widget(tabAt(mousePosition(event)));
    const QPointer<DockTabBar> self(this);
    QTabBar::mousePressEvent(event);
    if (!self || event->button() != Qt::LeftButton)
        return;
    m_titleBar->setPressed(true);
    if (event->modifiers() & Qt::ControlModifier) {
        m_pressPos = kNoPress;
        m_dock->floatActiveTab();
    } else {
        m_pressPos = mousePosition(event);
        m_dock->setFocus(Qt::OtherFocusReason);
    }
}

void DockTabBar::mouseMoveEvent(QMouseEvent* event)
{
    DockDrag& drag = DockDrag::shared();
    if (!drag.isRunning() && m_dragTab < 0)
        startTabDrag(event);
    if (!drag.isRunning() && m_dragTab >= 0) {
        if (leavesTitleBar(mousePosition(event))) {
            tearOff(event);
            return;
        }
        const QPointer<DockTabBar> self(this);
        reorder(mousePosition(event).x());
        if (!self)
            return;
    }
    if (drag.isRunning())
        drag.moveTo(globalMousePosition(event), globalMousePosition(event) - m_pressPos);
    QTabBar::mouseMoveEvent(event);
}

void DockTabBar::startTabDrag(const QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton) || m_pressPos.x() < 0)
        return;
    if ((mousePosition(event) - m_pressPos).manhattanLength() < 2 * QApplication::startDragDistance())
        return;
    m_dragTab = m_pressedPanel ? m_dock->stack()->indexOf(m_pressedPanel) : -1;
    const QRect tab = fullTabRect(m_dragTab);
    m_grabOffset = qBound(0, m_pressPos.x() - tab.left(), tab.width());
}

// The right bound is the title bar's own, not shifted by the tab bar's place in it.
bool DockTabBar::leavesTitleBar(const QPoint& position) const
{
    const QRect title = m_titleBar->rect();
    const QRect bounds(QPoint(-x() - kTearOffMargin, -kTearOffMargin),
                       QPoint(title.right() + kTearOffMargin, title.bottom() + kTearOffMargin));
    return !bounds.contains(position);
}

void DockTabBar::tearOff(const QMouseEvent* event)
{
    const int index = m_dragTab;
    m_dragTab = -1;
    DockDrag::shared().begin(this, m_dock, index, mousePosition(event),
                             globalMousePosition(event) - m_pressPos);
}

void DockTabBar::reorder(int mouseX)
{
    const QPointer<DockTabBar> self(this);
    m_dragX = mouseX - m_grabOffset;
    m_dock->setUpdatesEnabled(false);
    const int index = reorderedIndex();
    if (index != m_dragTab)
        moveDraggedTab(index);
    if (!self)
        return;
    m_dock->setUpdatesEnabled(true);
    update();
}

int DockTabBar::reorderedIndex() const
{
    QRect dragged = fullTabRect(m_dragTab);
    dragged.moveLeft(m_dragX);
    if (m_dragTab > 0 && dragged.left() <= fullTabRect(m_dragTab - 1).left())
        return m_dragTab - 1;
    if (m_dragTab + 1 < count() && dragged.right() >= fullTabRect(m_dragTab + 1).right())
        return m_dragTab + 1;
    return m_dragTab;
}

void DockTabBar::moveDraggedTab(int index)
{
    QWidget* const panel = m_dock->widget(m_dragTab);
    const QPointer<DockTabBar> self(this);
    m_dock->insertWidget(index, panel);
    if (!self)
        return;
    setCurrentIndex(index);
    m_dragTab = index;
}

void DockTabBar::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<DockTabBar> self(this);
    m_titleBar->setPressed(false);
    const bool tabWasDragged = m_dragTab >= 0;
    m_dragTab = -1;
    if (tabWasDragged)
        update();
    else if (DockDrag::shared().isRunning())
        DockDrag::shared().drop(globalMousePosition(event), event->modifiers() & Qt::ControlModifier);
    if (!self)
        return;
    // Only now: a tab bar that hides in the middle of a drag cancels it.
    m_titleBar->hideRevealedTitle();
    if (!tabWasDragged)
        QTabBar::mouseReleaseEvent(event);
}

void DockTabBar::hideEvent(QHideEvent* event)
{
    m_dragTab = -1;
    DockDrag::shared().barHides(this);
    QTabBar::hideEvent(event);
}

// Posted when the bar was hidden in the middle of its drag.
void DockTabBar::customEvent(QEvent*)
{
    DockDrag::shared().cancelFrom(this);
}

bool DockTabBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        m_pressPos = kNoPress;
        DockDrag::shared().cancel();
        return true;
    }
    return QTabBar::eventFilter(watched, event);
}

void DockTabBar::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    const int current = currentIndex();
    for (int i = 0; i < count(); ++i) {
        if (i != current)
            paintTab(painter, i);
    }
    if (current >= 0)
        paintTab(painter, current);
}

QRect DockTabBar::draggedTabRect() const
{
    QRect rect = fullTabRect(m_dragTab);
    rect.moveLeft(qMin(qMax(0, m_dragX), width() - rect.width()));
    return rect;
}

void DockTabBar::paintTab(QStylePainter& painter, int index)
{
    StyleOptionTab option;
    initStyleOption(&option, index);
    option.rect = index == m_dragTab ? draggedTabRect() : fullTabRect(index);
    if (!isTabEnabled(index))
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    if (index == currentIndex())
        highlight(option.palette);
    else if (m_dragTab >= 0)
        option.state &= ~QStyle::State_MouseOver;
    painter.drawControl(QStyle::CE_TabBarTab, option);
}

void DockTabBar::highlight(QPalette& tabPalette) const
{
    if (!m_dock->controller() || !m_dock->controller()->highlightCurrentTab())
        return;
    const QWidget* const focus = QApplication::focusWidget();
    const QBrush brush = palette().brush(QPalette::Highlight);
    if (focus && (focus == m_dock || m_dock->isAncestorOf(focus)))
        tabPalette.setBrush(QPalette::WindowText, brush);
    else if (m_mouseOverDock)
        tabPalette.setBrush(QPalette::WindowText, brush.color().lighter(150));
}

}} // namespace Norvane::UI
