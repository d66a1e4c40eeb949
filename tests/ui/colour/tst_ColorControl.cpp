#include <ui/colour/ColorControl.h>

#include <tests/ui/colour/Client.h>
#include <tests/ui/colour/Hand.h>

#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

using namespace Norvane::UI;
using namespace NorvaneTest;
using Norvane::Colour::Color4;

namespace {

typedef ColorSlider* (*CreateSlider)(ColorControl& control);

const struct {
    const char* name;
    CreateSlider create;
    ColorUIConstants::Component component;
    double minimum;
} kSliders[] = {
    {"red", [](ColorControl& c) { return c.createRedSlider(Qt::Horizontal); }, ColorUIConstants::kRed, 0},
    {"green", [](ColorControl& c) { return c.createGreenSlider(Qt::Vertical); }, ColorUIConstants::kGreen, 0},
    {"blue", [](ColorControl& c) { return c.createBlueSlider(Qt::Horizontal); }, ColorUIConstants::kBlue, 0},
    {"alpha", [](ColorControl& c) { return c.createAlphaSlider(Qt::Vertical); }, ColorUIConstants::kAlpha, 0},
    {"value", [](ColorControl& c) { return c.createVerticalValueSlider(); }, ColorUIConstants::kValue, 0},
    {"intensity", [](ColorControl& c) { return c.createVerticalIntensitySlider(); },
     ColorUIConstants::kIntensity, 0},
    {"temperature", [](ColorControl& c) { return c.createVerticalTemperatureSlider(); },
     ColorUIConstants::kTemperature, -4},
    {"magenta-green", [](ColorControl& c) { return c.createVerticalMagentaGreenSlider(); },
     ColorUIConstants::kMagentaGreen, -4},
};

/// By ColorUIConstants::Component.
QVector<float> componentsOf(const Color4& color)
{
    QVector<float> all(10);
    color.getRGBA(&all[0], &all[1], &all[2], &all[9]);
    color.getHSV(&all[3], &all[4], &all[5]);
    color.getTemperatureMagentaGreenIntensity(&all[6], &all[7], &all[8]);
    return all;
}

bool isNear(float a, double b)
{
    return std::abs(a - b) < 1e-5;
}

QString textOf(const Color4& color)
{
    return QString::fromLatin1("%1 %2 %3 %4").arg(color.r).arg(color.g).arg(color.b).arg(color.a);
}

} // namespace

class tst_ColorControl : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sliderEditsItsComponent_data();
    void sliderEditsItsComponent();
    void editKeepsOtherCoordinates_data();
    void editKeepsOtherCoordinates();
    void wheelEditsColor();
    void applicationIsNotNotified();
    void alphaFollowsSwitch();
    void rangeReachesViews();
    void uselessNumbersAreIgnored();
};

void tst_ColorControl::sliderEditsItsComponent_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(sizeof kSliders / sizeof kSliders[0]); ++i)
        QTest::newRow(kSliders[i].name) << i;
}

void tst_ColorControl::sliderEditsItsComponent()
{
    QFETCH(int, index);
    Client client;
    ColorControl control(&client);
    control.setColorRGBA(0.2f, 0.4f, 0.8f, 0.5f);
    const std::unique_ptr<ColorSlider> slider(kSliders[index].create(control));
    const std::unique_ptr<ColorSlider> twin(kSliders[index].create(control));
    const std::unique_ptr<ColorWheel> wheel(control.createColorWheel());
    const int component = kSliders[index].component;
    QCOMPARE(int(slider->getCompenent()), component);
    QCOMPARE(slider->minimum(), kSliders[index].minimum);
    QCOMPARE(slider->maximum(), 4.0);
    QVERIFY(isNear(componentsOf(control.getColor())[component], slider->value()));

    slider->resize(200, 200);
    const double before = slider->value();
    Hand hand(slider.get(), QPoint(100, 90));
    QVERIFY(slider->value() != before);
    QCOMPARE(client.drags, 1);
    QCOMPARE(client.changes, 1);
    QCOMPARE(textOf(client.color), textOf(control.getColor()));
    QVERIFY(isNear(componentsOf(client.color)[component], slider->value()));
    QVERIFY(isNear(float(twin->value()), slider->value()));
    float hue, saturation, value;
    wheel->getHSV(hue, saturation, value);
    QVERIFY(isNear(value, double(componentsOf(client.color)[ColorUIConstants::kValue])));
}

void tst_ColorControl::editKeepsOtherCoordinates_data()
{
    using namespace ColorUIConstants;
    QTest::addColumn<int>("component");
    QTest::addColumn<QList<int>>("kept");
    QTest::newRow("valueChanged") << int(kValue) << (QList<int>() << kAlpha << kHue << kSaturation);
    QTest::newRow("intensityChanged")
        << int(kIntensity) << (QList<int>() << kAlpha << kTemperature << kMagentaGreen);
    QTest::newRow("temperatureChanged")
        << int(kTemperature) << (QList<int>() << kAlpha << kMagentaGreen << kIntensity);
    QTest::newRow("magentaGreenChanged")
        << int(kMagentaGreen) << (QList<int>() << kAlpha << kTemperature << kIntensity);
}

