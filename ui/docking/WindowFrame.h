#pragma once

class QRect;
class QWidget;

namespace Norvane { namespace UI {

/// Gives \a window the frame \a frame (global pixels, decoration included), as far as its decoration is known
/// now.
void setFrameGeometry(QWidget* window, const QRect& frame);

/// Keeps a window that is neither full-screen nor maximised at \a frame while the window manager decorates it
/// or leads it out of another state: for a second, or until the program or the user changes the window.
void holdFrameGeometry(QWidget* window, const QRect& frame);

}} // namespace Norvane::UI
