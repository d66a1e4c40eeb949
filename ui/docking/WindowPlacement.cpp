#include <ui/docking/WindowPlacement.h>

namespace Norvane { namespace UI {

namespace {

QRect centralTwoThirds(const QRect& available)
{
    return QRect(available.left() + available.width() / 6, available.top() + available.height() / 6,
                 2 * available.width() / 3, 2 * available.height() / 3);
}

} // namespace

QRect placeSavedWindow(const SavedWindow& saved, const QRect& available, int screenCount)
{
    if (saved.fullscreen)
        return centralTwoThirds(available);

    QRect frame = saved.frame;
    frame.setHeight(qMin(frame.height(), available.height()));
    // On several screens a window may be wider than one of them because it spans two.
    if (screenCount <= 1 || saved.maximized)
        frame.setWidth(qMin(frame.width(), available.width()));

    if (!frame.intersects(available)) {
        if (frame.bottom() > available.bottom())
            frame.moveBottom(available.bottom());
        if (frame.left() < available.left())
            frame.moveLeft(available.left());
        if (frame.right() > available.right())
            frame.moveRight(available.right());
    }
    if (frame.top() < available.top())
        frame.moveTop(available.top());
    return frame;
}

bool placeNearRect(const QRect& rect, const QSize& size, const QRect& available, QPoint* position)
{
    const int margin = 20;
    const int left = rect.left() - margin;
    const int top = rect.top() - margin;
    const int right = rect.right() + margin;
    const int below = rect.bottom() + margin;
    const int width = size.width();
    const int height = size.height();

    int x = qMax(left - width, available.left());
    int y = top - height / 3;
    if (y + height > available.bottom())
        y = available.bottom() - height;
    y = qMax(y, available.top() + 26);

    const bool overlaps = x < right && x + width > left && y < below && y + height > top;
    if (overlaps) {
        if (left - available.left() > width)
            x = left - width;
        else if (available.right() - right > width)
            x = right;
        else if (available.bottom() - below > height)
            y = below;
        else if (top - available.top() > height + 10)
            y = top - height - 10;
        else if (available.right() - right >= 101)
            x = right;
        else if (available.bottom() - below > 5)
            y = below;
        else
            return false;
    }
    *position = QPoint(x, y);
    return true;
}

}} // namespace Norvane::UI
