#pragma once

#include "PictureGeometry.h"
#include "PictureGrade.h"
#include "PictureLevels.h"

#include <QString>
#include <QWidget>

namespace Norvane { namespace Host {

/// Shows a picture, fitted or zoomed. The wheel zooms around the mouse, dragging and the arrow keys pan, and
/// the keys +, -, 0 (one to one) and F (fit) zoom around the middle. Without a picture it shows a message.
///
/// A zoom of 1 shows every pixel of the picture as one physical pixel of the screen, whatever its density.
class PictureView : public QWidget
{
    Q_OBJECT
public:
    explicit PictureView(QWidget* parent = nullptr);

    const QImage& picture() const;
    /// Keeps zoom and centre, so that they may be set first.
    void setPicture(const PictureLevels& levels);
    /// Takes the picture away and tells this in its place. One that is followed by a picture at once is not
    /// to be seen: the former picture is, until then.
    void setMessage(const QString& title, const QString& detail);

    bool isFitted() const;
    qreal zoom() const;
    /// The picture point in the middle of the view.
    QPointF center() const;
    /// Also ends fitting.
    void setZoom(qreal zoom, const QPointF& center);

    /// How the picture is changed for the eye; picture() stays as it is.
    const PictureGrade& grade() const;
    void setGrade(const PictureGrade& grade);

    QSize sizeHint() const override;

public Q_SLOTS:
    void fitToView();
    void showOneToOne();
    void zoomIn();
    void zoomOut();
    /// Around the middle of the view.
    void zoomTo(qreal zoom);

Q_SIGNALS:
    /// Zoom, centre or the kind of fitting changed.
    void viewChanged();
    /// There is another picture, or it is graded in another way.
    void colorsChanged();
    /// The mouse is over the picture's pixel \a pixel.
    void pixelPointed(const QPoint& pixel);
    void pixelLeft();
    /// The user double-clicked the message.
    void pictureWanted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void takePicture(const PictureLevels& levels);
    Placement placement() const;
    void zoomAround(const QPointF& viewPoint, qreal zoom);
    void pan(const QPointF& distance);
    void viewHasChanged();
    void reportPixel(const QPointF& viewPoint);
    void updateCursor();
    void paintPicture(QPainter& painter);
    void paintMessage(QPainter& painter) const;

    PictureLevels m_levels;
    PictureGrade m_grade;
    QString m_title;
    QString m_detail;
    bool m_fitted = true;
    qreal m_zoom = 1;
    QPointF m_center;
    bool m_panning = false;
    QPoint m_panPosition;
};

}} // namespace Norvane::Host
