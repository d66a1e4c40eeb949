#include <ui/docking/DockTitleBar.h>

#include <ui/docking/Dock.h>

#include <QPainter>
#include <QTimerEvent>

namespace Norvane { namespace UI {

namespace {

const int kRevealDelay = 200; // milliseconds

} // namespace

DockTitleBar::DockTitleBar(QWidget* parent)
    : QWidget(parent)
{
}

DockTitleBar::~DockTitleBar() = default;

Dock* DockTitleBar::dock() const
{
    return qobject_cast<Dock*>(parentWidget());
}

void DockTitleBar::setPressed(bool pressed)
{
    m_pressed = pressed;
}

void DockTitleBar::hideRevealedTitle()
{
    if (!m_revealed || underMouse() || m_pressed)
        return;
    dock()->setTitleVisible(false);
    m_revealed = false;
}

void DockTitleBar::enterEvent(EnterEvent* event)
{
    QWidget::enterEvent(event);
    if (!dock()->titleVisible()) {
        m_revealTimer.start(kRevealDelay, this);
        update();
    }
}

void DockTitleBar::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_revealTimer.timerId())
        return;
    m_revealTimer.stop();
    dock()->setTitleVisible(true);
    m_revealed = true;
}

void DockTitleBar::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    m_revealTimer.stop();
    hideRevealedTitle();
    if (!dock()->titleVisible())
        update();
}

void DockTitleBar::paintEvent(QPaintEvent*)
{
    if (dock()->titleVisible() || !testAttribute(Qt::WA_UnderMouse))
        return;
    QPainter painter(this);
    painter.fillRect(rect(), palette().brush(QPalette::Highlight));
}

}} // namespace Norvane::UI
