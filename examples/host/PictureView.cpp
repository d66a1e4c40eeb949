#include "PictureView.h"

#include <ui/toolkit/Events.h>
#include <ui/toolkit/Painting.h>

#include <QKeyEvent>
#include <QPainter>
#include <QTimer>

#include <cmath>

namespace Norvane { namespace Host {

namespace {

const qreal kSmallestZoom = 1 / 64.0;
const qreal kLargestZoom = 64;
const qreal kZoomStep = 1.25;
const int kPanStep = 40;
const int kMessageDelay = 150; // ms

} // namespace

PictureView::PictureView(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Picture"));
}

const QImage& PictureView::picture() const
{
    return m_levels.picture();
}

void PictureView::setPicture(const PictureLevels& levels)
{
    takePicture(levels);
    setAccessibleDescription(QString());
    update();
}

void PictureView::setMessage(const QString& title, const QString& detail)
{
    m_title = title;
    m_detail = detail;
    takePicture(PictureLevels());
    setAccessibleDescription(title);
    QTimer::singleShot(kMessageDelay, this, SLOT(update()));
}

void PictureView::takePicture(const PictureLevels& levels)
{
    m_levels = levels;
    m_panning = false;
    if (m_fitted)
        m_center = QPointF(picture().width(), picture().height()) / 2;
    updateCursor();
    Q_EMIT viewChanged();
    Q_EMIT colorsChanged();
}

bool PictureView::isFitted() const
{
    return m_fitted;
}

qreal PictureView::zoom() const
{
    return m_fitted ? fitScale(picture().size(), size()) * UI::devicePixelRatio(this) : m_zoom;
}

QPointF PictureView::center() const
{
    return m_center;
}

void PictureView::setZoom(qreal zoom, const QPointF& center)
{
    m_fitted = false;
    m_zoom = qBound(kSmallestZoom, zoom, kLargestZoom);
    m_center = center;
    viewHasChanged();
}

const PictureGrade& PictureView::grade() const
{
    return m_grade;
}

void PictureView::setGrade(const PictureGrade& grade)
{
    if (grade == m_grade)
        return;
    m_grade = grade;
    update();
    Q_EMIT colorsChanged();
}

QSize PictureView::sizeHint() const
{
    return QSize(480, 320);
}

void PictureView::fitToView()
{
    m_fitted = true;
    m_center = QPointF(picture().width(), picture().height()) / 2;
    viewHasChanged();
}

void PictureView::showOneToOne()
{
    zoomTo(1);
}

void PictureView::zoomTo(qreal zoom)
{
    zoomAround(QRectF(rect()).center(), zoom);
}

void PictureView::zoomIn()
{
    zoomTo(zoom() * kZoomStep);
}

void PictureView::zoomOut()
{
    zoomTo(zoom() / kZoomStep);
}

Placement PictureView::placement() const
{
    return placePicture(picture().size(), size(), zoom() / UI::devicePixelRatio(this), m_center);
}

void PictureView::zoomAround(const QPointF& viewPoint, qreal zoom)
{
    if (picture().isNull())
        return;
    const qreal bounded = qBound(kSmallestZoom, zoom, kLargestZoom);
    const qreal scale = bounded / UI::devicePixelRatio(this);
    const QPointF center = centerAfterZoom(placement(), size(), viewPoint, scale);
    setZoom(bounded,
            placePicture(picture().size(), size(), scale, center).toPicture(QRectF(rect()).center()));
}

void PictureView::pan(const QPointF& distance)
{
    if (picture().isNull() || m_fitted)
        return;
    const QPointF middle = QRectF(rect()).center();
    const Placement before = placement();
    const QPointF wanted = before.toPicture(middle - distance);
    m_center = placePicture(picture().size(), size(), before.scale, wanted).toPicture(middle);
    viewHasChanged();
}

void PictureView::viewHasChanged()
{
    updateCursor();
    update();
    Q_EMIT viewChanged();
}

void PictureView::resizeEvent(QResizeEvent*)
{
    viewHasChanged();
}

void PictureView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        update();
}

void PictureView::wheelEvent(QWheelEvent* event)
{
    // Touch pads turn by fractions of a notch.
    const qreal notches = UI::wheelDelta(event) / 120.0;
    if (notches != 0)
        zoomAround(UI::wheelPosition(event), zoom() * std::pow(kZoomStep, notches));
    event->accept();
}

void PictureView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_0:
        showOneToOne();
        break;
    case Qt::Key_F:
        fitToView();
        break;
    case Qt::Key_Left:
        pan(QPointF(kPanStep, 0));
        break;
    case Qt::Key_Right:
        pan(QPointF(-kPanStep, 0));
        break;
    case Qt::Key_Up:
        pan(QPointF(0, kPanStep));
        break;
    case Qt::Key_Down:
        pan(QPointF(0, -kPanStep));
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PictureView::mousePressEvent(QMouseEvent* event)
{
    if (picture().isNull() || (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton)) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_panning = true;
    m_panPosition = UI::mousePosition(event);
    updateCursor();
}

void PictureView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = UI::mousePosition(event);
    if (m_panning)
        pan(position - m_panPosition);
    m_panPosition = position;
    reportPixel(position);
}

void PictureView::mouseReleaseEvent(QMouseEvent* event)
{
    m_panning = false;
    updateCursor();
    QWidget::mouseReleaseEvent(event);
}

void PictureView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!picture().isNull())
        mousePressEvent(event);
    else if (event->button() == Qt::LeftButton)
        Q_EMIT pictureWanted();
}

void PictureView::leaveEvent(QEvent*)
{
    Q_EMIT pixelLeft();
}

void PictureView::reportPixel(const QPointF& viewPoint)
{
    const QPointF point = placement().toPicture(viewPoint);
    const QPoint pixel(int(std::floor(point.x())), int(std::floor(point.y())));
    if (picture().rect().contains(pixel))
        Q_EMIT pixelPointed(pixel);
    else
        Q_EMIT pixelLeft();
}

void PictureView::updateCursor()
{
    const QRectF shown = placement().rect(picture().size());
    const bool larger = shown.width() > width() + 0.5 || shown.height() > height() + 0.5;
    if (picture().isNull() || !larger)
        unsetCursor();
    else
        setCursor(m_panning ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

}} // namespace Norvane::Host
