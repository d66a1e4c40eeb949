// A long random walk through everything that a user and a host may do with panes; after each step the whole
// arrangement must be in order. A failure names seed, step and operation. To walk others:
//
//   NORVANE_WALK_SEED="17 18" NORVANE_WALK_STEPS=5000 tst_DockWalk

#include <tests/ui/docking/DockWalk.h>

#include <QCursor>
#include <QtTest>

using namespace NorvaneTest;

namespace {

const int kSteps = 2000;

}

class tst_DockWalk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Windows come and go; the real mouse must not meddle.
    void initTestCase() { QCursor::setPos(5, 5); }
    void everythingStaysInOrder_data();
    void everythingStaysInOrder();
};

void tst_DockWalk::everythingStaysInOrder_data()
{
    QTest::addColumn<unsigned>("seed");
    const QByteArray wanted = qgetenv("NORVANE_WALK_SEED");
    const QList<QByteArray> seeds =
        wanted.isEmpty() ? QByteArray("1 2 3 5 8 13").split(' ') : wanted.split(' ');
    for (const QByteArray& seed : seeds)
        QTest::newRow(QByteArray("seed " + seed).constData()) << seed.toUInt();
}

void tst_DockWalk::everythingStaysInOrder()
{
    QFETCH(unsigned, seed);
    const QByteArray wanted = qgetenv("NORVANE_WALK_STEPS");
    const int steps = wanted.isEmpty() ? kSteps : wanted.toInt();
    DockWalk walk(seed);
    for (int i = 1; i <= steps; ++i) {
        const QStringList problems = walk.step();
        const QString place =
            QString::fromLatin1("seed %1, step %2, %3: ").arg(seed).arg(i).arg(walk.lastOperation());
        QVERIFY2(problems.isEmpty(), qPrintable(place + problems.join(QLatin1String("; "))));
    }
    const QStringList problems = walk.finish();
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1String("; "))));
}

QTEST_MAIN(tst_DockWalk)
#include "tst_DockWalk.moc"
