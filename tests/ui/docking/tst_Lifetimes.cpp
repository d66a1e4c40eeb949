// Whatever the host destroys first, and whenever, nothing dangles and no panel is lost.

#include <tests/support/DockScene.h>
#include <tests/support/MessageBoxCloser.h>

#include <ui/docking/DockTitleBar.h>
#include <ui/docking/TitleBarButton.h>

#include <QBuffer>
#include <QCursor>
#include <QMenu>
#include <QTimer>
#include <QtTest>

#include <algorithm>

using namespace NorvaneTest;

namespace {

/// A main window whose floating windows are no children of its own.
class LooseHost : public DockMainWindow
{
public:
    DockWindow* createWindow() override { return new DockWindow(this, nullptr); }
};

/// A host that shows a dialog while a layout is restored: windows that were closed go meanwhile.
class AskingHost : public DockMainWindow
{
public:
    QWidget* createPage(QString& id) override
    {
        for (DockWindow* const window : toClose)
            window->close();
        toClose.clear();
        settle();
        return DockMainWindow::createPage(id);
    }

    QList<DockWindow*> toClose;
};

} // namespace

class tst_Lifetimes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void everyOrderOfDestruction_data();
    void everyOrderOfDestruction();
    void refusingPanelsOutliveTheMainWindow();
    void panesOutliveTheMainWindow();
    void windowsOutliveTheMainWindow();
    void forgottenWindowsDieWithTheMainWindow_data();
    void forgottenWindowsDieWithTheMainWindow();
    void paneDiesWithItsMenuOpen();
    void paneDiesWhileItsMenuButtonIsHeld();
    void windowsCloseWhileALayoutIsRestored();

    // Not tests: what timers call.
public Q_SLOTS:
    void deletePane() { delete m_pane; }

private:
    QPointer<Dock> m_pane;
};

void tst_Lifetimes::everyOrderOfDestruction_data()
{
    QTest::addColumn<QStringList>("order");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("deleteOnClose");
    const char* const names[] = {"main window", "pane", "panel", "window"};
    int order[] = {0, 1, 2, 3};
    do {
        QStringList objects;
        for (const int i : order)
            objects.append(latin1(names[i]));
        const QByteArray row = objects.join(latin1(", ")).toLatin1();
        QTest::newRow(("delete " + row).constData()) << objects << false << false;
        QTest::newRow(("delete " + row + ", panel dies on close").constData()) << objects << false << true;
        QTest::newRow(("close " + row).constData()) << objects << true << false;
        QTest::newRow(("close " + row + ", panel dies on close").constData()) << objects << true << true;
    } while (std::next_permutation(order, order + 4));
}

void tst_Lifetimes::everyOrderOfDestruction()
{
    QFETCH(QStringList, order);
    QFETCH(bool, closes);
    QFETCH(bool, deleteOnClose);
    DockScene scene(deleteOnClose);
    const QPointer<QWidget> panel(scene.panel("F"));
    for (const QString& name : order) {
        QWidget* const object = name == latin1("panel")    ? panel.data()
                                : name == latin1("pane")   ? scene.floating.data()
                                : name == latin1("window") ? scene.floatingWindow.data()
                                                           : scene.mainWindow.data();
        const bool isPanel = object && object == panel;
        if (!closes)
            delete object;
        else if (isPanel && scene.floating)
            scene.floating->closeTab(scene.floating->stack()->indexOf(panel));
        else if (object)
            object->close();
        QCOMPARE(scene.problems(), QString());
        if (isPanel)
            QVERIFY(closes && !deleteOnClose ? panel && !panel->parentWidget() : !panel);
        else
            QVERIFY(!panel || !deleteOnClose || Dock::dockForWidget(panel));
        if (!isPanel && object == scene.floatingWindow)
            QVERIFY(!scene.floatingWindow);
    }
    QVERIFY(!scene.mainWindow && !scene.floatingWindow && !scene.floating && !scene.left && !scene.right);
    QCOMPARE(scene.panel("A") != nullptr, !deleteOnClose);
}

