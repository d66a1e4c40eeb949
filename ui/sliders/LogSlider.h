#pragma once

#include <NorvaneCoreExport.h>

#include <QColor>
#include <QSlider>

#include <memory>

namespace Norvane { namespace UI {

/// A QSlider whose positions are exponents of ten in even steps, with ticks and labels of its decades: under
/// the groove, or left of it on a vertical slider.
///
/// Give it a range with setRealRange() first: before, it looks like a plain QSlider and has no real value.
/// QSlider's own signals tell of changes; realValue() is the new value then. The colours of the ticks are set
/// by the host or taken from the palette when the ticks are first painted.
class NORVANE_CORE_EXPORT LogSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(double realValue READ realValue WRITE setRealValue)
    Q_PROPERTY(bool drawLogTicks READ drawLogTicks WRITE setDrawLogTicks)
    Q_PROPERTY(int tickTextSize READ tickTextSize WRITE setTickTextSize)
    Q_PROPERTY(QColor tickColor READ tickColor WRITE setTickColor)
    Q_PROPERTY(QColor expTickColor READ expTickColor WRITE setExpTickColor)
    Q_PROPERTY(int minimumExponent READ minimumExponent WRITE pushMinimumExponent)
    Q_PROPERTY(int maximumExponent READ maximumExponent WRITE pushMaximumExponent)
    Q_PROPERTY(int precision READ precision WRITE refine)
public:
    /// A vertical slider, as QSlider's.
    explicit LogSlider(QWidget* parent = nullptr);
    explicit LogSlider(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~LogSlider() override;

    /// The range from ten to the \a minExp to ten to the \a maxExp, in either order, with \a precision slider
    /// positions to a decade. Throws std::invalid_argument for a precision below 1 and for equal exponents.
    void setRealRange(int minExp, int maxExp, int precision);

    /// Throws std::logic_error before a range is set.
    double realValue() const;

    /// Goes to the position at or next to \a value on the side of 1, or to an end for a value beyond it. What
    /// is not a number is ignored. Throws std::logic_error before a range is set.
    void setRealValue(double value);

    /// The setters below do not repaint.

    /// Whether ticks and labels are painted; they are at first.
    bool drawLogTicks() const;
    void setDrawLogTicks(bool on);
    /// The size of the labels' font in pixels.
    int tickTextSize() const;
    void setTickTextSize(int pixels);
    /// The colour of marks between powers of ten; invalid for the default.
    QColor tickColor() const;
    void setTickColor(const QColor& color);
    /// The colour of powers of ten; invalid for the default.
    QColor expTickColor() const;
    void setExpTickColor(const QColor& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

    /// The value at a position of the slider, and the position of a value. A range must be set.
    double calculateRealValue(int sliderValue) const;
    int calculateSliderValue(double realValue) const;

private:
    /// What setRealRange() was told last, one by one for forms: with an exponent that is not below or above
    /// the other one, this gives way.
    int minimumExponent() const;
    void pushMinimumExponent(int exponent);
    int maximumExponent() const;
    void pushMaximumExponent(int exponent);
    int precision() const;
    void refine(int precision);

    int tickPosition(double value, int start, int span) const;
    bool checkTick(const QRect& rect, int position) const;
    void drawTick(QPainter& painter, const QRect& rect, int position, bool exp) const;
    void drawText(QPainter& painter, const QRect& rect, int position, const QString& text, bool left) const;
    void preprocessTicks(bool* flags, int span, int minDistance) const;

    class Painting;
    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
