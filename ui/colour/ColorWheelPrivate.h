#pragma once

#include <ui/colour/ColorWheel.h>
#include <ui/colour/WheelGeometry.h>

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QRegion>
#include <QVector>

class QPainter;

namespace Norvane { namespace UI {

/// What the wheel shows of the colour.
struct ColorWheel::Shown {
    float hue = 0.0f; ///< in turns
    float saturation = 0.0f;
    float value = 1.0f;
    float ringValue = 1.0f;

    bool operator==(const Shown& other) const;
};

struct ColorWheel::Private {
    /// From the press to the release of a mouse button.
    struct Drag {
        unsigned mode = 0;    ///< a set of DragMode, 0 for no drag
        QPointF anchor;       ///< in wheel coordinates; for all but relative drags from the centre
        QPointF current;      ///< the mouse, from the centre
        QPoint pressPosition; ///< in the widget
        float zoom = 1.0f;    ///< at the press, like the rest
        double radius = 0.0;
        Shown color;

        bool has(unsigned modes) const { return (mode & modes) != 0; }
    };

    /// What the unchanging part of the picture depends on.
    struct DiscKey {
        DisplayMode mode;
        QSize size;
        float zoom;
        QPointF pan;
        float hueRotation;
        qreal density;
        QRgb window; ///< the colour around the wheel

        bool operator==(const DiscKey& other) const;
    };

    struct Mark {
        QRectF shape;  ///< exactly: a part of a pixel is seen, too
        QRegion place; ///< where it is painted, in the widget
        QColor color;

        bool operator==(const Mark& other) const { return shape == other.shape && color == other.color; }
    };

    explicit Private(ColorWheel* owner)
        : wheel(owner)
    {
    }

    static void installAccessible();

    WheelGeometry measures() const;
    /// In radians.
    double angleOf(float hue) const;
    /// Whether the whole picture must be painted for what is shown in place of \a other.
    bool isShadedOtherwise(const Shown& other) const;
    /// Where the picture below the marks changes when \a other becomes what is shown, in the widget.
    QRegion changedRegion(const Shown& other) const;
    /// Middles of the marks, in wheel coordinates.
    QPointF hueMark() const;
    QPointF saturationMark() const;
    QPointF squareMark() const;
    /// The marks that are painted.
    QPolygonF triangle() const;
    QRectF circle() const;
    /// Lines while hue or saturation are dragged; null if there are none.
    QLineF guideLine() const;
    QRectF guideCircle() const;
    QRectF rubberBand() const;
    QColor triangleColor() const;
    QColor circleColor() const;
    QColor crossColor() const;
    QColor guideColor() const;
    /// Where a mark with these bounds is painted, in the widget.
    QRect placeOf(const QRectF& mark) const;
    QRegion placeOfLine(const QLineF& line) const;
    QRegion placeOfCircle(const QRectF& circle) const;
    QVector<Mark> marks() const;
    /// Where marks are painted, or were \a before, that have changed.
    QRegion changedMarks(const QVector<Mark>& before) const;

    /// Makes the picture without marks, as far as it is not what it has to be.
    void updateBase();
    /// The base with the square in it, where it is \a dirty.
    void paintWithSquare(QPainter& painter, const QRect& dirty) const;
    void paintFocus(QPainter& painter) const;
    void paintTriangle(QPainter& painter) const;
    void paintCross(QPainter& painter) const;
    void paintGuides(QPainter& painter) const;
    void paintRubberBand(QPainter& painter) const;
    void paintCircle(QPainter& painter) const;

    ColorWheel* const wheel;
    Colour::TransformI* transform = nullptr;
    Shown shown;
    DisplayMode displayMode = kDisc;
    InteractionMode interactionMode = kAbsolute;
    int sizeHintSide = 200;
    bool zoomEnabled = true;
    float zoom = 1.0f;
    QPointF pan; ///< of the centre, in inner radii
    float interactionScale = 0.1f;
    float hueRotation = 0.0f;
    Drag drag;
    bool showsFocus = false;
    int wheelTurn = 0; ///< of the mouse wheel, less than a notch

    /// Kept from one repaint to the next: the disc of full value, and what is painted below the marks.
    QPixmap discPixmap;
    DiscKey discKey = DiscKey();
    QPixmap basePixmap;
    Shown baseShown; ///< what the base was made for
    QImage veil;     ///< over the pure colour of the square, as far as the widget shows it

private:
    void drawDisc(QPainter& painter) const;
    void drawRing(QPainter& painter) const;
    void drawShade(QPainter& painter) const;
    void drawVeil();
    /// In pixels of the screen.
    QRect squarePixels() const;
};

}} // namespace Norvane::UI
