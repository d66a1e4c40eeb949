#include <ui/colour/WheelGeometry.h>

#include <QtTest>

#include <cmath>

using namespace Norvane::UI;

namespace {

WheelGeometry wheel(WheelView::Kind kind, double side, double zoom = 1, const QPointF& pan = QPointF())
{
    const WheelView view = {kind, QSizeF(side, side), zoom, pan};
    return measureWheel(view);
}

} // namespace

class tst_WheelGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void wheelHasMeasures();
    void pointHasHue();
    void ringHasValues();
    void fixedPointStays();
};

void tst_WheelGeometry::wheelHasMeasures()
{
    const WheelGeometry plain = wheel(WheelView::kPlain, 200);
    QCOMPARE(plain.side, 198.0);
    QCOMPARE(plain.radius, 97.0);
    QCOMPARE(plain.innerRadius, 87.3);
    QCOMPARE(plain.centre, QPointF(100, 100));
    QCOMPARE(plain.discSquare(), QRectF(1, 1, 198, 198));
    const WheelGeometry ring = wheel(WheelView::kWithRing, 200, 2);
    QCOMPARE(ring.radius, 2 * 198 / 2 - 2 - 2 * 16.0);
    QCOMPARE(ring.innerRadius, ring.radius);
    QCOMPARE(wheel(WheelView::kWithRing, 200).ringSquare(), QRectF(1, 1, 198, 198));
    const WheelGeometry small = wheel(WheelView::kSmall, 89);
    QCOMPARE(small.innerRadius, 41.5 * 0.83);
    QCOMPARE(small.centre, QPointF(44.5, 44.5));
    QCOMPARE(wheel(WheelView::kPlain, 200, 1, QPointF(1, -0.5)).centre, QPointF(187.3, 56.35));
    QVERIFY(!wheel(WheelView::kPlain, 6).isUsable());
    QVERIFY(!wheel(WheelView::kWithRing, 38).isUsable());
}

void tst_WheelGeometry::pointHasHue()
{
    const double quarter = std::acos(0.0);
    QCOMPARE(hueAt(QPointF(5, 0), 0), 0.0);
    QCOMPARE(hueAt(QPointF(0, -5), 0), 0.75);
    QCOMPARE(hueAt(QPointF(-5, 0), quarter), 0.25);
    QCOMPARE(hueAt(QPointF(5, 0), 5 * quarter), 0.75);
    QCOMPARE(hueAt(QPointF(-5, 0), -quarter), 0.75);
}

void tst_WheelGeometry::ringHasValues()
{
    const WheelGeometry ring = wheel(WheelView::kWithRing, 200);
    for (double value = 0.01; value < 1; value += 0.07)
        QCOMPARE(ringValueAt(ring.ringPoint(value) - ring.centre), value);
    QCOMPARE(ringValueAt(QPointF(-1, 0)), 0.25);
    QCOMPARE(ringValueAt(QPointF(0, 1)), 0.5);
    QCOMPARE(ringValueHeld(0.95, 0.05), 1.0);
    QCOMPARE(ringValueHeld(0.05, 0.95), 0.0);
    QCOMPARE(ringValueHeld(0.85, 0.05), 0.05);
}

void tst_WheelGeometry::fixedPointStays()
{
    const WheelView::Kind kinds[] = {WheelView::kPlain, WheelView::kWithRing};
    for (const WheelView::Kind kind : kinds) {
        const QPointF pan(0.2, -0.3);
        const QPointF fixed(0.4, 0.1);
        const WheelGeometry before = wheel(kind, 200, 1.5, pan);
        const QPointF newPan = panKeeping(fixed, pan, before, wheel(kind, 200, 2.5, pan));
        const WheelGeometry after = wheel(kind, 200, 2.5, newPan);
        QCOMPARE(after.centre + fixed * after.radius, before.centre + fixed * before.radius);
    }
}

QTEST_MAIN(tst_WheelGeometry)
#include "tst_WheelGeometry.moc"
