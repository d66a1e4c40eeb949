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
    {"make panel", 10, [](DockWalk& w) { w.makePanel(); }},
    {"insert panel", 8, [](DockWalk& w) { w.insertPanel(); }},
    {"move panel", 5,
     [](DockWalk& w) {
         if (Panel* const panel = w.anyPanel())
             w.anyPane()->insertWidget(-1, panel);
     }},
    {"replace place holder", 2, [](DockWalk& w) { w.replacePlaceHolder(); }},
    {"new pane", 2, [](DockWalk& w) { w.newPane(); }},
    {"close tab", 6, [](DockWalk& w) { w.closeTab(); }},
    {"close pane", 3, [](DockWalk& w) { w.anyPane()->close(); }},
    {"close window", 2,
     [](DockWalk& w) {
         if (DockWindow* const window = w.anyFloatingWindow())
             window->close();
     }},
    {"solo tab", 2, [](DockWalk& w) { w.anyPane()->closeInactiveTabs(); }},
    {"change refusal", 3,
     [](DockWalk& w) {
         if (Panel* const panel = w.anyPanel())
             panel->refuses = w.oneIn(3);
     }},
    {"rename panel", 2, [](DockWalk& w) { w.renamePanel(); }},
    {"choose tab", 5, [](DockWalk& w) { w.chooseTab(); }},
    {"split", 6,
     [](DockWalk& w) {
         if (w.m_mainWindow->docks().size() < kMostPanes)
             w.anyPane()->split(w.oneIn(2) ? Qt::Horizontal : Qt::Vertical, w.oneIn(2));
     }},
    {"transpose", 2, [](DockWalk& w) { w.anyPane()->transposeDock(); }},
    {"expand", 3,
     [](DockWalk& w) {
         Dock* const pane = w.anyPane();
         pane->setExpanded(!pane->isExpanded());
     }},
    {"float tab", 4,
     [](DockWalk& w) {
         if (w.m_mainWindow->floatingWindows().size() < kMostWindows)
             w.anyPane()->floatActiveTab();
     }},
    {"float pane", 2,
     [](DockWalk& w) {
         if (w.m_mainWindow->floatingWindows().size() < kMostWindows)
             w.anyPane()->floatDock();
     }},
    {"drag to pane", 8, [](DockWalk& w) { w.dragToPane(); }},
    {"drag to border", 5, [](DockWalk& w) { w.dragToBorder(); }},
    {"drag nowhere", 4, [](DockWalk& w) { w.dragNowhere(); }},
    {"drag and escape", 4, [](DockWalk& w) { w.dragAndEscape(); }},
    {"drag in title", 6, [](DockWalk& w) { w.dragInTitle(); }},
    {"control click", 2, [](DockWalk& w) { w.controlClick(); }},
    {"move window", 3, [](DockWalk& w) { w.moveWindow(); }},
    {"toggle option", 4, [](DockWalk& w) { w.toggleOption(); }},
    {"toggle title", 3,
     [](DockWalk& w) {
         Dock* const pane = w.anyPane();
         pane->setTitleVisible(!pane->titleVisible());
     }},
    {"save", 2, [](DockWalk& w) { w.save(); }},
    {"restore", 2, [](DockWalk& w) { w.restore(); }},
    {"save and restore", 3, [](DockWalk& w) { w.saveAndRestore(); }},
    {"destroy panel", 2, [](DockWalk& w) { delete w.anyPanel(); }},
    {"destroy pane", 2, [](DockWalk& w) { delete w.anyPane(); }},
    {"destroy window", 1, [](DockWalk& w) { delete w.anyFloatingWindow(); }},
    {"take panel home", 3,
     [](DockWalk& w) {
         if (Panel* const panel = w.anyPanel())
             panel->setParent(w.oneIn(2) ? &w.m_home : nullptr);
     }},
};

DockWalk::DockWalk(unsigned seed, bool meddles)
    : m_random(seed)
    , m_mainWindow(new DockHost(m_panels))
    , m_ledger(m_mainWindow)
{
    m_mainWindow->setGeometry(50, 50, 700, 500);
    newPane();
    m_mainWindow->show();
    settle();
    if (meddles)
        m_ledger.whenReported = [this](DockLedger::Report report, Dock* pane, QWidget* panel) {
            meddle(report, pane, panel);
        };
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
    m_hasMeddled = false;
    operation->run(*this);
    settle();
    // What the window system has brought about meanwhile comes to its end as well.
    m_isMeddling = true;
    settle();
    m_isMeddling = false;
    return m_problems + m_ledger.problems(m_panels, &m_home);
}

QStringList DockWalk::finish()
{
    m_hasMeddled = false;
    m_mainWindow->close();
    settle();
    expect(!m_mainWindow, "the main window is not gone");
    return m_problems + m_ledger.problems(m_panels, &m_home);
}

void DockWalk::expect(bool holds, const char* problem)
{
    if (!holds && !m_hasMeddled)
        m_problems.append(QLatin1String(problem));
}

// Not in answer to the reports that an answer brings about.
void DockWalk::meddle(DockLedger::Report report, Dock* pane, QWidget* panel)
{
    // A window that is being destroyed is a plain widget by now.
    QPointer<DockWindow> window(qobject_cast<DockWindow*>(pane->window()));
    if (m_isMeddling || !window || !m_mainWindow || !oneIn(6))
        return;
    if (window == m_mainWindow)
        window = anyFloatingWindow();
    QWidget* const current = pane->currentWidget();
    m_isMeddling = m_hasMeddled = true;
    switch (random(12)) {
    case 0:
        pane->close();
        break;
    case 1:
        pane->closeTab(0);
        break;
    case 2:
        pane->closeInactiveTabs();
        break;
    case 3:
        if (window)
            window->close();
        break;
    case 4:
        pane->deleteLater();
        break;
    case 5:
        if (window)
            window->deleteLater();
        break;
    case 6:
        if (panel)
            panel->deleteLater();
        break;
    case 7:
        pane->floatActiveTab();
        break;
    case 8:
        pane->floatDock();
        break;
    case 9:
        if (current)
            current->setParent(&m_home);
        break;
    case 10:
        if (current && !m_mainWindow->docks().isEmpty())
            anyPane()->addWidget(current, true, false);
        break;
    default:
        // Qt itself is still at work on a panel that gets another parent.
        if (report == DockLedger::kRemoved && m_operation != latin1("take panel home"))
            delete panel;
    }
    m_isMeddling = false;
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

void DockWalk::replacePlaceHolder()
{
    const QPointer<Panel> panel(homelessPanel());
    Dock* const pane = anyPane();
    QWidget* const placeHolder = pane->restorePlaceHolderForWidget(panel);
    if (m_hasMeddled) {
        if (panel && !panel->parentWidget())
            panel->hide();
        delete placeHolder;
    }
    if (!placeHolder || m_hasMeddled)
        return;
    const int index = pane->count() - 1;
    expect(pane->widget(index) == placeHolder, "the place holder is not in the pane");
    pane->addWidget(panel, oneIn(2), false);
    expect(m_hasMeddled || pane->widget(index) == panel, "the panel is not where its place holder was");
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

} // namespace NorvaneTest
