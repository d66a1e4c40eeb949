#include <scripts/pictures/Samples.h>

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace Norvane { namespace Pictures {

namespace {

const int kWidth = 1280;
const int kHeight = 720;
const QPointF kSun(905, 322);

void drawSky(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, 470);
    sky.setColorAt(0.0, QColor(38, 46, 92));
    sky.setColorAt(0.35, QColor(104, 84, 138));
    sky.setColorAt(0.65, QColor(214, 122, 118));
    sky.setColorAt(0.85, QColor(247, 178, 116));
    sky.setColorAt(1.0, QColor(253, 221, 160));
    painter.fillRect(0, 0, kWidth, kHeight, sky);
}

void drawSun(QPainter& painter)
{
    QRadialGradient glow(kSun, 420);
    glow.setColorAt(0.0, QColor(255, 238, 190, 230));
    glow.setColorAt(0.12, QColor(255, 222, 160, 150));
    glow.setColorAt(0.45, QColor(255, 180, 120, 50));
    glow.setColorAt(1.0, QColor(255, 160, 110, 0));
    painter.fillRect(0, 0, kWidth, kHeight, glow);
    painter.setBrush(QColor(255, 248, 222));
    painter.drawEllipse(kSun, 46, 46);
}

/// A hill with one crest. The face towards the sun, on the right, is lit; the edge between the faces winds
/// down from the crest to the foot.
struct Dune {
    QPointF left;
    QPointF crest;
    QPointF right;
    double foot;
    QColor lit;
    QColor shade;
};

const double kBottom = kHeight + 20;

void drawDune(QPainter& painter, const Dune& dune)
{
    const double rise = dune.crest.x() - dune.left.x();
    const double fall = dune.right.x() - dune.crest.x();

    QPainterPath hill(QPointF(dune.left.x(), kBottom));
    hill.lineTo(dune.left);
    hill.cubicTo(dune.left + QPointF(rise * 0.45, 0), dune.crest + QPointF(-rise * 0.3, 16), dune.crest);
    hill.cubicTo(dune.crest + QPointF(fall * 0.25, 40), dune.right - QPointF(fall * 0.5, 10), dune.right);
    hill.lineTo(dune.right.x(), kBottom);
    hill.closeSubpath();

    QLinearGradient sand(0, dune.crest.y(), 0, kBottom);
    sand.setColorAt(0.0, dune.lit.lighter(112));
    sand.setColorAt(0.35, dune.lit);
    sand.setColorAt(1.0, dune.lit.darker(150));
    painter.fillPath(hill, sand);

    QPainterPath edge(dune.crest);
    const double depth = kBottom - dune.crest.y();
    edge.cubicTo(dune.crest + QPointF(rise * 0.18, depth * 0.3),
                 QPointF(dune.foot - rise * 0.25, kBottom - depth * 0.35), QPointF(dune.foot, kBottom));
    edge.lineTo(dune.left.x(), kBottom);
    edge.lineTo(dune.left);
    edge.cubicTo(dune.left + QPointF(rise * 0.45, 0), dune.crest + QPointF(-rise * 0.3, 16), dune.crest);

    QLinearGradient shadow(0, dune.crest.y(), 0, kBottom);
    shadow.setColorAt(0.0, dune.shade);
    shadow.setColorAt(1.0, dune.shade.darker(170));
    painter.fillPath(edge, shadow);
}

} // namespace

QImage drawDunes()
{
    const Dune dunes[] = {
        {QPointF(-200, 500), QPointF(250, 398), QPointF(960, 486), 420, QColor(226, 150, 110),
         QColor(158, 98, 108)},
        {QPointF(420, 600), QPointF(1085, 412), QPointF(1500, 470), 1190, QColor(230, 148, 100),
         QColor(148, 88, 98)},
        {QPointF(-420, 560), QPointF(60, 486), QPointF(760, 610), 330, QColor(224, 138, 84),
         QColor(122, 70, 84)},
        {QPointF(240, 640), QPointF(742, 500), QPointF(1420, 640), 980, QColor(222, 130, 70),
         QColor(104, 56, 72)},
        {QPointF(-300, 690), QPointF(330, 606), QPointF(1060, 740), 640, QColor(206, 112, 56),
         QColor(78, 40, 58)},
        {QPointF(700, 730), QPointF(1200, 612), QPointF(1700, 700), 1360, QColor(200, 104, 52),
         QColor(70, 36, 54)},
    };

    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    drawSky(painter);
    drawSun(painter);
    for (const Dune& dune : dunes)
        drawDune(painter, dune);
    return image;
}

}} // namespace Norvane::Pictures
