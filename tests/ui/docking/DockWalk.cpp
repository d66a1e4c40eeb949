#include <tests/ui/docking/DockWalk.h>

#include <QBuffer>

namespace NorvaneTest {

namespace {

/// The pages of all panes in the order of the panes.
QString arrangement(const DockMainWindow* mainWindow)
{
    QStringList panes;
    for (Dock* const pane : mainWindow->docks())
        panes.append(latin1(pane->window() == mainWindow ? "main: " : "floating: ") + tabs(pane));
    return panes.join(latin1("; "));
}

} // namespace

const DockWalk::Operation DockWalk::kOperations[] = {
    {"make panel", 10, &DockWalk::makePanel},
    {"insert panel", 8, &DockWalk::insertPanel},
    {"move panel", 5, &DockWalk::movePanel},
    {"replace place holder", 2, &DockWalk::replacePlaceHolder},
    {"new pane", 2, &DockWalk::newPane},
    {"close tab", 6, &DockWalk::closeTab},
    {"close pane", 3, &DockWalk::closePane},
    {"close window", 2, &DockWalk::closeWindow},
    {"solo tab", 2, &DockWalk::soloTab},
    {"change refusal", 3, &DockWalk::changeRefusal},
    {"rename panel", 2, &DockWalk::renamePanel},
    {"choose tab", 5, &DockWalk::chooseTab},
    {"split", 6, &DockWalk::split},
    {"transpose", 2, &DockWalk::transpose},
    {"expand", 3, &DockWalk::expand},
    {"float tab", 4, &DockWalk::floatTab},
    {"float pane", 2, &DockWalk::floatPane},
    {"drag to pane", 8, &DockWalk::dragToPane},
    {"drag to border", 5, &DockWalk::dragToBorder},
    {"drag nowhere", 4, &DockWalk::dragNowhere},
    {"drag and escape", 4, &DockWalk::dragAndEscape},
    {"drag in title", 6, &DockWalk::dragInTitle},
    {"control click", 2, &DockWalk::controlClick},
    {"move window", 3, &DockWalk::moveWindow},
    {"toggle option", 4, &DockWalk::toggleOption},
    {"toggle title", 3, &DockWalk::toggleTitle},
    {"save", 2, &DockWalk::save},
    {"restore", 2, &DockWalk::restore},
    {"save and restore", 3, &DockWalk::saveAndRestore},
    {"destroy panel", 2, &DockWalk::destroyPanel},
    {"destroy pane", 2, &DockWalk::destroyPane},
    {"destroy window", 1, &DockWalk::destroyWindow},
    {"take panel home", 3, &DockWalk::takePanelHome},
};

DockWalk::DockWalk(unsigned seed)
    : m_random(seed)
    , m_mainWindow(new DockHost(m_panels))
    , m_ledger(m_mainWindow)
{
    m_mainWindow->setGeometry(50, 50, 700, 500);
    newPane();
    m_mainWindow->show();
    settle();
}

DockWalk::~DockWalk()
{
    delete m_mainWindow;
}

QStringList DockWalk::step()
{
    int weights = 0;
    for (const Operation& operation : kOperations)
        weights += operation.weight;
    int choice = random(weights);
    const Operation* operation = kOperations;
    for (; choice >= operation->weight; ++operation)
        choice -= operation->weight;
    m_operation = latin1(operation->name);
    if (m_mainWindow->docks().isEmpty())
        newPane();
    (this->*operation->run)();
    settle();
    return m_problems + m_ledger.problems(m_panels, &m_home);
}

QStringList DockWalk::finish()
{
    m_mainWindow->close();
    settle();
    expect(!m_mainWindow, "the main window is not gone");
    return m_problems + m_ledger.problems(m_panels, &m_home);
}

void DockWalk::expect(bool holds, const char* problem)
{
    if (!holds)
        m_problems.append(QLatin1String(problem));
}

Dock* DockWalk::anyPane()
{
    const QList<Dock*> panes = m_mainWindow->docks();
    return panes[random(int(panes.size()))];
}

DockWindow* DockWalk::anyFloatingWindow()
{
    const QList<DockWindow*> windows = m_mainWindow->floatingWindows();
    return windows.isEmpty() ? nullptr : windows[random(int(windows.size()))];
}

Panel* DockWalk::anyPanel()
{
    m_panels.removeAll(QPointer<Panel>());
    return m_panels.isEmpty() ? nullptr : m_panels[random(int(m_panels.size()))].data();
}

Panel* DockWalk::homelessPanel()
{
    Panel* const panel = anyPanel();
    return Dock::dockForWidget(panel) ? nullptr : panel;
}

QPoint DockWalk::anyPoint()
{
    return QPoint(random(1000), random(700));
}

void DockWalk::makePanel()
{
    if (!anyPanel() || m_panels.size() < kMostPanels) {
        Panel* const panel = m_panels.make(latin1("Panel.%1").arg(++m_made), oneIn(4));
        anyPane()->addWidget(panel, oneIn(2), oneIn(3));
    }
}

void DockWalk::insertPanel()
{
    Panel* const panel = homelessPanel();
    Dock* const pane = anyPane();
    if (!panel)
        return;
    if (oneIn(3))
        pane->insertWidget(QPoint(random(200), 5), panel);
    else if (oneIn(2))
        pane->insertWidget(random(pane->count() + 2) - 1, panel);
    else
        pane->addWidget(panel, true, false);
}

void DockWalk::movePanel()
{
    if (Panel* const panel = anyPanel())
        anyPane()->insertWidget(-1, panel);
}

void DockWalk::replacePlaceHolder()
{
    Panel* const panel = homelessPanel();
    Dock* const pane = anyPane();
    const QWidget* const placeHolder = pane->restorePlaceHolderForWidget(panel);
    if (!placeHolder)
        return;
    const int index = pane->count() - 1;
    expect(pane->widget(index) == placeHolder, "the place holder is not in the pane");
    pane->addWidget(panel, oneIn(2), false);
    expect(pane->widget(index) == panel, "the panel is not where its place holder was");
}

void DockWalk::newPane()
{
    m_mainWindow->addWidget(m_mainWindow->createDock());
}

void DockWalk::closeTab()
{
    Dock* const pane = anyPane();
    const int tab = random(pane->count() + 1);
    const QPointer<Panel> panel(dynamic_cast<Panel*>(pane->widget(tab)));
    pane->closeTab(tab);
    expect(!panel || panel->refuses == (Dock::dockForWidget(panel) == pane), "a refusal is not respected");
}

void DockWalk::closePane()
{
    anyPane()->close();
}

void DockWalk::closeWindow()
{
    if (DockWindow* const window = anyFloatingWindow())
        window->close();
}

void DockWalk::soloTab()
{
    anyPane()->closeInactiveTabs();
}

void DockWalk::changeRefusal()
{
    if (Panel* const panel = anyPanel())
        panel->refuses = oneIn(3);
}

void DockWalk::renamePanel()
{
    Panel* const panel = anyPanel();
    if (!panel)
        return;
    panel->setWindowTitle(panel->objectName() + latin1(" again").repeated(random(3)));
    if (Dock* const pane = Dock::dockForWidget(panel))
        pane->updateTitles();
}

void DockWalk::chooseTab()
{
    Dock* const pane = anyPane();
    switch (random(4)) {
    case 0:
        return pane->nextTab();
    case 1:
        return pane->prevTab();
    case 2:
        return pane->setCurrentWidget(nullptr);
    default:
        pane->setFocus();
        return m_mainWindow->nextTab();
    }
}

void DockWalk::split()
{
    if (m_mainWindow->docks().size() < kMostPanes)
        anyPane()->split(oneIn(2) ? Qt::Horizontal : Qt::Vertical, oneIn(2));
}

void DockWalk::transpose()
{
    anyPane()->transposeDock();
}

void DockWalk::expand()
{
    Dock* const pane = anyPane();
    pane->setExpanded(!pane->isExpanded());
}

void DockWalk::floatTab()
{
    if (m_mainWindow->floatingWindows().size() < kMostWindows)
        anyPane()->floatActiveTab();
}

void DockWalk::floatPane()
{
    if (m_mainWindow->floatingWindows().size() < kMostWindows)
        anyPane()->floatDock();
}

void DockWalk::moveWindow()
{
    QWidget* const window = anyPane()->window();
    window->move(anyPoint());
    window->resize(300 + random(400), 200 + random(300));
}

void DockWalk::toggleOption()
{
    DockMainWindow* const window = m_mainWindow;
    switch (random(5)) {
    case 0:
        return window->setHideSingleTabs(!window->hideSingleTabs());
    case 1:
        return window->setHasPanelMenu(!window->hasPanelMenu());
    case 2:
        return window->setSplitPanelsByDragging(!window->splitPanelsByDragging());
    case 3:
        return window->setHighlightCurrentTab(!window->highlightCurrentTab());
    default:
        return window->setTabsAreClosable(!window->tabsAreClosable());
    }
}

void DockWalk::toggleTitle()
{
    Dock* const pane = anyPane();
    pane->setTitleVisible(!pane->titleVisible());
}

void DockWalk::save()
{
    QBuffer buffer(&m_saved);
    buffer.open(QIODevice::WriteOnly | QIODevice::Truncate);
    m_mainWindow->saveLayout(&buffer, nullptr);
}

void DockWalk::restore()
{
    if (m_saved.isEmpty())
        save();
    QBuffer buffer(&m_saved);
    buffer.open(QIODevice::ReadOnly);
    expect(m_mainWindow->restoreLayout(&buffer, oneIn(8)), "a saved layout is not restored");
}

void DockWalk::saveAndRestore()
{
    const QString before = arrangement(m_mainWindow);
    save();
    restore();
    const QString after = arrangement(m_mainWindow);
    expect(before == after, qPrintable(before + latin1(" came back as ") + after));
}

void DockWalk::destroyPanel()
{
    delete anyPanel();
}

void DockWalk::destroyPane()
{
    delete anyPane();
}

void DockWalk::destroyWindow()
{
    delete anyFloatingWindow();
}

void DockWalk::takePanelHome()
{
    if (Panel* const panel = anyPanel())
        panel->setParent(oneIn(2) ? &m_home : nullptr);
}

} // namespace NorvaneTest
