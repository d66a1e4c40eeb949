#include <ui/sliders/Slider.h>

#include <tests/support/Waiting.h>

#include <QImage>
#include <QPainter>

using namespace Norvane::UI;

class tst_SliderPaint : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void thumbStandsAtValue_data();
    void thumbStandsAtValue();
    void thumbPointsOutOfRange();
    void trackIsFilled();
    void ticksAreWhereTheyBelong();
    void numbersNeverTouch_data();
    void numbersNeverTouch();
    void ticksFollowEveryChange();
    void sameColourDoesNotRepaint();
};

namespace {

const QColor kThumb(98, 82, 39);

QPalette testPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Dark, kThumb);
    palette.setColor(QPalette::Mid, Qt::red);
    palette.setColor(QPalette::Shadow, Qt::blue);
    palette.setColor(QPalette::Light, Qt::green);
    return palette;
}

/// Paints labels as bars of the size that they take, or not at all, and counts paintings.
class TestSlider : public Slider
{
public:
    TestSlider(ValueType type, SliderMode mode, Qt::Orientation orientation, int length)
        : Slider(type, mode, orientation, nullptr)
    {
        setPalette(testPalette());
        setColor(Qt::green);
        resize(orientation == Qt::Horizontal ? QSize(length, 20) : QSize(40, length));
    }

    QImage image()
    {
        QImage result(size(), QImage::Format_RGB32);
        render(&result);
        return result;
    }

    int paintings = 0;
    bool hasThumb = true;
    bool hasTicks = true;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paintings;
        Slider::paintEvent(event);
    }
    void paintTick(QVector<QLine>& lines, const QRect& tickRect, int position, int length) override
    {
        if (hasTicks)
            Slider::paintTick(lines, tickRect, position, length);
    }
    void paintThumb(QPainter& painter) override
    {
        if (hasThumb)
            Slider::paintThumb(painter);
    }
};

QRect boundsOf(const QImage& image, const QColor& color)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color.rgb())
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

bool isBlank(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != QColor(Qt::white).rgb())
                return false;
        }
    }
    return true;
}

/// Where \a row has \a color.
QList<int> offsetsOf(const QImage& image, int row, const QColor& color)
{
    QList<int> offsets;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, row) == color.rgb())
            offsets.append(x);
    }
    return offsets;
}

} // namespace

void tst_SliderPaint::thumbStandsAtValue_data()
{
    QTest::addColumn<bool>("isVertical");
    QTest::addColumn<double>("value");
    QTest::addColumn<QRect>("bounds");
    // A rectangle's outline is one pixel larger than the rectangle.
    QTest::newRow("in the middle") << false << 0.5 << QRect(50, 6, 5, 10);
    QTest::newRow("at the end") << false << 1.0 << QRect(100, 6, 5, 10);
    QTest::newRow("vertical, start") << true << 0.0 << QRect(17, 100, 23, 5);
    QTest::newRow("vertical, end") << true << 1.0 << QRect(17, 0, 23, 5);
}

void tst_SliderPaint::thumbStandsAtValue()
{
    QFETCH(bool, isVertical);
    QFETCH(double, value);
    QFETCH(QRect, bounds);
    TestSlider slider(Slider::RealValue, Slider::LinearMode, isVertical ? Qt::Vertical : Qt::Horizontal, 105);
    slider.setValue(value);
    QCOMPARE(boundsOf(slider.image(), kThumb), bounds);
}

void tst_SliderPaint::thumbPointsOutOfRange()
{
    for (const bool isVertical : {false, true}) {
        for (const bool isBelow : {false, true}) {
            TestSlider slider(Slider::RealValue, Slider::LinearMode,
                              isVertical ? Qt::Vertical : Qt::Horizontal, 105);
            slider.setValue(isBelow ? -3 : 3);
            QImage image = slider.image();
            if (isVertical)
                image = image.transformed(QTransform().rotate(90));
            // The edges are antialiased; what is inside of them is longer than the thumb and grows from the
            // tip.
            const QRect bounds = boundsOf(image, kThumb);
            const int left = boundsOf(image.copy(bounds.left(), 0, 1, image.height()), kThumb).height();
            const int right = boundsOf(image.copy(bounds.right(), 0, 1, image.height()), kThumb).height();
            QVERIFY(bounds.width() > 6);
            QVERIFY(isBelow ? bounds.left() < 6 : bounds.right() > 98);
            QVERIFY(isBelow ? left < right : left > right);
        }
    }
}

void tst_SliderPaint::trackIsFilled()
{
    TestSlider slider(Slider::RealValue, Slider::LinearMode, Qt::Horizontal, 105);
    slider.hasThumb = false;
    QImage image = slider.image();
    for (int x = 2; x <= 102; ++x) {
        QCOMPARE(QColor(image.pixel(x, 8)), QColor(Qt::blue));
        QCOMPARE(QColor(image.pixel(x, 9)), QColor(Qt::green));
        QCOMPARE(QColor(image.pixel(x, 10)), QColor(Qt::blue));
    }
    QLinearGradient gradient(0, 0, 105, 0);
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::white);
    slider.setColor(gradient);
    image = slider.image();
    for (int x = 2; x <= 102; ++x)
        QVERIFY(qAbs(qRed(image.pixel(x, 9)) - 255 * (x + 0.5) / 105) < 2);
    slider.setColor(QColor(Qt::yellow));
    QCOMPARE(QColor(slider.image().pixel(50, 9)), QColor(Qt::yellow));
}

