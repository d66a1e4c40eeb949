#pragma once

namespace Norvane { namespace UI {

/// Whether this thread is the one of the application object. False without an application object.
bool isMainThread();

}} // namespace Norvane::UI
