#include <ui/toolkit/Screens.h>

#include <tests/support/Waiting.h>

#include <QWidget>

using namespace Norvane::UI;

class tst_Screens : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void unknownNumberMeansPrimaryScreen();
    void pointOnNoScreenBelongsToNearest();
    void screensShareNothing();
    void windowBelongsToScreenWithMostOfIt_data();
    void windowBelongsToScreenWithMostOfIt();
};

void tst_Screens::unknownNumberMeansPrimaryScreen()
{
    const QByteArray monitors = qgetenv("NORVANE_MONITORS");
    if (!monitors.isEmpty())
        QCOMPARE(Screens::count(), monitors.toInt());
    QVERIFY(Screens::count() >= 1);
    const QRect primary = Screens::availableGeometry(0);
    QVERIFY(primary.isValid());
    QCOMPARE(Screens::availableGeometry(-1), primary);
    QCOMPARE(Screens::availableGeometry(Screens::count()), primary);
}

void tst_Screens::pointOnNoScreenBelongsToNearest()
{
    const QRect last = Screens::availableGeometry(Screens::count() - 1);
    QCOMPARE(Screens::availableGeometry(last.bottomRight() + QPoint(5000, 10)), last);
    const QRect first = Screens::availableGeometry(0);
    QCOMPARE(Screens::availableGeometry(first.topLeft() - QPoint(3000, 3000)), first);
    QCOMPARE(Screens::availableGeometry(first.center()), first);
}

void tst_Screens::screensShareNothing()
{
    for (int i = 0; i < Screens::count(); ++i) {
        for (int j = 0; j < i; ++j)
            QVERIFY(!Screens::availableGeometry(i).intersects(Screens::availableGeometry(j)));
    }
}

void tst_Screens::windowBelongsToScreenWithMostOfIt_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("number");
    QTest::newRow("on the first") << -500 << 0;
    QTest::newRow("mostly on the first") << -160 << 0;
    QTest::newRow("mostly on the second") << -140 << 1;
    QTest::newRow("on the second") << 100 << 1;
}

// offset is that of the window's left edge from the edge between the screens.
void tst_Screens::windowBelongsToScreenWithMostOfIt()
{
    QFETCH(int, offset);
    QFETCH(int, number);
    if (Screens::count() < 2)
        NORVANE_SKIP("needs a second monitor");
    const QRect second = Screens::availableGeometry(1);
    QWidget window(nullptr, Qt::ToolTip);
    QWidget child(&window);
    window.setGeometry(second.left() + offset, second.top() + 100, 300, 200);
    window.show();
    WAIT_FOR(Screens::numberOf(&window) == number);
    QCOMPARE(Screens::numberOf(&child), number);
    QCOMPARE(Screens::availableGeometry(&child), Screens::availableGeometry(number));
    QCOMPARE(Screens::numberOf(nullptr), 0);
}

QTEST_MAIN(tst_Screens)
#include "tst_Screens.moc"
