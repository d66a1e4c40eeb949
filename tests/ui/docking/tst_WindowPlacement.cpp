#include <ui/docking/WindowPlacement.h>

#include <QtTest>

using namespace Norvane::UI;

class tst_WindowPlacement : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void savedWindowIsPlaced_data();
    void savedWindowIsPlaced();
    void popUpIsPlacedBesideRect_data();
    void popUpIsPlacedBesideRect();
};

namespace {

enum State { kNormal, kMaximized, kFullscreen };
const QRect kFirst(0, 0, 1000, 800);
const QRect kSecond(1000, 0, 600, 400);
const QRect kLeftOfFirst(-1280, -200, 1280, 1024);

void savedRow(const char* name, const QRect& saved, const QRect& placed, int screens = 1,
              State state = kNormal, const QRect& available = kFirst)
{
    QTest::newRow(name) << saved << placed << screens << int(state) << available;
}

void popUpRow(const char* name, const QRect& rect, const QSize& size, const QPoint& position,
              const QRect& available = kFirst)
{
    QTest::newRow(name) << rect << size << position << available;
}

} // namespace

void tst_WindowPlacement::savedWindowIsPlaced_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("placed");
    QTest::addColumn<int>("screens");
    QTest::addColumn<int>("state");
    QTest::addColumn<QRect>("available");
    savedRow("fits", QRect(100, 50, 600, 400), QRect(100, 50, 600, 400));
    savedRow("just visible", QRect(999, 799, 600, 400), QRect(999, 799, 600, 400));
    savedRow("too high", QRect(100, 50, 600, 900), QRect(100, 50, 600, 800), 2);
    savedRow("too wide", QRect(500, 50, 1500, 400), QRect(500, 50, 1000, 400));
    savedRow("spans two screens", QRect(500, 50, 1500, 400), QRect(500, 50, 1500, 400), 2);
    savedRow("maximised over two", QRect(500, 50, 1500, 400), QRect(500, 50, 1000, 400), 2, kMaximized);
    savedRow("too far right", QRect(1000, 50, 600, 400), QRect(400, 50, 600, 400));
    savedRow("too far down", QRect(100, 800, 600, 400), QRect(100, 400, 600, 400));
    savedRow("wide and too far right", QRect(4000, 50, 1500, 400), QRect(-500, 50, 1500, 400), 2);
    savedRow("on the other screen", QRect(100, 500, 700, 500), QRect(900, 0, 700, 400), 2, kNormal, kSecond);
    savedRow("above a low screen", QRect(-1000, -300, 800, 600), QRect(-1000, -200, 800, 600), 2, kNormal,
             kLeftOfFirst);
    savedRow("full-screen", QRect(5, 5, 50, 50), QRect(159, 144, 667, 535), 1, kFullscreen,
             QRect(-7, 11, 1001, 803));
    savedRow("nothing saved", QRect(0, 0, 0, 0), QRect(1000, 0, 0, 0), 2, kNormal, kSecond);
    savedRow("no screen at all", QRect(10, 10, 100, 100), QRect(0, 0, 0, 0), 0, kNormal, QRect());
}

void tst_WindowPlacement::savedWindowIsPlaced()
{
    QFETCH(QRect, frame);
    QFETCH(int, screens);
    QFETCH(int, state);
    QFETCH(QRect, available);
    SavedWindow saved;
    saved.frame = frame;
    saved.maximized = state == kMaximized;
    saved.fullscreen = state == kFullscreen;
    QTEST(placeSavedWindow(saved, available, screens), "placed");
}

void tst_WindowPlacement::popUpIsPlacedBesideRect_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("position"); // null where the pop-up stays where it is
    QTest::addColumn<QRect>("available");
    const QSize small(200, 150);
    const QSize high(200, 600);
    popUpRow("left", QRect(500, 300, 100, 50), small, QPoint(280, 230));
    popUpRow("just fits left", QRect(220, 300, 100, 50), small, QPoint(0, 230));
    popUpRow("one pixel short on the left", QRect(219, 300, 100, 50), small, QPoint(338, 230));
    popUpRow("left, at the bottom", QRect(500, 700, 100, 50), QSize(200, 300), QPoint(280, 499));
    popUpRow("left, at the top", QRect(500, 0, 100, 50), small, QPoint(280, 26));
    popUpRow("right", QRect(50, 300, 100, 50), small, QPoint(169, 230));
    popUpRow("below", QRect(50, 100, 900, 50), small, QPoint(0, 169));
    popUpRow("above", QRect(50, 600, 900, 50), small, QPoint(0, 420));
    popUpRow("101 pixels of it right", QRect(50, 100, 829, 600), high, QPoint(898, 26));
    popUpRow("100 pixels are too few", QRect(50, 100, 830, 600), high, QPoint(0, 719));
    popUpRow("six pixels of it below", QRect(50, 100, 900, 674), high, QPoint(0, 793));
    popUpRow("five pixels are too few", QRect(50, 100, 900, 675), high, QPoint());
    popUpRow("no room", kFirst, small, QPoint());
    popUpRow("in the way but lower", QRect(0, 0, 50, 5), small, QPoint(0, 26));
    popUpRow("right on the other screen", QRect(1010, 200, 100, 50), small, QPoint(1129, 130), kSecond);
    popUpRow("left of zero", QRect(-500, 300, 100, 50), small, QPoint(-720, 230), kLeftOfFirst);
}

void tst_WindowPlacement::popUpIsPlacedBesideRect()
{
    QFETCH(QRect, rect);
    QFETCH(QSize, size);
    QFETCH(QPoint, position);
    QFETCH(QRect, available);
    QPoint placed;
    QCOMPARE(placeNearRect(rect, size, available, &placed), !position.isNull());
    QCOMPARE(placed, position);
}

QTEST_APPLESS_MAIN(tst_WindowPlacement)
#include "tst_WindowPlacement.moc"
