#include <ui/widgets/BubbleWidget.h>

#include <tests/support/Desk.h>
#include <ui/toolkit/Compositing.h>
#include <ui/toolkit/Painting.h>
#include <ui/toolkit/Screens.h>
#include <ui/widgets/BubbleGeometry.h>

#include <QImage>
#include <QLabel>
#include <QVBoxLayout>

using namespace NorvaneTest;
using namespace Norvane::UI;

class tst_BubbleWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sideIsChosen_data();
    void sideIsChosen();
    void outlineIsClosedPolygon_data();
    void outlineIsClosedPolygon();
    void pinStaysOffCorners();
    void popsUpNearEveryEdge_data();
    void popsUpNearEveryEdge();
    void cutShapeIsFilled();
    void isDraggedIfMovable();
};

Q_DECLARE_METATYPE(Qt::Alignment)

namespace {

const Qt::Alignment kNone = Qt::Alignment();

class Bubble : public BubbleWidget
{
public:
    Bubble()
        : BubbleWidget(nullptr)
    {
    }

    using BubbleWidget::bubblePath;

    /// Where the tip of a pin above or below points on the screen.
    int tipX() const
    {
        const QPainterPath path = bubblePath();
        const bool isTop = pinAlignment() == Qt::AlignTop;
        QPointF tip = path.elementAt(0);
        for (int i = 1; i < path.elementCount(); ++i) {
            const QPointF point = path.elementAt(i);
            if (isTop ? point.y() < tip.y() : point.y() > tip.y())
                tip = point;
        }
        return mapToGlobal(tip.toPoint()).x();
    }
};

} // namespace

void tst_BubbleWidget::sideIsChosen_data()
{
    QTest::addColumn<Qt::Alignment>("current");
    QTest::addColumn<QRect>("target"); // on a screen of 1000 x 500, for a bubble of 200 x 100
    QTest::addColumn<Qt::Alignment>("side");
    const Qt::Alignment top = Qt::AlignTop, bottom = Qt::AlignBottom, left = Qt::AlignLeft,
                        right = Qt::AlignRight;
    QTest::newRow("current fits") << left << QRect(400, 200, 10, 10) << left;
    QTest::newRow("just fits above") << bottom << QRect(400, 100, 10, 10) << bottom;
    QTest::newRow("just too high") << bottom << QRect(400, 99, 10, 10) << top;
    QTest::newRow("just fits below") << top << QRect(400, 390, 10, 10) << top;
    QTest::newRow("just fits on the right") << left << QRect(790, 0, 10, 10) << left;
    QTest::newRow("just too far right") << left << QRect(791, 0, 10, 10) << right;
    QTest::newRow("just too far left") << right << QRect(199, 0, 10, 10) << left;
    QTest::newRow("as high as the screen") << bottom << QRect(400, 0, 10, 500) << left;
    QTest::newRow("as wide as the screen") << left << QRect(0, 300, 1000, 10) << top;
    QTest::newRow("none so far") << kNone << QRect(400, 450, 10, 10) << bottom;
    QTest::newRow("everything covered") << bottom << QRect(0, 0, 1000, 500) << kNone;
}

void tst_BubbleWidget::sideIsChosen()
{
    QFETCH(Qt::Alignment, current);
    QFETCH(QRect, target);
    QTEST(choosePinSide(current, target, QRect(0, 0, 1000, 500), QSize(200, 100)), "side");
}

void tst_BubbleWidget::outlineIsClosedPolygon_data()
{
    QTest::addColumn<Qt::Alignment>("side");
    QTest::addColumn<QString>(
        "polygon"); // of a bubble of 104 x 84 with a pin of 10 x 20, 8 right of or below its middle
    QTest::newRow("top") << Qt::Alignment(Qt::AlignTop) << "2,22 55,22 60,17 65,22 102,22 102,82 2,82";
    QTest::newRow("bottom") << Qt::Alignment(Qt::AlignBottom) << "2,2 102,2 102,62 65,62 60,67 55,62 2,62";
    QTest::newRow("left") << Qt::Alignment(Qt::AlignLeft) << "22,2 102,2 102,82 22,82 22,55 17,50 22,45";
    QTest::newRow("right") << Qt::Alignment(Qt::AlignRight) << "2,2 82,2 82,45 87,50 82,55 82,82 2,82";
    QTest::newRow("none") << kNone << "2,2 102,2 102,82 2,82";
}

void tst_BubbleWidget::outlineIsClosedPolygon()
{
    QFETCH(Qt::Alignment, side);
    const BubbleShape shape = {0, 10, 20, 8};
    const QPainterPath path = bubbleOutline(QRectF(2, 2, 100, 80), side, shape);
    QStringList points;
    for (int i = 0; i < path.elementCount(); ++i)
        points.append(latin1("%1,%2").arg(path.elementAt(i).x).arg(path.elementAt(i).y));
    QCOMPARE(points.takeLast(), points.first());
    QTEST(points.join(latin1(" ")), "polygon");
}

