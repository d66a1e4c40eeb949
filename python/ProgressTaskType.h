#pragma once

#include <NorvaneCoreExport.h>

struct _object;
typedef struct _object PyObject;

namespace Norvane { namespace UI {

/// Adds the type "ProgressTask" to a Python module of the host's, with which scripts report their progress as
/// C++ code does with the class of that name:
///
///     task = ProgressTask(name, maximum=100, flags=ProgressTask.kUserCanCancel | ProgressTask.kShowTimeToGo)
///     task.setProgress(50)
///     task.setMessage("half of it")
///     task.isCancelled()
///
/// The flags of the C++ class are attributes of the type. Tasks are listed by ProgressManager::instance() and
/// end when Python frees them. On the main thread setProgress() and setMessage() let the application process
/// its events, so that the user sees something of a script that keeps it busy.
///
/// Called with the interpreter's lock. 0, or a negative number with an exception set. A module that is given
/// the type twice keeps it; so may several modules have it.
NORVANE_CORE_EXPORT int addProgressTaskType(PyObject* module);

}} // namespace Norvane::UI