void tst_SliderPaint::ticksAreWhereTheyBelong()
{
    TestSlider slider(Slider::IntegerValue, Slider::LinearMode, Qt::Horizontal, 205);
    slider.setRange(-5, 15);
    slider.hasThumb = false;
    // Ten pixels a step: major ticks reach the top row, the others only half as high.
    QCOMPARE(offsetsOf(slider.image(), 0, Qt::red), QList<int>() << 52 << 152);
    QList<int> all;
    for (int x = 2; x <= 202; x += 10)
        all.append(x);
    QCOMPARE(offsetsOf(slider.image(), 7, Qt::red), all);
    slider.setMinTickSeparation(11);
    QCOMPARE(offsetsOf(slider.image(), 7, Qt::red), QList<int>() << 52 << 152);
}

void tst_SliderPaint::numbersNeverTouch_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    const int linear = Slider::LinearMode;
    const int log = Slider::LogMode;
    QTest::newRow("linear, long numbers") << linear << -12345.6 << 123456.0;
    QTest::newRow("logarithmic") << log << 0.001 << 20000.0;
    QTest::newRow("below zero") << log << -5000.0 << -0.001;
    QTest::newRow("around zero") << log << -4.0 << 9.0;
}

void tst_SliderPaint::numbersNeverTouch()
{
    QFETCH(int, mode);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFont font;
    font.setPointSize(6);
    const QFontMetrics metrics(font);
    for (int length = 30; length < 400; length += 7) {
        for (const bool isVertical : {false, true}) {
            TestSlider slider(Slider::RealValue, Slider::SliderMode(mode),
                              isVertical ? Qt::Vertical : Qt::Horizontal, length);
            slider.setRange(minimum, maximum);
            slider.hasThumb = false;
            slider.hasTicks = false;
            const QImage image = slider.image();
            // No run of ink is longer than a number: numbers that touch would be. Digits stand close in a
            // row.
            const int gap = isVertical ? 1 : 3;
            const int most =
                isVertical ? metrics.ascent() : metrics.boundingRect(QLatin1String("-12345.6")).width() + 6;
            int blank = 0;
            int run = 0;
            for (int i = 0; i < length; ++i) {
                const QImage across = isVertical ? image.copy(0, i, 17, 1) : image.copy(i, 12, 1, 8);
                blank = isBlank(across) ? blank + 1 : 0;
                run = blank < gap ? run + 1 : 0;
                QVERIFY2(run <= most,
                         qPrintable(QString::fromLatin1("%1 pixels: ink over %2").arg(length).arg(run)));
            }
        }
    }
}

// The choice of marks is kept from one painting to the next.
void tst_SliderPaint::ticksFollowEveryChange()
{
    const auto isLikeNew = [](TestSlider& used, int length, double maximum, int separation) {
        TestSlider fresh(Slider::RealValue, Slider::LogMode, Qt::Horizontal, length);
        fresh.setRange(1, maximum);
        fresh.setMinTickSeparation(separation);
        return used.image() == fresh.image();
    };
    TestSlider slider(Slider::RealValue, Slider::LogMode, Qt::Horizontal, 400);
    slider.setRange(1, 100);
    QVERIFY(isLikeNew(slider, 400, 100, 5));
    slider.setMaximum(1e6);
    QVERIFY(isLikeNew(slider, 400, 1e6, 5));
    slider.resize(150, 20);
    QVERIFY(isLikeNew(slider, 150, 1e6, 5));
    slider.setMinTickSeparation(15);
    QVERIFY(isLikeNew(slider, 150, 1e6, 15));
    slider.setMinTickSeparation(0);
    QVERIFY(isLikeNew(slider, 150, 1e6, 1));
}

// Colour sliders set their gradient while they are painted: that must not paint them again and again.
void tst_SliderPaint::sameColourDoesNotRepaint()
{
    TestSlider slider(Slider::RealValue, Slider::LinearMode, Qt::Horizontal, 105);
    slider.show();
    WAIT_FOR(slider.paintings > 0);
    const QLinearGradient gradient(0, 0, 105, 0);
    const auto repaints = [&] {
        QCoreApplication::processEvents();
        const int count = slider.paintings;
        slider.paintings = 0;
        return count > 0;
    };
    slider.setColor(gradient);
    QVERIFY(repaints());
    slider.setColor(gradient);
    slider.setValue(slider.value());
    slider.setRange(slider.minimum(), slider.maximum());
    QVERIFY(!repaints());
    slider.setColor(QColor(Qt::red));
    QVERIFY(repaints());
    slider.setValue(0.7);
    QVERIFY(repaints());
}

QTEST_MAIN(tst_SliderPaint)
#include "tst_SliderPaint.moc"
