#include <examples/host/PictureGeometry.h>

#include <QtTest>

using namespace Norvane::Host;

class tst_PictureGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fitShowsAll();
    void pictureIsPlaced();
    void zoomKeepsPointUnderMouse();
    void touchedPixelsCoverTheirPart_data();
    void touchedPixelsCoverTheirPart();
};

void tst_PictureGeometry::fitShowsAll()
{
    QCOMPARE(fitScale(QSize(2000, 100), QSize(500, 500)), 0.25);
    QCOMPARE(fitScale(QSize(100, 2000), QSize(500, 500)), 0.25);
    QCOMPARE(fitScale(QSize(10, 10), QSize(40, 80)), 4.0);
    // No picture, no room.
    QCOMPARE(fitScale(QSize(), QSize(40, 80)), 1.0);
    QCOMPARE(fitScale(QSize(10, 10), QSize(40, 0)), 1.0);
}

void tst_PictureGeometry::pictureIsPlaced()
{
    const auto originOf = [](qreal scale, const QPointF& center) {
        const Placement placement = placePicture(QSize(200, 100), QSize(100, 80), scale, center);
        return placement.rect(QSize(200, 100)).topLeft();
    };
    // Smaller than the view, larger with its centre in the middle, without gaps at its borders.
    QCOMPARE(originOf(0.5, QPointF(0, 0)), QPointF(0, 15));
    QCOMPARE(originOf(2, QPointF(100, 50)), QPointF(-150, -60));
    QCOMPARE(originOf(2, QPointF(3, 50)), QPointF(0, -60));
    QCOMPARE(originOf(2, QPointF(190, 99)), QPointF(-300, -120));
    // Larger in one direction.
    QCOMPARE(originOf(0.7, QPointF(0, 0)), QPointF(0, 5));
}

void tst_PictureGeometry::zoomKeepsPointUnderMouse()
{
    const QSize picture(200, 100);
    const QSize view(100, 80);
    const Placement before = placePicture(picture, view, 2, QPointF(100, 50));
    const QPointF mouse(80, 10);
    for (const double scale : {4.0, 1.8}) {
        const QPointF center = centerAfterZoom(before, view, mouse, scale);
        const Placement after = placePicture(picture, view, scale, center);
        QCOMPARE(after.toPicture(mouse), before.toPicture(mouse));
        QCOMPARE(after.toView(after.toPicture(mouse)), mouse);
    }
}

void tst_PictureGeometry::touchedPixelsCoverTheirPart_data()
{
    QTest::addColumn<QRectF>("whole");
    QTest::addColumn<QRect>("pixels");
    QTest::addColumn<QRectF>("covered");
    // An image of 10 x 10 in a view of 100 x 100.
    QTest::newRow("all of it") << QRectF(10, 10, 50, 50) << QRect(0, 0, 10, 10) << QRectF(10, 10, 50, 50);
    QTest::newRow("cut on all sides")
        << QRectF(-100, -100, 300, 300) << QRect(3, 3, 4, 4) << QRectF(-10, -10, 120, 120);
    QTest::newRow("cut on the right")
        << QRectF(50, 0, 100, 100) << QRect(0, 0, 5, 10) << QRectF(50, 0, 50, 100);
    QTest::newRow("out of sight") << QRectF(100, 0, 100, 100) << QRect() << QRectF(100, 0, 0, 0);
}

void tst_PictureGeometry::touchedPixelsCoverTheirPart()
{
    QFETCH(QRectF, whole);
    QFETCH(QRect, pixels);
    QCOMPARE(touchedPixels(whole, QSize(10, 10), QRectF(0, 0, 100, 100)), pixels);
    QTEST(coveredPart(whole, QSize(10, 10), pixels), "covered");
}

QTEST_MAIN(tst_PictureGeometry)
#include "tst_PictureGeometry.moc"
