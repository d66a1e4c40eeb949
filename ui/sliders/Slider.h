#pragma once

#include <NorvaneCoreExport.h>

#include <QVector>
#include <QWidget>

#include <memory>

class QColor;
class QGradient;
class QLine;

namespace Norvane { namespace UI {

/// A slider over a range of doubles, with ticks and labels: linear, or non-linear with zero allowed inside
/// the range. While it is dragged its value snaps to round numbers, and a value outside the range, which only
/// the host can set, is shown as a triangle at the end.
///
/// Only what the user does is reported. The slider takes no keyboard focus; once the host gives it a focus
/// policy, the arrow keys move it by step(), Page Up and Page Down by ten steps, Home and End to its ends,
/// and each is reported like a drag. Numbers that are not finite are ignored wherever they are given.
///
/// How it looks is made of virtual functions, called when the slider is painted. Colours come from the
/// palette; numbers that would be cut or touch one another are left out.
class NORVANE_CORE_EXPORT Slider : public QWidget
{
    Q_OBJECT
    Q_ENUMS(ValueType SliderMode)
    Q_PROPERTY(ValueType type READ type WRITE setType)
    Q_PROPERTY(SliderMode mode READ mode WRITE setMode)
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(double minimum READ minimum WRITE pushMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE pushMaximum)
    Q_PROPERTY(double step READ step WRITE setStep)
    Q_PROPERTY(double value READ value WRITE setValue USER true)
public:
    /// Integers are rounded half away from zero.
    enum ValueType { IntegerValue, RealValue };

    /// LogMode is logarithmic over a range on one side of zero, else it goes by square roots on either side.
    enum SliderMode { LinearMode, LogMode };

    /// Integers range from 0 to 100 and start at 0, reals from 0 to 1 and at 0.5.
    Slider(ValueType type, SliderMode mode, Qt::Orientation orientation, QWidget* parent);
    /// Reals, linear and horizontal, as forms make it.
    explicit Slider(QWidget* parent);
    ~Slider() override;

    /// As set below; minimum() is never above maximum().
    ValueType type() const;
    SliderMode mode() const;
    Qt::Orientation orientation() const;
    double minimum() const;
    double maximum() const;
    /// maximum() less minimum().
    double rangeDelta() const;
    /// How far an arrow key goes.
    double step() const;
    /// May lie outside the range, where setValue() put it.
    double value() const;

    /// How far an arrow key goes: 1 for integers and 0.01 for reals at first. Dragging does not use it.
    void setStep(double step);

    /// The colour of the track: at first that of QPalette::Light when the slider was made.
    void setColor(QColor color);
    /// Fills the track with \a gradient, whose points are in the slider's pixels.
    void setColor(QGradient gradient);

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Also sets size policy and minimum size: the slider is 20 pixels thick and grows from 30 along its
    /// axis.
    void setOrientation(Qt::Orientation orientation);
    /// Emits nothing. The value may lie outside the range.
    void setValue(double value);
    /// Value and range stay as they are.
    void setMode(SliderMode mode);
    void setType(ValueType type);
    /// Bounds given the wrong way round are swapped. The value is left as it is, even outside the range.
    void setRange(double minimum, double maximum);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    /// The smallest distance between two ticks, in pixels; at least 1. 5 at first.
    void setMinTickSeparation(int pixels);

Q_SIGNALS:
    /// The user moved the slider. Follows valueChanged().
    void sliderMoved(double value);
    /// A mouse button was pressed; the value is still the old one.
    void sliderPressed();
    /// The button was released. A key emits all four signals at once.
    void sliderReleased();
    /// The user moved the slider. setValue() does not emit it.
    void valueChanged(double value);

protected:
    /// Whether values are spread logarithmically: in LogMode, over a range on one side of zero.
    bool isLog() const;

    /// Where \a value lies along the slot: 0 at its start (left, or bottom), 1 at its end. With \a clamp
    /// nothing lies outside.
    double valueToPosition(double value, bool clamp) const;

    /// The value at \a position along the slot. Positions outside 0 to 1 mean the ends.
    double positionToValue(double position) const;

    /// The slot, and as the result where \a position lies along the same axis.
    int eventSlotSize(int& start, int& end, QPoint position);

    /// The rectangle over which the thumb moves.
    virtual void figureThumbSlot(QRect& thumbSlot);
    /// The rectangles of ticks and labels.
    virtual void figureTickSlots(QRect& tickRect, QRect& labelRect);
    /// The pixels between which values lie, along the axis: from left to right or from bottom to top.
    virtual void slotSize(int& start, int& end);

    /// Paints the track.
    virtual void paintBackground(QPainter& painter);
    /// Appends to \a lines a tick of \a length pixels at \a position along the axis.
    virtual void paintTick(QVector<QLine>& lines, const QRect& tickRect, int position, int length);
    /// Paints the number \a value beginning at \a position along the axis. Without \a labelRect nothing.
    virtual void paintLabel(QPainter& painter, const QRect* labelRect, int position, double value);
    /// Paint the ticks of one kind of scale; \a labelRect is null for ticks without labels.
    virtual void paintLinearTicks(QPainter& painter, const QRect& tickRect, const QRect* labelRect);
    virtual void paintLogTicks(QPainter& painter, const QRect& tickRect, const QRect* labelRect);
    virtual void paintSquareTicks(QPainter& painter, const QRect& tickRect, const QRect* labelRect);
    /// Paints ticks and labels with those of the ends.
    virtual void paintTicks(QPainter& painter);
    /// Paints the thumb where the value is.
    virtual void paintThumb(QPainter& painter);
    /// Paints the thumb of a value outside the range, at \a thumb: a triangle that points to the left (0),
    /// the right (1), down (2) or up (3).
    virtual void paintOutOfRangeThumb(QPainter& painter, const QRect& thumb, int direction) const;
    /// What paintThumb() fills the thumb with; duller while the slider is disabled.
    virtual QColor thumbColor();

    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// What the properties write: one bound comes after the other, and the one that is in the way gives way.
    void pushMinimum(double minimum);
    void pushMaximum(double maximum);

    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
