#pragma once

#include <QRect>
#include <QSize>

namespace Norvane { namespace UI {

/// The arithmetic of a pane, as functions of numbers: the pane's own pixels in, the pane's own pixels out.

/// What the layout of a pane depends on. A button that the pane does not have is (0, 0) in size.
struct PaneMetrics {
    QSize pane;
    bool titleVisible = true;
    bool hasCloseButton = false;
    int menuWidth = 0;
    int margin = 0;
    int lineSpacing = 0;
    QSize closeButton = QSize(0, 0);
    QSize floatButton = QSize(0, 0);
    QSize tabBar;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

struct PaneLayout {
    QRect titleBar;
    QRect tabBar;
    QRect stack;
    QRect closeButton;
    QRect floatButton;
    /// Whether the pane is wide enough for its close and float buttons.
    bool buttonsFit = true;
};

PaneLayout layOutPane(const PaneMetrics& metrics);

/// Where a dragged panel lands in a pane. The sides have the values of Qt::DockWidgetArea.
enum DropSide { kDropCentre = 0, kDropLeft = 1, kDropRight = 2, kDropTop = 4, kDropBottom = 8 };

/// The side for a drop at \a position of a pane's stack. The border that splits the pane is 30 pixels wide, a
/// third of the pane in smaller ones.
DropSide dropSideAt(const QPoint& position, const QRect& stack, const QSize& pane);

/// The half of \a area that \a side names; all of it for the centre.
QRect dropArea(const QRect& area, DropSide side);

}} // namespace Norvane::UI
