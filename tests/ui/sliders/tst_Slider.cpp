#include <ui/sliders/Slider.h>

#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Norvane::UI;

class tst_Slider : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void boundsAreSwappedAndValueStays();
    void numbersThatAreNotFiniteAreIgnored();
    void dragSnapsToRoundValues_data();
    void dragSnapsToRoundValues();
    void dragReportsInOrder();
    void survivesDeletionByItsHost_data();
    void survivesDeletionByItsHost();
    void keysMoveAndReport_data();
    void keysMoveAndReport();
};

/// Writes down what a slider reports, and deletes the slider when it hears \a last.
class Reports : public QObject
{
    Q_OBJECT
public:
    explicit Reports(Slider* slider, const QString& last = QString())
        : m_slider(slider)
        , m_last(last)
    {
        connect(slider, SIGNAL(sliderPressed()), this, SLOT(pressed()));
        connect(slider, SIGNAL(valueChanged(double)), this, SLOT(changed(double)));
        connect(slider, SIGNAL(sliderMoved(double)), this, SLOT(moved(double)));
        connect(slider, SIGNAL(sliderReleased()), this, SLOT(released()));
    }

    QString take()
    {
        QString all = m_reports.join(QLatin1String(", "));
        m_reports.clear();
        return all;
    }

private Q_SLOTS:
    void pressed() { note(QLatin1String("pressed"), 0); }
    void changed(double value) { note(QLatin1String("changed %1"), value); }
    void moved(double value) { note(QLatin1String("moved %1"), value); }
    void released() { note(QLatin1String("released"), 0); }

private:
    void note(const QString& what, double value)
    {
        m_reports.append(what.contains(QLatin1Char('%')) ? what.arg(value) : what);
        if (!m_last.isEmpty() && what.startsWith(m_last))
            delete m_slider;
    }

    Slider* const m_slider;
    const QString m_last;
    QStringList m_reports;
};

namespace {

/// A slider whose slot is \a length pixels long, so that a press at pixel 2 + n is one at n / length.
Slider* createSlider(Slider::ValueType type, Slider::SliderMode mode, double minimum, double maximum,
                     int length)
{
    Slider* const slider = new Slider(type, mode, Qt::Horizontal, nullptr);
    slider->setRange(minimum, maximum);
    slider->resize(length + 5, 20);
    return slider;
}

void press(Slider* slider, int position)
{
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, QPoint(2 + position, 10));
}

void drag(Slider* slider, int position)
{
    const QPoint place(2 + position, 10);
    QMouseEvent event(QEvent::MouseMove, place, slider->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &event);
}

} // namespace

void tst_Slider::boundsAreSwappedAndValueStays()
{
    Slider slider(Slider::RealValue, Slider::LinearMode, Qt::Horizontal, nullptr);
    slider.setRange(10, -10);
    QCOMPARE(slider.minimum(), -10.0);
    QCOMPARE(slider.maximum(), 10.0);
    slider.setMinimum(20);
    QCOMPARE(slider.minimum(), 10.0);
    QCOMPARE(slider.maximum(), 20.0);
    slider.setMaximum(5);
    QCOMPARE(slider.minimum(), 5.0);
    QCOMPARE(slider.maximum(), 10.0);
    QCOMPARE(slider.value(), 0.5);
}

void tst_Slider::numbersThatAreNotFiniteAreIgnored()
{
    Slider slider(Slider::RealValue, Slider::LinearMode, Qt::Horizontal, nullptr);
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double number : {std::nan(""), infinite, -infinite}) {
        slider.setValue(number);
        slider.setStep(number);
        slider.setMinimum(number);
        slider.setMaximum(number);
        slider.setRange(number, number);
    }
    // Each is finite, their distance is not.
    slider.setRange(-1.5e308, 1.5e308);
    QCOMPARE(slider.value(), 0.5);
    QCOMPARE(slider.step(), 0.01);
    QCOMPARE(slider.minimum(), 0.0);
    QCOMPARE(slider.maximum(), 1.0);
}

void tst_Slider::dragSnapsToRoundValues_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("value");
    const int integer = Slider::IntegerValue;
    const int real = Slider::RealValue;
    const int linear = Slider::LinearMode;
    const int log = Slider::LogMode;
    QTest::newRow("less than 1 a pixel") << integer << linear << 0.0 << 100.0 << 500 << 248 << 50.0;
    QTest::newRow("3 thousandths a pixel") << real << linear << 0.0 << 1.5 << 500 << 101 << 0.305;
    QTest::newRow("zero inside the range") << real << log << -4.0 << 9.0 << 500 << 200 << 0.0;
    QTest::newRow("mirrored") << real << log << -100.0 << -1.0 << 400 << 200 << -10.0;
    QTest::newRow("before the start") << real << linear << 0.123 << 1.0 << 100 << -40 << 0.123;
}

