#include <ui/docking/DockSplitter.h>

#include <tests/support/Desk.h>
#include <tests/support/LayoutDocuments.h>

using namespace NorvaneTest;

class tst_DockSplitter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void expandedChildTakesAll();
    void emptiedInnerSplittersRemoveThemselves();
    void emptiedRootStays();
    void emptySplitterInLayoutDisappears();
    void sizeHintsDoNotMoveHandles();
    void handlesAreVisible_data();
    void handlesAreVisible();
};

void tst_DockSplitter::expandedChildTakesAll()
{
    DockSplitter splitter(Qt::Vertical);
    for (int i = 0; i < 3; ++i)
        splitter.addWidget(new Dock(nullptr));
    splitter.resize(600 + 2 * splitter.handleWidth(), 600 + 2 * splitter.handleWidth());
    splitter.show();
    const QList<int> sizes = QList<int>() << 100 << 200 << 300;
    splitter.setSizes(sizes);
    QCOMPARE(splitter.realSizes(), sizes);
    splitter.expand(1);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(splitter.sizes()[i], i == 1 ? 600 : 0);
    QCOMPARE(splitter.realSizes(), sizes);
    splitter.expand(-1);
    QCOMPARE(splitter.sizes(), sizes);
}

void tst_DockSplitter::emptiedInnerSplittersRemoveThemselves()
{
    Desk desk;
    desk.pane("A");
    const QPointer<DockSplitter> inner(new DockSplitter(Qt::Horizontal));
    const QPointer<DockSplitter> innermost(new DockSplitter(Qt::Vertical));
    desk.window->rootSplitter()->addWidget(inner);
    inner->addWidget(innermost);
    Dock* const dock = desk.fill(new Dock(desk.window), "B");
    innermost->addWidget(dock);
    QVERIFY(desk.show());
    QCOMPARE(desk.trees(), latin1("V(*A, H(V(*B)))"));
    dock->close();
    WAIT_FOR(!inner && !innermost);
    QCOMPARE(desk.trees(), latin1("V(*A)"));
    WAIT_FOR(desk.window->rootSplitter()->widget(0)->height() == desk.window->rootSplitter()->height());
}

void tst_DockSplitter::emptiedRootStays()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    const QPointer<Dock> floating(desk.floatingPane("B"));
    QVERIFY(desk.show());
    dock->close();
    delete floating;
    WAIT_FOR(desk.trees() == latin1("V() + V()"));
    desk.window->rootSplitter()->updateDocks();
    QCOMPARE(desk.window->centralWidget(), static_cast<QWidget*>(desk.window->rootSplitter()));
    QVERIFY(desk.window->rootSplitter()->isVisible());
}

void tst_DockSplitter::emptySplitterInLayoutDisappears()
{
    Desk desk;
    QVERIFY(desk.show());
    QVERIFY(desk.restore(LayoutDocuments::inWindow(
        LayoutDocuments::splitter("<split size='9'/><splitter/><split size='9'/><dock id='pane1'/>"))));
    WAIT_FOR(desk.trees() == latin1("H(-)"));
    WAIT_FOR(desk.window->docks().first()->width() == desk.window->rootSplitter()->width());
}

void tst_DockSplitter::sizeHintsDoNotMoveHandles()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    desk.pane("B");
    QVERIFY(desk.show());
    desk.window->rootSplitter()->setSizes(QList<int>() << 100 << 1000);
    const QList<int> sizes = desk.window->rootSplitter()->sizes();
    dock->currentWidget()->setMinimumHeight(40);
    dock->updateGeometry();
    desk.fill(dock, "C D E");
    QCoreApplication::sendPostedEvents();
    QCOMPARE(desk.window->rootSplitter()->sizes(), sizes);
}

void tst_DockSplitter::handlesAreVisible_data()
{
    QTest::addColumn<bool>("splitBeforeShow");
    QTest::addColumn<bool>("restore");
    QTest::newRow("split, then shown") << true << false;
    QTest::newRow("shown, then split") << false << false;
    QTest::newRow("restored") << true << true;
}

void tst_DockSplitter::handlesAreVisible()
{
    QFETCH(bool, splitBeforeShow);
    QFETCH(bool, restore);
    Desk desk;
    Dock* const dock = desk.pane("A");
    if (!splitBeforeShow)
        QVERIFY(desk.show());
    dock->split(Qt::Vertical, false);
    dock->split(Qt::Horizontal, false);
    if (splitBeforeShow)
        QVERIFY(desk.show());
    if (restore)
        QVERIFY(desk.restore(desk.save()));
    QCOMPARE(desk.trees(), latin1("V(H(*A, -), -)"));
    DockSplitter* const root = desk.window->rootSplitter();
    QSplitter* const inner = qobject_cast<QSplitter*>(root->widget(0));
    WAIT_FOR(root->handle(1)->isVisible() && inner->handle(1)->isVisible());
    QVERIFY(!root->handle(0)->isVisible() && !inner->handle(0)->isVisible());
}

QTEST_MAIN(tst_DockSplitter)
#include "tst_DockSplitter.moc"
