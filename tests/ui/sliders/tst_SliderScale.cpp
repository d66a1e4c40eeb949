#include <ui/sliders/SliderScale.h>

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

using namespace Norvane::UI;

Q_DECLARE_METATYPE(Norvane::UI::SliderScale)

class tst_SliderScale : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void valueHasPosition_data();
    void valueHasPosition();
    void valueComesBackFromItsPosition();
    void extremeNumbersHavePositions();
    void dragSnaps_data();
    void dragSnaps();
};

namespace {

SliderScale scaleOf(bool isInteger, bool isNonLinear, double minimum, double maximum)
{
    SliderScale scale;
    scale.minimum = minimum;
    scale.maximum = maximum;
    scale.isInteger = isInteger;
    scale.isNonLinear = isNonLinear;
    return scale;
}

SliderScale linear(double minimum, double maximum)
{
    return scaleOf(false, false, minimum, maximum);
}

SliderScale nonLinear(double minimum, double maximum)
{
    return scaleOf(false, true, minimum, maximum);
}

bool areClose(double a, double b)
{
    return std::abs(a - b) <= 1e-12 * qMax(1.0, std::abs(b));
}

} // namespace

void tst_SliderScale::valueHasPosition_data()
{
    QTest::addColumn<SliderScale>("scale");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("position");
    QTest::addColumn<double>("back");
    const auto row = [](const char* name, const SliderScale& scale, double value, double position,
                        double back) { QTest::newRow(name) << scale << value << position << back; };
    row("linear", linear(-1, 3), 0, 0.25, 0);
    row("linear, below", linear(-1, 3), -3, -0.5, -1);
    row("linear, above", linear(-1, 3), 5, 1.5, 3);
    row("no range", linear(3, 3), 7, 0, 3);
    row("integer, rounded away from zero", scaleOf(true, false, 0, 10), 2.5, 0.3, 3);
    row("integer, end not rounded", scaleOf(true, false, 0, 9.5), 9.5, 10 / 9.5, 9.5);
    row("logarithmic", nonLinear(1, 10000), 10, 0.25, 10);
    row("logarithmic, zero", nonLinear(1, 100), 0, 0, 1);
    row("mirrored, end", nonLinear(-100, -1), -1, 1, -1);
    row("mirrored, middle", nonLinear(-100, -1), -10, 0.5, -10);
    row("zero inside the range", nonLinear(-4, 9), 0, 0.4, 0);
    row("zero inside, negative", nonLinear(-4, 9), -1, 0.2, -1);
    row("zero inside, positive", nonLinear(-4, 9), 2.25, 0.7, 2.25);
    row("from zero", nonLinear(0, 4), 1, 0.5, 1);
}

// back is the value at that position.
void tst_SliderScale::valueHasPosition()
{
    QFETCH(SliderScale, scale);
    QFETCH(double, value);
    QFETCH(double, position);
    QFETCH(double, back);
    QVERIFY2(areClose(scale.position(value), position), qPrintable(QString::number(scale.position(value))));
    QVERIFY2(areClose(scale.value(position), back), qPrintable(QString::number(scale.value(position))));
    QCOMPARE(scale.value(std::nan("")), scale.minimum);
}

void tst_SliderScale::valueComesBackFromItsPosition()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> exponent(-6, 6);
    std::uniform_real_distribution<double> part(0, 1);
    for (int i = 0; i < 20000; ++i) {
        const double a = std::copysign(std::pow(10, exponent(random)), part(random) - 0.5);
        const double b = std::copysign(std::pow(10, exponent(random)), part(random) - 0.5);
        const SliderScale scale = scaleOf(false, i % 2 == 1, qMin(a, b), qMax(a, b));
        const double position = part(random);
        const double value = scale.value(position);
        QVERIFY(value >= scale.minimum - 1e-9 && value <= scale.maximum + 1e-9);
        QVERIFY2(std::abs(scale.position(value) - position) < 1e-6,
                 qPrintable(QString::fromLatin1("%1 to %2 at %3").arg(a).arg(b).arg(position)));
    }
}

// Positions that are not numbers would end up in the painter.
void tst_SliderScale::extremeNumbersHavePositions()
{
    const double huge = 8e307;
    const double tiny = std::numeric_limits<double>::denorm_min();
    const double ends[] = {-huge, -1, -tiny, 0, tiny, 1, std::nextafter(1, 2), huge};
    for (const double minimum : ends) {
        for (const double maximum : ends) {
            if (maximum < minimum)
                continue;
            for (const double value : ends) {
                for (const bool isNonLinear : {false, true}) {
                    const SliderScale scale = scaleOf(false, isNonLinear, minimum, maximum);
                    QVERIFY(!std::isnan(scale.position(value)));
                    QVERIFY(std::isfinite(scale.value(0.3)));
                }
            }
        }
    }
}

void tst_SliderScale::dragSnaps_data()
{
    QTest::addColumn<bool>("isInteger");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("change");
    QTest::addColumn<double>("snapped");
    QTest::newRow("change of 3 thousandths: 5") << false << 0.1234 << 0.003 << 0.125;
    QTest::newRow("just below 5 thousandths: 5") << false << 0.127 << 0.0049999 << 0.125;
    // By the constants, which are log10(5) and log10(2) rounded up.
    QTest::newRow("5 thousandths: 10") << false << 0.127 << 0.005 << 0.13;
    QTest::newRow("change of 2 thousandths: 2") << false << 0.127 << 0.00199 << 0.128;
    QTest::newRow("change of 1 thousandth: 1") << false << 0.1274 << 0.001 << 0.127;
    QTest::newRow("change of 300: 500") << false << 1234.0 << 300.0 << 1000.0;
    QTest::newRow("integer, less than 1 a pixel") << true << 3.4 << 0.003 << 3.0;
    QTest::newRow("integer, 3 a pixel: 5") << true << 13.0 << 3.0 << 15.0;
    QTest::newRow("no change") << false << 0.1234 << 0.0 << 0.1234;
    QTest::newRow("too small a change") << false << 1.23e-10 << 1e-9 << 1.23e-10;
    QTest::newRow("too large a change") << false << 1234567.0 << 1e9 << 1234567.0;
}

void tst_SliderScale::dragSnaps()
{
    QFETCH(bool, isInteger);
    QFETCH(double, value);
    QFETCH(double, change);
    QFETCH(double, snapped);
    const double result = scaleOf(isInteger, false, 0, 1).snapped(value, change);
    QVERIFY2(result == snapped, qPrintable(QString::number(result, 'g', 17)));
}

QTEST_APPLESS_MAIN(tst_SliderScale)
#include "tst_SliderScale.moc"