void tst_ColorControl::editKeepsOtherCoordinates()
{
    QFETCH(int, component);
    QFETCH(QList<int>, kept);
    ColorControl control(nullptr);
    control.setColorRGBA(0.6f, 0.1f, 0.3f, 0.5f);
    const QVector<float> before = componentsOf(control.getColor());
    for (int i = 1; i <= 100; ++i) {
        const double value = i % 2 ? 0.9 : 0.3;
        QVERIFY(QMetaObject::invokeMethod(&control, QTest::currentDataTag(), Q_ARG(double, value)));
        QVERIFY(isNear(componentsOf(control.getColor())[component], value));
    }
    for (const int other : kept)
        QVERIFY(isNear(componentsOf(control.getColor())[other], double(before[other])));
}

void tst_ColorControl::wheelEditsColor()
{
    Client client;
    ColorControl control(&client);
    control.setColorRGBA(0.5f, 0.5f, 0.5f, 0.25f);
    const std::unique_ptr<ColorWheel> wheel(control.createColorWheel());
    const std::unique_ptr<ColorSlider> red(control.createRedSlider(Qt::Horizontal));
    QCOMPARE(wheel->objectName(), QString::fromLatin1("ColorWheelEmbedded"));
    QCOMPARE(wheel->displayMode(), ColorWheel::kEmbedded);
    QVERIFY(QMetaObject::invokeMethod(wheel.get(), "startDragSignal"));
    QVERIFY(QMetaObject::invokeMethod(wheel.get(), "hsvChanged", Q_ARG(float, 0.5f), Q_ARG(float, 1.0f),
                                      Q_ARG(float, 0.75f)));
    QCOMPARE(client.drags, 1);
    QCOMPARE(client.changes, 1);
    QCOMPARE(textOf(client.color), QString::fromLatin1("0 0.75 0.75 0.25"));
    QCOMPARE(red->value(), 0.0);
}

void tst_ColorControl::applicationIsNotNotified()
{
    Client client;
    ColorControl control(&client);
    const std::unique_ptr<ColorSlider> blue(control.createBlueSlider(Qt::Horizontal));
    QCOMPARE(textOf(control.getColor()), QString::fromLatin1("0 0 0 1"));
    control.setColorRGBA(0.25f, 0.5f, 0.75f, 0.5f);
    control.setDefaultColorRGBA(1, 0.5, 0.25, 0.5);
    control.setAlphaEnabled(false);
    control.setColorRGBA(1.0f, 1.0f, 1.0f, 1.0f);
    control.setDefaultColorRGBA(2, 2, 2, 2);
    float r, g, b, a;
    control.getColorRGBA(r, g, b, a);
    QCOMPARE(textOf(Color4(r, g, b, a)), QString::fromLatin1("1 1 1 0.5"));
    QCOMPARE(textOf(control.getDefaultColor()), QString::fromLatin1("2 2 2 0.5"));
    QCOMPARE(blue->value(), 1.0);
    QCOMPARE(client.changes + client.drags, 0);
}

void tst_ColorControl::alphaFollowsSwitch()
{
    ColorControl control(nullptr);
    control.setAlphaEnabled(false);
    const std::unique_ptr<ColorSlider> alpha(control.createAlphaSlider(Qt::Horizontal));
    const std::unique_ptr<ColorSlider> red(control.createRedSlider(Qt::Horizontal));
    QVERIFY(!alpha->isEnabled());
    QVERIFY(red->isEnabled());
    control.setAlphaEnabled(true);
    QVERIFY(alpha->isEnabled());
    control.setAlphaEnabled(false);
    QVERIFY(!alpha->isEnabled());
    QVERIFY(red->isEnabled());
}

void tst_ColorControl::rangeReachesViews()
{
    ColorControl control(nullptr);
    const std::unique_ptr<ColorSlider> red(control.createRedSlider(Qt::Horizontal));
    const std::unique_ptr<ColorSlider> magentaGreen(control.createVerticalMagentaGreenSlider());
    ColorSlider hue(ColorUIConstants::kHue, Qt::Horizontal);
    hue.setControl(&control);
    QCOMPARE(hue.maximum(), 1.0);
    control.setColorRange(-1, 2);
    const std::unique_ptr<ColorSlider> temperature(control.createVerticalTemperatureSlider());
    QCOMPARE(red->minimum(), -1.0);
    QCOMPARE(hue.minimum(), -1.0);
    QCOMPARE(magentaGreen->minimum(), -2.0);
    QCOMPARE(temperature->minimum(), -2.0);
    QCOMPARE(temperature->maximum(), 2.0);
}

void tst_ColorControl::uselessNumbersAreIgnored()
{
    const float useless[] = {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()};
    for (const float number : useless) {
        Client client;
        ColorControl control(&client);
        const std::unique_ptr<ColorSlider> red(control.createRedSlider(Qt::Horizontal));
        control.setColorRGBA(0.5f, number, 0.0f, 1.0f);
        control.setDefaultColorRGBA(0.5, double(number), 0, 1);
        control.setColorRange(double(number), 1);
        control.hsvChanged(number, 1.0f, 1.0f);
        control.rgbaChanged(0, 0, double(number), 1);
        control.intensityChanged(double(number));
        control.redChanged(1e300);
        QCOMPARE(textOf(control.getColor()), QString::fromLatin1("0 0 0 1"));
        QCOMPARE(textOf(control.getDefaultColor()), QString::fromLatin1("0 0 0 1"));
        QCOMPARE(red->maximum(), 4.0);
        QCOMPARE(client.changes, 0);
    }
}

QTEST_MAIN(tst_ColorControl)
#include "tst_ColorControl.moc"
