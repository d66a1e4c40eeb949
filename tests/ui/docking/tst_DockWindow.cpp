#include <ui/docking/DockWindow.h>

#include <tests/support/Desk.h>

using namespace NorvaneTest;

class tst_DockWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void paneIsFoundByPaneId_data();
    void paneIsFoundByPaneId();
    void closingAsksPanesDepthFirstAndHeedsNoRefusal();
};

void tst_DockWindow::paneIsFoundByPaneId_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("exact");
    QTest::addColumn<QString>("found");
    QTest::newRow("exact, second id") << latin1("Scopes.1") << true << latin1("*B");
    QTest::newRow("exact, only the beginning") << latin1("Scopes.") << true << latin1("no pane");
    QTest::newRow("beginning, depth first") << latin1("Graph.") << false << latin1("*B");
    QTest::newRow("beginning, other case") << latin1("gr") << false << latin1("no pane");
    QTest::newRow("longer than the id") << latin1("Graph.22") << false << latin1("no pane");
}

void tst_DockWindow::paneIsFoundByPaneId()
{
    QFETCH(QString, id);
    QFETCH(bool, exact);
    Desk desk;
    Dock* const first = desk.pane("A");
    Dock* const last = desk.pane("C");
    Dock* const inner = desk.fill(first->split(Qt::Horizontal, true), "B");
    QCOMPARE(desk.trees(), latin1("V(H(*B, *A), *C)"));
    inner->paneIDs() << latin1("Graph.1") << latin1("Scopes.1");
    last->paneIDs() << latin1("Graph.2");
    QTEST(tabs(desk.window->findDockWithPaneID(id, exact)), "found");
}

namespace {

class CloseOrder : public QObject
{
public:
    QString order;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Close)
            order += watched->objectName();
        return false;
    }
};

} // namespace

void tst_DockWindow::closingAsksPanesDepthFirstAndHeedsNoRefusal()
{
    Desk desk;
    Dock* const first = desk.pane("A");
    desk.pane("C D");
    desk.fill(first->split(Qt::Horizontal, false), "B");
    CloseOrder asked;
    for (const Dock* const dock : desk.window->docks()) {
        for (int i = 0; i < dock->count(); ++i)
            dock->widget(i)->installEventFilter(&asked);
    }
    const QPointer<QWidget> refusing(first->widget(0));
    static_cast<Panel*>(refusing.data())->refuses = true;
    QVERIFY(desk.show());
    QVERIFY(desk.window->close());
    QCOMPARE(asked.order, latin1("ABDC"));
    WAIT_FOR(!desk.window);
    QVERIFY(refusing && !refusing->parentWidget());
}

QTEST_MAIN(tst_DockWindow)
#include "tst_DockWindow.moc"
