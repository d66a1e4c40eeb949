#include <colour/ColorModels.h>

#include <tests/colour/Floats.h>

#include <QtTest>

#include <limits>
#include <random>

using namespace Norvane::Colour;
using namespace NorvaneTest;

class tst_ColorModels : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rgbHasHue_data();
    void rgbHasHue();
    void hueHasRgb_data();
    void hueHasRgb();
    void hsvAndHsl_data();
    void hsvAndHsl();
    void modelsComeBack_data();
    void modelsComeBack();
    void temperature_data();
    void temperature();
    void lumaAndChroma_data();
    void lumaAndChroma();
    void nullPointersAreSkipped();
    void notANumberEnds();
};

namespace {

const float kNaN = std::numeric_limits<float>::quiet_NaN();
const float kInfinity = std::numeric_limits<float>::infinity();

void addColumns()
{
    for (const char* const column : {"x", "y", "z", "X", "Y", "Z"})
        QTest::addColumn<double>(column);
}

struct Row {
    const char* name;
    double from[3];
    double to[3];
};

template <std::size_t N>
void addRows(const Row (&rows)[N])
{
    addColumns();
    for (const Row& row : rows) {
        QTest::newRow(row.name) << row.from[0] << row.from[1] << row.from[2] << row.to[0] << row.to[1]
                                << row.to[2];
    }
}

/// The three numbers that a row starts from.
struct From {
    From()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(double, z);
        a = static_cast<float>(x);
        b = static_cast<float>(y);
        c = static_cast<float>(z);
    }
    float a, b, c;
};

void compare(float x, float y, float z)
{
    QFETCH(double, X);
    QFETCH(double, Y);
    QFETCH(double, Z);
    QVERIFY2(isClose(x, X) && isClose(y, Y) && isClose(z, Z), qPrintable(told(x, y, z)));
}

typedef void (*Conversion)(float, float, float, float*, float*, float*);

} // namespace

Q_DECLARE_METATYPE(Conversion)

void tst_ColorModels::rgbHasHue_data()
{
    const Row rows[] = {
        {"grey", {0.5, 0.5, 0.5}, {0, 0, 0.5}},
        {"grey below black", {-0.5, -0.5, -0.5}, {0, 0, -0.5}},
        {"red", {1, 0, 0}, {0, 1, 1}},
        {"green", {0, 1, 0}, {2 / 6.0, 1, 1}},
        {"blue", {0, 0, 1}, {4 / 6.0, 1, 1}},
        {"between magenta and red", {1, 0, 0.5}, {5.5 / 6, 1, 1}},
        {"a rounding error before red", {1, 0, 1e-9}, {1, 1, 1}},
        {"brown", {0.5, 0.25, 0.125}, {1 / 18.0, 0.75, 0.5}},
        {"negative blue", {0, 0, -2}, {4 / 6.0, 1, -2}},
        {"largest by its absolute value", {0.5, -1, 0.25}, {0.36111111111, 1.5, -1}},
        {"red and blue of one size", {1, 0, -1}, {0.58333333333, 2, -1}},
        {"red and green of one size", {-1, 1, 0}, {0.41666666667, 2, 1}},
        {"green and blue of one size", {0, 1, -1}, {0.66666666667 + 1 / 12.0, 2, -1}},
    };
    addRows(rows);
}

void tst_ColorModels::rgbHasHue()
{
    const From rgb;
    float h = 9, s = 9, v = 9;
    const bool hasHue = rgbToHsv(rgb.a, rgb.b, rgb.c, &h, &s, &v);
    QCOMPARE(hasHue, !(rgb.a == rgb.b && rgb.b == rgb.c));
    compare(h, s, v);
}

