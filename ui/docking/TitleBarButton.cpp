#include <ui/docking/TitleBarButton.h>

#include <QPainter>
#include <QStyle>
#include <QStyleOptionToolButton>

namespace Norvane { namespace UI {

TitleBarButton::TitleBarButton(QWidget* parent)
    : QPushButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFlat(true);
}

TitleBarButton::~TitleBarButton() = default;

QSize TitleBarButton::sizeHint() const
{
    ensurePolished();
    if (icon().isNull())
        return QSize(4, 4);
    const int small = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const QSize actual = icon().actualSize(QSize(small, small));
    const int side = qMax(actual.width(), actual.height()) + 4;
    return QSize(side, side);
}

QSize TitleBarButton::minimumSizeHint() const
{
    return sizeHint();
}

void TitleBarButton::enterEvent(EnterEvent* event)
{
    if (isEnabled())
        update();
    QPushButton::enterEvent(event);
}

void TitleBarButton::leaveEvent(QEvent* event)
{
    if (isEnabled())
        update();
    QPushButton::leaveEvent(event);
}

// Drawn as a tool button: it answers to the mouse although it is flat, and has no room for the arrow that a
// push button with a menu gets.
void TitleBarButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionToolButton option;
    option.initFrom(this);
    option.state |= QStyle::State_AutoRaise;
    if (isDown())
        option.state |= QStyle::State_Sunken;
    else if (isEnabled() && underMouse())
        option.state |= QStyle::State_Raised;
    option.subControls = QStyle::SC_ToolButton;
    option.toolButtonStyle = Qt::ToolButtonIconOnly;
    option.icon = icon();
    const int small = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    option.iconSize = QSize(small, small);
    style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, this);
}

}} // namespace Norvane::UI
