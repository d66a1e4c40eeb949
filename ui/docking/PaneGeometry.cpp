#include <ui/docking/PaneGeometry.h>

#include <QStyle>

namespace Norvane { namespace UI {

namespace {

const int kHiddenTitleHeight = 3;
const int kDropBorder = 30;

int titleHeight(const PaneMetrics& metrics)
{
    const int close = qMax(metrics.closeButton.width(), metrics.closeButton.height());
    const int floating = qMax(metrics.floatButton.width(), metrics.floatButton.height());
    return qMax(qMax(close, floating), metrics.lineSpacing) + 2 * metrics.margin + 2;
}

} // namespace

PaneLayout layOutPane(const PaneMetrics& metrics)
{
    const int width = metrics.pane.width();
    const int height = metrics.pane.height();
    PaneLayout layout;
    if (!metrics.titleVisible) {
        layout.titleBar = QRect(0, 0, width, kHiddenTitleHeight);
        layout.stack = QRect(0, kHiddenTitleHeight, width, height - kHiddenTitleHeight);
        return layout;
    }

    const QRect pane(QPoint(0, 0), metrics.pane);
    const auto mirrored = [&](const QRect& rect) {
        return QStyle::visualRect(metrics.direction, pane, rect);
    };
    const int title = titleHeight(metrics);
    int right = width - 1;
    const auto placeButton = [&](const QSize& size) {
        const QRect rect(QPoint(right - size.width() - metrics.margin, (title - 1) / 2 - size.height() / 2),
                         size);
        right -= size.width() + 1;
        return mirrored(rect);
    };
    layout.buttonsFit = width >= metrics.closeButton.width() + metrics.floatButton.width() +
                                     2 * metrics.margin + metrics.menuWidth;
    layout.closeButton = placeButton(metrics.closeButton);
    layout.floatButton = placeButton(metrics.floatButton);

    const int bar = qMax(metrics.tabBar.height(), title);
    layout.titleBar = QRect(0, 0, width, bar);
    const int tabs = qMax(0, qMin(metrics.tabBar.width(), right - metrics.menuWidth));
    layout.tabBar = mirrored(QRect(metrics.menuWidth, 0, tabs, bar));
    layout.stack = QRect(0, bar, width, height - bar);
    return layout;
}

DropSide dropSideAt(const QPoint& position, const QRect& stack, const QSize& pane)
{
    const int borderX = qMin(pane.width() / 3, kDropBorder);
    const int borderY = qMin(pane.height() / 3, kDropBorder);
    const QRect centre = stack.adjusted(borderX, borderY, -borderX, -borderY);
    // Borders that meet leave no centre; QRect would take their overlap for one.
    if (position.y() < stack.top() || (centre.isValid() && centre.contains(position)))
        return kDropCentre;

    const int left = position.x() - stack.left();
    const int right = stack.right() - position.x();
    const int top = position.y() - stack.top();
    const int bottom = stack.bottom() - position.y();
    if (left < right && left < top && left < bottom)
        return kDropLeft;
    if (right < top && right < bottom)
        return kDropRight;
    return top < bottom ? kDropTop : kDropBottom;
}

QRect dropArea(const QRect& area, DropSide side)
{
    const int middleX = (area.left() + area.right()) / 2;
    const int middleY = (area.top() + area.bottom()) / 2;
    QRect half = area;
    switch (side) {
    case kDropLeft:
        half.setRight(middleX);
        break;
    case kDropRight:
        half.setLeft(middleX);
        break;
    case kDropTop:
        half.setBottom(middleY);
        break;
    case kDropBottom:
        half.setTop(middleY);
        break;
    case kDropCentre:
        break;
    }
    return half;
}

}} // namespace Norvane::UI
