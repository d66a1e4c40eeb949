#include <ui/toolkit/Screens.h>

#include <QPoint>
#include <QWidget>

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QApplication>
#include <QDesktopWidget>
#else
#include <QGuiApplication>
#include <QScreen>
#endif

namespace Norvane { namespace UI {

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)

int Screens::count()
{
    return QApplication::desktop()->screenCount();
}

QRect Screens::availableGeometry(int number)
{
    const bool exists = number >= 0 && number < count();
    return QApplication::desktop()->availableGeometry(exists ? number : -1);
}

QRect Screens::availableGeometry(const QPoint& point)
{
    return QApplication::desktop()->availableGeometry(point);
}

QRect Screens::availableGeometry(const QWidget* widget)
{
    return QApplication::desktop()->availableGeometry(widget);
}

int Screens::numberOf(const QWidget* widget)
{
    return qMax(0, QApplication::desktop()->screenNumber(widget));
}

#else

namespace {

int squaredDistance(const QRect& rect, const QPoint& point)
{
    const int dx = qMax(0, qMax(rect.left() - point.x(), point.x() - rect.right()));
    const int dy = qMax(0, qMax(rect.top() - point.y(), point.y() - rect.bottom()));
    return dx * dx + dy * dy;
}

int nearestScreen(const QPoint& point)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    int nearest = 0;
    for (int i = 1; i < screens.size(); ++i) {
        if (squaredDistance(screens[i]->geometry(), point) <
            squaredDistance(screens[nearest]->geometry(), point))
            nearest = i;
    }
    return nearest;
}

} // namespace

int Screens::count()
{
    return static_cast<int>(QGuiApplication::screens().size());
}

QRect Screens::availableGeometry(int number)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (screens.isEmpty())
        return QRect();
    const bool exists = number >= 0 && number < screens.size();
    return (exists ? screens[number] : QGuiApplication::primaryScreen())->availableGeometry();
}

QRect Screens::availableGeometry(const QPoint& point)
{
    return availableGeometry(nearestScreen(point));
}

QRect Screens::availableGeometry(const QWidget* widget)
{
    return availableGeometry(numberOf(widget));
}

// By the frame's place and not by QWindow::screen(), which lags behind a window that was just moved.
int Screens::numberOf(const QWidget* widget)
{
    if (!widget)
        return 0;
    const QRect frame = widget->window()->frameGeometry();
    const QList<QScreen*> screens = QGuiApplication::screens();
    int best = -1;
    int bestArea = 0;
    for (int i = 0; i < screens.size(); ++i) {
        const QRect shared = screens[i]->geometry() & frame;
        const int area = shared.isEmpty() ? 0 : shared.width() * shared.height();
        if (area > bestArea) {
            best = i;
            bestArea = area;
        }
    }
    return best >= 0 ? best : nearestScreen(frame.center());
}

#endif

}} // namespace Norvane::UI
