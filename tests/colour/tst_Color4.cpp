#include <colour/Color4.h>

#include <QtTest>

#include <limits>
#include <type_traits>

using Norvane::Colour::Color4;

Q_DECLARE_METATYPE(Norvane::Colour::Color4)

class tst_Color4 : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void alphaIsLeftAlone();
    void viewsComeBack();
    void arithmetic_data();
    void arithmetic();
    void packsIntoBytes_data();
    void packsIntoBytes();
};

namespace {

const float kInfinity = std::numeric_limits<float>::infinity();
const float kNaN = std::numeric_limits<float>::quiet_NaN();

bool same(const Color4& a, const Color4& b)
{
    return a.r == b.r && a.g == b.g && a.b == b.b && a.a == b.a;
}

bool close(const Color4& a, const Color4& b)
{
    const auto near = [](float x, float y) {
        return std::fabs(x - y) <= 1e-6f * std::fmax(1.0f, std::fabs(y));
    };
    return near(a.r, b.r) && near(a.g, b.g) && near(a.b, b.b) && a.a == b.a;
}

QByteArray told(const Color4& c)
{
    QByteArray text;
    for (const float component : {c.r, c.g, c.b, c.a})
        text += QByteArray::number(static_cast<double>(component), 'g', 9) + ' ';
    return text;
}

typedef Color4 (*Operation)(Color4);

} // namespace

Q_DECLARE_METATYPE(Operation)

void tst_Color4::alphaIsLeftAlone()
{
    Color4 color(0, 0, 0, 0.3f);
    color.setRGB(0.1f, 0.2f, 0.3f);
    QVERIFY(same(color, Color4(0.1f, 0.2f, 0.3f, 0.3f)));
    color.setHSV(0.5f, 1, 1);
    QVERIFY(same(color, Color4(0, 1, 1, 0.3f)));
    color.setHSL(0, 1, 0.5f);
    QVERIFY(same(color, Color4(1, 0, 0, 0.3f)));
    color.setTemperatureMagentaGreenIntensity(0, 0, 0.5f);
    QVERIFY(same(color, Color4(0.5f, 0.5f, 0.5f, 0.3f)));
}

// The models themselves have tests of their own.
void tst_Color4::viewsComeBack()
{
    for (const Color4& color :
         {Color4(0, 0, 0, 1), Color4(0.5f, 0.3f, 0.1f, 0.7f), Color4(0.9f, 0.8f, 0.95f, 1)}) {
        float x = 0, y = 0, z = 0;
        Color4 back(9, 9, 9, color.a);
        color.getHSV(&x, &y, &z);
        back.setHSV(x, y, z);
        QVERIFY2(close(back, color), told(back).constData());
        color.getHSL(&x, &y, &z);
        back.setHSL(x, y, z);
        QVERIFY2(close(back, color), told(back).constData());
        color.getTemperatureMagentaGreenIntensity(&x, &y, &z);
        QVERIFY(x == color.b - color.r);
        back.setTemperatureMagentaGreenIntensity(x, y, z);
        QVERIFY2(close(back, color), told(back).constData());
    }
}

void tst_Color4::arithmetic_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<Color4>("expected");
    QTest::newRow("scale") << Operation([](Color4 c) { return c.scale(2, false), c; })
                           << Color4(-1, 1, 4, 0.5f);
    QTest::newRow("scale with alpha")
        << Operation([](Color4 c) { return c.scale(2, true), c; }) << Color4(-1, 1, 4, 1);
    QTest::newRow("add") << Operation([](Color4 c) { return c.add(0.5f, false), c; })
                         << Color4(0, 1, 2.5f, 0.5f);
    QTest::newRow("add with alpha") << Operation([](Color4 c) { return c.add(0.5f, true), c; })
                                    << Color4(0, 1, 2.5f, 1);
    QTest::newRow("mix") << Operation([](Color4 c) { return c.mix(Color4(1.5f, 0.5f, 0, 0), 0.25f), c; })
                         << Color4(0, 0.5f, 1.5f, 0.5f);
    QTest::newRow("mix beyond the end") << Operation([](Color4 c) { return c.mix(Color4(0, 0, 0, 0), 2), c; })
                                        << Color4(0.5f, -0.5f, -2, 0.5f);
    QTest::newRow("clamp") << Operation([](Color4 c) { return c.clamp(), c; }) << Color4(0, 0.5f, 1, 0.5f);
    QTest::newRow("clamp leaves alpha")
        << Operation([](Color4 c) { return c.a = 3, c.clamp(), c; }) << Color4(0, 0.5f, 1, 3);
}

void tst_Color4::arithmetic()
{
    QFETCH(Operation, operation);
    QFETCH(Color4, expected);
    const Color4 result = operation(Color4(-0.5f, 0.5f, 2, 0.5f));
    QVERIFY2(same(result, expected), told(result).constData());
}

void tst_Color4::packsIntoBytes_data()
{
    QTest::addColumn<Color4>("color");
    QTest::addColumn<uint>("word");
    QTest::newRow("truncated, not rounded") << Color4(1, 0.5f, 0, 1) << 0xFF7F00FFu;
    QTest::newRow("outside") << Color4(-1, 2, -0.001f, 300) << 0x00FF00FFu;
    QTest::newRow("order") << Color4(1 / 255.0f, 2 / 255.0f, 3 / 255.0f, 4 / 255.0f) << 0x01020304u;
    QTest::newRow("huge") << Color4(1e30f, -1e30f, 1e10f, -1e10f) << 0xFF00FF00u;
    QTest::newRow("infinite") << Color4(kInfinity, -kInfinity, 0, 1) << 0xFF0000FFu;
}

void tst_Color4::packsIntoBytes()
{
    QFETCH(Color4, color);
    QFETCH(uint, word);
    QCOMPARE(static_cast<uint>(color.toRGBA8()), word);
    // What a component that is no number becomes is nobody's business, but it leaves its neighbours alone.
    color.g = kNaN;
    QCOMPARE(static_cast<uint>(color.toRGBA8()) & 0xFF00FFFFu, word & 0xFF00FFFFu);
}

QTEST_APPLESS_MAIN(tst_Color4)
#include "tst_Color4.moc"
