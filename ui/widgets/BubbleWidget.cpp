#include <ui/widgets/BubbleWidget.h>

#include <ui/toolkit/Compositing.h>
#include <ui/toolkit/Events.h>
#include <ui/toolkit/Screens.h>
#include <ui/widgets/BubbleGeometry.h>

#include <QBitmap>
#include <QLayout>
#include <QPainter>
#include <QPen>

namespace Norvane { namespace UI {

namespace {

/// Between the widget's edge and the outline, for the pen.
const int kInset = 2;
const qreal kOpacity = 0.9;

} // namespace

struct BubbleWidget::Private {
    Qt::Alignment pinAlignment = Qt::AlignBottom;
    BubbleShape shape = {8, 30, 20, 0};
    int margin = 8;
    int borderWidth = 1;
    bool movable = false;
    /// Of the mouse from the window's corner, at the press.
    QPoint dragOffset;
    bool isComposited = true;
};

BubbleWidget::BubbleWidget(QWidget* parent)
    : QDialog(parent, Qt::Popup | Qt::FramelessWindowHint)
    , d(new Private)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setPinAlignment(Qt::AlignBottom);
}

BubbleWidget::~BubbleWidget() = default;

int BubbleWidget::cornerRadius() const
{
    return d->shape.cornerRadius;
}

void BubbleWidget::setCornerRadius(int radius)
{
    d->shape.cornerRadius = radius;
}

int BubbleWidget::pinWidth() const
{
    return d->shape.pinWidth;
}

void BubbleWidget::setPinWidth(int width)
{
    d->shape.pinWidth = width;
}

int BubbleWidget::pinHeight() const
{
    return d->shape.pinHeight;
}

void BubbleWidget::setPinHeight(int height)
{
    d->shape.pinHeight = height;
}

int BubbleWidget::margin() const
{
    return d->margin;
}

void BubbleWidget::setMargin(int margin)
{
    d->margin = margin;
}

int BubbleWidget::borderWidth() const
{
    return d->borderWidth;
}

void BubbleWidget::setBorderWidth(int width)
{
    d->borderWidth = width;
}

bool BubbleWidget::isMovable() const
{
    return d->movable;
}

void BubbleWidget::setMovable(bool movable)
{
    d->movable = movable;
}

Qt::Alignment BubbleWidget::pinAlignment() const
{
    return d->pinAlignment;
}

void BubbleWidget::setPinAlignment(Qt::Alignment alignment)
{
    d->pinAlignment = alignment;
    const Qt::Alignment side = sideOf(alignment);
    if (side) {
        const auto marginAt = [&](Qt::AlignmentFlag at) {
            return d->margin + (side == at ? pinHeight() : 0);
        };
        setContentsMargins(marginAt(Qt::AlignLeft), marginAt(Qt::AlignTop), marginAt(Qt::AlignRight),
                           marginAt(Qt::AlignBottom));
    }
    updateShape();
}

void BubbleWidget::popup(const QRect& target)
{
    const QRect available = Screens::availableGeometry(centreOf(target));
    adjustSize();
    setPinAlignment(choosePinSide(d->pinAlignment, target, available, size()));
    // A pin on another side may need a larger window. It would grow only when it is shown, over the target.
    if (layout())
        layout()->activate();
    const BubblePlacement placement = placeBubble(d->pinAlignment, target, available, size());
    d->shape.pinOffset = placement.pinOffset;
    updateShape();
    move(placement.topLeft);
    show();
    setFocus(Qt::OtherFocusReason);
}

void BubbleWidget::popup(QWidget* target)
{
    popup(QRect(target->mapToGlobal(QPoint(0, 0)), target->size()));
}

void BubbleWidget::popup(const QPoint& target)
{
    popup(QRect(target, QSize(0, 0)));
}

QPainterPath BubbleWidget::bubblePath() const
{
    return bubbleOutline(QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset), sideOf(d->pinAlignment),
                         d->shape);
}

QPen BubbleWidget::outlinePen(const QColor& color, int width) const
{
    return QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

// On a desktop without compositing the window is cut to its shape; elsewhere that would spoil its smooth
// edge.
void BubbleWidget::updateShape()
{
    if (d->isComposited) {
        if (!mask().isEmpty())
            clearMask();
    } else {
        QBitmap mask(size());
        mask.fill(Qt::color0);
        QPainter painter(&mask);
        // A line of odd width covers half a pixel on either side.
        painter.setPen(outlinePen(Qt::color1, d->borderWidth + d->borderWidth % 2));
        painter.setBrush(Qt::color1);
        painter.drawPath(bubblePath());
        painter.end();
        setMask(mask);
    }
    update();
}

void BubbleWidget::paintEvent(QPaintEvent*)
{
    const QColor border = palette().color(QPalette::Light);
    QColor fill = palette().color(backgroundRole());
    fill.setAlphaF(kOpacity);

    QPainter painter(this);
    if (!d->isComposited) {
        // No pixel of the cut edge may stay transparent, that is, black.
        painter.setClipRegion(mask());
        painter.strokePath(bubblePath(), outlinePen(border, d->borderWidth + 2));
        painter.setClipping(false);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(outlinePen(border, d->borderWidth));
    painter.drawPath(bubblePath());
}

void BubbleWidget::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    d->isComposited = isDesktopComposited();
    updateShape();
}

void BubbleWidget::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    updateShape();
}

void BubbleWidget::mousePressEvent(QMouseEvent* event)
{
    QDialog::mousePressEvent(event);
    if (d->movable)
        d->dragOffset = globalMousePosition(event) - pos();
}

void BubbleWidget::mouseMoveEvent(QMouseEvent* event)
{
    QDialog::mouseMoveEvent(event);
    if (d->movable)
        move(globalMousePosition(event) - d->dragOffset);
}

}} // namespace Norvane::UI
