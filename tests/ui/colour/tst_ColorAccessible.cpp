// Not for Qt 4: its interfaces to assistive technology are others.

#include <ui/colour/ColorWheel.h>

#include <tests/support/Waiting.h>
#include <tests/ui/colour/Client.h>

#include <QAccessible>

#include <memory>

using namespace Norvane::UI;
using namespace NorvaneTest;

class tst_ColorAccessible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void changesAreAnnounced();
    void viewsTellTheirValues();
    void userOfAssistiveTechnologyIsReported();
};

namespace {

/// The names of what was announced to have another value.
QStringList announced;

void noteEvent(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::ValueChanged)
        announced.append(event->accessibleInterface()->text(QAccessible::Name));
}

QAccessibleInterface* accessible(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

} // namespace

void tst_ColorAccessible::cleanup()
{
    QAccessible::installUpdateHandler(nullptr);
}

void tst_ColorAccessible::changesAreAnnounced()
{
    if (!waitUntil([] { return QAccessible::isActive(); }))
        NORVANE_SKIP("needs at-spi2-core and a session bus");
    ColorControl control(nullptr);
    const std::unique_ptr<ColorWheel> wheel(control.createColorWheel());
    const std::unique_ptr<ColorSlider> red(control.createRedSlider(Qt::Horizontal));
    const std::unique_ptr<ColorSlider> alpha(control.createAlphaSlider(Qt::Horizontal));
    QAccessible::installUpdateHandler(noteEvent);
    control.setColorRGBA(0.5f, 0.25f, 0.0f, 1.0f);
    control.setColorRGBA(0.5f, 0.25f, 0.0f, 1.0f);
    QCOMPARE(announced.join(QLatin1String(" ")), QString::fromLatin1("Colour wheel Red"));
}

void tst_ColorAccessible::viewsTellTheirValues()
{
    ColorWheel wheel(nullptr);
    wheel.setHSV(0.25f, 0.5f, 0.75f);
    QCOMPARE(accessible(&wheel)->text(QAccessible::Value),
             QString::fromLatin1("Hue 90 degrees, saturation 50%, value 75%"));
    QAccessibleValueInterface* const hue = accessible(&wheel)->valueInterface();
    QCOMPARE(hue->currentValue().toDouble(), 0.25);
    QCOMPARE(hue->minimumValue().toDouble(), 0.0);
    QCOMPARE(hue->maximumValue().toDouble(), 1.0);
    QCOMPARE(hue->minimumStepSize().toDouble(), double(0.01f));
    ColorSlider temperature(ColorUIConstants::kTemperature, Qt::Vertical);
    QCOMPARE(accessible(&temperature)->text(QAccessible::Name), QString::fromLatin1("Temperature"));
    QCOMPARE(accessible(&temperature)->valueInterface()->minimumValue().toDouble(), -1.0);
}

void tst_ColorAccessible::userOfAssistiveTechnologyIsReported()
{
    Client client;
    ColorControl control(&client);
    control.setColorRGBA(1.0f, 0.0f, 0.0f, 1.0f);
    const std::unique_ptr<ColorWheel> wheel(control.createColorWheel());
    const std::unique_ptr<ColorSlider> blue(control.createBlueSlider(Qt::Horizontal));
    accessible(wheel.get())->valueInterface()->setCurrentValue(0.5);
    QCOMPARE(blue->value(), 1.0);
    accessible(blue.get())->valueInterface()->setCurrentValue(0.5);
    QCOMPARE(client.drags, 2);
    QCOMPARE(client.changes, 2);
    QCOMPARE(client.color.b, 0.5f);
}

QTEST_MAIN(tst_ColorAccessible)
#include "tst_ColorAccessible.moc"
