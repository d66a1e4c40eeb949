#include <ui/colour/ColorWheel.h>

#include <colour/Color4.h>
#include <tests/support/Waiting.h>
#include <tests/ui/colour/Client.h>
#include <tests/ui/colour/Hand.h>
#include <ui/toolkit/Painting.h>

#include <QImage>
#include <QPaintEvent>

#include <cmath>
#include <limits>
#include <memory>

using namespace Norvane::UI;
using namespace NorvaneTest;

Q_DECLARE_METATYPE(Norvane::UI::ColorWheel::DisplayMode)

namespace {

const QRgb kWarning = qRgb(255, 51, 51);
const QRgb kLightBlue = qRgb(102, 178, 255);

/// 200 x 200 pixels with the centre at (100, 100), on a grey window; remembers where it was painted.
class Wheel : public ColorWheel
{
public:
    explicit Wheel(DisplayMode mode)
        : ColorWheel(nullptr, mode)
    {
        setFixedSize(200, 200);
        setPalette(QPalette(QColor(100, 100, 100)));
    }
    QImage picture() { return grabPixmap(this).toImage().convertToFormat(QImage::Format_RGB32); }
    QRegion painted;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        painted |= event->region();
        ColorWheel::paintEvent(event);
    }
};

QString hsvOf(const ColorWheel& wheel)
{
    float hue, saturation, value;
    wheel.getHSV(hue, saturation, value);
    return QString::fromLatin1("%1 %2 %3").arg(hue).arg(saturation).arg(value);
}

bool isNear(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= 4 && qAbs(qGreen(a) - qGreen(b)) <= 4 && qAbs(qBlue(a) - qBlue(b)) <= 4;
}

} // namespace

class tst_ColorWheel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void settersKeepWhatTheyCanUse();
    void controlColorIsShown();
    void pixelHasColor_data();
    void pixelHasColor();
    void marksWarn_data();
    void marksWarn();
    void rotationTurnsPicture();
    void dragRepaintsWhatMoved_data();
    void dragRepaintsWhatMoved();
    void anySizeAndColorIsPainted();
};

void tst_ColorWheel::settersKeepWhatTheyCanUse()
{
    ColorWheel wheel(nullptr);
    wheel.setHSVSlot(1.5f, 2.0f, 0.0f);
    float h, s, v;
    QVERIFY(wheel.getHSV(h, s, v));
    QCOMPARE(wheel.getClampedHue(), 1.0f);
    wheel.setHue(-0.25f);
    wheel.setValue(-0.5f);
    wheel.setRingValue(0.25f);
    const float useless[] = {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()};
    for (const float number : useless) {
        wheel.setHue(number);
        wheel.setSaturation(number);
        wheel.setValue(-number);
        wheel.setHSV(0.5f, 0.5f, number);
        wheel.setRingValue(number);
        wheel.setInteractionScale(number);
        wheel.setHueRotation(number);
    }
    QVERIFY(!wheel.getHSV(h, s, v));
    QCOMPARE(hsvOf(wheel), QString::fromLatin1("0.75 2 -0.5"));
    QCOMPARE(wheel.ringValue(), 0.25f);
    QCOMPARE(wheel.interactionScale(), 0.1f);
    QCOMPARE(wheel.hueRotation(), 0.0f);
}

void tst_ColorWheel::controlColorIsShown()
{
    ColorControl control(nullptr);
    const std::unique_ptr<ColorWheel> wheel(control.createColorWheel());
    control.setColorRGBA(0.0f, 0.5f, 0.5f, 1.0f);
    QCOMPARE(hsvOf(*wheel), QString::fromLatin1("0.5 1 0.5"));
    control.setColorRGBA(0.25f, 0.25f, 0.25f, 1.0f);
    QCOMPARE(hsvOf(*wheel), QString::fromLatin1("0.5 0 0.25"));
    control.setColorRGBA(1.0f, 0.5f, 0.5f, 1.0f);
    control.setColorRGBA(0.0f, 0.0f, 0.0f, 1.0f);
    QCOMPARE(hsvOf(*wheel), QString::fromLatin1("0 0.5 0"));
}

