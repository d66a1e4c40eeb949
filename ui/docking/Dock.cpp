#include <ui/docking/Dock.h>

#include <ui/docking/DockDrag.h>
#include <ui/docking/DockPlaceHolder.h>
#include <ui/docking/DockPrivate.h>
#include <ui/docking/DockTabBar.h>
#include <ui/docking/DockTitleBar.h>
#include <ui/docking/PaneIcons.h>
#include <ui/docking/TitleBarButton.h>
#include <ui/toolkit/Accessibility.h>

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOptionDockWidget>

namespace Norvane { namespace UI {

Dock::Dock(DockMainWindow* controller, DockWindow* parent)
    : QWidget(parent)
    , d(new Private(this))
{
    installAccessibleRoles();
    d->controller = controller;
    if (controller)
        controller->registerPane(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_Hover);

    const PaneIcons icons = controller ? controller->paneIcons(this) : PaneIcons(this);
    d->buildMenu(icons);
    d->titleBar = new DockTitleBar(this);
    d->buildButtons(icons);
    d->buildStackAndTabs();
}

Dock::~Dock()
{
    DockDrag::shared().paneDies(this);
    d->dying = true;
    // Also those whose loss was still to be reported when the host ended the pane.
    const QList<QPointer<QWidget>> lost = d->releaseAll() + d->reported;
    for (const QPointer<QWidget>& panel : lost) {
        if (panel)
            d->reportRemoved(panel);
    }
    if (d->controller)
        d->controller->unregisterPane(this);
    d->controller = nullptr;
    d->stack->disconnect(this);
    d->tabBar->disconnect(this);
    // These call back: they go while this is still a pane.
    delete d->titleBar;
    delete d->stack;
}

void Dock::Private::buildMenu(const PaneIcons& icons)
{
    menu = new QMenu(Dock::tr("Panel"), q);
    menu->addAction(icons.splitVertical, Dock::tr("Split Vertical"), q, SLOT(splitVertical()));
    menu->addAction(icons.splitHorizontal, Dock::tr("Split Horizontal"), q, SLOT(splitHorizontal()));
    menu->addSeparator();
    menu->addAction(Dock::tr("Float Pane"), q, SLOT(floatDock()));
    menu->addAction(Dock::tr("Close Pane"), q, SLOT(close()));
    menu->addAction(Dock::tr("Float Tab"), q, SLOT(floatActiveTab()));
    menu->addAction(Dock::tr("Close Tab"), q, SLOT(closeActiveTab()));
    menu->addAction(Dock::tr("Solo Tab"), q, SLOT(closeInactiveTabs()));
    showTabsAction = menu->addAction(Dock::tr("Show Tabs"));
    showTabsAction->setCheckable(true);
    showTabsAction->setChecked(titleVisible);
    connect(showTabsAction, SIGNAL(toggled(bool)), q, SLOT(setTitleVisible(bool)));
    menu->addSeparator();
}

void Dock::Private::buildButtons(const PaneIcons& icons)
{
    if (controller && controller->hasPanelMenu()) {
        menuButton = new TitleBarButton(titleBar);
        menuButton->setIcon(icons.menu);
        menuButton->setMenu(menu);
        menuButton->setAccessibleName(Dock::tr("Panel menu"));
    }
    if (controller && controller->tabsAreClosable())
        return;

    floatButton = new TitleBarButton(titleBar);
    floatButton->setIcon(icons.floating);
    floatButton->setToolTip(Dock::tr("Float the current tab"));
    floatButton->setAccessibleName(floatButton->toolTip());
    connect(floatButton, SIGNAL(clicked()), q, SLOT(floatActiveTab()));

    closeButton = new TitleBarButton(titleBar);
    closeButton->setIcon(icons.close);
    closeButton->setToolTip(Dock::tr("Close the current tab"));
    closeButton->setAccessibleName(closeButton->toolTip());
    connect(closeButton, SIGNAL(clicked()), q, SLOT(closeActiveTab()));
}

void Dock::Private::buildStackAndTabs()
{
    stack = new QStackedWidget(q);
    stack->setLineWidth(0);
    connect(stack, SIGNAL(widgetRemoved(int)), q, SLOT(removeTab(int)));

    tabBar = new DockTabBar(q, titleBar);
    tabBar->setDrawBase(false);
    connect(tabBar, SIGNAL(currentChanged(int)), q, SLOT(showTab(int)));
    connect(q, SIGNAL(mouseOver(bool)), tabBar, SLOT(onMouseOverDock(bool)));
}

Dock* Dock::dockForWidget(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (Dock* const dock = qobject_cast<Dock*>(widget))
            return dock;
    }
    return nullptr;
}

QMenu* Dock::menu() const
{
    return d->menu;
}

DockMainWindow* Dock::controller() const
{
    return d->controller;
}

QStackedWidget* Dock::stack() const
{
    return d->stack;
}

DockTabBar* Dock::tabBar() const
{
    return d->tabBar;
}

DockTitleBar* Dock::titleBar() const
{
    return d->titleBar;
}

int Dock::count() const
{
    return d->stack->count();
}

QWidget* Dock::widget(int index) const
{
    return d->stack->widget(index);
}

QWidget* Dock::currentWidget() const
{
    return d->stack->currentWidget();
}

int Dock::currentTab() const
{
    return d->stack->currentIndex();
}

bool Dock::titleVisible() const
{
    return d->titleVisible;
}

bool Dock::isExpanded() const
{
    return d->expanded;
}

int Dock::tabBarHeight() const
{
    return d->tabBar->tabRect(0).height();
}

bool Dock::singlePanel() const
{
    return false;
}

QList<QWidget*> Dock::keptWidgets() const
{
    QList<QWidget*> alive;
    for (const QPointer<QWidget>& widget : d->keptWidgets) {
        if (widget)
            alive.append(widget);
    }
    return alive;
}

QStringList& Dock::paneIDs()
{
    return d->paneIDs;
}

void Dock::updateTabs()
{
    d->tabBar->update();
}

}} // namespace Norvane::UI
