#include <ui/docking/Dock.h>

#include <tests/support/Desk.h>
#include <tests/support/Recorder.h>

#include <QAction>
#include <QMenu>

using namespace NorvaneTest;

/// Splitting, floating, expanding, full screen.
class tst_DockArrangement : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void menuArranges_data();
    void menuArranges();
    void paneIsSplit_data();
    void paneIsSplit();
    void splitKeepsFocus();
    void paneOutsideSplitterIsNotSplit();
    void floatingPanelTakesPlaceOfPane();
    void emptiedFloatingWindowCloses();
    void expandedPaneTakesAll();
    void fullscreenTogglesWindow();
};

void tst_DockArrangement::menuArranges_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("trees");
    QTest::addColumn<QString>("moves");
    QTest::newRow("split vertically") << latin1("Split Vertical") << latin1("V(A *B C, -)") << latin1("");
    QTest::newRow("split horizontally") << latin1("Split Horizontal") << latin1("H(A *B C, -)") << latin1("");
    QTest::newRow("float pane, reversed")
        << latin1("Float Pane") << latin1("V(-) + V(C B *A)") << latin1("-C +C -B +B -A +A");
    QTest::newRow("close pane") << latin1("Close Pane") << latin1("V()") << latin1("-C -B -A");
    QTest::newRow("float tab") << latin1("Float Tab") << latin1("V(A *C) + V(*B)") << latin1("-B +B");
    QTest::newRow("close tab") << latin1("Close Tab") << latin1("V(*A C)") << latin1("-B");
    QTest::newRow("solo tab") << latin1("Solo Tab") << latin1("V(*B)") << latin1("-C -A");
}

void tst_DockArrangement::menuArranges()
{
    QFETCH(QString, entry);
    Desk desk;
    Dock* const dock = desk.pane("A B C");
    dock->setCurrentTab(1);
    QVERIFY(desk.show());
    Recorder recorder(desk.window);
    for (QAction* const action : dock->menu()->actions()) {
        if (action->text() == entry)
            action->trigger();
    }
    deleteDeferred();
    QTEST(desk.trees(), "trees");
    QTEST(recorder.takeMoves(), "moves");
}

void tst_DockArrangement::paneIsSplit_data()
{
    QTest::addColumn<bool>("alone");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("before");
    QTest::addColumn<QString>("trees");
    QTest::newRow("alone, behind") << true << +Qt::Horizontal << false << latin1("H(*A, -)");
    QTest::newRow("alone, before") << true << +Qt::Horizontal << true << latin1("H(-, *A)");
    QTest::newRow("same direction, behind") << false << +Qt::Vertical << false << latin1("V(*A, -, *B)");
    QTest::newRow("same direction, before") << false << +Qt::Vertical << true << latin1("V(-, *A, *B)");
    QTest::newRow("across, behind") << false << +Qt::Horizontal << false << latin1("V(H(*A, -), *B)");
    QTest::newRow("across, before") << false << +Qt::Horizontal << true << latin1("V(H(-, *A), *B)");
}

void tst_DockArrangement::paneIsSplit()
{
    QFETCH(bool, alone);
    QFETCH(int, orientation);
    QFETCH(bool, before);
    Desk desk;
    Dock* const dock = desk.pane("A");
    Dock* const other = alone ? nullptr : desk.pane("B");
    QVERIFY(desk.show());
    if (other)
        desk.window->rootSplitter()->setSizes(QList<int>() << 100 << 300);
    const QSize size = dock->size();
    const QSize otherSize = other ? other->size() : QSize();
    Dock* const created = dock->split(static_cast<Qt::Orientation>(orientation), before);
    QTEST(desk.trees(), "trees");
    QCOMPARE(created->count(), 0);
    QCOMPARE(created->controller(), desk.window.data());
    WAIT_FOR(created->isVisible());
    const int handle = desk.window->rootSplitter()->handleWidth();
    const QSize half = orientation == Qt::Horizontal ? QSize(size.width() / 2, size.height())
                                                     : QSize(size.width(), size.height() / 2);
    const QList<Dock*> halves = QList<Dock*>() << dock << created;
    for (const Dock* const pane : halves) {
        QVERIFY(qAbs(pane->width() - half.width()) <= handle);
        QVERIFY(qAbs(pane->height() - half.height()) <= handle);
    }
    if (other)
        QVERIFY(qAbs(other->height() - otherSize.height()) <= handle);
}

