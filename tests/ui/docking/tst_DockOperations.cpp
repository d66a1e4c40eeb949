// What one operation of a pane makes of its panels and of the panes around it.

#include <tests/support/Desk.h>
#include <tests/support/Recorder.h>

#include <QAction>
#include <QMenu>

using namespace NorvaneTest;

namespace {

struct Case {
    const char* name;
    /// Those of the main window: "A *B" is one with two panels, "C!" one whose panel refuses to close.
    const char* panes;
    void (*operate)(Desk& desk, Dock* first);
    const char* trees;
    /// As a Recorder has them.
    const char* reports;
};

void choose(Dock* pane, const char* entry)
{
    for (QAction* const action : pane->menu()->actions()) {
        if (action->text() == latin1(entry))
            action->trigger();
    }
}

template <int index>
void insertNew(Desk& desk, Dock* first)
{
    first->insertWidget(index, desk.panel(latin1("N")));
}

template <int index, int next>
void removeAndShow(Desk&, Dock* first)
{
    first->removeWidgetAndSetCurrentTab(first->widget(index), next);
}

const Case kCases[] = {
    {"insert first", "A *B", insertNew<0>, "V(N A *B)", "+N"},
    {"insert before the current", "A *B", insertNew<1>, "V(A N *B)", "+N"},
    {"insert past the end", "A *B", insertNew<99>, "V(A *B N)", "+N"},
    {"add one of another pane", "A *B | *C",
     [](Desk& desk, Dock* first) { first->addWidget(desk.window->docks()[1]->widget(0), true, false); },
     "V(A B *C, -)", "-C * *C +C"},

    {"remove the current", "A *B C", removeAndShow<1, 0>, "V(*A C)", "*A -B"},
    {"remove before the current", "A *B C", removeAndShow<0, 1>, "V(*B C)", "*B -A"},
    {"remove nothing, or another's", "A *B",
     [](Desk& desk, Dock* first) {
         first->removeWidget(nullptr);
         first->removeWidget(desk.panel(latin1("N")));
     },
     "V(A *B)", ""},

    {"next of the last", "A B *C", [](Desk&, Dock* first) { first->nextTab(); }, "V(*A B C)", "*A *A"},
    {"previous of the first", "*A B C", [](Desk&, Dock* first) { first->prevTab(); }, "V(A B *C)", "*C *C"},
    {"the one before", "A B *C",
     [](Desk&, Dock* first) {
         first->setCurrentTab(0);
         first->setCurrentTab(2);
         first->setCurrentWidget(nullptr);
     },
     "V(*A B C)", "*A *A *C *C *A *A"},
    {"show another's, or none", "*A B",
     [](Desk& desk, Dock* first) {
         first->setCurrentWidget(desk.panel(latin1("N")));
         first->setCurrentTab(7);
     },
     "V(*A B)", ""},

    {"close a refusing one", "A *B! C", [](Desk&, Dock* first) { first->closeActiveTab(); }, "V(A *B C)", ""},
    {"solo", "A *B C", [](Desk&, Dock* first) { choose(first, "Solo Tab"); }, "V(*B)", "*B -C *B -A"},
    {"solo beside a refusing one", "A B! *C", [](Desk&, Dock* first) { first->closeInactiveTabs(); },
     "V(B *C)", "*C -A"},
    {"close the tab", "A *B C", [](Desk&, Dock* first) { choose(first, "Close Tab"); }, "V(*A C)", "*A -B"},
    {"close the last tab", "*A", [](Desk&, Dock* first) { first->closeActiveTab(); }, "V(-)", "* -A"},
    {"close the pane", "A *B C", [](Desk&, Dock* first) { choose(first, "Close Pane"); }, "V()",
     "-C -B -A *"},
    {"close a refusing pane", "A B! *C", [](Desk&, Dock* first) { first->close(); }, "V(*B)", "-C -A *B"},

    {"float the tab", "A *B C", [](Desk&, Dock* first) { choose(first, "Float Tab"); }, "V(A *C) + V(*B)",
     "-B *C *B +B"},
    {"float the pane, reversed", "A *B C", [](Desk&, Dock* first) { choose(first, "Float Pane"); },
     "V(-) + V(C B *A)", "-C *C +C -B *A *B +B -A * *A +A"},
    {"float the tab of a floating pane", "*A",
     [](Desk& desk, Dock* first) {
         first->floatDock();
         desk.window->docks()[1]->floatActiveTab();
     },
     "V(-) + V(*A)", "-A * *A +A -A * *A +A"},

    {"split vertically", "*A", [](Desk&, Dock* first) { choose(first, "Split Vertical"); }, "V(*A, -)", ""},
    {"split horizontally", "*A", [](Desk&, Dock* first) { choose(first, "Split Horizontal"); }, "H(*A, -)",
     ""},
    {"split alone, before", "*A", [](Desk&, Dock* first) { first->split(Qt::Horizontal, true); }, "H(-, *A)",
     ""},
    {"transpose", "*A | *B",
     [](Desk&, Dock* first) {
         first->split(Qt::Horizontal, false);
         first->transposeDock();
     },
     "V(V(*A, -), *B)", ""},
};

/// Fills the main window's \a panes.
void fill(Desk& desk, const char* panes)
{
    for (const QString& pane : latin1(panes).split(latin1(" | "))) {
        QString names(pane);
        Dock* const dock = desk.pane(names.remove(QLatin1Char('*')).remove(QLatin1Char('!')).toLatin1());
        const QStringList panels = pane.split(QLatin1Char(' '));
        for (int i = 0; i < dock->count(); ++i) {
            static_cast<Panel*>(dock->widget(i))->refuses = panels[i].contains(QLatin1Char('!'));
            if (panels[i].contains(QLatin1Char('*')))
                dock->setCurrentTab(i);
        }
    }
}

} // namespace

class tst_DockOperations : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void paneOperates_data();
    void paneOperates();
};

void tst_DockOperations::paneOperates_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < int(sizeof kCases / sizeof *kCases); ++i)
        QTest::newRow(kCases[i].name) << i;
}

void tst_DockOperations::paneOperates()
{
    QFETCH(int, number);
    const Case& row = kCases[number];
    Desk desk;
    fill(desk, row.panes);
    QVERIFY(desk.show());
    Recorder recorder(desk.window);
    row.operate(desk, desk.window->docks().first());
    waitUntil([&] { return desk.trees() == latin1(row.trees); });
    QCOMPARE(desk.trees(), latin1(row.trees));
    QCOMPARE(recorder.take(), latin1(row.reports));
    for (const Dock* const dock : desk.window->docks()) {
        QCOMPARE(dock->controller(), desk.window.data());
        QVERIFY(!dock->currentWidget() || dock->currentWidget()->isVisible());
    }
    // Who left without being deleted belongs to the host again.
    for (const QPointer<Panel>& panel : desk.panels())
        QVERIFY(Dock::dockForWidget(panel) || !panel->parentWidget());
}

QTEST_MAIN(tst_DockOperations)
#include "tst_DockOperations.moc"
