#include <ui/docking/DockSplitter.h>

#include <tests/support/Desk.h>
#include <tests/support/LayoutDocuments.h>

using namespace NorvaneTest;

class tst_DockSplitter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void emptySplitterInLayoutDisappears();
    void sizeHintsDoNotMoveHandles();
    void handlesAreVisible_data();
    void handlesAreVisible();
};

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
