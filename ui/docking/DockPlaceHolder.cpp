#include <ui/docking/DockPlaceHolder.h>

#include <QPainter>

namespace Norvane { namespace UI {

DockPlaceHolder::DockPlaceHolder(QWidget* parent)
    : QWidget(parent)
{
    // It belongs to its pane: no host waits for it.
    setAttribute(Qt::WA_DeleteOnClose);
}

DockPlaceHolder::~DockPlaceHolder() = default;

QString DockPlaceHolder::layoutState() const
{
    return m_layoutState;
}

void DockPlaceHolder::setLayoutState(const QString& state)
{
    m_layoutState = state;
}

void DockPlaceHolder::paintEvent(QPaintEvent* event)
{
    if (windowTitle().isEmpty()) {
        QWidget::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QFont font = painter.font();
    font.setPixelSize(25);
    painter.setFont(font);
    painter.setPen(Qt::gray);
    painter.drawText(rect(), Qt::AlignCenter, windowTitle());
}

}} // namespace Norvane::UI
