#include <ui/docking/Dock.h>

#include <tests/support/Desk.h>
#include <ui/docking/DockTitleBar.h>
#include <ui/docking/TitleBarButton.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QStackedWidget>
#include <QToolBar>

using namespace NorvaneTest;
using Norvane::UI::TitleBarButton;

/// What a pane does on events of its own: title, layout, the mouse, focus.
class tst_DockEvents : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void cleanup() { QCursor::setPos(5, 5); }
    void hiddenTitleAndNarrowPaneHideButtons();
    void nothingOverlapsInTitle_data();
    void nothingOverlapsInTitle();
    void toolBarLimitsSize();
    void focusFollowsMouseAndReturns_data();
    void focusFollowsMouseAndReturns();
    void contextMenuPopsUp();
    void titleFollowsNumberOfPanels();
    void titlesFollowPanels();
};

namespace {

/// The titles of the buttons that a user can see: "Panel menu|Float the current tab|Close the current tab".
QString visibleButtons(const Dock* dock)
{
    QStringList names;
    for (const TitleBarButton* const button : dock->titleBar()->findChildren<TitleBarButton*>()) {
        if (button->isVisible())
            names.append(button->accessibleName());
    }
    return names.join(latin1("|"));
}

void moveMouseTo(const Dock* dock)
{
    QCursor::setPos(dock->mapToGlobal(dock->rect().center()));
    WAIT_FOR(dock->underMouse());
    QCoreApplication::processEvents();
}

} // namespace

void tst_DockEvents::hiddenTitleAndNarrowPaneHideButtons()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    Dock* const wide = dock->split(Qt::Horizontal, false);
    QVERIFY(desk.show());
    const QString all = visibleButtons(dock);
    QAction* const showTabs = dock->menu()->actions().at(8);
    showTabs->trigger();
    QCOMPARE(visibleButtons(dock), latin1(""));
    QCOMPARE(dock->titleBar()->geometry(), QRect(0, 0, dock->width(), 3));
    QCOMPARE(dock->stack()->geometry(), dock->rect().adjusted(0, 3, 0, 0));
    dock->setTitleVisible(true);
    QVERIFY(showTabs->isChecked());
    QCOMPARE(visibleButtons(dock), all);
    desk.window->rootSplitter()->setSizes(QList<int>() << 30 << 1000);
    QCOMPARE(visibleButtons(dock), latin1("Panel menu"));
    desk.window->rootSplitter()->setSizes(QList<int>() << 1000 << 1000);
    QCOMPARE(visibleButtons(dock), all);
    QCOMPARE(visibleButtons(wide), all);
}

void tst_DockEvents::nothingOverlapsInTitle_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("points");
    QTest::newRow("left to right") << +Qt::LeftToRight << 0;
    QTest::newRow("right to left") << +Qt::RightToLeft << 0;
    QTest::newRow("large font") << +Qt::LeftToRight << 30;
}

void tst_DockEvents::nothingOverlapsInTitle()
{
    QFETCH(int, direction);
    QFETCH(int, points);
    Desk desk;
    Dock* const dock = desk.pane("AAAAAAAAAAAAAAAAAA BBBBBBBBBBBBBBBBBBBBBBBB CCCCCCCCCCCCCCCCCCCCCCCCCC");
    QVERIFY(desk.show());
    dock->setLayoutDirection(static_cast<Qt::LayoutDirection>(direction));
    if (points) {
        QFont font = dock->font();
        font.setPointSize(points);
        dock->setFont(font);
    }
    QList<QWidget*> parts;
    parts << dock->tabBar();
    for (TitleBarButton* const button : dock->titleBar()->findChildren<TitleBarButton*>())
        parts << button;
    QCOMPARE(int(parts.size()), 4);
    for (const QWidget* const part : parts) {
        QVERIFY(dock->titleBar()->rect().contains(part->geometry()));
        for (const QWidget* const other : parts)
            QVERIFY(other == part || !other->geometry().intersects(part->geometry()));
    }
    const bool menuIsLeft = parts[1]->x() < parts[3]->x();
    QCOMPARE(menuIsLeft, direction == Qt::LeftToRight);
}

