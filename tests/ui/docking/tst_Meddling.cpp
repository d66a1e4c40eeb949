// A host's slots may close and destroy panes, panels and windows in the middle of whatever reports to them.

#include <tests/support/DockScene.h>

#include <QCursor>
#include <QtTest>

using namespace NorvaneTest;
using Norvane::UI::DockWindow;

namespace {

const int kMostAnswers = 5;

enum Report { kAdded, kRemoved, kActivated };
const char* const kReports[] = {"widgetAdded", "widgetRemoved", "widgetActivated"};

struct Operation {
    const char* name;
    void (*run)(DockScene& scene, Dock* pane);
    bool givesParent = false;
};

void dropOn(Dock* source, const QPoint& position)
{
    TabDrag drag(source, source->currentTab());
    drag.tearOff();
    drag.moveTo(position);
    drag.release(position);
}

const Operation kOperations[] = {
    {"closeTab", [](DockScene&, Dock* pane) { pane->closeTab(0); }},
    {"closeActiveTab", [](DockScene&, Dock* pane) { pane->closeActiveTab(); }},
    {"closeInactiveTabs", [](DockScene&, Dock* pane) { pane->closeInactiveTabs(); }},
    {"close pane", [](DockScene&, Dock* pane) { pane->close(); }},
    {"delete pane", [](DockScene&, Dock* pane) { delete pane; }},
    {"close window", [](DockScene&, Dock* pane) { pane->window()->close(); }},
    {"delete window", [](DockScene&, Dock* pane) { delete pane->window(); }},
    {"setCurrentTab", [](DockScene&, Dock* pane) { pane->setCurrentTab(0); }},
    {"removeWidget", [](DockScene&, Dock* pane) { pane->removeWidget(pane->currentWidget()); }},
    {"addWidget", [](DockScene& scene, Dock* pane) { pane->addWidget(scene.panel("D"), true, false); }},
    {"insertWidget", [](DockScene& scene, Dock* pane) { pane->insertWidget(0, scene.panel("D")); }},
    {"floatActiveTab", [](DockScene&, Dock* pane) { pane->floatActiveTab(); }},
    {"floatDock", [](DockScene&, Dock* pane) { pane->floatDock(); }},
    {"drag to pane", [](DockScene& scene, Dock* pane) { dropOn(pane, DockScene::middle(scene.right)); }},
    {"drag to border",
     [](DockScene& scene, Dock* pane) {
         scene.mainWindow->setSplitPanelsByDragging(true);
         dropOn(pane, scene.right->stack()->mapToGlobal(QPoint(3, 100)));
     }},
    {"drag nowhere", [](DockScene&, Dock* pane) { dropOn(pane, QPoint(-200, -200)); }},
    {"drag and escape",
     [](DockScene&, Dock* pane) {
         TabDrag drag(pane, 1);
         drag.tearOff();
         drag.pressEscape();
         drag.release(QPoint(-200, -200));
     }},
    {"drag along the tabs",
     [](DockScene&, Dock* pane) {
         TabDrag drag(pane, 0);
         drag.slide(60);
         drag.release(QPoint(-200, -200));
     }},
    {"restore layout", [](DockScene& scene, Dock*) { scene.restore(scene.save()); }},
    {"delete panel", [](DockScene&, Dock* pane) { delete pane->currentWidget(); }},
    {"take panel home", [](DockScene& scene, Dock* pane) { pane->currentWidget()->setParent(&scene.home); },
     true},
};

struct Answer {
    const char* name;
    void (*give)(DockScene& scene, Dock* dock, QWidget* panel);
    bool onlyWhenRemoved = false;
};

const Answer kAnswers[] = {
    {"closes the pane", [](DockScene&, Dock* dock, QWidget*) { dock->close(); }},
    {"closes the tabs", [](DockScene&, Dock* dock, QWidget*) { dock->closeTab(0); }},
    {"solos the tab", [](DockScene&, Dock* dock, QWidget*) { dock->closeInactiveTabs(); }},
    {"closes the window", [](DockScene&, Dock* dock, QWidget*) { dock->window()->close(); }},
    {"closes the main window", [](DockScene& scene, Dock*, QWidget*) { scene.mainWindow->close(); }},
    {"closes the floating window", [](DockScene& scene, Dock*, QWidget*) { scene.floatingWindow->close(); }},
    {"deletes the pane later", [](DockScene&, Dock* dock, QWidget*) { dock->deleteLater(); }},
    {"deletes the window later", [](DockScene&, Dock* dock, QWidget*) { dock->window()->deleteLater(); }},
    {"deletes the panel later",
     [](DockScene&, Dock*, QWidget* panel) {
         if (panel)
             panel->deleteLater();
     }},
    {"floats the tab", [](DockScene&, Dock* dock, QWidget*) { dock->floatActiveTab(); }},
    {"floats the pane", [](DockScene&, Dock* dock, QWidget*) { dock->floatDock(); }},
    {"takes a panel home",
     [](DockScene& scene, Dock* dock, QWidget*) {
         if (dock->currentWidget())
             dock->currentWidget()->setParent(&scene.home);
     }},
    {"moves a panel",
     [](DockScene& scene, Dock* dock, QWidget*) {
         if (scene.right && dock->currentWidget())
             scene.right->addWidget(dock->currentWidget(), true, false);
     }},
    {"deletes the panel", [](DockScene&, Dock*, QWidget* panel) { delete panel; }, true},
};

} // namespace

