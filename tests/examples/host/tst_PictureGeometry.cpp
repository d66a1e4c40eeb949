#include <examples/host/PictureGeometry.h>

#include <QtTest>

using namespace Norvane::Host;

class tst_PictureGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fitShowsAll_data();
    void fitShowsAll();
    void pictureIsPlaced_data();
    void pictureIsPlaced();
    void mappingIsReversible();
    void zoomKeepsPointUnderMouse_data();
    void zoomKeepsPointUnderMouse();
    void touchedPixels_data();
    void touchedPixels();
    void coveredPartsAreWhatWasTouched();
};

void tst_PictureGeometry::fitShowsAll_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("view");
    QTest::addColumn<double>("scale");
    QTest::newRow("wide picture") << QSize(2000, 100) << QSize(500, 500) << 0.25;
    QTest::newRow("high picture") << QSize(100, 2000) << QSize(500, 500) << 0.25;
    QTest::newRow("small picture grows") << QSize(10, 10) << QSize(40, 80) << 4.0;
    QTest::newRow("no picture") << QSize() << QSize(40, 80) << 1.0;
    QTest::newRow("no room") << QSize(10, 10) << QSize(40, 0) << 1.0;
}

void tst_PictureGeometry::fitShowsAll()
{
    QFETCH(QSize, picture);
    QFETCH(QSize, view);
    QFETCH(double, scale);
    QCOMPARE(fitScale(picture, view), scale);
}

void tst_PictureGeometry::pictureIsPlaced_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("center");
    QTest::addColumn<QPointF>("origin");
    // A picture of 200 x 100 in a view of 100 x 80.
    QTest::newRow("smaller is centred") << 0.5 << QPointF(0, 0) << QPointF(0, 15);
    QTest::newRow("centre in the middle") << 2.0 << QPointF(100, 50) << QPointF(-150, -60);
    QTest::newRow("no gap on the left") << 2.0 << QPointF(3, 50) << QPointF(0, -60);
    QTest::newRow("no gap on the right") << 2.0 << QPointF(190, 50) << QPointF(-300, -60);
    QTest::newRow("no gap below") << 2.0 << QPointF(100, 99) << QPointF(-150, -120);
    QTest::newRow("larger in one direction") << 0.7 << QPointF(0, 0) << QPointF(0, 5);
}

void tst_PictureGeometry::pictureIsPlaced()
{
    QFETCH(double, scale);
    QFETCH(QPointF, center);
    QFETCH(QPointF, origin);
    const Placement placement = placePicture(QSize(200, 100), QSize(100, 80), scale, center);
    QCOMPARE(placement.scale, scale);
    QCOMPARE(placement.origin, origin);
}

void tst_PictureGeometry::mappingIsReversible()
{
    const Placement placement = {2.5, QPointF(-30, 12)};
    QCOMPARE(placement.toView(QPointF(12, 0)), QPointF(0, 12));
    QCOMPARE(placement.toPicture(placement.toView(QPointF(7, 9))), QPointF(7, 9));
    QCOMPARE(placement.rect(QSize(10, 4)), QRectF(-30, 12, 25, 10));
}

void tst_PictureGeometry::zoomKeepsPointUnderMouse_data()
{
    QTest::addColumn<QPointF>("mouse");
    QTest::addColumn<double>("scale");
    QTest::newRow("in, middle") << QPointF(50, 40) << 4.0;
    QTest::newRow("in, beside the middle") << QPointF(80, 10) << 4.0;
    QTest::newRow("out, beside the middle") << QPointF(20, 70) << 1.8;
}

void tst_PictureGeometry::zoomKeepsPointUnderMouse()
{
    QFETCH(QPointF, mouse);
    QFETCH(double, scale);
    const QSize picture(200, 100);
    const QSize view(100, 80);
    const Placement before = placePicture(picture, view, 2, QPointF(100, 50));
    const QPointF center = centerAfterZoom(before, view, mouse, scale);
    const Placement after = placePicture(picture, view, scale, center);
    QCOMPARE(after.toPicture(mouse), before.toPicture(mouse));
}

void tst_PictureGeometry::touchedPixels_data()
{
    QTest::addColumn<QRectF>("whole");
    QTest::addColumn<QRect>("pixels");
    // An image of 10 x 10 in a view of 100 x 100.
    QTest::newRow("all of it") << QRectF(10, 10, 50, 50) << QRect(0, 0, 10, 10);
    QTest::newRow("cut on all sides") << QRectF(-100, -100, 300, 300) << QRect(3, 3, 4, 4);
    QTest::newRow("cut on the right") << QRectF(50, 0, 100, 100) << QRect(0, 0, 5, 10);
    QTest::newRow("out of sight") << QRectF(100, 0, 100, 100) << QRect();
}

void tst_PictureGeometry::touchedPixels()
{
    QFETCH(QRectF, whole);
    QFETCH(QRect, pixels);
    QCOMPARE(Norvane::Host::touchedPixels(whole, QSize(10, 10), QRectF(0, 0, 100, 100)), pixels);
}

void tst_PictureGeometry::coveredPartsAreWhatWasTouched()
{
    const QRectF whole(-100, -50, 300, 200);
    QCOMPARE(coveredPart(whole, QSize(10, 10), QRect(3, 2, 4, 5)), QRectF(-10, -10, 120, 100));
    QCOMPARE(coveredPart(whole, QSize(10, 10), QRect(0, 0, 10, 10)), whole);
}

QTEST_MAIN(tst_PictureGeometry)
#include "tst_PictureGeometry.moc"
