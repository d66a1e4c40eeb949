#include <ui/colour/ColorWheel.h>

#include <tests/ui/colour/Hand.h>
#include <ui/toolkit/Events.h>

#include <QtTest>

#include <cmath>
#include <limits>

using namespace Norvane::UI;
using namespace NorvaneTest;

namespace {

/// What a wheel of 200 x 200 pixels shows at a pixel, by a click there: x and y in inner radii.
QPointF shownAt(ColorWheel& wheel, const QPoint& pixel)
{
    {
        const Hand click(&wheel, pixel);
    }
    float hue, saturation, value;
    wheel.getHSV(hue, saturation, value);
    const double angle = hue * 4 * std::acos(0.0);
    return saturation * QPointF(std::cos(angle), std::sin(angle));
}

void turn(ColorWheel& wheel, const QPoint& pixel, int delta)
{
    QWheelEvent event = wheelTurn(&wheel, pixel, delta);
    QApplication::sendEvent(&wheel, &event);
}

double distance(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// Found from how far apart two pixels in the middle are; the disc has to be there.
double zoomOf(ColorWheel& wheel)
{
    const double innerRadius =
        20 / distance(shownAt(wheel, QPoint(90, 100)), shownAt(wheel, QPoint(110, 100)));
    return (innerRadius / 0.9 + 2) / 99;
}

bool isNear(double a, double b)
{
    return std::abs(a - b) < 1e-3;
}

/// Of 200 x 200 pixels, with the centre at (100, 100).
struct Wheel : public ColorWheel {
    Wheel()
        : ColorWheel(nullptr)
    {
        resize(200, 200);
    }
};

} // namespace

class tst_ColorWheelZoom : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void wheelZoomsAroundMouse_data();
    void wheelZoomsAroundMouse();
    void partsOfNotchAddUp();
    void dragZoomsAroundPress();
    void panMovesWithMouse();
    void boxFillsWidgetAndClickResets();
    void zoomIsLimited();
};

void tst_ColorWheelZoom::wheelZoomsAroundMouse_data()
{
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<int>("notches");
    QTest::newRow("centre") << QPoint(100, 100) << 1;
    QTest::newRow("upper left") << QPoint(70, 80) << 5;
    QTest::newRow("lower right") << QPoint(130, 120) << 8;
}

void tst_ColorWheelZoom::wheelZoomsAroundMouse()
{
    QFETCH(QPoint, pixel);
    QFETCH(int, notches);
    Wheel wheel;
    const QPointF before = shownAt(wheel, pixel);
    for (int i = 0; i < notches; ++i)
        turn(wheel, pixel, 120);
    QVERIFY(distance(shownAt(wheel, pixel), before) < 1e-3);
    QVERIFY(isNear(zoomOf(wheel), std::exp2(notches / 4.0)));
    turn(wheel, pixel, -120 * notches);
    // A zoom of 1 shows everything only after one more turn.
    turn(wheel, pixel, -120);
    QVERIFY(isNear(zoomOf(wheel), 1));
    QVERIFY(distance(shownAt(wheel, QPoint(100, 100)), QPointF()) < 1e-3);
}

void tst_ColorWheelZoom::partsOfNotchAddUp()
{
    Wheel wheel;
    for (int i = 0; i < 7; ++i)
        turn(wheel, QPoint(100, 100), 15);
    QVERIFY(isNear(zoomOf(wheel), 1));
    turn(wheel, QPoint(100, 100), 15);
    QVERIFY(isNear(zoomOf(wheel), std::exp2(0.25)));
    // Lands on a quarter of an octave from anywhere.
    wheel.zoom(1.1f, 0, 0);
    turn(wheel, QPoint(100, 100), 120);
    QVERIFY(isNear(zoomOf(wheel), std::exp2(0.5)));
    turn(wheel, QPoint(300, 100), 120);
    QVERIFY(isNear(zoomOf(wheel), std::exp2(0.5)));
}

void tst_ColorWheelZoom::dragZoomsAroundPress()
{
    Wheel wheel;
    const QPoint pixel(120, 90);
    const QPointF before = shownAt(wheel, pixel);
    {
        Hand hand(&wheel, pixel, Qt::AltModifier, Qt::MiddleButton);
        hand.moveBy(48, 0);
        hand.moveBy(0, -48);
    }
    QVERIFY(isNear(zoomOf(wheel), 2));
    QVERIFY(distance(shownAt(wheel, pixel), before) < 1e-3);
}

void tst_ColorWheelZoom::panMovesWithMouse()
{
    Wheel wheel;
    wheel.zoom(2, 0, 0);
    const QPointF before = shownAt(wheel, QPoint(90, 110));
    {
        Hand hand(&wheel, QPoint(90, 110), Qt::AltModifier);
        hand.moveBy(20, 10);
        hand.moveBy(10, 15);
    }
    QVERIFY(distance(shownAt(wheel, QPoint(120, 135)), before) < 1e-3);
}

void tst_ColorWheelZoom::boxFillsWidgetAndClickResets()
{
    Wheel wheel;
    // Around the centre, twice as wide as high: as wide as the widget's square without its margin.
    {
        Hand hand(&wheel, QPoint(67, 83), Qt::NoModifier, Qt::MiddleButton);
        hand.moveBy(66, 34);
    }
    QVERIFY(isNear(zoomOf(wheel), 3));
    QVERIFY(distance(shownAt(wheel, QPoint(100, 100)), QPointF()) < 1e-3);
    wheel.zoom(4, 0.2f, 0.2f);
    Hand(&wheel, QPoint(50, 50), Qt::NoModifier, Qt::MiddleButton).moveBy(3, -3);
    QVERIFY(isNear(zoomOf(wheel), 1));
    QVERIFY(distance(shownAt(wheel, QPoint(100, 100)), QPointF()) < 1e-3);
    Wheel other;
    other.setDisplayMode(ColorWheel::kValueRing);
    const QPointF middle = shownAt(other, QPoint(120, 80));
    {
        Hand hand(&other, QPoint(90, 50), Qt::NoModifier, Qt::MiddleButton);
        hand.moveTo(QPoint(150, 110));
    }
    // Where the box was is in the middle now, but for the margin that does not grow with the zoom.
    QVERIFY(distance(shownAt(other, QPoint(100, 100)), middle) < 0.03);
}

void tst_ColorWheelZoom::zoomIsLimited()
{
    Wheel wheel;
    wheel.zoom(100, 0, 0);
    QVERIFY(isNear(zoomOf(wheel), 6));
    wheel.zoom(std::numeric_limits<float>::quiet_NaN(), 0, 0);
    wheel.zoom(2, std::numeric_limits<float>::infinity(), 0);
    wheel.box_zoom(1, 1, 1, 1);
    QVERIFY(isNear(zoomOf(wheel), 6));
    wheel.zoom(0, 0, 0);
    QVERIFY(isNear(zoomOf(wheel), 1));
}

QTEST_MAIN(tst_ColorWheelZoom)
#include "tst_ColorWheelZoom.moc"
