#include <ui/docking/DockMainWindow.h>

#include <tests/support/Desk.h>
#include <tests/support/Recorder.h>

#include <QAction>

using namespace NorvaneTest;

class tst_DockMainWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void focusMovesThroughPanes();
    void focusMovesThroughTabs();
    void focusOutsidePanesStays();
    void focusActivatesCurrentTab();
    void floatingWindowIsRegistered();
};

namespace {

/// The panels that get the focus one after the other, from that of \a start on, when \a slot is called \a
/// times.
QString visited(Desk& desk, Dock* start, const char* slot, int times)
{
    QStringList names;
    desk.show();
    start->setCurrentTab(0);
    start->setFocus();
    for (int i = 0; i < times; ++i) {
        const QWidget* const before = QApplication::focusWidget();
        Desk::refreshTime();
        QMetaObject::invokeMethod(desk.window, slot);
        waitUntil([&] { return QApplication::focusWidget() && QApplication::focusWidget() != before; });
        const QWidget* const panel = desk.window->activeTab();
        names.append(panel ? panel->objectName() : latin1("nothing"));
    }
    return names.join(latin1(" "));
}

/// Whether visited() can be \a names. A busy window manager may lose a request to activate a window, though
/// not every time.
bool visits(Desk& desk, Dock* start, const char* slot, const char* names)
{
    const int times = int(QString(latin1(names)).count(QLatin1Char(' '))) + 1;
    QString last;
    for (int attempt = 0; attempt < 3 && last != latin1(names); ++attempt)
        last = visited(desk, start, slot, times);
    if (last != latin1(names))
        qWarning("visited: %s", qPrintable(last));
    return last == latin1(names);
}

} // namespace

void tst_DockMainWindow::focusMovesThroughPanes()
{
    Desk desk;
    Dock* const first = desk.pane("A");
    desk.pane("");
    desk.fill(first->split(Qt::Horizontal, false), "B");
    desk.floatingPane("C");
    QVERIFY(visits(desk, first, "nextDock", "B C A"));
    QVERIFY(visits(desk, first, "prevDock", "C B A"));
    desk.window->docks()[1]->closeActiveTab();
    desk.window->docks()[3]->closeActiveTab();
    desk.show();
    first->setFocus();
    desk.window->nextDock();
    QCOMPARE(desk.window->activeDock(), first);
}

void tst_DockMainWindow::focusMovesThroughTabs()
{
    Desk desk;
    Dock* const first = desk.pane("A B");
    desk.pane("");
    desk.pane("C");
    Dock* const floating = desk.fill(desk.floatingPane("D"), "E");
    QVERIFY(visits(desk, first, "nextTab", "B C D E A"));
    floating->setCurrentTab(0);
    QVERIFY(visits(desk, first, "prevTab", "E D C B A"));
}

void tst_DockMainWindow::focusOutsidePanesStays()
{
    Desk desk;
    desk.pane("A B");
    QWidget outside(desk.window);
    outside.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(desk.show());
    outside.show();
    outside.setFocus();
    const char* const slots_[] = {"nextDock", "prevDock", "nextTab", "prevTab"};
    for (const char* const slot : slots_) {
        QVERIFY(QMetaObject::invokeMethod(desk.window, slot));
        QCOMPARE(QApplication::focusWidget(), &outside);
    }
    QCOMPARE(desk.trees(), latin1("V(A *B)"));
    QVERIFY(!desk.window->activeDock() && !desk.window->activeTab());
}

void tst_DockMainWindow::focusActivatesCurrentTab()
{
    Desk desk;
    Dock* const first = desk.pane("A");
    Dock* const second = desk.pane("B C");
    QWidget child(second->widget(1));
    QVERIFY(desk.show());
    first->setFocus();
    Recorder recorder(desk.window);
    second->setFocus();
    QCOMPARE(recorder.take(), latin1(""));
    desk.window->setHighlightCurrentTab(true);
    first->setFocus();
    QCOMPARE(recorder.take(), latin1("*A"));
    desk.window->setHighlightCurrentTab(true);
    second->setFocus();
    QCOMPARE(recorder.take(), latin1("*C *C"));
    child.setFocus();
    QCOMPARE(recorder.take(), latin1(""));
    desk.window->setHighlightCurrentTab(false);
    first->setFocus();
    QCOMPARE(recorder.take(), latin1(""));
}

void tst_DockMainWindow::floatingWindowIsRegistered()
{
    Desk desk;
    DockWindow* const empty = desk.window->addNewFloatingDock(nullptr);
    QVERIFY(empty->snapEnabled() && !empty->isVisible());
    DockWindow* const shown = desk.window->addNewFloatingDock(desk.panel(latin1("A")));
    QVERIFY(shown->snapEnabled() && shown->isVisible());
    QCOMPARE(shown->size(), desk.window->docks().first()->sizeHint().expandedTo(shown->minimumSizeHint()));
    QCOMPARE(desk.window->floatingWindows(), QList<DockWindow*>() << empty << shown);
    delete empty;
    QCOMPARE(desk.window->floatingWindows(), QList<DockWindow*>() << shown);

    QWidget withoutSizeHint;
    QVERIFY(!desk.window->addNewFloatingDock(&withoutSizeHint)->size().isEmpty());
}

QTEST_MAIN(tst_DockMainWindow)
#include "tst_DockMainWindow.moc"
