// A long random walk through everything that a user and a host may do with panes; after each step the whole
// arrangement must be in order. A failure names seed, step and operation. The host of even seeds meddles. To
// walk others:
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
    QTest::addColumn<bool>("meddles");
    const QByteArray wanted = qgetenv("NORVANE_WALK_SEED");
    const QList<QByteArray> seeds = wanted.isEmpty() ? QByteArray("1 2 3 4").split(' ') : wanted.split(' ');
    for (const QByteArray& seed : seeds) {
        const bool meddles = seed.toUInt() % 2 == 0;
        const QByteArray name = "seed " + seed + (meddles ? ", the host meddles" : "");
        QTest::newRow(name.constData()) << seed.toUInt() << meddles;
    }
}

void tst_DockWalk::everythingStaysInOrder()
{
    QFETCH(unsigned, seed);
    QFETCH(bool, meddles);
    const QByteArray wanted = qgetenv("NORVANE_WALK_STEPS");
    const int steps = wanted.isEmpty() ? kSteps : wanted.toInt();
    DockWalk walk(seed, meddles);
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