void tst_ColorWheel::pixelHasColor_data()
{
    QTest::addColumn<ColorWheel::DisplayMode>("mode");
    QTest::addColumn<float>("value");
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<QRgb>("color");
    const QRgb window = qRgb(100, 100, 100);
    const ColorWheel::DisplayMode disc = ColorWheel::kDisc;
    QTest::newRow("right, red") << disc << 1.0f << QPoint(180, 100) << qRgb(255, 46, 46);
    QTest::newRow("up, hue 0.25") << disc << 1.0f << QPoint(100, 20) << qRgb(150, 255, 47);
    QTest::newRow("darkened, negative") << disc << -0.5f << QPoint(180, 100) << qRgb(127, 23, 23);
    QTest::newRow("band") << disc << 0.5f << QPoint(100, 8) << qRgb(95, 179, 12);
    QTest::newRow("no band for negative values") << disc << -0.5f << QPoint(100, 8) << qRgb(136, 255, 17);
    QTest::newRow("corner") << disc << 1.0f << QPoint(5, 5) << window;
    const ColorWheel::DisplayMode square = ColorWheel::kInnerSquare;
    QTest::newRow("square, black") << square << 1.0f << QPoint(45, 156) << qRgb(7, 8, 8);
    QTest::newRow("square, full") << square << 1.0f << QPoint(158, 42) << qRgb(7, 243, 243);
    QTest::newRow("beside the square") << square << 1.0f << QPoint(25, 100) << window;
    const ColorWheel::DisplayMode ring = ColorWheel::kValueRing;
    QTest::newRow("disc in the ring") << ring << 1.0f << QPoint(140, 100) << qRgb(127, 65, 65);
    QTest::newRow("ring, left") << ring << 1.0f << QPoint(9, 100) << qRgb(48, 48, 48);
}

void tst_ColorWheel::pixelHasColor()
{
    QFETCH(ColorWheel::DisplayMode, mode);
    QFETCH(float, value);
    QFETCH(QPoint, pixel);
    QFETCH(QRgb, color);
    Wheel wheel(mode);
    wheel.setHSV(0.5f, 0.25f, value);
    const QRgb shown = wheel.picture().pixel(pixel);
    QVERIFY2(isNear(shown, color), qPrintable(QColor(shown).name()));
}

void tst_ColorWheel::marksWarn_data()
{
    QTest::addColumn<float>("saturation");
    QTest::addColumn<float>("value");
    QTest::addColumn<QRgb>("hueMark");
    QTest::addColumn<QRgb>("saturationMark");
    const QRgb white = qRgb(255, 255, 255);
    QTest::newRow("common") << 0.5f << 0.5f << white << white;
    QTest::newRow("dark") << 0.5f << -0.05f << white << kLightBlue;
    QTest::newRow("too bright") << 0.5f << -1.5f << white << kWarning;
    QTest::newRow("too saturated") << 1.05f << 1.0f << kWarning << white;
}

void tst_ColorWheel::marksWarn()
{
    QFETCH(float, saturation);
    QFETCH(float, value);
    Wheel wheel(ColorWheel::kDisc);
    wheel.setHSV(0.5f, saturation, value);
    const QImage picture = wheel.picture();
    QTEST(picture.pixel(2, 100), "hueMark");
    QTEST(picture.pixel(100 - qRound(saturation * 87.3f), 100), "saturationMark");
}

void tst_ColorWheel::rotationTurnsPicture()
{
    // The first wheel makes the texture; every other one has to agree with its own rotation.
    Wheel straight(ColorWheel::kDisc);
    Wheel turned(ColorWheel::kDisc);
    turned.setHueRotation(float(std::acos(0.0)));
    QVERIFY(isNear(straight.picture().pixel(180, 100), turned.picture().pixel(100, 20)));
    QVERIFY(isNear(straight.picture().pixel(100, 180), turned.picture().pixel(180, 100)));
    turned.setHSV(0.0f, 0.5f, 1.0f);
    QCOMPARE(turned.picture().pixel(100, 56), qRgb(255, 255, 255));
}

