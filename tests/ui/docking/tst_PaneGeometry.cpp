#include <ui/docking/PaneGeometry.h>

#include <QtTest>

using namespace Norvane::UI;

Q_DECLARE_METATYPE(Norvane::UI::PaneMetrics)

class tst_PaneGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void paneIsLaidOut_data();
    void paneIsLaidOut();
    void buttonsFitIntoWidePanes();
    void dropSide_data();
    void dropSide();
    void dropAreaIsHalf_data();
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

PaneMetrics withTabBar(int width, int height)
{
    PaneMetrics metrics = commonMetrics();
    metrics.tabBar = QSize(width, height);
    return metrics;
}

} // namespace

void tst_PaneGeometry::paneIsLaidOut_data()
{
    QTest::addColumn<PaneMetrics>("metrics");
    QTest::addColumn<QRect>("close");
    QTest::addColumn<QRect>("floating");
    QTest::addColumn<QRect>("tabBar");
    QTest::addColumn<int>("titleHeight");
    const QRect close(277, 2, 20, 20);
    const QRect floating(258, 4, 18, 16);

    QTest::newRow("room for all") << commonMetrics() << close << floating << QRect(22, 0, 120, 26) << 26;
    QTest::newRow("high tabs") << withTabBar(120, 40) << close << floating << QRect(22, 0, 120, 40) << 40;

    PaneMetrics metrics = commonMetrics();
    metrics.menuWidth = 0;
    QTest::newRow("no menu button") << metrics << close << floating << QRect(0, 0, 120, 26) << 26;

    metrics = commonMetrics();
    metrics.lineSpacing = 40;
    QTest::newRow("large font") << metrics << QRect(277, 12, 20, 20) << QRect(258, 14, 18, 16)
                                << QRect(22, 0, 120, 46) << 46;

    metrics = withTabBar(900, 10);
    metrics.hasCloseButton = false;
    metrics.closeButton = metrics.floatButton = QSize(0, 0);
    QTest::newRow("tabs with close buttons")
        << metrics << QRect(297, 10, 0, 0) << QRect(296, 10, 0, 0) << QRect(22, 0, 275, 21) << 21;

    metrics = commonMetrics();
    metrics.direction = Qt::RightToLeft;
    QTest::newRow("right to left") << metrics << QRect(3, 2, 20, 20) << QRect(24, 4, 18, 16)
                                   << QRect(158, 0, 120, 26) << 26;
}

void tst_PaneGeometry::paneIsLaidOut()
{
    QFETCH(PaneMetrics, metrics);
    QFETCH(int, titleHeight);
    const PaneLayout layout = layOutPane(metrics);
    QTEST(layout.closeButton, "close");
    QTEST(layout.floatButton, "floating");
    QTEST(layout.tabBar, "tabBar");
    QCOMPARE(layout.titleBar, QRect(0, 0, 300, titleHeight));
    QCOMPARE(layout.stack, QRect(0, titleHeight, 300, 200 - titleHeight));

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

void tst_PaneGeometry::dropAreaIsHalf_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QRect>("area");
    QTest::newRow("centre") << +kDropCentre << QRect(1, 1, 98, 58);
    QTest::newRow("left") << +kDropLeft << QRect(1, 1, 49, 58);
    QTest::newRow("right") << +kDropRight << QRect(49, 1, 50, 58);
    QTest::newRow("top") << +kDropTop << QRect(1, 1, 98, 29);
    QTest::newRow("bottom") << +kDropBottom << QRect(1, 29, 98, 30);
}

void tst_PaneGeometry::dropAreaIsHalf()
{
    QFETCH(int, side);
    QTEST(dropArea(QRect(1, 1, 98, 58), static_cast<DropSide>(side)), "area");
}

QTEST_APPLESS_MAIN(tst_PaneGeometry)
#include "tst_PaneGeometry.moc"
