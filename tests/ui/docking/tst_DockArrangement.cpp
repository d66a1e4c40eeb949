#include <ui/docking/Dock.h>

#include <tests/support/Desk.h>
#include <tests/support/LayoutDocuments.h>
#include <tests/support/Recorder.h>

using namespace NorvaneTest;

/// Splitting, floating, expanding and closing.
class tst_DockArrangement : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void splitHalvesPaneAndKeepsFocus();
    void floatingPanelTakesPlaceOfPane();
    void expandedPaneTakesAll();
    void emptySplitterInLayoutDisappears();
    void sizeHintsDoNotMoveHandles();
    void handlesAreVisible_data();
    void handlesAreVisible();
    void closingAsksPanesDepthFirstAndHeedsNoRefusal();
};

void tst_DockArrangement::splitHalvesPaneAndKeepsFocus()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    Dock* const other = desk.pane("B");
    QVERIFY(desk.show());
    desk.window->rootSplitter()->setSizes(QList<int>() << 300 << 100);
    const int otherHeight = other->height();
    dock->setFocus();
    const int handle = desk.window->rootSplitter()->handleWidth();
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const QSize size = dock->size();
        const QSize half = orientation == Qt::Horizontal ? QSize(size.width() / 2, size.height())
                                                         : QSize(size.width(), size.height() / 2);
        const Dock* const created = dock->split(orientation, false);
        WAIT_FOR(created->isVisible());
        for (const Dock* const pane : {static_cast<const Dock*>(dock), created}) {
            QVERIFY(qAbs(pane->width() - half.width()) <= handle);
            QVERIFY(qAbs(pane->height() - half.height()) <= handle);
        }
    }
    QVERIFY(qAbs(other->height() - otherHeight) <= handle);
    dock->transposeDock();
    QCOMPARE(QApplication::focusWidget(), dock->widget(0));
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
    const QByteArray saved = desk.save();
    for (int i = 0; i < 2; ++i) {
        dock->setExpanded(true);
        QVERIFY(dock->isExpanded());
        QCOMPARE(dock->size(), root->size() - QSize(root->handleWidth(), root->handleWidth()));
    }
    QCOMPARE(desk.save(), saved);
    dock->setExpanded(false);
    QVERIFY(!dock->isExpanded());
    QCOMPARE(root->sizes() + inner->sizes(), sizes);
}

void tst_DockArrangement::emptySplitterInLayoutDisappears()
{
    Desk desk;
    QVERIFY(desk.show());
    QVERIFY(desk.restore(LayoutDocuments::inWindow(
        LayoutDocuments::splitter("<split size='9'/><splitter/><split size='9'/><dock id='pane1'/>"))));
    WAIT_FOR(desk.trees() == latin1("H(-)"));
    WAIT_FOR(desk.window->docks().first()->width() == desk.window->rootSplitter()->width());
}

void tst_DockArrangement::sizeHintsDoNotMoveHandles()
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

void tst_DockArrangement::handlesAreVisible_data()
{
    QTest::addColumn<bool>("splitBeforeShow");
    QTest::newRow("split, then shown") << true;
    QTest::newRow("shown, then split") << false;
}

void tst_DockArrangement::handlesAreVisible()
{
    QFETCH(bool, splitBeforeShow);
    Desk desk;
    Dock* const dock = desk.pane("A");
    if (!splitBeforeShow)
        QVERIFY(desk.show());
    dock->split(Qt::Vertical, false);
    dock->split(Qt::Horizontal, false);
    QVERIFY(desk.show());
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(desk.trees(), latin1("V(H(*A, -), -)"));
        const QSplitter* const root = desk.window->rootSplitter();
        const QSplitter* const inner = qobject_cast<QSplitter*>(root->widget(0));
        WAIT_FOR(root->handle(1)->isVisible() && inner->handle(1)->isVisible());
        QVERIFY(!root->handle(0)->isVisible() && !inner->handle(0)->isVisible());
        QVERIFY(desk.restore(desk.save()));
    }
}

void tst_DockArrangement::closingAsksPanesDepthFirstAndHeedsNoRefusal()
{
    Desk desk;
    Dock* const first = desk.pane("A");
    desk.pane("C D");
    desk.fill(first->split(Qt::Horizontal, false), "B");
    const QPointer<QWidget> refusing(first->widget(0));
    static_cast<Panel*>(refusing.data())->refuses = true;
    QVERIFY(desk.show());
    Recorder recorder(desk.window);
    QVERIFY(desk.window->close());
    QCOMPARE(recorder.takeMoves(), latin1("-B -D -C"));
    WAIT_FOR(!desk.window);
    QVERIFY(refusing && !refusing->parentWidget());
}

QTEST_MAIN(tst_DockArrangement)
#include "tst_DockArrangement.moc"
