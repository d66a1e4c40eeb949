#include <ui/colour/ColorWheel.h>

#include <colour/Color4.h>
#include <tests/support/Waiting.h>
#include <tests/ui/colour/Client.h>
#include <tests/ui/colour/Hand.h>

#include <QSignalSpy>

#include <cmath>

using namespace Norvane::UI;
using namespace NorvaneTest;

Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(Qt::KeyboardModifiers)
Q_DECLARE_METATYPE(Norvane::UI::ColorWheel::DisplayMode)

namespace {

const Qt::KeyboardModifiers kNone = Qt::NoModifier;
const Qt::KeyboardModifiers kShift = Qt::ShiftModifier;
const Qt::KeyboardModifiers kControl = Qt::ControlModifier;
const Qt::KeyboardModifiers kAlt = Qt::AltModifier;

/// 200 x 200 pixels with the centre at (100, 100), and a record of its signals: "(" start, "." dragging,
/// "c" colour, ")" stop.
class Wheel : public ColorWheel
{
    Q_OBJECT
public:
    explicit Wheel(DisplayMode mode)
        : ColorWheel(nullptr, mode)
    {
        setFixedSize(200, 200);
        connect(this, SIGNAL(startDragSignal()), SLOT(started()));
        connect(this, SIGNAL(draggingSignal()), SLOT(dragged()));
        connect(this, SIGNAL(stopDragSignal()), SLOT(stopped()));
        connect(this, SIGNAL(hsvChanged(float, float, float)), SLOT(changed()));
    }
    float hue() const { return hsv(0); }
    float saturation() const { return hsv(1); }
    float value() const { return hsv(2); }
    using ColorWheel::getDragMode;

    QString record;

private Q_SLOTS:
    void started() { record += QLatin1Char('('); }
    void dragged() { record += QLatin1Char('.'); }
    void stopped() { record += QLatin1Char(')'); }
    void changed() { record += QLatin1Char('c'); }

private:
    float hsv(int index) const
    {
        float all[3];
        getHSV(all[0], all[1], all[2]);
        return all[index];
    }
};

bool isNear(double a, double b)
{
    return std::abs(a - b) < 1e-4;
}

} // namespace

class tst_ColorWheelDrag : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pressHasDragMode_data();
    void pressHasDragMode();
    void dragChangesColor_data();
    void dragChangesColor();
    void relativeDragMovesMarker();
    void ringIsNotPassed();
    void squareIsDragged();
    void signalsHaveOrder();
    void secondButtonChangesNothing();
    void keysChangeColor();
    void rotationTurnsHue();
};

// What presses on a disc mean, and panning and zooming, shows in what they do.
void tst_ColorWheelDrag::pressHasDragMode_data()
{
    QTest::addColumn<ColorWheel::DisplayMode>("mode");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("outside");
    QTest::addColumn<int>("dragMode");
    const ColorWheel::DisplayMode disc = ColorWheel::kDisc;
    const ColorWheel::DisplayMode ring = ColorWheel::kValueRing;
    const ColorWheel::DisplayMode small = ColorWheel::kEmbedded;
    const Qt::MouseButton left = Qt::LeftButton;
    QTest::newRow("Alt pans outside") << disc << left << kAlt << true << 8;
    QTest::newRow("right") << disc << Qt::RightButton << kAlt << true << 4;
    QTest::newRow("outside") << disc << left << kShift << true << 65;
    QTest::newRow("inside the ring, Control") << ring << left << kControl << false << 4;
    QTest::newRow("small, Alt") << small << left << kAlt << false << 67;
    QTest::newRow("small, Alt and Shift") << small << left << (kAlt | kShift) << false << 66;
    QTest::newRow("small, Alt and Control") << small << left << (kAlt | kControl) << false << 65;
    QTest::newRow("small, outside") << small << left << kNone << true << 65;
}

void tst_ColorWheelDrag::pressHasDragMode()
{
    QFETCH(ColorWheel::DisplayMode, mode);
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(bool, outside);
    Wheel wheel(mode);
    QMouseEvent event(QEvent::MouseButtonPress, QPoint(), QPoint(), button, button, modifiers);
    QTEST(int(wheel.getDragMode(0, &event, outside)), "dragMode");
}

