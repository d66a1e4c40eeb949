// A host does something to panels, panes and windows while the user drags a tab. Whatever the user does next,
// nothing dangles, nobody keeps the mouse, no overlay is left, and the dragged panel is not lost.

#include <tests/support/DockScene.h>

#include <ui/docking/DockTitleBar.h>

#include <QCursor>
#include <QtTest>

using namespace NorvaneTest;

namespace {

/// How far the drag of the tab F has come: the floating pane is its source, the right one the pane under the
/// mouse.
enum Stage { kPressed, kReordering, kTornOff, kOverPane, kStageCount };
const char* const kStages[] = {"pressed", "reordering", "torn off", "over a pane"};

enum Continuation { kRelease, kMoveAndRelease, kEscape, kNothing, kContinuationCount };
const char* const kContinuations[] = {"released", "moved on", "Escape", "nothing"};

struct Interruption {
    const char* name;
    void (*happen)(DockScene& scene, QWidget* panel);
    enum { kGoesOn, kEndsDrag, kDeletesPanel } effect = kGoesOn;
};

const Interruption kInterruptions[] = {
    {"panel deleted", [](DockScene&, QWidget* panel) { delete panel; }, Interruption::kDeletesPanel},
    {"panel deleted later", [](DockScene&, QWidget* panel) { panel->deleteLater(); },
     Interruption::kDeletesPanel},
    {"panel taken home", [](DockScene& scene, QWidget* panel) { panel->setParent(&scene.home); }},
    {"panel put into another pane",
     [](DockScene& scene, QWidget* panel) { scene.left->addWidget(panel, true, false); }},
    {"source closed", [](DockScene& scene, QWidget*) { scene.floating->close(); }, Interruption::kEndsDrag},
    {"source deleted", [](DockScene& scene, QWidget*) { delete scene.floating; }, Interruption::kEndsDrag},
    {"source hidden", [](DockScene& scene, QWidget*) { scene.floating->hide(); }, Interruption::kEndsDrag},
    {"source floated", [](DockScene& scene, QWidget*) { scene.floating->floatDock(); }},
    {"source's title hidden", [](DockScene& scene, QWidget*) { scene.floating->setTitleVisible(false); },
     Interruption::kEndsDrag},
    {"source's window closed", [](DockScene& scene, QWidget*) { scene.floatingWindow->close(); },
     Interruption::kEndsDrag},
    {"source's window deleted", [](DockScene& scene, QWidget*) { delete scene.floatingWindow; },
     Interruption::kEndsDrag},
    {"target deleted", [](DockScene& scene, QWidget*) { delete scene.right; }},
    {"overlay switched off",
     [](DockScene& scene, QWidget*) { scene.window->setSplitPanelsByDragging(false); }},
    {"main window closed", [](DockScene& scene, QWidget*) { scene.window->close(); },
     Interruption::kEndsDrag},
    {"main window deleted", [](DockScene& scene, QWidget*) { delete scene.window; }, Interruption::kEndsDrag},
    {"first layout restored", [](DockScene& scene, QWidget*) { scene.restore(scene.firstLayout); },
     Interruption::kEndsDrag},
};

void continueDrag(TabDrag& drag, Continuation continuation, const QPoint& position)
{
    switch (continuation) {
    case kMoveAndRelease:
        drag.moveTo(position + QPoint(9, 9));
        drag.moveTo(position + QPoint(-300, 0));
        drag.moveTo(position);
        drag.release(position);
        break;
    case kRelease:
        drag.release(position);
        break;
    case kEscape:
        drag.pressEscape();
        drag.release(position);
        break;
    default:
        break;
    }
}

} // namespace

class tst_DragInterrupted : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void cleanup() { QCursor::setPos(5, 5); }
    void hostInterferes_data();
    void hostInterferes();
    void revealedTitleDoesNotHoldItsTabBack();
    void sideIsForgottenWithItsDrag();
    void paneOutsideAllSplittersTakesADrop();
    void tabThatScrollsIsTheOneDragged();
};

void tst_DragInterrupted::hostInterferes_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<int>("interruption");
    for (int i = 0; i < int(sizeof kInterruptions / sizeof *kInterruptions); ++i) {
        for (int stage = 0; stage < kStageCount; ++stage) {
            const QByteArray name = QByteArray(kInterruptions[i].name) + ", " + kStages[stage];
            QTest::newRow(name.constData()) << stage << i;
        }
    }
}

