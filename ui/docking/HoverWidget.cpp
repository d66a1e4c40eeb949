#include <ui/docking/HoverWidget.h>

#include <ui/docking/Dock.h>
#include <ui/docking/DockDrag.h>

#include <QPainter>
#include <QStackedWidget>

namespace Norvane { namespace UI {

namespace {

const int kPenWidth = 2;

} // namespace

HoverWidget::HoverWidget(Dock* dock)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_pane(dock)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setPalette(dock->palette());
    const QWidget* const stack = dock->stack();
    setGeometry(QRect(stack->mapToGlobal(QPoint(0, 0)), stack->size()));
    updateOutline();
}

HoverWidget::~HoverWidget() = default;

Dock* HoverWidget::pane() const
{
    return m_pane;
}

// Cut to its outline, the window shows the pane below it also on a desktop without compositing.
void HoverWidget::updateOutline()
{
    const QRect area = dropArea(rect().adjusted(1, 1, -1, -1), DockDrag::shared().side());
    const QRegion outer(area.adjusted(-1, -1, 1, 1));
    setMask(outer.subtracted(area.adjusted(1, 1, -1, -1)));
    update();
}

void HoverWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(palette().color(QPalette::Highlight), kPenWidth, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRect(dropArea(rect().adjusted(1, 1, -1, -1), DockDrag::shared().side()));
}

}} // namespace Norvane::UI
