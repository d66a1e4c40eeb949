// Views, control and client may end each other at any moment. AddressSanitizer sees what goes wrong.

#include <ui/colour/ColorControl.h>

#include <tests/ui/colour/Client.h>
#include <tests/ui/colour/Hand.h>

#include <QPointer>
#include <QtTest>

using namespace Norvane::UI;
using namespace NorvaneTest;
using Norvane::Colour::Color4;

namespace {

/// What a host's own view has of a view.
class Proxy : public ColorControlWidget
{
public:
    using ColorControlWidget::ColorControlWidget;
    void updateFromControl() override
    {
        ++updates;
        onUpdate();
    }
    void rangeChanged(double, double) override { ++ranges; }
    void alphaEnabledChanged(bool) override {}

    int updates = 0;
    int ranges = 0;
    std::function<void()> onUpdate = [] {};
};

class View : public QWidget, public Proxy
{
public:
    View()
        : Proxy(this)
    {
    }
};

/// A control with a wheel and two sliders, and a finger on one of them.
struct Scene {
    Scene()
        : control(new ColorControl(&client))
        , wheel(control->createColorWheel())
        , red(control->createRedSlider(Qt::Horizontal))
        , blue(control->createBlueSlider(Qt::Horizontal))
    {
        red->resize(200, 20);
        blue->resize(200, 20);
    }
    ~Scene()
    {
        client.onChange = client.onDrag = nullptr;
        delete wheel;
        delete control;
        delete red;
        delete blue;
    }
    QWidget* touched(const QString& name) const
    {
        return name == QLatin1String("wheel") ? static_cast<QWidget*>(wheel) : red;
    }
    void remove(const QString& name)
    {
        if (name == QLatin1String("control"))
            delete control;
        else if (name == QLatin1String("wheel"))
            delete wheel;
        else if (name == QLatin1String("red"))
            delete red;
        else
            delete blue;
    }

    Client client;
    QPointer<ColorControl> control;
    QPointer<ColorWheel> wheel;
    QPointer<ColorSlider> red;
    QPointer<ColorSlider> blue;
};

} // namespace

class tst_ColorControlLifetimes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void endsInAnyOrder();
    void endsInsideClient_data();
    void endsInsideClient();
    void viewEndsOtherView();
    void clientAnswersWithColor();
    void viewJoinsAndLeaves();
};

void tst_ColorControlLifetimes::endsInAnyOrder()
{
    for (const char* const order :
         {"control wheel red blue", "blue red wheel control", "red control wheel blue"}) {
        Scene scene;
        for (const QString& name : QString::fromLatin1(order).split(QLatin1Char(' '))) {
            scene.remove(name);
            if (scene.control) {
                scene.control->setColorRange(0, 2);
                scene.control->redChanged(0.5);
            }
            if (scene.wheel)
                scene.wheel->updateFromControl();
            if (scene.red)
                Hand(scene.red, QPoint(20, 10));
        }
    }
}

void tst_ColorControlLifetimes::endsInsideClient_data()
{
    QTest::addColumn<QString>("touched");
    QTest::addColumn<QString>("ended");
    for (const char* const touched : {"wheel", "red"}) {
        for (const char* const ended : {"control", "wheel", "red", "blue"})
            QTest::newRow((QByteArray(touched) + " ends " + ended).constData()) << touched << ended;
    }
}

void tst_ColorControlLifetimes::endsInsideClient()
{
    QFETCH(QString, touched);
    QFETCH(QString, ended);
    for (const bool atStart : {true, false}) {
        Scene scene;
        std::function<void()>& reaction = atStart ? scene.client.onDrag : scene.client.onChange;
        reaction = [&] { scene.remove(ended); };
        Hand hand(scene.touched(touched), QPoint(60, 15));
        hand.moveBy(15, 5);
        QVERIFY(scene.client.drags == 1);
        if (atStart && ended == QLatin1String("control"))
            QCOMPARE(scene.client.changes, 0);
    }
}

void tst_ColorControlLifetimes::viewEndsOtherView()
{
    Scene scene;
    View view;
    view.setControl(scene.control);
    ColorSlider* const last = scene.control->createGreenSlider(Qt::Horizontal);
    view.onUpdate = [&] {
        delete last;
        delete scene.wheel;
        view.onUpdate = [] {};
    };
    scene.control->redChanged(0.5);
    QCOMPARE(scene.blue->value(), 0.0);
    QCOMPARE(scene.client.changes, 1);
    view.onUpdate = [&] { delete scene.control; };
    scene.control->redChanged(0.25);
    QCOMPARE(scene.client.changes, 1);
}

void tst_ColorControlLifetimes::clientAnswersWithColor()
{
    Scene scene;
    scene.client.onChange = [&] { scene.control->setColorRGBA(0.75f, 0.5f, 0.25f, 1.0f); };
    Hand hand(scene.red, QPoint(150, 10));
    QCOMPARE(scene.client.changes, 1);
    QCOMPARE(scene.red->value(), 0.75);
    QCOMPARE(scene.blue->value(), 0.25);
    // Also where the slider jumps to its default.
    scene.client.onChange = [&] { scene.control->setColorRGBA(0.5f, 0.5f, 0.25f, 1.0f); };
    hand.hold(Qt::ControlModifier);
    hand.moveBy(1, 0);
    QCOMPARE(scene.red->value(), 0.5);
}

void tst_ColorControlLifetimes::viewJoinsAndLeaves()
{
    ColorControl first(nullptr);
    ColorControl second(nullptr);
    View view;
    QCOMPARE(view.getColorFromControl().a, 1.0f);
    view.setControl(&first);
    view.setControl(&first);
    first.redChanged(0.5);
    QCOMPARE(view.updates, 1);
    QCOMPARE(view.getColorFromControl().r, 0.5f);
    view.setControl(&second);
    first.setColorRange(0, 1);
    QCOMPARE(view.ranges, 0);
    second.setColorRange(0, 1);
    QCOMPARE(view.ranges, 1);
    first.removeWidget(&view);
    second.removeWidget(&view);
    second.setColorRGBA(1.0f, 1.0f, 1.0f, 1.0f);
    QCOMPARE(view.updates, 1);
    QCOMPARE(view.getColorFromControl().r, 0.0f);

    ColorSlider* const red = first.createRedSlider(Qt::Horizontal);
    red->deregisterWithControl();
    QVERIFY(QMetaObject::invokeMethod(red, "valueChanged", Q_ARG(double, 0.125)));
    QCOMPARE(first.getColor().r, 0.5f);
    delete red;
}

QTEST_MAIN(tst_ColorControlLifetimes)
#include "tst_ColorControlLifetimes.moc"