void tst_DragInterrupted::hostInterferes()
{
    QFETCH(int, stage);
    QFETCH(int, interruption);
    const bool endsDrag = kInterruptions[interruption].effect == Interruption::kEndsDrag;
    const bool deletesPanel = kInterruptions[interruption].effect == Interruption::kDeletesPanel;
    for (int i = 0; i < kContinuationCount; ++i) {
        const Continuation continuation = Continuation(i);
        const bool deleteOnClose = (i + stage) % 2;
        DockScene scene(deleteOnClose);
        scene.window->setSplitPanelsByDragging(true);
        const QPointer<QWidget> panel(scene.find("F"));
        const QPoint target = DockScene::middle(scene.right);

        TabDrag drag(scene.floating, 1);
        if (stage == kReordering)
            drag.slide(-45);
        if (stage >= kTornOff)
            drag.tearOff();
        if (stage >= kOverPane)
            drag.moveTo(target);
        QCOMPARE(QWidget::mouseGrabber() != nullptr, stage >= kTornOff);
        kInterruptions[interruption].happen(scene, panel);
        // What is left to the event loop happens before the user's next step, or after it.
        if ((i + interruption) / 2 % 2 || endsDrag)
            settle();
        if (endsDrag)
            QVERIFY(!QWidget::mouseGrabber());
        continueDrag(drag, continuation, stage == kPressed ? QPoint(900, 900) : target);

        // Nobody ended this drag, so it may go on.
        if (continuation == kNothing && QWidget::mouseGrabber())
            continueDrag(drag, kEscape, target);
        const QString problems = scene.problems();
        const QString place =
            latin1("then %1, panels %2: ")
                .arg(latin1(kContinuations[continuation]), latin1(deleteOnClose ? "die" : "live"));
        QVERIFY2(problems.isEmpty(), qPrintable(place + problems));
        QVERIFY2(panel || deletesPanel || deleteOnClose, qPrintable(place + latin1("the panel is lost")));
    }
}

void tst_DragInterrupted::revealedTitleDoesNotHoldItsTabBack()
{
    DockScene scene;
    scene.window->setHideSingleTabs(true);
    scene.floating->closeTab(0);
    QVERIFY(!scene.floating->titleVisible());
    QWidget* const titleBar = scene.floating->titleBar();
    QVERIFY(waitUntil([&] {
        // The window manager may still be moving the window.
        if (!titleBar->underMouse())
            QCursor::setPos(titleBar->mapToGlobal(QPoint(50, 1)));
        return scene.floating->titleVisible();
    }));

    const QPoint target = DockScene::middle(scene.left);
    TabDrag drag(scene.floating, 0);
    drag.tearOff();
    drag.moveTo(target);
    QCursor::setPos(target);
    WAIT_FOR(!titleBar->underMouse());
    drag.release(target);
    QCOMPARE(tabs(scene.left), latin1("A B C *F"));
    QCOMPARE(scene.problems(), QString());
    QVERIFY(!scene.floatingWindow);
}

void tst_DragInterrupted::sideIsForgottenWithItsDrag()
{
    DockScene scene;
    scene.window->setSplitPanelsByDragging(true);
    const QPoint border = scene.right->stack()->mapToGlobal(QPoint(3, 100));
    TabDrag first(scene.left, 0);
    first.moveTo(border);
    first.moveTo(border);
    first.pressEscape();
    first.release(border);

    TabDrag second(scene.left, 0);
    second.moveTo(border);
    second.release(DockScene::middle(scene.right));
    QCOMPARE(tabs(scene.right), latin1("D *A"));
    QCOMPARE(int(scene.window->docks().size()), 3);
}

void tst_DragInterrupted::paneOutsideAllSplittersTakesADrop()
{
    DockScene scene;
    scene.window->setSplitPanelsByDragging(true);
    const QPointer<Dock> statusPane(new Dock(scene.window));
    statusPane->setParent(scene.window);
    statusPane->setGeometry(100, 100, 200, 150);
    statusPane->show();
    const QPoint border = statusPane->stack()->mapToGlobal(QPoint(3, 60));
    TabDrag drag(scene.left, 0);
    drag.moveTo(border);
    drag.moveTo(border);
    drag.release(border);
    QCOMPARE(tabs(statusPane), latin1("*A"));
    delete statusPane;
    QCOMPARE(scene.problems(), QString());
}

void tst_DragInterrupted::tabThatScrollsIsTheOneDragged()
{
    DockScene scene;
    QTabBar* const bar = scene.left->tabBar();
    for (int i = 0; i < scene.left->count(); ++i)
        scene.left->widget(i)->setWindowTitle(latin1("A long title"));
    scene.left->updateTitles();
    // Room for about one tab and a half besides the buttons.
    scene.left->setFixedWidth(bar->tabRect(0).width() * 2 + 60);
    settle();
    scene.left->setCurrentTab(2);

    // The end of a tab that is half scrolled away; the press brings all of it into sight.
    const QPoint edge(3, bar->height() / 2);
    const int tab = bar->tabAt(edge);
    QVERIFY(tab >= 0 && bar->tabRect(tab).left() < 0);
    QWidget* const panel = scene.left->widget(tab);
    TabDrag drag(scene.left, edge);
    drag.tearOff();
    QVERIFY(!Dock::dockForWidget(panel));
    drag.pressEscape();
    QCOMPARE(scene.left->widget(tab), panel);
}

QTEST_MAIN(tst_DragInterrupted)
#include "tst_DragInterrupted.moc"