void tst_ColorWheel::dragRepaintsWhatMoved_data()
{
    QTest::addColumn<ColorWheel::DisplayMode>("mode");
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("partly");
    const ColorWheel::DisplayMode disc = ColorWheel::kDisc;
    QTest::newRow("hue and saturation") << disc << QPoint(130, 70) << 0 << true;
    QTest::newRow("hue") << disc << QPoint(130, 70) << int(Qt::ControlModifier) << true;
    QTest::newRow("saturation") << disc << QPoint(50, 60) << int(Qt::ShiftModifier) << true;
    QTest::newRow("value") << disc << QPoint(130, 70) << int(Qt::ShiftModifier | Qt::ControlModifier)
                           << false;
    QTest::newRow("pan") << disc << QPoint(130, 70) << int(Qt::AltModifier) << false;
    QTest::newRow("square") << ColorWheel::kInnerSquare << QPoint(120, 80) << 0 << true;
    QTest::newRow("hue around the square") << ColorWheel::kInnerSquare << QPoint(100, 10) << 0 << true;
    QTest::newRow("ring") << ColorWheel::kValueRing << QPoint(9, 100) << 0 << true;
    QTest::newRow("inside the ring") << ColorWheel::kValueRing << QPoint(130, 70) << 0 << true;
}

void tst_ColorWheel::dragRepaintsWhatMoved()
{
    QFETCH(ColorWheel::DisplayMode, mode);
    QFETCH(QPoint, press);
    QFETCH(int, modifiers);
    QFETCH(bool, partly);
    Wheel wheel(mode);
    // Without a desktop, which may ask for repaints of its own, or for none as long as the window is covered.
    wheel.setAttribute(Qt::WA_DontShowOnScreen);
    wheel.show();
    wheel.setHSV(0.4f, 0.3f, 0.55f);
    Hand hand(&wheel, press, Qt::KeyboardModifiers(modifiers));
    QApplication::processEvents();
    for (int step = 0; step < 6; ++step) {
        const QImage before = wheel.picture();
        wheel.painted = QRegion();
        hand.moveBy(9, step % 2 ? 12 : -7);
        QApplication::processEvents();
        const QRegion painted = wheel.painted;
        const QImage after = wheel.picture();
        for (int y = 0; y < after.height(); ++y) {
            for (int x = 0; x < after.width(); ++x) {
                if (before.pixel(x, y) != after.pixel(x, y) && !painted.contains(QPoint(x, y)))
                    QFAIL(qPrintable(QString::fromLatin1("step %1 forgot (%2, %3)").arg(step).arg(x).arg(y)));
            }
        }
        QVERIFY(!painted.isEmpty());
        QCOMPARE(painted != QRegion(wheel.rect()), partly);
    }
}

void tst_ColorWheel::anySizeAndColorIsPainted()
{
    for (int mode = 0; mode < 4; ++mode) {
        for (const QSize& size : {QSize(1, 1), QSize(5, 300), QSize(12, 12), QSize(40, 40), QSize(300, 60)}) {
            ColorWheel wheel(nullptr, ColorWheel::DisplayMode(mode));
            wheel.setFixedSize(size);
            grabPixmap(&wheel);
            Hand hand(&wheel, QPoint(size.width() / 2, size.height() / 2), Qt::ControlModifier);
            hand.moveBy(1, 1);
            grabPixmap(&wheel);
            wheel.setHSV(-1e30f, 1e30f, 1e30f);
            grabPixmap(&wheel);
        }
    }
}

QTEST_MAIN(tst_ColorWheel)
#include "tst_ColorWheel.moc"
