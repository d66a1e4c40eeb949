#include <ui/toolkit/Compositing.h>

#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QGuiApplication>
#include <QLibrary>
#elif defined(Q_WS_X11)
#include <QX11Info>
#endif

namespace Norvane { namespace UI {

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)

namespace {

/// Whether somebody has claimed to be the compositing manager of the X server's default screen. Qt knows, but
/// tells only its private headers; the X library is there wherever its X11 platform is.
bool x11HasCompositor()
{
    using Atom = unsigned long;
    using Window = unsigned long;
    QLibrary library(QLatin1String("X11"), 6);
    const auto open = reinterpret_cast<void* (*)(const char*)>(library.resolve("XOpenDisplay"));
    const auto screenOf = reinterpret_cast<int (*)(void*)>(library.resolve("XDefaultScreen"));
    const auto atomOf = reinterpret_cast<Atom (*)(void*, const char*, int)>(library.resolve("XInternAtom"));
    const auto ownerOf = reinterpret_cast<Window (*)(void*, Atom)>(library.resolve("XGetSelectionOwner"));
    const auto close = reinterpret_cast<int (*)(void*)>(library.resolve("XCloseDisplay"));
    if (!open || !screenOf || !atomOf || !ownerOf || !close)
        return false;
    void* const display = open(nullptr);
    if (!display)
        return false;
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screenOf(display));
    const bool isOwned = ownerOf(display, atomOf(display, name.constData(), 0)) != 0;
    close(display);
    return isOwned;
}

} // namespace

bool isDesktopComposited()
{
    return QGuiApplication::platformName() != QLatin1String("xcb") || x11HasCompositor();
}

#elif defined(Q_WS_X11)

bool isDesktopComposited()
{
    return QX11Info::isCompositingManagerRunning();
}

#else

bool isDesktopComposited()
{
    return true;
}

#endif

}} // namespace Norvane::UI
