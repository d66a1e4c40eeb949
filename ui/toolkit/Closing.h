#pragma once

#include <QWidget>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QCloseEvent>
#include <QCoreApplication>
#include <QPointer>
#include <QWindow>
#endif

namespace Norvane { namespace UI {

/// QWidget::close(), which in Qt 6 does not ask a child widget that once was a window: it asks the window
/// that is left of those days, and that agrees without a word.
inline bool closeWidget(QWidget* widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QWindow* const former = widget->isWindow() ? nullptr : widget->windowHandle();
    if (former && former->isTopLevel() && !former->handle()) {
        const QPointer<QWidget> self(widget);
        QCloseEvent event;
        QCoreApplication::sendEvent(widget, &event);
        if (!event.isAccepted())
            return false;
        if (self)
            widget->hide();
        if (self && widget->testAttribute(Qt::WA_DeleteOnClose)) {
            widget->setAttribute(Qt::WA_DeleteOnClose, false);
            widget->deleteLater();
        }
        return true;
    }
#endif
    return widget->close();
}

}} // namespace Norvane::UI
