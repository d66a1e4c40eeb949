#pragma once

#include <NorvaneCoreExport.h>

struct _object;
typedef struct _object PyObject;

/// Functions for a Python module of the host's (its method table says METH_VARARGS | METH_KEYWORDS), with
/// which scripts call a function on the thread of the QCoreApplication, the main thread, from any thread:
///
///     run_in_main_thread(call, args=(), kwargs={})
///
/// \a args is a tuple, or anything else for a single argument. Calls from other threads are made one at a
/// time, in their order, when the main thread gets to its events; on the main thread itself they are made at
/// once. A request takes one of the 64,535 event types that programs have (QEvent::registerEventType()); when
/// there are none left, requests share one.
///
/// TypeError says that \a call cannot be called, or that \a kwargs is no dict; RuntimeError that there is no
/// application (any more) to make the call. The main thread lets other Python threads run while it waits for
/// events only if the host releases the interpreter's lock there (PyEval_SaveThread()).
namespace Norvane { namespace UI {

/// Does not wait for the call, if it comes from another thread, and returns None. An exception in the call is
/// left pending on the main thread: the host may look for it with PyErr_Occurred() when it next has the
/// interpreter's lock. On the main thread itself Python 3 raises a SystemError that was caused by it.
NORVANE_CORE_EXPORT PyObject* run_in_main_thread(PyObject* self, PyObject* args, PyObject* kwargs);

/// Waits for the call without the interpreter's lock, and returns its result or raises its exception. When
/// the application object goes away first, RuntimeError is raised.
NORVANE_CORE_EXPORT PyObject* run_in_main_thread_with_result(PyObject* self, PyObject* args,
                                                             PyObject* kwargs);

}} // namespace Norvane::UI
