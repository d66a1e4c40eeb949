#pragma once

namespace Norvane { namespace UI {

/// Whether the desktop blends windows with what is below them. Where it does not, the transparent parts of a
/// window are black. GUI thread only; asks the window system each time.
bool isDesktopComposited();

}} // namespace Norvane::UI
