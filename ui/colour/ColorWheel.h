#pragma once

#include <NorvaneCoreExport.h>
#include <ui/colour/ColorControlWidget.h>

#include <QWidget>

#include <memory>
#include <type_traits>

class QImage;

namespace Norvane {

namespace Colour {
class TransformI;
}

namespace UI {

/// Shows and edits a colour as hue (around), saturation (outward) and value (darkness). Hue is in turns,
/// saturation nominally 0..1, value anything; numbers that are infinite or not a number are ignored.
///
/// Dragging moves the marker; with Shift it changes only the saturation, with Control only the hue, with both
/// or the right button only the value. Where zooming is enabled, the mouse wheel zooms around the mouse, Alt
/// pans, the middle button zooms into a box (a click resets), and both together zoom. The arrow keys change
/// hue and saturation, Page Up and Page Down the value; focus that came by the keyboard is framed.
///
/// Only the user's edits are signalled. To assistive technology the wheel is a slider of its hue that reads
/// out the whole colour.
class NORVANE_CORE_EXPORT ColorWheel : public QWidget, public ColorControlWidget
{
    Q_OBJECT
    Q_ENUMS(DisplayMode InteractionMode)
    Q_PROPERTY(DisplayMode displayMode READ displayMode WRITE setDisplayMode)
    Q_PROPERTY(InteractionMode interactionMode READ interactionMode WRITE setInteractionMode)
    Q_PROPERTY(bool zoomEnabled READ getZoomEnabled WRITE setZoomEnabled)
public:
    /// What the wheel looks like.
    enum DisplayMode {
        kDisc = 0,        ///< a disc, darkened by the value
        kInnerSquare = 1, ///< a band for the hue around a square of saturation and value; no hsvChanged()
        kValueRing = 2,   ///< a disc in a ring for the value
        kEmbedded = 3     ///< a small disc of fixed size, without zoom
    };
    /// Where a drag takes the marker.
    enum InteractionMode {
        kAbsolute = 0, ///< the marker jumps to the mouse
        kRelative = 1  ///< the marker moves by a part of the mouse's way
    };

    /// A kDisc wheel. \a transform is kept for the application's sake, neither owned nor called.
    explicit ColorWheel(Colour::TransformI* transform);
    /// The same, shown as \a mode says.
    ColorWheel(Colour::TransformI* transform, const DisplayMode& mode);
    /// Without a transform, as forms make it. Only for what is certainly a widget: a null pointer is a
    /// transform.
    template <class Parent,
              class = typename std::enable_if<std::is_convertible<Parent*, QWidget*>::value>::type>
    explicit ColorWheel(Parent* parent)
        : ColorWheel(static_cast<Colour::TransformI*>(nullptr))
    {
        setParent(parent);
    }
    ~ColorWheel() override;

    /// Takes the fraction of \a hue.
    void setHue(float hue);
    /// The marker moves, and nothing is signalled.
    void setSaturation(float saturation);
    void setValue(float value);
    void setHSV(float hue, float saturation, float value);
    /// True if the value is 0, so that the colour has neither hue nor saturation.
    bool getHSV(float& hue, float& saturation, float& value) const;
    /// The hue, limited to 0..1.
    float getClampedHue() const;

    /// Where the marker of the value ring is, 0..1. The ring shows what the user chose there: setValue() does
    /// not move it.
    void setRingValue(float value);
    float ringValue() const;

    /// Whether the user and zoom() can zoom; they can at first.
    void setZoomEnabled(bool enabled);
    bool getZoomEnabled() const;
    /// What part of the mouse's way the marker moves in kRelative.
    void setInteractionScale(float scale);
    float interactionScale() const;
    /// Turns the wheel counter-clockwise, in radians. Seen from the next repaint on.
    void setHueRotation(float radians);
    float hueRotation() const;

    /// kDisc at first.
    void setDisplayMode(DisplayMode mode);
    DisplayMode displayMode() const;
    /// kAbsolute at first.
    void setInteractionMode(InteractionMode mode);
    InteractionMode interactionMode() const;
    /// Whether the marker jumps to the mouse, in this drag if there is one.
    bool isAbsoluteMode() const;

    /// Zooms to \a newZoom, limited to 1..6, around the point (\a x, \a y), which is relative to the centre,
    /// in radii, y upwards. Nothing if zooming is not enabled.
    void zoom(float newZoom, float x, float y);
    /// Zooms so that the box with these corners, in pixels relative to the centre, y upwards, fills the
    /// widget.
    void box_zoom(float x1, float y1, float x2, float y2);

    QSize sizeHint() const override;
    void updateFromControl() override;
    void rangeChanged(double minimum, double maximum) override;
    void alphaEnabledChanged(bool enabled) override;

public Q_SLOTS:
    /// setHSV(), for connections.
    void setHSVSlot(float hue, float saturation, float value);

Q_SIGNALS:
    /// The user begins to edit the colour, moves on, and has ended. The arrow keys begin and end at once.
    void startDragSignal();
    void draggingSignal();
    void stopDragSignal();
    /// Never emitted by the wheel itself.
    void changedSignal();
    /// The user chose a colour.
    void hsvChanged(float hue, float saturation, float value);

protected:
    /// What a drag changes; several at once.
    enum DragMode {
        kHueDrag = 1,
        kSaturationDrag = 2,
        kValueDrag = 4,
        kPanDrag = 8,
        kZoomDrag = 16,
        kBoxZoomDrag = 32,
        kAbsoluteDrag = 64 ///< The marker jumps to the mouse even in kRelative.
    };
    /// What a press begins, as a set of DragMode. \a current is the set so far, \a outside whether the press
    /// was outside of the inner radius.
    unsigned getDragMode(unsigned current, QMouseEvent* event, bool outside) const;

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Private;
    struct Shown;

    void init(Colour::TransformI* transform, const DisplayMode& mode);
    void display(const Shown& next);
    void setPan(const QPointF& pan);
    unsigned squareDragMode(const QPointF& point) const;
    bool isRelativeDrag() const;
    QPointF dragAnchor(const QPointF& point) const;
    QPointF dragPoint(const QMouseEvent* event) const;
    void drag(QMouseEvent* event);
    Shown draggedColor(const QPointF& point, bool isMove) const;
    Shown draggedInSquare(const QPointF& point, Qt::KeyboardModifiers modifiers) const;
    void editColor(const Shown& color);
    void editAtOnce(const Shown& color);
    void dragZoom(const QPoint& position);
    void buildTexture();

    static QImage _texture;
    static unsigned char _texture_bits[512 * 512 * 4];
    static bool _texture_ready;
    static float _texture_rotation;
    static const float _max_pan;

    const std::unique_ptr<Private> d;
};

} // namespace UI

} // namespace Norvane
