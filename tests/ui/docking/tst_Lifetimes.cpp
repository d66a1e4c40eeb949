// Whatever the host destroys first, and whenever, nothing dangles and no panel is lost.

#include <tests/support/DockScene.h>
#include <tests/support/MessageBoxCloser.h>

#include <ui/docking/DockTitleBar.h>

#include <QCursor>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace NorvaneTest;

namespace {

/// A main window whose floating windows are no children of its own.
class LooseHost : public DockMainWindow
{
public:
    DockWindow* createWindow() override { return new DockWindow(this, nullptr); }
};

/// A host that shows a dialog while a layout is restored: a window that was closed goes meanwhile.
class AskingDesk : public Desk
{
public:
    QPointer<DockWindow> toClose;

protected:
    QWidget* page(QString& id) override
    {
        if (toClose)
            toClose->close();
        settle();
        return panel(id);
    }
};

} // namespace

class tst_Lifetimes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void panesOutliveTheMainWindow();
    void windowsOutliveTheMainWindow();
    void forgottenWindowsDieWithTheMainWindow();
    void paneDiesWhileItsMenuButtonIsHeld();
    void windowsCloseWhileALayoutIsRestored();
    void dyingPaneTakesNothing();
};

void tst_Lifetimes::panesOutliveTheMainWindow()
{
    DockScene scene;
    const QPointer<Dock> pane(scene.left);
    pane->setParent(nullptr);
    pane->show();
    delete scene.window;
    QVERIFY(pane && !pane->controller());

    // Everything still works that needs nobody else.
    QCOMPARE(tabs(pane), latin1("A *B C"));
    pane->addWidget(scene.find("D"), true, false);
    pane->closeTab(0);
    pane->nextTab();
    pane->setExpanded(true);
    pane->transposeDock();
    pane->setTitleVisible(false);
    pane->setTitleVisible(true);
    QVERIFY(!pane->split(Qt::Horizontal, true));
    pane->floatDock();
    pane->floatActiveTab();
    pane->dumpLayout();
    settle();
    QCOMPARE(tabs(pane), latin1("*B C D"));

    TabDrag drag(pane, 0);
    drag.tearOff();
    drag.moveTo(QPoint(900, 600));
    drag.release(QPoint(900, 600));
    QVERIFY(!QWidget::mouseGrabber());
    QCOMPARE(tabs(pane), latin1("*B C D"));
    pane->close();
    settle();
    QVERIFY(!pane);
    QVERIFY(scene.find("B") && !scene.find("B")->parentWidget());
}

void tst_Lifetimes::windowsOutliveTheMainWindow()
{
    Panels panels;
    const QPointer<LooseHost> host(new LooseHost);
    const QPointer<DockWindow> window(host->addNewFloatingDock(panels.make(latin1("A"))));
    const QPointer<DockWindow> forgotten(host->addNewFloatingDock(panels.make(latin1("B"))));
    host->setFloatingWindows(QList<DockWindow*>() << window);
    delete host;
    QVERIFY(window && forgotten);
    window->close();
    delete forgotten;
    settle();
    QVERIFY(!window);
    QVERIFY(panels.find(latin1("A")) && panels.find(latin1("B")));
}

void tst_Lifetimes::forgottenWindowsDieWithTheMainWindow()
{
    DockScene scene;
    const MessageBoxCloser closer;
    QVERIFY(!scene.restore("<layout version=\"1.0\"><window>"));
    QVERIFY(scene.floatingWindow && scene.window->floatingWindows().isEmpty());
    delete scene.window;
    QCOMPARE(scene.problems(), QString());
    QVERIFY(!scene.floatingWindow && !scene.floating && !scene.left);
    QVERIFY(scene.find("A") && scene.find("F"));
}

void tst_Lifetimes::paneDiesWhileItsMenuButtonIsHeld()
{
    DockScene scene;
    QPushButton* menuButton = nullptr;
    for (QPushButton* const button : scene.left->titleBar()->findChildren<QPushButton*>())
        menuButton = button->menu() ? button : menuButton;
    QVERIFY(menuButton);
    QTimer::singleShot(0, scene.left, SLOT(deleteLater()));
    menuButton->showMenu();
    QVERIFY(!scene.left && !QApplication::activePopupWidget());
    QCOMPARE(scene.problems(), QString());
}

void tst_Lifetimes::windowsCloseWhileALayoutIsRestored()
{
    AskingDesk desk;
    desk.window->show();
    desk.toClose = desk.window->addNewFloatingDock(desk.panel(latin1("A")));
    QVERIFY(desk.restore(desk.save()));
    QVERIFY(!desk.toClose);
    QCOMPARE(desk.trees(), latin1("V() + V(*A)"));
}

// A host that hears of a loss puts another panel where it hears from.
void tst_Lifetimes::dyingPaneTakesNothing()
{
    DockScene scene;
    scene.ledger.whenReported = [&scene](DockLedger::Report report, Dock* pane, QWidget*) {
        if (report == DockLedger::kRemoved)
            pane->addWidget(scene.find("A"), true, false);
    };
    delete scene.right;
    QCOMPARE(scene.problems(), QString());
    QCOMPARE(tabs(scene.left), latin1("A *B C"));
}

QTEST_MAIN(tst_Lifetimes)
#include "tst_Lifetimes.moc"
