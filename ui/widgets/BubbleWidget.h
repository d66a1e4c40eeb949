#pragma once

#include <NorvaneCoreExport.h>

#include <QDialog>
#include <QPainterPath>

#include <memory>

class QPen;

namespace Norvane { namespace UI {

/// A pop-up in the shape of a speech bubble: a translucent rounded rectangle with a pin that points at a
/// target. The caller gives it a layout and children. It closes as pop-ups do: with Escape, or a click
/// elsewhere. Its colours are those of the palette at the moment of painting.
///
/// Lengths are in pixels. What the plain setters set shows when the bubble next pops up.
class NORVANE_CORE_EXPORT BubbleWidget : public QDialog
{
    Q_OBJECT
public:
    /// Hidden, with the pin at the bottom.
    explicit BubbleWidget(QWidget* parent);
    ~BubbleWidget() override;

    /// The side of the square in which each corner's arc is drawn; 8 at first, 0 for plain corners.
    int cornerRadius() const;
    void setCornerRadius(int radius);

    /// The width of the pin where it leaves the body, 30 at first. The pin is half as high as it is wide.
    int pinWidth() const;
    void setPinWidth(int width);

    /// The room kept free on the side of the pin, 20 at first.
    int pinHeight() const;
    void setPinHeight(int height);

    /// Around the contents, without the pin; 8 at first.
    int margin() const;
    void setMargin(int margin);

    /// Of the outline; 1 at first.
    int borderWidth() const;
    void setBorderWidth(int width);

    /// Whether the user can drag the bubble; not at first.
    bool isMovable() const;
    void setMovable(bool movable);

    /// The side of the bubble that has the pin: Qt::AlignTop, AlignBottom (at first), AlignLeft or
    /// AlignRight. A pop-up keeps it if it finds room there.
    Qt::Alignment pinAlignment() const;
    /// Also gives the contents their margins; with none of the four sides they keep those that they have.
    void setPinAlignment(Qt::Alignment alignment);

    /// Shows the bubble beside \a target (global coordinates), on the screen that holds its centre, with the
    /// pin pointing at it, and gives it the keyboard. Without room on any side it has no pin and covers the
    /// target.
    void popup(const QRect& target);
    void popup(QWidget* target);
    void popup(const QPoint& target);

protected:
    /// The outline for the present size and pin, in the bubble's own coordinates.
    QPainterPath bubblePath() const;

    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QPen outlinePen(const QColor& color, int width) const;
    void updateShape();

    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