void tst_DockEvents::toolBarLimitsSize()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    QToolBar toolBar;
    toolBar.setMinimumSize(70, 20);
    toolBar.setMaximumSize(300, 40);
    dock->addWidget(&toolBar, false, false);
    QCOMPARE(dock->minimumSize(), QSize(70, 20));
    QVERIFY(dock->maximumWidth() < QWIDGETSIZE_MAX);
    dock->removeWidget(&toolBar);
    QCOMPARE(dock->minimumSize(), QSize(0, 0));
    QCOMPARE(dock->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void tst_DockEvents::focusFollowsMouseAndReturns_data()
{
    QTest::addColumn<bool>("editing");
    QTest::addColumn<QString>("panels");
    QTest::addColumn<QString>("focus");
    QTest::newRow("from another pane") << false << latin1("B C") << latin1("C");
    QTest::newRow("from a line edit") << true << latin1("B C") << latin1("editor");
    QTest::newRow("to an empty pane") << false << QString() << latin1("target");
}

void tst_DockEvents::focusFollowsMouseAndReturns()
{
    QFETCH(bool, editing);
    QFETCH(QString, panels);
    Desk desk;
    Dock* const dock = desk.pane("A");
    QLineEdit editor(dock->widget(0));
    editor.setObjectName(latin1("editor"));
    Dock* const target = desk.pane(panels.toLatin1().constData());
    target->setObjectName(latin1("target"));
    QVERIFY(desk.show());
    desk.window->rootSplitter()->setSizes(QList<int>() << 100 << 100);
    QWidget* const focused = editing ? &editor : dock->widget(0);
    moveMouseTo(dock);
    focused->setFocus();
    moveMouseTo(target);
    QTEST(QApplication::focusWidget()->objectName(), "focus");
    target->setFocus();
    moveMouseTo(dock);
    WAIT_FOR(QApplication::focusWidget() == focused);
}

void tst_DockEvents::contextMenuPopsUp()
{
    Desk desk;
    desk.pane("A");
    Dock* const dock = desk.pane("B");
    QVERIFY(desk.show());
    const QPoint position = dock->widget(0)->mapToGlobal(QPoint(20, 20));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(20, 20), position);
    QCoreApplication::sendEvent(dock->widget(0), &event);
    WAIT_FOR(dock->menu()->isVisible());
    QCOMPARE(dock->menu()->pos(), position);
    QCOMPARE(QApplication::focusWidget(), dock->widget(0));
    dock->menu()->close();
}

void tst_DockEvents::titleFollowsNumberOfPanels()
{
    Desk desk;
    Dock* const dock = desk.pane("");
    dock->setTitleVisible(false);
    desk.fill(dock, "A B");
    QVERIFY(!dock->titleVisible());
    dock->insertWidget(-1, desk.panel(latin1("C")));
    QVERIFY(dock->titleVisible());

    desk.window->setHideSingleTabs(true);
    dock->removeWidget(dock->widget(0));
    QVERIFY(dock->titleVisible());
    dock->closeTab(0);
    QVERIFY(!dock->titleVisible());
    desk.fill(dock, "D");
    QVERIFY(dock->titleVisible());
    dock->closeTab(0);
    QVERIFY(!dock->titleVisible());
    dock->closeTab(0);
    QVERIFY(dock->titleVisible());
}

void tst_DockEvents::titlesFollowPanels()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    desk.window->setWindowIcon(QIcon(latin1(":/ui/qrc/images/HSplit.png")));
    dock->widget(0)->setWindowTitle(latin1("R&D"));
    dock->updateTitles();
    QCOMPARE(dock->tabBar()->tabText(0), latin1("R&&D"));
    QCOMPARE(dock->accessibleName(), latin1("R&D"));
    QVERIFY(dock->tabBar()->tabIcon(0).isNull());
    dock->widget(0)->setWindowIcon(desk.window->windowIcon());
    dock->updateTitles();
    QVERIFY(!dock->tabBar()->tabIcon(0).isNull());
}

QTEST_MAIN(tst_DockEvents)
#include "tst_DockEvents.moc"