void tst_ColorModels::hueHasRgb_data()
{
    const Row rows[] = {
        {"sector 0", {0.5 / 6, 0.5, 0.8}, {0.8, 0.6, 0.4}},
        {"sector 1", {1.25 / 6, 0.5, 0.8}, {0.7, 0.8, 0.4}},
        {"sector 5", {5.25 / 6, 0.5, 0.8}, {0.8, 0.4, 0.7}},
        {"a whole turn", {1, 1, 1}, {1, 0, 0}},
        {"more than a turn", {1.25, 0.5, 0.8}, {0.6, 0.8, 0.4}},
        {"a quarter before red", {-0.25, 1, 1}, {0.5, 0, 1}},
        {"a rounding error before red", {-1e-9, 1, 1}, {1, 0, 0}},
        {"no saturation", {0.7, 0, 0.3}, {0.3, 0.3, 0.3}},
        {"black", {0.7, 1, 0}, {0, 0, 0}},
        {"negative value", {0, 1, -1}, {-1, 0, 0}},
        {"more than saturated", {0, 1.5, 1}, {1, -0.5, -0.5}},
    };
    addRows(rows);
}

void tst_ColorModels::hueHasRgb()
{
    const From hsv;
    float r = 9, g = 9, b = 9;
    hsvToRgb(hsv.a, hsv.b, hsv.c, &r, &g, &b);
    compare(r, g, b);
}

void tst_ColorModels::hsvAndHsl_data()
{
    const Row rows[] = {
        {"grey", {0.3, 0, 0.5}, {0.3, 0, 0.5}},
        {"dark and pale", {0.3, 0.5, 0.4}, {0.3, 1 / 3.0, 0.3}},
        {"light and pale", {0.3, 0.25, 0.8}, {0.3, 1 / 3.0, 0.7}},
        {"brighter than white", {0.3, 0.5, 2}, {0.3, -1, 1.5}},
        {"hue is passed on", {-7.25, 0.5, 1}, {-7.25, 1, 0.75}},
    };
    addRows(rows);
}

void tst_ColorModels::hsvAndHsl()
{
    const From hsv;
    float h = 9, s = 9, l = 9;
    hsvToHsl(hsv.a, hsv.b, hsv.c, &h, &s, &l);
    compare(h, s, l);
    float v = 9;
    hslToHsv(h, s, l, &h, &s, &v);
    QVERIFY2(isClose(h, hsv.a) && isClose(s, hsv.b) && isClose(v, hsv.c), qPrintable(told(h, s, v)));
}

void tst_ColorModels::modelsComeBack_data()
{
    QTest::addColumn<Conversion>("there");
    QTest::addColumn<Conversion>("back");
    QTest::newRow("HSV") << Conversion([](float r, float g, float b, float* h, float* s, float* v) {
        rgbToHsv(r, g, b, h, s, v);
    }) << Conversion(hsvToRgb);
    QTest::newRow("HSL") << Conversion(rgbToHsl) << Conversion(hslToRgb);
}

void tst_ColorModels::modelsComeBack()
{
    QFETCH(Conversion, there);
    QFETCH(Conversion, back);
    const float tolerance = 2e-6f;
    std::mt19937 random(1);
    std::uniform_real_distribution<float> component(0, 1);
    for (int i = 0; i < 20000; ++i) {
        const float r = component(random), g = component(random), b = component(random);
        float x = 0, y = 0, z = 0, r2 = 9, g2 = 9, b2 = 9;
        there(r, g, b, &x, &y, &z);
        back(x, y, z, &r2, &g2, &b2);
        QVERIFY2(std::fabs(r2 - r) <= tolerance && std::fabs(g2 - g) <= tolerance &&
                     std::fabs(b2 - b) <= tolerance,
                 qPrintable(told(r, g, b) + QLatin1String(" became ") + told(r2, g2, b2)));
    }
}

void tst_ColorModels::temperature_data()
{
    const Row rows[] = {
        {"grey", {0, 0, 0.5}, {0.5, 0.5, 0.5}},
        {"warm", {-1, 0.5, 1 / 3.0}, {1, 0, 0}},
        {"green", {0, -1, 1 / 3.0}, {0, 1, 0}},
        {"magenta", {0, 1, 2 / 3.0}, {1, 0, 1}},
        {"outside", {-3, 1.25, 0.25}, {2.1666666667, -0.5833333333, -0.8333333333}},
    };
    addRows(rows);
}

void tst_ColorModels::temperature()
{
    const From tmi;
    float r = 9, g = 9, b = 9;
    tmiToRgb(tmi.a, tmi.b, tmi.c, &r, &g, &b);
    compare(r, g, b);
}

