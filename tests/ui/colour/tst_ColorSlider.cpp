#include <ui/colour/ColorSlider.h>

#include <tests/ui/colour/Client.h>
#include <tests/ui/colour/Hand.h>
#include <ui/toolkit/Painting.h>

#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace Norvane::UI;
using namespace NorvaneTest;

namespace {

ColorUIConstants::Component component(int number)
{
    return ColorUIConstants::Component(number);
}

/// The track's colour at \a position, 0..1 along the slider.
QColor trackAt(ColorSlider& slider, double position)
{
    const QImage image = grabPixmap(&slider).toImage();
    if (slider.orientation() == Qt::Vertical)
        return image.pixel(image.width() / 2, qRound((1 - position) * (image.height() - 6)) + 2);
    return image.pixel(qRound(position * (image.width() - 6)) + 2, image.height() / 2 - 1);
}

/// The gradient spans the widget, the track a bit less.
bool isNear(const QColor& a, const QColor& b)
{
    const int most = 14;
    return qAbs(a.red() - b.red()) <= most && qAbs(a.green() - b.green()) <= most &&
           qAbs(a.blue() - b.blue()) <= most;
}

} // namespace

class tst_ColorSlider : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void showsComponent();
    void trackShowsMeaning_data();
    void trackShowsMeaning();
    void controlSnapsToDefault();
};

void tst_ColorSlider::showsComponent()
{
    ColorControl control(nullptr);
    control.setColorRGBA(0.25f, 0.5f, 1.0f, 0.5f);
    // By component; there is no tenth.
    const double values[] = {0.25, 0.5, 1.0, 11.0 / 18, 0.75, 1.0, 0.75, 0.125, 1.75 / 3, 0.5, 0.0};
    for (int number = 0; number <= 10; ++number) {
        ColorSlider slider(component(number), Qt::Horizontal);
        slider.setControl(&control);
        slider.updateFromControl();
        QCOMPARE(float(slider.value()), float(values[number]));
    }
}

void tst_ColorSlider::trackShowsMeaning_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<double>("position");
    QTest::addColumn<QColor>("color");
    using namespace ColorUIConstants;
    QTest::newRow("red") << int(kRed) << 0.3 << QColor(195, 75, 75);
    QTest::newRow("green") << int(kGreen) << 0.9 << QColor(91, 156, 91);
    QTest::newRow("blue") << int(kBlue) << 0.3 << QColor(51, 103, 169);
    QTest::newRow("alpha") << int(kAlpha) << 0.3 << QColor(155, 149, 149);
    QTest::newRow("hue, first") << int(kHue) << 0.0 << QColor(255, 0, 0);
    QTest::newRow("hue, second") << int(kHue) << 0.2 << QColor(204, 255, 0);
    QTest::newRow("hue, last") << int(kHue) << 1.0 << QColor(255, 0, 0);
    QTest::newRow("value goes by squares") << int(kValue) << 0.6 << QColor(92, 92, 92);
    QTest::newRow("intensity, end") << int(kIntensity) << 1.0 << QColor(255, 255, 255);
    QTest::newRow("temperature, cool") << int(kTemperature) << 1.0 << QColor(0, 128, 255);
    QTest::newRow("temperature, warm") << int(kTemperature) << 0.0 << QColor(255, 128, 0);
    QTest::newRow("temperature, neutral") << int(kTemperature) << 0.5 << QColor(128, 128, 128);
    QTest::newRow("magenta") << int(kMagentaGreen) << 1.0 << QColor(213, 0, 213);
    QTest::newRow("green") << int(kMagentaGreen) << 0.0 << QColor(43, 255, 43);
}

void tst_ColorSlider::trackShowsMeaning()
{
    QFETCH(int, number);
    QFETCH(double, position);
    QFETCH(QColor, color);
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        ColorSlider slider(component(number), orientation);
        slider.resize(orientation == Qt::Horizontal ? QSize(406, 20) : QSize(21, 406));
        // The thumb out of the way.
        slider.setValue(position > 0.5 ? slider.minimum() : slider.maximum());
        const QColor painted = trackAt(slider, position);
        QVERIFY2(isNear(painted, color), qPrintable(painted.name() + QLatin1String(" for ") + color.name()));
    }
}

void tst_ColorSlider::controlSnapsToDefault()
{
    Client client;
    ColorControl control(&client);
    control.setDefaultColorRGBA(0.25, 0, 0, 1);
    const std::unique_ptr<ColorSlider> red(control.createRedSlider(Qt::Horizontal));
    red->resize(200, 20);
    QSignalSpy values(red.get(), SIGNAL(valueChanged(double)));
    QSignalSpy moves(red.get(), SIGNAL(sliderMoved(double)));
    Hand hand(red.get(), QPoint(150, 10), Qt::ControlModifier);
    hand.moveBy(10, 0);
    hand.moveBy(10, 0);
    QCOMPARE(red->value(), 0.25);
    QCOMPARE(int(values.size()), 1);
    QCOMPARE(int(moves.size()), 1);
    QCOMPARE(client.changes, 1);
    QCOMPARE(client.color.r, 0.25f);
    hand.hold(Qt::NoModifier);
    hand.moveBy(1, 0);
    QVERIFY(red->value() > 2);
}

QTEST_MAIN(tst_ColorSlider)
#include "tst_ColorSlider.moc"