void tst_Lifetimes::refusingPanelsOutliveTheMainWindow()
{
    DockScene scene;
    for (const char* const name : {"A", "C", "D", "F"})
        scene.panel(name)->refuses = true;
    scene.mainWindow->close();
    QCOMPARE(scene.problems(), QString());
    QVERIFY(!scene.mainWindow && !scene.floatingWindow && !scene.left);
    for (const char* const name : {"A", "B", "C", "D", "E", "F"})
        QVERIFY2(scene.panel(name) && !scene.panel(name)->parentWidget(), name);
}

void tst_Lifetimes::panesOutliveTheMainWindow()
{
    DockScene scene;
    const QPointer<Dock> pane(scene.left);
    pane->setParent(nullptr);
    pane->show();
    delete scene.mainWindow;
    QVERIFY(pane && !pane->controller());

    // Everything still works that needs nobody else.
    QCOMPARE(tabs(pane), latin1("A *B C"));
    pane->addWidget(scene.panel("D"), true, false);
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
    QVERIFY(scene.panel("B") && !scene.panel("B")->parentWidget());
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

void tst_Lifetimes::forgottenWindowsDieWithTheMainWindow_data()
{
    QTest::addColumn<bool>("failedRestore");
    QTest::newRow("a restore failed") << true;
    QTest::newRow("the host replaced the list") << false;
}

void tst_Lifetimes::forgottenWindowsDieWithTheMainWindow()
{
    QFETCH(bool, failedRestore);
    DockScene scene;
    const MessageBoxCloser closer;
    if (failedRestore)
        QVERIFY(!scene.restore("<layout version=\"1.0\"><window>"));
    else
        scene.mainWindow->setFloatingWindows(QList<DockWindow*>());
    QVERIFY(scene.floatingWindow && scene.mainWindow->floatingWindows().isEmpty());
    delete scene.mainWindow;
    QCOMPARE(scene.problems(), QString());
    QVERIFY(!scene.floatingWindow && !scene.floating && !scene.left);
    QVERIFY(scene.panel("A") && scene.panel("F"));
}

void tst_Lifetimes::paneDiesWithItsMenuOpen()
{
    DockScene scene;
    const QPoint point(5, 5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, scene.left->mapToGlobal(point));
    QApplication::sendEvent(scene.left, &event);
    QVERIFY(scene.left->menu()->isVisible());
    const QPointer<QMenu> menu(scene.left->menu());
    delete scene.left;
    QVERIFY(!menu && !QApplication::activePopupWidget());
    QCOMPARE(scene.problems(), QString());
}

void tst_Lifetimes::paneDiesWhileItsMenuButtonIsHeld()
{
    DockScene scene;
    m_pane = scene.left;
    Norvane::UI::TitleBarButton* menuButton = nullptr;
    for (QObject* const child : scene.left->titleBar()->children()) {
        Norvane::UI::TitleBarButton* const button = qobject_cast<Norvane::UI::TitleBarButton*>(child);
        if (button && button->menu())
            menuButton = button;
    }
    QVERIFY(menuButton);
    QTimer::singleShot(0, this, SLOT(deletePane()));
    menuButton->showMenu();
    QVERIFY(!m_pane && !QApplication::activePopupWidget());
    QCOMPARE(scene.problems(), QString());
}

void tst_Lifetimes::windowsCloseWhileALayoutIsRestored()
{
    Panels panels;
    const QPointer<AskingHost> host(new AskingHost);
    host->show();
    const QPointer<DockWindow> window(host->addNewFloatingDock(panels.make(latin1("A"))));
    QBuffer layout;
    layout.open(QIODevice::ReadWrite);
    host->saveLayout(&layout, nullptr);
    layout.seek(0);
    host->toClose.append(window);
    QVERIFY(host->restoreLayout(&layout, false));
    QVERIFY(!window);
    QCOMPARE(int(host->floatingWindows().size()), 1);
    delete host;
}

QTEST_MAIN(tst_Lifetimes)
#include "tst_Lifetimes.moc"