void tst_BubbleWidget::pinStaysOffCorners()
{
    const struct {
        int pinOffset, pinWidth;
        QPointF tip;
    } cases[] = {{0, 31, QPointF(50, 5)},
                 {20, 30, QPointF(70, 5)},
                 {90, 30, QPointF(77, 5)},
                 {-90, 30, QPointF(23, 5)},
                 {0, 120, QPointF(68, -40)}};
    for (const auto& test : cases) {
        const BubbleShape shape = {8, test.pinWidth, 20, test.pinOffset};
        const QPainterPath path = bubbleOutline(QRectF(0, 0, 100, 80), Qt::AlignTop, shape);
        // Behind the corner: its start, its arc of three points, and where the pin begins.
        QCOMPARE(QPointF(path.elementAt(5)), test.tip);
    }
}

void tst_BubbleWidget::popsUpNearEveryEdge_data()
{
    QTest::addColumn<int>("screen");
    QTest::addColumn<QPointF>("place"); // of the target on the screen: (0, 0) top left, (1, 1) bottom right
    for (int screen = 0; screen < Screens::count(); ++screen) {
        for (int i = 0; i < 9; ++i) {
            const int row = i / 3;
            const QPointF place(i % 3 / 2.0, row / 2.0);
            const QString name = latin1("screen %1: %2, %3").arg(screen).arg(place.x()).arg(place.y());
            QTest::newRow(name.toLatin1()) << screen << place;
        }
    }
}

void tst_BubbleWidget::popsUpNearEveryEdge()
{
    QFETCH(int, screen);
    QFETCH(QPointF, place);
    const QRect available = Screens::availableGeometry(screen);
    QWidget target(nullptr, Qt::ToolTip);
    target.setGeometry(available.left() + qRound(place.x() * (available.width() - 20)),
                       available.top() + qRound(place.y() * (available.height() - 20)), 20, 20);
    target.show();
    Bubble bubble;
    (new QVBoxLayout(&bubble))->addWidget(new QLabel(latin1("A bubble with two lines\nof text")));
    // Twice, as a bubble that is kept for the next time.
    for (int time = 0; time < 2; ++time) {
        bubble.popup(&target);
        WAIT_FOR(bubble.hasFocus());
        QCOMPARE(bubble.pinAlignment(), Qt::Alignment(place.y() == 0 ? Qt::AlignTop : Qt::AlignBottom));
        const QRect frame = bubble.geometry();
        QVERIFY(available.contains(frame));
        const bool isBelow = bubble.pinAlignment() == Qt::AlignTop;
        QCOMPARE(isBelow ? frame.top() : frame.top() + frame.height(),
                 isBelow ? target.geometry().bottom() : target.y());
        // As near to the target's middle as the rounded corner lets it.
        const QPoint middle = centreOf(target.geometry());
        const int nearest = frame.left() + 2 + 8 + 15;
        const int farthest = frame.left() + frame.width() - 2 - 8 - 15;
        QVERIFY(qAbs(bubble.tipX() - qBound(nearest, middle.x(), farthest)) <= 1);
        bubble.hide();
    }
}

// A pixel that is left transparent is black on such a desktop.
void tst_BubbleWidget::cutShapeIsFilled()
{
    if (isDesktopComposited())
        NORVANE_SKIP("needs a desktop without compositing");
    for (const int cornerRadius : {0, 8, 60}) {
        Bubble bubble;
        bubble.setCornerRadius(cornerRadius);
        bubble.setBorderWidth(1 + cornerRadius / 20);
        bubble.setFixedSize(160, 120);
        bubble.popup(Screens::availableGeometry(0).center());
        const QRegion shape = bubble.mask();
        QVERIFY(shape.contains(QPoint(80, 50)) && !shape.contains(QPoint(0, 0)));
        const QImage image = grabPixmap(&bubble).toImage();
        for (int y = 0; y < 120; ++y) {
            for (int x = 0; x < 160; ++x)
                QVERIFY(!shape.contains(QPoint(x, y)) || qAlpha(image.pixel(x, y)) > 200);
        }
    }
}

void tst_BubbleWidget::isDraggedIfMovable()
{
    for (const bool movable : {false, true}) {
        Bubble bubble;
        bubble.setFixedSize(160, 120);
        bubble.setMovable(movable);
        bubble.popup(Screens::availableGeometry(0).center());
        const QPoint before = bubble.pos();
        QTest::mousePress(&bubble, Qt::LeftButton, Qt::NoModifier, QPoint(40, 30));
        const QPoint mouse(47, 19);
        QMouseEvent drag(QEvent::MouseMove, mouse, bubble.mapToGlobal(mouse), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&bubble, &drag);
        QCOMPARE(bubble.pos() - before, movable ? QPoint(7, -11) : QPoint(0, 0));
        QTest::mousePress(&bubble, Qt::LeftButton, Qt::NoModifier, QPoint(-40, 30));
        QVERIFY(!bubble.isVisible());
    }
}

QTEST_MAIN(tst_BubbleWidget)
#include "tst_BubbleWidget.moc"