/// Answers one kind of report; not the reports that its answer brings about.
class Meddler : public QObject
{
    Q_OBJECT
public:
    Meddler(DockScene& scene, Report report, const Answer& answer)
        : m_scene(scene)
        , m_answer(answer)
    {
        const char* const signals_[] = {SIGNAL(widgetAdded(Norvane::UI::Dock*, QWidget*)),
                                        SIGNAL(widgetRemoved(Norvane::UI::Dock*, QWidget*)),
                                        SIGNAL(widgetActivated(Norvane::UI::Dock*, QWidget*))};
        connect(scene.mainWindow, signals_[report], this, SLOT(meddle(Norvane::UI::Dock*, QWidget*)));
    }

private Q_SLOTS:
    void meddle(Norvane::UI::Dock* dock, QWidget* panel)
    {
        // Windows that come and go move the focus, which is reported, and so on.
        if (m_isAnswering || ++m_answers > kMostAnswers)
            return;
        m_isAnswering = true;
        // A window that is being destroyed is a plain widget by now.
        if (m_scene.mainWindow && qobject_cast<DockWindow*>(m_scene.floatingWindow.data()))
            m_answer.give(m_scene, dock, panel);
        m_isAnswering = false;
    }

private:
    DockScene& m_scene;
    const Answer& m_answer;
    bool m_isAnswering = false;
    int m_answers = 0;
};

class tst_Meddling : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void slotMayInterfere_data();
    void slotMayInterfere();
};

void tst_Meddling::slotMayInterfere_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("answer");
    for (int operation = 0; operation < int(sizeof kOperations / sizeof *kOperations); ++operation) {
        for (int answer = 0; answer < int(sizeof kAnswers / sizeof *kAnswers); ++answer) {
            // Qt itself is still at work on a panel that the host gives another parent.
            if (kOperations[operation].givesParent && kAnswers[answer].onlyWhenRemoved)
                continue;
            const QByteArray name = QByteArray(kOperations[operation].name) + ": " + kAnswers[answer].name;
            QTest::newRow(name.constData()) << operation << answer;
        }
    }
}

void tst_Meddling::slotMayInterfere()
{
    QFETCH(int, operation);
    QFETCH(int, answer);
    for (int i = 0; i < 8; ++i) {
        const bool hasFocus = i >= 6;
        const Report report = hasFocus ? kActivated : Report(i / 2 % 3);
        const bool inFloating = i % 2;
        const bool deleteOnClose = !hasFocus && (operation + answer + i) % 2;
        if (kAnswers[answer].onlyWhenRemoved && report != kRemoved)
            continue;
        DockScene scene(deleteOnClose);
        Dock* const pane = inFloating ? scene.floating : scene.left;
        if (hasFocus) {
            scene.mainWindow->setHighlightCurrentTab(true);
            QVERIFY(Desk::activate(pane));
            pane->currentWidget()->setFocus();
        }
        {
            const Meddler meddler(scene, report, kAnswers[answer]);
            kOperations[operation].run(scene, pane);
            settle();
        }
        const QString problems = scene.problems();
        const QString place =
            latin1("%1 of a %2 pane%3, panels %4: ")
                .arg(latin1(kReports[report]), latin1(inFloating ? "floating" : "main window"),
                     latin1(hasFocus ? " with focus" : ""), latin1(deleteOnClose ? "die" : "live"));
        QVERIFY2(problems.isEmpty(), qPrintable(place + problems));
    }
}

QTEST_MAIN(tst_Meddling)
#include "tst_Meddling.moc"
