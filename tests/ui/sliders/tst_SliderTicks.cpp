#include <ui/sliders/SliderScale.h>
#include <ui/sliders/SliderTicks.h>

#include <QStringList>
#include <QtTest>

#include <cmath>
#include <random>

using namespace Norvane::UI;

class tst_SliderTicks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void marksAreChosen_data();
    void marksAreChosen();
    void everyTickKeepsItsDistance();
    void coarseNumbersEnd();
};

namespace {

const char* const kModes[] = {"linear", "integer", "log", "integer log"};

SliderScale scaleOf(const QString& mode, double minimum, double maximum)
{
    SliderScale scale;
    scale.minimum = minimum;
    scale.maximum = maximum;
    scale.isInteger = mode.contains(QLatin1String("integer"));
    scale.isNonLinear = mode.contains(QLatin1String("log"));
    return scale;
}

QVector<SliderTick> ticksOf(const SliderScale& scale, int length, int separation)
{
    if (!scale.isNonLinear)
        return SliderTicks::linear(scale, length, separation);
    if (scale.minimum > 0)
        return SliderTicks::logarithmic(scale, length, separation,
                                        SliderTicks::decadeMarks(scale, length, separation));
    return SliderTicks::squareRoot(scale, length, separation);
}

/// In the order of their offsets: "!" for major ticks, labels in full and "." for others.
QString describe(QVector<SliderTick> ticks)
{
    std::sort(ticks.begin(), ticks.end(),
              [](const SliderTick& a, const SliderTick& b) { return a.offset < b.offset; });
    QStringList all;
    for (const SliderTick& tick : ticks)
        all.append((tick.isMajor ? QLatin1String("!") : QLatin1String("")) +
                   (tick.hasLabel ? QString::number(tick.value, 'g', 6) : QLatin1String(".")));
    return all.join(QLatin1String(" "));
}

bool isMultiple(double value, double step)
{
    return std::abs(value / step - std::round(value / step)) < 1e-6;
}

} // namespace

void tst_SliderTicks::marksAreChosen_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("ticks");
    const QString linear = QLatin1String("linear");
    const QString integer = QLatin1String("integer");
    const QString log = QLatin1String("log");
    const auto row = [](const char* name, const QString& mode, double minimum, double maximum, int length,
                        const char* ticks) {
        QTest::newRow(name) << mode << minimum << maximum << length << QString::fromLatin1(ticks);
    };
    row("a label for each tick", linear, 0, 0.5, 150, "!0 0.1 0.2 0.3 0.4 0.5");
    row("for every second", linear, -0.2, 0.5, 100, "-0.2 . !0 . 0.2 . 0.4 .");
    row("for every fifth", linear, 0, 1, 85, "!0 . . . . 0.5 . . . . !1");
    row("for the major ones", linear, 0, 20, 110, "!0 . . . . . . . . . !10 . . . . . . . . . !20");
    row("minimum missed by rounding", linear, 0.07, 0.1, 90, "0.07 0.08 0.09 !0.1");
    row("minimum between ticks", linear, 0.25, 0.55, 90, "0.3 0.4 0.5");
    row("no length", linear, 0, 1, 0, "");
    row("decades", log, 1, 100, 60, "!1 . . . !10 . . . !100");
    row("part of a decade", log, 20, 80, 100, "20 30 . 50 . . .");
    row("decades closer than ticks", log, 1e-3, 1e3, 12, "!0.001 !. !.");
    row("whole decades", QLatin1String("integer log"), 0.1, 100, 90, "!1 . . . !10 . . . !100");
    row("below zero", log, -100, -1, 100, "!-100 . . . . !-10 . . . . !-1");
    row("square roots", log, -4, 9, 100, ". . . !. . !. !0 !. . !. . . . . .");
    row("no range, logarithmic", log, 2, 2, 300, "");
}

void tst_SliderTicks::marksAreChosen()
{
    QFETCH(QString, mode);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, length);
    QFETCH(QString, ticks);
    QCOMPARE(describe(ticksOf(scaleOf(mode, minimum, maximum), length, 5)), ticks);
}

void tst_SliderTicks::everyTickKeepsItsDistance()
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> exponent(-5, 5);
    std::uniform_int_distribution<int> lengths(25, 900);
    std::uniform_int_distribution<int> separations(1, 40);
    for (int i = 0; i < 5000; ++i) {
        const double a = std::pow(10, exponent(random)) * (i % 3 == 0 ? -1 : 1);
        const double b = std::pow(10, exponent(random)) * (i % 3 == 1 ? 1 : -1) * (i % 7 == 0 ? 0 : 1);
        const SliderScale scale = scaleOf(QLatin1String(kModes[i % 4]), qMin(a, b), qMax(a, b));
        const int length = lengths(random);
        const int separation = separations(random);
        const QVector<SliderTick> ticks = ticksOf(scale, length, separation);
        QVector<int> offsets;
        for (const SliderTick& tick : ticks) {
            const double place = scale.position(tick.value) * length;
            QVERIFY(std::abs(tick.offset - place) < 1.001);
            QVERIFY(tick.offset >= 0 && tick.offset <= length + separation / 2.0);
            if (scale.isInteger)
                QVERIFY(isMultiple(tick.value, 1));
            if (scale.isNonLinear && tick.value != 0)
                QVERIFY(isMultiple(tick.value,
                                   std::pow(10, std::floor(std::log10(std::abs(tick.value)) + 1e-9))));
            offsets.append(tick.offset);
        }
        std::sort(offsets.begin(), offsets.end());
        for (int k = 1; k < offsets.size(); ++k)
            QVERIFY2(offsets[k] - offsets[k - 1] >= separation,
                     qPrintable(QString::fromLatin1("%1 to %2, %3 pixels").arg(a).arg(b).arg(length)));
    }
}

// Where doubles are coarser than ticks, a loop over values would never come to its end.
void tst_SliderTicks::coarseNumbersEnd()
{
    const double ends[] = {-1e300, -1e16 - 32, -1e16, 0, 5e-324, 1e-300, 1, 1e16, 1e16 + 32, 1e300};
    for (const char* const mode : kModes) {
        for (const double minimum : ends) {
            for (const double maximum : ends) {
                if (minimum <= maximum)
                    QVERIFY(ticksOf(scaleOf(QLatin1String(mode), minimum, maximum), 500, 5).size() <= 502);
            }
        }
    }
}

QTEST_APPLESS_MAIN(tst_SliderTicks)
#include "tst_SliderTicks.moc"
