#pragma once

// Python's headers want to come before those of the standard library.
#include <Python.h>

#include <ui/toolkit/Text.h>

#include <QString>

/// What differs between Python 2.7 and Python 3, which the library is built for alike (NORVANE_PYTHON).
namespace Norvane { namespace UI {

/// A new reference to an integer of Python's usual kind.
inline PyObject* pythonInteger(long value)
{
#if PY_MAJOR_VERSION >= 3
    return PyLong_FromLong(value);
#else
    return PyInt_FromLong(value);
#endif
}

/// The text of a string as the argument parser gives it: UTF-8 with Python 3, plain bytes with Python 2.7.
inline QString textFromPython(const char* text)
{
#if PY_MAJOR_VERSION >= 3
    return QString::fromUtf8(text);
#else
    return fromAscii(text);
#endif
}

/// Makes the interpreter's lock, which Python 3 does by itself. After Py_Initialize().
inline void initializePythonThreads()
{
#if PY_MAJOR_VERSION < 3
    PyEval_InitThreads();
#endif
}

}} // namespace Norvane::UI
