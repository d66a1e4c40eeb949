// Not for Qt 4: its interfaces to assistive technology are others.

#include <ui/sliders/LogSlider.h>
#include <ui/sliders/Slider.h>

#include <tests/support/Waiting.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using namespace Norvane::UI;

class tst_SliderAccessible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void changesAreAnnounced();
    void userOfAssistiveTechnologyIsReported_data();
    void userOfAssistiveTechnologyIsReported();
    void logSliderTellsRealValues();
};

namespace {

/// The values that were announced, of any widget.
QList<double> announced;

void noteEvent(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::ValueChanged)
        announced.append(static_cast<QAccessibleValueChangeEvent*>(event)->value().toDouble());
}

QAccessibleValueInterface* valueOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->valueInterface();
}

} // namespace

void tst_SliderAccessible::cleanup()
{
    QAccessible::installUpdateHandler(nullptr);
}

void tst_SliderAccessible::changesAreAnnounced()
{
    if (!NorvaneTest::waitUntil([] { return QAccessible::isActive(); }))
        NORVANE_SKIP("needs at-spi2-core and a session bus");
    QAccessible::installUpdateHandler(noteEvent);
    Slider slider(Slider::RealValue, Slider::LinearMode, Qt::Horizontal, nullptr);
    slider.setValue(0.25);
    slider.setValue(0.25);
    QTest::keyClick(&slider, Qt::Key_End);
    valueOf(&slider)->setCurrentValue(0.75);
    QCOMPARE(announced, QList<double>() << 0.25 << 1.0 << 0.75);
    LogSlider logSlider(Qt::Horizontal);
    logSlider.setRealRange(0, 2, 10);
    announced.clear();
    logSlider.setRealValue(10);
    QCOMPARE(int(announced.size()), 1);
}

void tst_SliderAccessible::userOfAssistiveTechnologyIsReported_data()
{
    QTest::addColumn<QVariant>("wanted");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<double>("value");
    QTest::newRow("within") << QVariant(0.75) << true << 0.75;
    QTest::newRow("beyond the end") << QVariant(7) << true << 1.0;
    QTest::newRow("not a number") << QVariant(std::nan("")) << true << 0.5;
    QTest::newRow("no number at all") << QVariant(QLatin1String("much")) << true << 0.5;
    QTest::newRow("disabled") << QVariant(0.75) << false << 0.5;
}

void tst_SliderAccessible::userOfAssistiveTechnologyIsReported()
{
    QFETCH(QVariant, wanted);
    QFETCH(bool, isEnabled);
    QFETCH(double, value);
    Slider slider(Slider::RealValue, Slider::LinearMode, Qt::Horizontal, nullptr);
    slider.setEnabled(isEnabled);
    QSignalSpy changes(&slider, SIGNAL(valueChanged(double)));
    valueOf(&slider)->setCurrentValue(wanted);
    QCOMPARE(slider.value(), value);
    QCOMPARE(int(changes.size()), value == 0.5 ? 0 : 1);
}

void tst_SliderAccessible::logSliderTellsRealValues()
{
    LogSlider slider(Qt::Horizontal);
    // Without a range it has only the positions of a QSlider.
    QCOMPARE(valueOf(&slider)->maximumValue().toDouble(), 99.0);
    valueOf(&slider)->setCurrentValue(7);
    QCOMPARE(slider.value(), 7);
    slider.setRealRange(-1, 3, 100);
    valueOf(&slider)->setCurrentValue(10);
    QCOMPARE(slider.realValue(), 10.0);
    QCOMPARE(valueOf(&slider)->currentValue().toDouble(), 10.0);
    QCOMPARE(valueOf(&slider)->minimumValue().toDouble(), 0.1);
    QCOMPARE(valueOf(&slider)->maximumValue().toDouble(), 1000.0);
    QCOMPARE(valueOf(&slider)->minimumStepSize().toDouble(), std::pow(10, 1.01) - 10);
    QCOMPARE(QAccessible::queryAccessibleInterface(&slider)->text(QAccessible::Value),
             slider.locale().toString(10.0));
}

QTEST_MAIN(tst_SliderAccessible)
#include "tst_SliderAccessible.moc"
