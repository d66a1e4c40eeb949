#include <ui/docking/WidgetUtils.h>

#include <ui/docking/WindowPlacement.h>
#include <ui/toolkit/Painting.h>
#include <ui/toolkit/Screens.h>

#include <QMainWindow>
#include <QWidget>

namespace Norvane { namespace UI {

namespace {

void leaveFullscreen(QWidget* widget)
{
    widget->setWindowState(widget->windowState() & ~Qt::WindowFullScreen);

    const QRect available = Screens::availableGeometry(widget);
    const int oldTop = widget->y();
    const int frameHeight = widget->frameSize().height() - widget->height();
    const int newTop = qMax(oldTop, available.top());
    const int height = qMin(widget->height() + newTop - oldTop, available.height() - frameHeight);
    widget->move(widget->x(), newTop);
    widget->resize(widget->width(), height);
}

} // namespace

bool WidgetUtils::GetFullscreen(const QWidget* widget)
{
    return widget && widget->windowState().testFlag(Qt::WindowFullScreen);
}

void WidgetUtils::SetFullscreen(QWidget* widget, bool on, QMainWindow*)
{
    if (!widget || GetFullscreen(widget) == on)
        return;
    if (on)
        widget->setWindowState(widget->windowState() | Qt::WindowFullScreen);
    else
        leaveFullscreen(widget);
}

void WidgetUtils::ToggleFullscreen(QWidget* widget)
{
    SetFullscreen(widget, !GetFullscreen(widget), nullptr);
}

void WidgetUtils::SetFloatingWindowStyle(QWidget* widget, QWidget*)
{
    widget->setWindowFlags(Qt::Tool | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    widget->setAttribute(Qt::WA_MacAlwaysShowToolWindow);
}

void WidgetUtils::SetFixedWidthForString(QWidget* widget, const QString& text)
{
    widget->setFixedWidth(textWidth(widget->fontMetrics(), text));
}

void WidgetUtils::MoveWidgetNearRect(QWidget* widget, QRect& rect)
{
    QPoint position;
    if (!placeNearRect(rect, widget->size(), Screens::availableGeometry(rect.topLeft()), &position))
        return;
    widget->move(position);
    widget->raise();
    widget->activateWindow();
}

void WidgetUtils::MoveWidgetNotObscuringWidget(QWidget* widget, QWidget* other)
{
    if (other)
        widget->move(other->mapToGlobal(QPoint(0, other->height())));
    const QRect available = Screens::availableGeometry(widget->pos());
    widget->show();

    const int overRight = qMax(0, widget->x() + widget->width() - available.right());
    const int overBottom = qMax(0, widget->y() + widget->height() - available.bottom());
    if (overRight > 0 || overBottom > 0)
        widget->move(widget->x() - overRight, widget->y() - overBottom);
}

}} // namespace Norvane::UI