void tst_DockArrangement::splitKeepsFocus()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    desk.pane("B");
    QVERIFY(desk.show());
    dock->setFocus();
    QCOMPARE(desk.window->activeTab(), dock->widget(0));
    dock->splitHorizontal();
    QCOMPARE(desk.trees(), latin1("V(H(*A, -), *B)"));
    QCOMPARE(QApplication::focusWidget(), dock->widget(0));
    dock->splitHorizontal();
    dock->transposeDock();
    QCOMPARE(desk.trees(), latin1("V(V(*A, -, -), *B)"));
    QCOMPARE(QApplication::focusWidget(), dock->widget(0));
}

void tst_DockArrangement::paneOutsideSplitterIsNotSplit()
{
    Desk desk;
    Dock dock(desk.window);
    dock.setAttribute(Qt::WA_DeleteOnClose, false);
    desk.fill(&dock, "A");
    QVERIFY(!dock.split(Qt::Horizontal, false));
    dock.transposeDock();
    dock.setExpanded(true);
    QVERIFY(!dock.dockWindow());
    QVERIFY(Dock::isTopLevel(&dock) && Dock::isTopLevel(nullptr));
    QCOMPARE(Dock::dockForWidget(dock.widget(0)), &dock);
    QVERIFY(!Dock::dockForWidget(nullptr));
}

void tst_DockArrangement::floatingPanelTakesPlaceOfPane()
{
    Desk desk;
    desk.pane("A");
    Dock* const dock = desk.pane("B C");
    QVERIFY(desk.show());
    const QPoint position = dock->mapToGlobal(QPoint(0, 0));
    const QSize size = dock->size();
    dock->floatActiveTab();
    DockWindow* const window = desk.window->floatingWindows().first();
    QVERIFY(window->snapEnabled());
    WAIT_FOR(window->isVisible() && window->pos() == position);
    QCOMPARE(window->size(), size);
    desk.pane("")->floatActiveTab();
    QCOMPARE(desk.trees(), latin1("V(*A, *B, -) + V(*C)"));
}

void tst_DockArrangement::emptiedFloatingWindowCloses()
{
    Desk desk;
    desk.pane("");
    Dock* const dock = desk.floatingPane("A");
    desk.fill(dock, "B");
    QVERIFY(desk.show());
    dock->floatActiveTab();
    WAIT_FOR(desk.trees() == latin1("V(-) + V(*A) + V(*B)"));
    dock->floatActiveTab();
    WAIT_FOR(desk.trees() == latin1("V(-) + V(*B) + V(*A)"));
    // A floated pane stays, empty, wherever it is.
    Dock::dockForWidget(desk.window->docks().last()->widget(0))->floatDock();
    deleteDeferred();
    QCOMPARE(desk.trees(), latin1("V(-) + V(*B) + V(-) + V(*A)"));
}

void tst_DockArrangement::expandedPaneTakesAll()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    desk.pane("B");
    dock->split(Qt::Horizontal, true);
    QVERIFY(desk.show());
    DockSplitter* const root = desk.window->rootSplitter();
    DockSplitter* const inner = qobject_cast<DockSplitter*>(dock->parentWidget());
    root->setSizes(QList<int>() << 100 << 200);
    inner->setSizes(QList<int>() << 300 << 100);
    const QList<int> sizes = root->sizes() + inner->sizes();
    for (int i = 0; i < 2; ++i) {
        dock->setExpanded(true);
        QVERIFY(dock->isExpanded());
        QCOMPARE(dock->size(), root->size() - QSize(root->handleWidth(), root->handleWidth()));
    }
    QCOMPARE(root->realSizes() + inner->realSizes(), sizes);
    dock->setExpanded(false);
    QVERIFY(!dock->isExpanded());
    QCOMPARE(root->sizes() + inner->sizes(), sizes);
}

void tst_DockArrangement::fullscreenTogglesWindow()
{
    Desk desk;
    Dock* const dock = desk.floatingPane("A");
    QVERIFY(desk.show());
    dock->fullscreenDock();
    QVERIFY(dock->isFullscreenDock());
    QVERIFY(dock->window()->isFullScreen() && !desk.window->isFullScreen());
    dock->fullscreenDock();
    QVERIFY(!dock->isFullscreenDock());
    QVERIFY(!dock->window()->isFullScreen());
}

QTEST_MAIN(tst_DockArrangement)
#include "tst_DockArrangement.moc"
