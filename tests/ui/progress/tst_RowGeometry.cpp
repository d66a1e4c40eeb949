#include <ui/progress/RowGeometry.h>

#include <QtTest>

using namespace Norvane::UI;

class tst_RowGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void parts_data();
    void parts();
    void text_data();
    void text();
};

void tst_RowGeometry::parts_data()
{
    QTest::addColumn<QSize>("cancel");
    QTest::addColumn<QSize>("pause");
    QTest::addColumn<QRect>("cancelRect");
    QTest::addColumn<QRect>("pauseRect");
    QTest::addColumn<int>("barLeft");
    const QSize none;
    const QRect nowhere;
    QTest::newRow("no buttons") << none << none << nowhere << nowhere << 305;
    QTest::newRow("Cancel") << QSize(80, 24) << none << QRect(415, 6, 80, 24) << nowhere << 300;
    QTest::newRow("both") << QSize(80, 24) << QSize(90, 22) << QRect(415, 6, 80, 24) << QRect(405, 35, 90, 22)
                          << 290;
}

void tst_RowGeometry::parts()
{
    QFETCH(QSize, cancel);
    QFETCH(QSize, pause);
    QFETCH(int, barLeft);
    const RowGeometry geometry = layOutRow(500, {cancel, pause, QSize(100, 20)});
    QTEST(geometry.cancelButton, "cancelRect");
    QTEST(geometry.pauseButton, "pauseRect");
    QCOMPARE(geometry.progressBar, QRect(barLeft, 6, 100, 20));
}

void tst_RowGeometry::text_data()
{
    QTest::addColumn<QSize>("cancel");
    QTest::addColumn<QSize>("pause");
    QTest::addColumn<bool>("isSubTask");
    QTest::addColumn<QRect>("area");
    QTest::newRow("no buttons") << QSize() << QSize() << false << QRect(QPoint(8, 6), QPoint(306, 72));
    QTest::newRow("Cancel") << QSize(80, 24) << QSize(90, 24) << false
                            << QRect(QPoint(8, 6), QPoint(302, 72));
    QTest::newRow("Pause") << QSize() << QSize(90, 24) << false << QRect(QPoint(8, 6), QPoint(292, 72));
    QTest::newRow("sub-task") << QSize() << QSize() << true << QRect(QPoint(32, 6), QPoint(306, 72));
}

void tst_RowGeometry::text()
{
    QFETCH(QSize, cancel);
    QFETCH(QSize, pause);
    QFETCH(bool, isSubTask);
    QTEST(rowTextArea(QRect(0, 0, 500, 80), {cancel, pause, QSize(100, 20)}, isSubTask), "area");
}

QTEST_APPLESS_MAIN(tst_RowGeometry)
#include "tst_RowGeometry.moc"