void tst_ColorWheelDrag::dragChangesColor_data()
{
    QTest::addColumn<ColorWheel::DisplayMode>("mode");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<double>("hue");
    QTest::addColumn<double>("saturation");
    QTest::addColumn<double>("value");
    // At first hue 0.5, saturation 0.5, value 0.8; the inner radius is 87.3.
    const ColorWheel::DisplayMode disc = ColorWheel::kDisc;
    const QPoint up(100, 60);
    const double upward = 40 / 87.3;
    QTest::newRow("click") << disc << kNone << up << QPoint() << 0.25 << upward << 0.8;
    QTest::newRow("drag") << disc << kNone << up << QPoint(40, 40) << 0.0 << upward << 0.8;
    QTest::newRow("past the edge") << disc << kNone << up << QPoint(0, -500) << 0.25 << 1.0 << 0.8;
    QTest::newRow("to the centre") << disc << kNone << up << QPoint(0, 40) << 0.5 << 0.0 << 0.8;
    QTest::newRow("only hue") << disc << kControl << up << QPoint() << 0.25 << 0.5 << 0.8;
    QTest::newRow("hue, from outside")
        << disc << kNone << QPoint(195, 100) << QPoint(-95, -30) << 0.25 << 0.5 << 0.8;
    QTest::newRow("saturation, along its hue")
        << disc << kShift << QPoint(80, 60) << QPoint() << 0.5 << 20 / 87.3 << 0.8;
    QTest::newRow("saturation, behind the centre")
        << disc << kShift << QPoint(80, 60) << QPoint(40, 0) << 0.5 << 0.0 << 0.8;
    QTest::newRow("value") << disc << (kControl | kShift) << up << QPoint(-50, 30) << 0.5 << 0.5 << 0.7;
    QTest::newRow("value below 0") << disc << (kControl | kShift) << up << QPoint(-500, 0) << 0.5 << 0.5
                                   << -0.2;
    QTest::newRow("ring") << ColorWheel::kValueRing << kNone << QPoint(10, 100) << QPoint() << 0.5 << 0.5
                          << 0.25;
}

void tst_ColorWheelDrag::dragChangesColor()
{
    QFETCH(ColorWheel::DisplayMode, mode);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QPoint, press);
    QFETCH(QPoint, way);
    QFETCH(double, hue);
    QFETCH(double, saturation);
    QFETCH(double, value);
    Wheel wheel(mode);
    wheel.setHSV(0.5f, 0.5f, 0.8f);
    QSignalSpy colors(&wheel, SIGNAL(hsvChanged(float, float, float)));
    Hand hand(&wheel, press, modifiers);
    if (!way.isNull())
        hand.moveBy(way.x(), way.y());
    QVERIFY2(isNear(wheel.hue(), hue), qPrintable(QString::number(double(wheel.hue()))));
    QVERIFY2(isNear(wheel.saturation(), saturation), qPrintable(QString::number(double(wheel.saturation()))));
    QVERIFY2(isNear(wheel.value(), value), qPrintable(QString::number(double(wheel.value()))));
    QCOMPARE(colors.last().at(0).toFloat(), wheel.hue());
    QCOMPARE(colors.last().at(2).toFloat(), wheel.value());
}

void tst_ColorWheelDrag::relativeDragMovesMarker()
{
    Wheel wheel(ColorWheel::kDisc);
    wheel.setInteractionMode(ColorWheel::kRelative);
    wheel.setHSV(0.25f, 0.5f, 1.0f);
    QVERIFY(!wheel.isAbsoluteMode());
    {
        Hand hand(&wheel, QPoint(60, 120));
        QVERIFY(isNear(wheel.saturation(), 0.5));
        QVERIFY(isNear(wheel.hue(), 0.25));
        hand.moveBy(0, 100);
        QVERIFY(isNear(wheel.saturation(), 0.5 - 10 / 87.3));
        wheel.setInteractionScale(0.2f);
        hand.moveBy(0, -200);
        QVERIFY(isNear(wheel.saturation(), 0.5 + 20 / 87.3));
    }
    Hand hand(&wheel, QPoint(5, 100));
    QVERIFY(wheel.isAbsoluteMode());
    QVERIFY(isNear(wheel.hue(), 0.5));
}

void tst_ColorWheelDrag::ringIsNotPassed()
{
    Wheel wheel(ColorWheel::kValueRing);
    Hand hand(&wheel, QPoint(105, 195));
    QVERIFY(wheel.value() > 0.95f);
    QCOMPARE(wheel.ringValue(), wheel.value());
    hand.moveBy(-10, 0);
    QCOMPARE(wheel.value(), 1.0f);
    hand.moveTo(QPoint(5, 100));
    hand.moveTo(QPoint(95, 195));
    hand.moveBy(10, 0);
    QCOMPARE(wheel.value(), 0.0f);
}

