// What a pane does on events of its own: layout, painting, the mouse, focus.

#include <ui/docking/DockDrag.h>
#include <ui/docking/DockPrivate.h>
#include <ui/docking/DockTabBar.h>
#include <ui/docking/DockTitleBar.h>
#include <ui/docking/PaneGeometry.h>
#include <ui/docking/TitleBarButton.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QResizeEvent>
#include <QStackedWidget>
#include <QStyle>
#include <QTextEdit>
#include <QToolBar>

namespace Norvane { namespace UI {

namespace {

const int kMenuButtonWidth = 22;

bool isEditor(const QWidget* widget)
{
    return qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
           qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QDoubleSpinBox*>(widget);
}

} // namespace

QSize Dock::sizeHint() const
{
    const QSize content = d->stack->sizeHint();
    return QSize(content.width(), content.height() + d->tabBar->sizeHint().height());
}

void Dock::Private::hideSingleTab()
{
    if (controller && controller->hideSingleTabs())
        q->setTitleVisible(q->count() != 1);
}

void Dock::Private::applyTitleRule()
{
    if (controller && controller->hideSingleTabs())
        hideSingleTab();
    else
        q->setTitleVisible(true);
}

void Dock::Private::relayout(const QSize& oldSize)
{
    QResizeEvent event(q->size(), oldSize);
    q->resizeEvent(&event);
}

void Dock::setTitleVisible(bool titleVisible)
{
    if (titleVisible == d->titleVisible)
        return;
    d->titleVisible = titleVisible;
    const bool wasBlocked = d->showTabsAction->blockSignals(true);
    d->showTabsAction->setChecked(titleVisible);
    d->showTabsAction->blockSignals(wasBlocked);

    d->tabBar->setVisible(titleVisible);
    if (d->closeButton)
        d->closeButton->setVisible(titleVisible);
    if (d->floatButton)
        d->floatButton->setVisible(titleVisible);
    if (d->menuButton)
        d->menuButton->setVisible(titleVisible);
    update();
    d->relayout(size());
}

void Dock::Private::fitSizeLimits()
{
    bool hasToolBar = false;
    for (const QPointer<QWidget>& panel : panels)
        hasToolBar = hasToolBar || qobject_cast<QToolBar*>(panel.data());
    const QLayout* const content = stack->layout();
    q->setMinimumSize(hasToolBar ? content->minimumSize() : QSize(0, 0));
    q->setMaximumSize(hasToolBar ? content->maximumSize() : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void Dock::resizeEvent(QResizeEvent*)
{
    d->fitSizeLimits();

    PaneMetrics metrics;
    metrics.pane = size();
    metrics.titleVisible = d->titleVisible;
    metrics.hasCloseButton = d->closeButton;
    metrics.menuWidth = d->menuButton ? kMenuButtonWidth : 0;
    metrics.margin = style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr, this);
    metrics.lineSpacing = fontMetrics().lineSpacing();
    if (d->closeButton)
        metrics.closeButton = d->closeButton->sizeHint();
    if (d->floatButton)
        metrics.floatButton = d->floatButton->sizeHint();
    metrics.tabBar = d->tabBar->sizeHint();
    metrics.direction = layoutDirection();

    const PaneLayout layout = layOutPane(metrics);
    d->titleBar->setGeometry(layout.titleBar);
    d->stack->setGeometry(layout.stack);
    if (!d->titleVisible)
        return;
    d->tabBar->setGeometry(layout.tabBar);
    if (d->closeButton) {
        d->closeButton->setGeometry(layout.closeButton);
        d->closeButton->setVisible(layout.buttonsFit);
        d->floatButton->setGeometry(layout.floatButton);
        d->floatButton->setVisible(layout.buttonsFit);
    }
    if (d->menuButton) {
        const QRect corner(QPoint(0, 0), d->menuButton->sizeHint());
        d->menuButton->setGeometry(QStyle::visualRect(layoutDirection(), rect(), corner));
    }
}

void Dock::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::StyleChange:
        d->relayout(size());
        break;
    default:
        break;
    }
}

void Dock::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor line = palette().color(QPalette::Shadow);
    line.setAlphaF(line.alphaF() * 0.23);
    painter.setPen(QPen(line, 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const int y = height() - d->stack->height() - 1;
    painter.drawLine(0, y, width() - 1, y);

    const bool overlayMarks = d->controller && d->controller->splitPanelsByDragging();
    if (d->hover && !overlayMarks)
        painter.fillRect(0, 0, width(), 2, palette().color(QPalette::Highlight));
}

void Dock::setHover(bool hover)
{
    if (hover == d->hover)
        return;
    if (d->controller && d->controller->splitPanelsByDragging()) {
        DockDrag& drag = DockDrag::shared();
        if (hover && !drag.overlay())
            drag.showOverlay(this);
        else
            drag.hideOverlay();
    }
    d->hover = hover;
    update();
}

bool Dock::Private::containsFocus() const
{
    const QWidget* const focus = QApplication::focusWidget();
    return focus && (focus == q || q->isAncestorOf(focus));
}

// Focus follows the mouse, but never away from where the user may be typing.
void Dock::enterEvent(EnterEvent* event)
{
    QWidget::enterEvent(event);
    if (d->containsFocus() || isEditor(QApplication::focusWidget()))
        return;
    QWidget* const panel = currentWidget();
    (panel && !focusProxy() ? panel : this)->setFocus(Qt::OtherFocusReason);
}

void Dock::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    if (!d->containsFocus())
        return;
    QWidget* const focus = QApplication::focusWidget();
    setFocusProxy(focus == this ? nullptr : focus);
}

void Dock::contextMenuEvent(QContextMenuEvent* event)
{
    setFocus(Qt::OtherFocusReason);
    d->menu->popup(event->globalPos());
}

}} // namespace Norvane::UI
