#include <ui/docking/Dock.h>

#include <tests/support/Desk.h>

#include <QAction>
#include <QFile>
#include <QMenu>

using namespace NorvaneTest;

class tst_Dock : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void showTabsTogglesTitle();
    void singleTabIsHidden();
    void titleStaysUnlessInserted();
    void titlesFollowPanels();
    void layoutIsDumped();
};

void tst_Dock::showTabsTogglesTitle()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    QAction* const action = dock->menu()->actions().at(8);
    QVERIFY(action->isCheckable() && action->isChecked());
    action->trigger();
    QVERIFY(!dock->titleVisible());
    dock->setProperty("titleVisible", true);
    QVERIFY(action->isChecked());
}

void tst_Dock::singleTabIsHidden()
{
    Desk desk;
    desk.window->setHideSingleTabs(true);
    Dock* const dock = desk.pane("A");
    QVERIFY(!dock->titleVisible());
    desk.fill(dock, "B");
    QVERIFY(dock->titleVisible());
    dock->removeWidget(dock->widget(0));
    QVERIFY(!dock->titleVisible());
    dock->insertWidget(0, desk.panel(latin1("C")));
    QVERIFY(dock->titleVisible());
    dock->closeTab(0);
    QVERIFY(!dock->titleVisible());
    dock->closeTab(0);
    QVERIFY(dock->titleVisible());
}

void tst_Dock::titleStaysUnlessInserted()
{
    Desk desk;
    Dock* const dock = desk.pane("");
    dock->setTitleVisible(false);
    desk.fill(dock, "A B");
    QVERIFY(!dock->titleVisible());
    dock->insertWidget(-1, desk.panel(latin1("C")));
    QVERIFY(dock->titleVisible());
    dock->setTitleVisible(false);
    dock->removeWidget(dock->widget(0));
    QVERIFY(dock->titleVisible());
}

void tst_Dock::titlesFollowPanels()
{
    Desk desk;
    Dock* const dock = desk.pane("A");
    QVERIFY(dock->tabBar()->tabIcon(0).isNull());
    desk.window->setWindowIcon(QIcon(latin1(":/ui/qrc/images/HSplit.png")));
    dock->widget(0)->setWindowTitle(latin1("R&D"));
    dock->updateTitles();
    QCOMPARE(dock->tabBar()->tabText(0), latin1("R&&D"));
    QCOMPARE(dock->accessibleName(), latin1("R&D"));
    QVERIFY(dock->tabBar()->tabIcon(0).isNull());
    dock->widget(0)->setWindowIcon(desk.window->windowIcon());
    dock->updateTitles();
    QVERIFY(!dock->tabBar()->tabIcon(0).isNull());
    desk.fill(dock, "B");
    QCOMPARE(dock->accessibleName(), latin1("B"));
}

void tst_Dock::layoutIsDumped()
{
    Desk desk;
    QFile file(latin1("/tmp/layout.xml"));
    file.remove();
    desk.pane("Dumped.1")->dumpLayout();
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("<page id=\"Dumped.1\"/>"));
    file.remove();
}

QTEST_MAIN(tst_Dock)
#include "tst_Dock.moc"