void tst_Slider::dragSnapsToRoundValues()
{
    QFETCH(int, type);
    QFETCH(int, mode);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, length);
    QFETCH(int, position);
    QFETCH(double, value);
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const QScopedPointer<Slider> slider(
            createSlider(Slider::ValueType(type), Slider::SliderMode(mode), minimum, maximum, length));
        slider->setOrientation(orientation);
        slider->resize(orientation == Qt::Horizontal ? QSize(length + 5, 20) : QSize(20, length + 5));
        const QPoint place =
            orientation == Qt::Horizontal ? QPoint(2 + position, 10) : QPoint(10, length + 2 - position);
        QTest::mousePress(slider.data(), Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(slider->value(), value);
    }
}

void tst_Slider::dragReportsInOrder()
{
    const QScopedPointer<Slider> slider(createSlider(Slider::RealValue, Slider::LinearMode, 0, 1, 100));
    Reports reports(slider.data());
    press(slider.data(), 50);
    QCOMPARE(reports.take(), QString::fromLatin1("pressed"));
    drag(slider.data(), 60);
    QCOMPARE(reports.take(), QString::fromLatin1("changed 0.6, moved 0.6"));
    drag(slider.data(), 60);
    slider->setValue(-2.5);
    QCOMPARE(slider->value(), -2.5);
    QCOMPARE(reports.take(), QString());
    QTest::mouseRelease(slider.data(), Qt::LeftButton, Qt::NoModifier, QPoint(62, 10));
    QCOMPARE(reports.take(), QString::fromLatin1("released"));
}

void tst_Slider::survivesDeletionByItsHost_data()
{
    QTest::addColumn<QString>("last");
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<QString>("reports");
    const auto row = [](const char* name, bool byKey, const char* last, const char* reports) {
        QTest::newRow(name) << QString::fromLatin1(last) << byKey << QString::fromLatin1(reports);
    };
    row("press", false, "pressed", "pressed");
    row("change", false, "changed", "pressed, changed 0.2");
    row("move", false, "moved", "pressed, changed 0.2, moved 0.2");
    row("move by a key", true, "moved", "pressed, changed 0.51, moved 0.51");
}

void tst_Slider::survivesDeletionByItsHost()
{
    QFETCH(QString, last);
    QFETCH(bool, byKey);
    QFETCH(QString, reports);
    const QPointer<Slider> slider(createSlider(Slider::RealValue, Slider::LinearMode, 0, 1, 100));
    Reports spy(slider, last);
    QMouseEvent click(QEvent::MouseButtonPress, QPoint(22, 10), slider->mapToGlobal(QPoint(22, 10)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    // Handed to the slider itself: QApplication would look at the widget after its deletion.
    static_cast<QObject*>(slider)->event(byKey ? static_cast<QEvent*>(&key) : &click);
    QVERIFY(!slider);
    QCOMPARE(spy.take(), reports);
}

void tst_Slider::keysMoveAndReport_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("reports");
    const auto row = [](const char* name, Slider::ValueType type, double value, Qt::Key key,
                        const char* newValue) {
        const QString reports =
            QString::fromLatin1(*newValue ? "pressed, changed %1, moved %1, released" : "");
        QTest::newRow(name) << int(type) << value << int(key)
                            << (*newValue ? reports.arg(QLatin1String(newValue)) : reports);
    };
    row("down", Slider::RealValue, 0.01, Qt::Key_Down, "0");
    row("page up", Slider::RealValue, 0.5, Qt::Key_PageUp, "0.6");
    row("end", Slider::RealValue, 0.5, Qt::Key_End, "1");
    row("page up to the end", Slider::RealValue, 0.99, Qt::Key_PageUp, "1");
    row("at the end", Slider::RealValue, 1, Qt::Key_Right, "");
    row("from outside the range", Slider::RealValue, 7, Qt::Key_Right, "1");
    row("no key of ours", Slider::RealValue, 0.5, Qt::Key_A, "");
}

void tst_Slider::keysMoveAndReport()
{
    QFETCH(int, type);
    QFETCH(double, value);
    QFETCH(int, key);
    QFETCH(QString, reports);
    Slider slider(Slider::ValueType(type), Slider::LinearMode, Qt::Horizontal, nullptr);
    slider.setRange(-1, 1);
    slider.setStep(0.01);
    slider.setValue(value);
    Reports spy(&slider);
    QTest::keyClick(&slider, Qt::Key(key));
    QCOMPARE(spy.take(), reports);
}

QTEST_MAIN(tst_Slider)
#include "tst_Slider.moc"
