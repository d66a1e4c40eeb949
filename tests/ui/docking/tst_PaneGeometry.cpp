#include <ui/docking/PaneGeometry.h>

#include <QtTest>

using namespace Norvane::UI;

class tst_PaneGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void paneIsLaidOut();
    void buttonsFitIntoWidePanes();
    void dropSide_data();
    void dropSide();
    void dropAreaIsHalf();
};

namespace {

PaneMetrics commonMetrics()
{
    PaneMetrics metrics;
    metrics.pane = QSize(300, 200);
    metrics.hasCloseButton = true;
    metrics.menuWidth = 22;
    metrics.margin = 2;
    metrics.lineSpacing = 15;
    metrics.closeButton = QSize(20, 20);
    metrics.floatButton = QSize(18, 16);
    metrics.tabBar = QSize(120, 24);
    return metrics;
}

} // namespace

void tst_PaneGeometry::paneIsLaidOut()
{
    PaneMetrics metrics = commonMetrics();
    PaneLayout layout = layOutPane(metrics);
    QCOMPARE(layout.closeButton, QRect(277, 2, 20, 20));
    QCOMPARE(layout.floatButton, QRect(258, 4, 18, 16));
    QCOMPARE(layout.tabBar, QRect(22, 0, 120, 26));
    QCOMPARE(layout.titleBar, QRect(0, 0, 300, 26));
    QCOMPARE(layout.stack, QRect(0, 26, 300, 174));

    // Neither menu button nor others, and more tabs than there is room for.
    metrics.menuWidth = 0;
    metrics.hasCloseButton = false;
    metrics.closeButton = metrics.floatButton = QSize(0, 0);
    metrics.tabBar = QSize(900, 40);
    layout = layOutPane(metrics);
    QCOMPARE(layout.tabBar, QRect(0, 0, 297, 40));
    QCOMPARE(layout.stack, QRect(0, 40, 300, 160));

    metrics.titleVisible = false;
    QCOMPARE(layOutPane(metrics).titleBar, QRect(0, 0, 300, 3));
    QCOMPARE(layOutPane(metrics).stack, QRect(0, 3, 300, 197));
}

void tst_PaneGeometry::buttonsFitIntoWidePanes()
{
    PaneMetrics metrics = commonMetrics();
    metrics.pane.setWidth(64);
    QVERIFY(layOutPane(metrics).buttonsFit);
    metrics.pane.setWidth(63);
    QVERIFY(!layOutPane(metrics).buttonsFit);
    metrics.menuWidth = 0;
    QVERIFY(layOutPane(metrics).buttonsFit);
    metrics.pane.setWidth(0);
    QVERIFY(layOutPane(metrics).tabBar.width() >= 0);
}

void tst_PaneGeometry::dropSide_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QSize>("pane");
    QTest::addColumn<int>("side");
    const QSize large(300, 230);
    const QSize narrow(89, 230);
    const QSize tiny(60, 60);
    QTest::newRow("middle") << QPoint(150, 100) << large << +kDropCentre;
    QTest::newRow("left") << QPoint(29, 100) << large << +kDropLeft;
    QTest::newRow("right of the left border") << QPoint(30, 100) << large << +kDropCentre;
    QTest::newRow("right") << QPoint(270, 100) << large << +kDropRight;
    QTest::newRow("left of the right border") << QPoint(269, 100) << large << +kDropCentre;
    QTest::newRow("top") << QPoint(150, 29) << large << +kDropTop;
    QTest::newRow("below the top border") << QPoint(150, 30) << large << +kDropCentre;
    QTest::newRow("bottom") << QPoint(150, 170) << large << +kDropBottom;
    QTest::newRow("above the bottom border") << QPoint(150, 169) << large << +kDropCentre;
    QTest::newRow("on the title") << QPoint(5, -1) << large << +kDropCentre;
    QTest::newRow("top left diagonal") << QPoint(5, 5) << large << +kDropTop;
    QTest::newRow("bottom left diagonal") << QPoint(5, 194) << large << +kDropBottom;
    QTest::newRow("narrow pane, left") << QPoint(28, 100) << narrow << +kDropLeft;
    QTest::newRow("narrow pane, middle") << QPoint(29, 100) << narrow << +kDropCentre;
    QTest::newRow("tiny pane, top") << QPoint(30, 9) << tiny << +kDropTop;
}

void tst_PaneGeometry::dropSide()
{
    QFETCH(QPoint, position);
    QFETCH(QSize, pane);
    QTEST(int(dropSideAt(position, QRect(QPoint(0, 0), pane - QSize(0, 30)), pane)), "side");
}

void tst_PaneGeometry::dropAreaIsHalf()
{
    const QRect pane(1, 1, 98, 58);
    QCOMPARE(dropArea(pane, kDropCentre), pane);
    QCOMPARE(dropArea(pane, kDropLeft), QRect(1, 1, 49, 58));
    QCOMPARE(dropArea(pane, kDropRight), QRect(49, 1, 50, 58));
    QCOMPARE(dropArea(pane, kDropTop), QRect(1, 1, 98, 29));
    QCOMPARE(dropArea(pane, kDropBottom), QRect(1, 29, 98, 30));
}

QTEST_APPLESS_MAIN(tst_PaneGeometry)
#include "tst_PaneGeometry.moc"