void tst_ColorModels::lumaAndChroma_data()
{
    QTest::addColumn<Conversion>("conversion");
    const Row rows[] = {
        {"Y'CbCr, video: black", {0, 0, 0}, {0.0627451, 0, 0}},
        {"Y'CbCr, video: red", {1, 0, 0}, {0.3197451, -0.148, 0.439}},
        {"Y'CbCr, video: green", {0, 1, 0}, {0.5667451, -0.291, -0.368}},
        {"Y'CbCr, video: blue", {0, 0, 1}, {0.1607451, 0.439, -0.071}},
        {"Y'CbCr 601: white", {1, 1, 1}, {1, 0, 0}},
        {"Y'CbCr 601: red", {1, 0, 0}, {0.299, -0.168736, 0.5}},
        {"Y'CbCr 601: green", {0, 1, 0}, {0.587, -0.331264, -0.418688}},
        {"Y'CbCr 601: blue", {0, 0, 1}, {0.114, 0.5, -0.081312}},
        {"YIQ: I", {0, 1, 0}, {0.9563, -0.2721, -1.107}},
        {"YIQ: Q", {0, 0, 1}, {0.621, -0.6474, 1.7046}},
    };
    addColumns();
    for (const Row& row : rows) {
        const QByteArray name(row.name);
        QTest::newRow(row.name) << (name.startsWith("YIQ") ? Conversion(yiqToRgb)
                                    : name.contains("601") ? Conversion(rgbToYCbCr601)
                                                           : Conversion(rgbToYCbCrVideo))
                                << row.from[0] << row.from[1] << row.from[2] << row.to[0] << row.to[1]
                                << row.to[2];
    }
}

void tst_ColorModels::lumaAndChroma()
{
    QFETCH(Conversion, conversion);
    const From from;
    float x = 9, y = 9, z = 9;
    conversion(from.a, from.b, from.c, &x, &y, &z);
    compare(x, y, z);
}

void tst_ColorModels::nullPointersAreSkipped()
{
    const Conversion conversions[] = {hsvToRgb, rgbToHsl, hsvToHsl,      hslToHsv,       hslToRgb,
                                      tmiToRgb, yiqToRgb, rgbToYCbCr601, rgbToYCbCrVideo};
    for (const Conversion convert : conversions) {
        float all[3] = {};
        convert(0.6f, 0.4f, 0.3f, &all[0], &all[1], &all[2]);
        convert(0.6f, 0.4f, 0.3f, nullptr, nullptr, nullptr);
        for (int i = 0; i < 3; ++i) {
            float one = 9;
            convert(0.6f, 0.4f, 0.3f, i == 0 ? &one : nullptr, i == 1 ? &one : nullptr,
                    i == 2 ? &one : nullptr);
            QVERIFY(sameBits(one, all[i]));
        }
    }
    float value = 9;
    QVERIFY(rgbToHsv(0.6f, 0.4f, 0.3f, nullptr, nullptr, nullptr));
    QVERIFY(rgbToHsv(0.6f, 0.4f, 0.3f, nullptr, nullptr, &value));
    QCOMPARE(value, 0.6f);
}

void tst_ColorModels::notANumberEnds()
{
    for (const float hue : {kNaN, kInfinity, -kInfinity}) {
        float r = 7, g = 8, b = 9;
        hsvToRgb(hue, 1, 1, &r, &g, &b);
        QVERIFY(r == 7 && g == 8 && b == 9);
    }
    const float odd[] = {kNaN, kInfinity, -kInfinity, 0, 1, 1e38f, -1e38f};
    float x = 0, y = 0, z = 0;
    for (const float a : odd) {
        for (const float b : odd) {
            for (const float c : odd) {
                rgbToHsv(a, b, c, &x, &y, &z);
                rgbToHsl(a, b, c, &x, &y, &z);
                hsvToRgb(a, b, c, &x, &y, &z);
                hslToRgb(a, b, c, &x, &y, &z);
                tmiToRgb(a, b, c, &x, &y, &z);
            }
        }
    }
}

QTEST_APPLESS_MAIN(tst_ColorModels)
#include "tst_ColorModels.moc"