void tst_ColorWheelDrag::squareIsDragged()
{
    Wheel wheel(ColorWheel::kInnerSquare);
    wheel.setHSV(0.5f, 0.5f, 0.8f);
    const double half = 85.3 / std::sqrt(2.0);
    {
        Hand hand(&wheel, QPoint(130, 100));
        QVERIFY(isNear(wheel.saturation(), 0.5 + 30 / half / 2));
        QVERIFY(isNear(wheel.value(), 0.5));
        hand.hold(Qt::ShiftModifier);
        hand.moveTo(QPoint(100, 0));
        QVERIFY(isNear(wheel.saturation(), 0.5 + 30 / half / 2));
        QVERIFY(isNear(wheel.value(), 1));
        hand.hold(Qt::ControlModifier | Qt::ShiftModifier);
        hand.moveTo(QPoint(100, 100));
        QVERIFY(isNear(wheel.saturation(), 0.5));
        QVERIFY(isNear(wheel.value(), 1));
    }
    // Deliberately without hsvChanged(), "c".
    QCOMPARE(wheel.record, QString::fromLatin1("(...)"));
    {
        Hand hand(&wheel, QPoint(100, 10));
        QVERIFY(isNear(wheel.hue(), 0.25));
    }
    wheel.record.clear();
    {
        const Hand hand(&wheel, QPoint(100, 33));
    }
    {
        const Hand hand(&wheel, QPoint(5, 5));
    }
    QCOMPARE(wheel.record, QString());
}

void tst_ColorWheelDrag::signalsHaveOrder()
{
    Wheel wheel(ColorWheel::kDisc);
    {
        Hand hand(&wheel, QPoint(100, 60));
        hand.moveBy(5, 5);
    }
    QCOMPARE(wheel.record, QString::fromLatin1("(c.c.)"));
    wheel.record.clear();
    {
        Hand hand(&wheel, QPoint(100, 60), Qt::AltModifier);
        QCOMPARE(wheel.cursor().shape(), Qt::SizeAllCursor);
        hand.moveBy(5, 5);
    }
    QCOMPARE(wheel.cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(wheel.record, QString::fromLatin1("(..)"));
}

void tst_ColorWheelDrag::secondButtonChangesNothing()
{
    Wheel wheel(ColorWheel::kDisc);
    Hand hand(&wheel, QPoint(100, 60));
    QMouseEvent event(QEvent::MouseButtonPress, QPoint(60, 100), QPoint(60, 100), Qt::RightButton,
                      Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
    QApplication::sendEvent(&wheel, &event);
    hand.moveTo(QPoint(100, 140));
    QVERIFY(isNear(wheel.hue(), 0.75));
    QCOMPARE(wheel.record, QString::fromLatin1("(c.c."));
}

void tst_ColorWheelDrag::keysChangeColor()
{
    Wheel wheel(ColorWheel::kDisc);
    wheel.setHSV(0.0f, 0.995f, 0.5f);
    QTest::keyClick(&wheel, Qt::Key_Left);
    QVERIFY(isNear(wheel.hue(), 0.99));
    QCOMPARE(wheel.record, QString::fromLatin1("(c.)"));
    QTest::keyClick(&wheel, Qt::Key_Up);
    QCOMPARE(wheel.saturation(), 1.0f);
    wheel.record.clear();
    QTest::keyClick(&wheel, Qt::Key_Up);
    QCOMPARE(wheel.record, QString());
    QTest::keyClick(&wheel, Qt::Key_Down);
    QVERIFY(isNear(wheel.saturation(), 0.99));
    QTest::keyClick(&wheel, Qt::Key_PageUp);
    QVERIFY(isNear(wheel.value(), 0.6));
}

void tst_ColorWheelDrag::rotationTurnsHue()
{
    for (const ColorWheel::DisplayMode mode : {ColorWheel::kDisc, ColorWheel::kInnerSquare}) {
        Wheel wheel(mode);
        wheel.setHueRotation(float(std::acos(0.0)));
        Hand hand(&wheel, QPoint(10, 100));
        QVERIFY(isNear(wheel.hue(), 0.25));
    }
    Wheel ring(ColorWheel::kValueRing);
    ring.setHueRotation(float(std::acos(0.0)));
    Hand hand(&ring, QPoint(10, 100));
    QVERIFY(isNear(ring.value(), 0.25));
}

QTEST_MAIN(tst_ColorWheelDrag)
#include "tst_ColorWheelDrag.moc"
