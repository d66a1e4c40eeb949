#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace Norvane { namespace UI {

/// Where to put windows, as functions of numbers: global pixels in, global pixels out.

/// A window as a layout file describes it.
struct SavedWindow {
    QRect frame;
    int screen = 0;
    bool maximized = false;
    bool fullscreen = false;
};

/// The frame that a restored window gets on a desk whose screen for it has the available geometry \a
/// available. \a screenCount is the number of screens there are now. A window saved full-screen gets the
/// normal geometry that it will return to.
QRect placeSavedWindow(const SavedWindow& saved, const QRect& available, int screenCount);

/// Finds the place beside \a rect for a pop-up window of \a size within \a available; false when no side has
/// room for it, \a position is then left as it is.
bool placeNearRect(const QRect& rect, const QSize& size, const QRect& available, QPoint* position);

}} // namespace Norvane::UI
