#include <ui/docking/Dock.h>

#include <tests/support/Desk.h>

using namespace NorvaneTest;

/// Splitting, floating, expanding, full screen.
class tst_DockArrangement : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void splitHalvesPane();
    void splitKeepsFocus();
    void paneOutsideSplitterIsNotSplit();
    void floatingPanelTakesPlaceOfPane();
    void expandedPaneTakesAll();
};

void tst_DockArrangement::splitHalvesPane()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    Dock* const other = desk.pane("B");
    QVERIFY(desk.show());
    desk.window->rootSplitter()->setSizes(QList<int>() << 300 << 100);
    const int otherHeight = other->height();
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
    dock->transposeDock();
    QCOMPARE(desk.trees(), latin1("V(V(*A, -), *B)"));
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

QTEST_MAIN(tst_DockArrangement)
#include "tst_DockArrangement.moc"
