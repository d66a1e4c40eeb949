#include <ui/sliders/LogSlider.h>

#include <QImage>
#include <QtTest>

#include <cmath>
#include <limits>
#include <stdexcept>

using namespace Norvane::UI;

class tst_LogSlider : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void valuesBecomePositions_data();
    void valuesBecomePositions();
    void wrongUseThrows();
    void extremeRangesStayWithinIntegers();
    void marksFollowTheGroove_data();
    void marksFollowTheGroove();
};

namespace {

/// What \a call throws, as "invalid: text" or "logic: text".
template <typename Call>
QString thrownBy(Call call)
{
    try {
        call();
    } catch (const std::invalid_argument& error) {
        return QLatin1String("invalid: ") + QLatin1String(error.what());
    } catch (const std::logic_error& error) {
        return QLatin1String("logic: ") + QLatin1String(error.what());
    }
    return QString();
}

QImage imageOf(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    widget.render(&image);
    return image;
}

/// The coordinates, along the slider, of pixels with \a color.
QList<int> placesOf(const QImage& image, const QColor& color, bool isVertical)
{
    QList<int> places;
    const int length = isVertical ? image.height() : image.width();
    const int across = isVertical ? image.width() : image.height();
    for (int i = 0; i < length; ++i) {
        bool found = false;
        for (int k = 0; k < across; ++k)
            found = found || image.pixel(isVertical ? k : i, isVertical ? i : k) == color.rgb();
        if (found)
            places.append(i);
    }
    return places;
}

} // namespace

void tst_LogSlider::valuesBecomePositions_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("realValue");
    QTest::newRow("truncated") << 50.0 << 169 << std::pow(10, 1.69);
    QTest::newRow("truncated towards 1") << 0.05 << -100 << 0.1;
    QTest::newRow("fraction") << 0.5 << -30 << std::pow(10, -0.3);
    QTest::newRow("too large") << 1e9 << 300 << 1000.0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 300 << 1000.0;
    QTest::newRow("zero") << 0.0 << -100 << 0.1;
    QTest::newRow("negative") << -5.0 << -100 << 0.1;
    QTest::newRow("not a number") << std::nan("") << 0 << 1.0;
}

void tst_LogSlider::valuesBecomePositions()
{
    QFETCH(double, value);
    QFETCH(int, position);
    QFETCH(double, realValue);
    LogSlider slider(Qt::Horizontal);
    slider.setRealRange(3, -1, 100);
    QCOMPARE(slider.minimum(), -100);
    QCOMPARE(slider.maximum(), 300);
    slider.setRealValue(value);
    QCOMPARE(slider.value(), position);
    QCOMPARE(slider.realValue(), realValue);
    QCOMPARE(slider.property("realValue").toDouble(), realValue);
}

void tst_LogSlider::wrongUseThrows()
{
    LogSlider slider;
    const QString early = QLatin1String("logic: Call setRealRange method first");
    QCOMPARE(thrownBy([&] { slider.realValue(); }), early);
    QCOMPARE(thrownBy([&] { slider.setRealValue(1); }), early);
    const QString precision = QLatin1String("invalid: precision argument should be > 0");
    QCOMPARE(thrownBy([&] { slider.setRealRange(0, 2, 0); }), precision);
    QCOMPARE(thrownBy([&] { slider.setRealRange(2, 2, 0); }), precision);
    slider.setRealRange(0, 3, 100);
    QCOMPARE(thrownBy([&] { slider.setRealRange(1, 1, 5); }),
             QString::fromLatin1("invalid: minExp cannot be equal to maxExp"));
    QCOMPARE(slider.maximum(), 300);
}

void tst_LogSlider::extremeRangesStayWithinIntegers()
{
    LogSlider slider(Qt::Horizontal);
    slider.resize(200, 30);
    slider.setRealRange(-400, 400, 10000000);
    slider.setRealValue(0);
    QCOMPARE(slider.value(), -std::numeric_limits<int>::max());
    slider.setRealValue(1e200);
    QVERIFY(slider.realValue() > 1e199);
    imageOf(slider);
}

void tst_LogSlider::marksFollowTheGroove_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("rightToLeft");
    QTest::newRow("horizontal") << int(Qt::Horizontal) << false;
    QTest::newRow("right to left") << int(Qt::Horizontal) << true;
    QTest::newRow("vertical") << int(Qt::Vertical) << false;
}

void tst_LogSlider::marksFollowTheGroove()
{
    QFETCH(int, orientation);
    QFETCH(bool, rightToLeft);
    const bool isVertical = orientation == Qt::Vertical;
    LogSlider slider{Qt::Orientation(orientation)};
    slider.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    slider.resize(isVertical ? QSize(60, 401) : QSize(401, 60));
    slider.setRealRange(-1, 3, 100);
    slider.setRealValue(10);
    // Labels, drawn in the same colours, are as good as gone.
    slider.setTickTextSize(1);
    slider.setExpTickColor(QColor(255, 0, 1));
    slider.setTickColor(QColor(0, 255, 1));
    QImage image = imageOf(slider);
    // The middle one lies under the handle.
    QCOMPARE(placesOf(image, slider.expTickColor(), isVertical), QList<int>() << 0 << 100 << 300 << 400);
    const QList<int> others = placesOf(image, slider.tickColor(), isVertical);
    const bool rises = !isVertical && !rightToLeft;
    // 0.2, 2 and 5; positions are truncated towards 1.
    for (const int place : {31, 130, 169})
        QVERIFY(others.contains(rises ? place : 400 - place));
    slider.setRealValue(1000);
    image = imageOf(slider);
    QCOMPARE(placesOf(image, slider.expTickColor(), isVertical).contains(rises ? 400 : 0), false);
}

QTEST_MAIN(tst_LogSlider)
#include "tst_LogSlider.moc"
