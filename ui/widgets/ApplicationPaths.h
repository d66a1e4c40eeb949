#pragma once

#include <NorvaneCoreExport.h>

class QString;

namespace Norvane { namespace UI {

/// \name Where the running program is, before there is a QApplication that could be asked.
/// \a argv0 is what main() was given, or null. On Windows the system knows, and it is not looked at.
/// Elsewhere it is resolved as a shell does: a path as it is, a name without "/" along PATH. What was found
/// once is the answer to all later calls; a path that does not exist is none, and the next call tries again.
/// The first call must be over before other threads call.
/// @{

/// The executable's path without links and detours; empty if it was not found.
NORVANE_CORE_EXPORT QString ApplicationFilePath(const char* argv0);

/// The folder of that path.
NORVANE_CORE_EXPORT QString ApplicationDirPath(const char* argv0);

/// @}

}} // namespace Norvane::UI
