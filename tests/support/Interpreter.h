#pragma once

#include <python/PythonVersion.h>

#include <python/ProgressTaskType.h>
#include <python/RunInMainThread.h>

#include <QCoreApplication>
#include <QString>

#include <atomic>
#include <thread>

namespace NorvaneTest {

/// A Python interpreter with a module "norvane" that holds what the library offers to scripts. Other threads
/// may use it whenever this one is not inside of a call. One in a process.
class Interpreter
{
public:
    Interpreter()
    {
        Py_InitializeEx(0);
        Norvane::UI::initializePythonThreads();
        PyObject* const module = PyImport_AddModule("norvane");
        addFunction(module, &s_run);
        addFunction(module, &s_runWithResult);
        Norvane::UI::addProgressTaskType(module);
        m_main = PyEval_SaveThread();
    }

    ~Interpreter()
    {
        PyEval_RestoreThread(m_main);
        Py_Finalize();
    }

    /// Runs \a script on this thread and returns the text of what it calls `result`, or the name and text of
    /// the exception that ended it.
    QString run(const char* script)
    {
        const PyGILState_STATE state = PyGILState_Ensure();
        QString text = runLocked(script);
        PyGILState_Release(state);
        return text;
    }

    /// The same on another thread, while this one processes its events.
    QString runOnWorker(const char* script)
    {
        QString text;
        std::atomic<bool> isOver(false);
        std::thread worker([&] {
            text = run(script);
            isOver = true;
        });
        while (!isOver)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        worker.join();
        return text;
    }

    /// The name and text of the pending exception of this thread, which is cleared, or nothing.
    QString takePending()
    {
        const PyGILState_STATE state = PyGILState_Ensure();
        QString text = PyErr_Occurred() ? exceptionText() : QString();
        PyGILState_Release(state);
        return text;
    }

private:
    using Function = PyObject* (*)(PyObject*, PyObject*, PyObject*);

    static PyMethodDef method(const char* name, Function function)
    {
        const auto untyped = reinterpret_cast<void (*)()>(function);
        return {name, reinterpret_cast<PyCFunction>(untyped), METH_VARARGS | METH_KEYWORDS, nullptr};
    }

    static void addFunction(PyObject* module, PyMethodDef* definition)
    {
        PyModule_AddObject(module, definition->ml_name, PyCFunction_New(definition, nullptr));
    }

    static QString textOf(PyObject* object)
    {
        QString text;
        if (PyObject* const string = PyObject_Str(object)) {
            // With Python 2 the text is bytes already, which this leaves as they are.
            PyObject* const tuple = PyTuple_Pack(1, string);
            char* bytes = nullptr;
            if (PyArg_ParseTuple(tuple, "et", "utf-8", &bytes))
                text = QString::fromUtf8(bytes);
            PyMem_Free(bytes);
            Py_XDECREF(tuple);
            Py_DECREF(string);
        }
        return text;
    }

    static QString exceptionText()
    {
        PyObject* type = nullptr;
        PyObject* value = nullptr;
        PyObject* traceback = nullptr;
        PyErr_Fetch(&type, &value, &traceback);
        PyErr_NormalizeException(&type, &value, &traceback);
        PyObject* const name = PyObject_GetAttrString(type, "__name__");
        QString text = textOf(name) + QString::fromLatin1(": ") + textOf(value);
        Py_XDECREF(name);
        Py_XDECREF(type);
        Py_XDECREF(value);
        Py_XDECREF(traceback);
        return text;
    }

    static QString runLocked(const char* script)
    {
        PyObject* const globals = PyDict_New();
        PyDict_SetItemString(globals, "__builtins__", PyEval_GetBuiltins());
        PyDict_SetItemString(globals, "norvane", PyImport_AddModule("norvane"));
        PyObject* const done = PyRun_String(script, Py_file_input, globals, globals);
        QString text;
        if (!done)
            text = exceptionText();
        else if (PyObject* const result = PyDict_GetItemString(globals, "result"))
            text = textOf(result);
        Py_XDECREF(done);
        // Functions of the script refer to it.
        PyDict_Clear(globals);
        Py_DECREF(globals);
        return text;
    }

    PyThreadState* m_main = nullptr;
    static inline PyMethodDef s_run = method("run_in_main_thread", Norvane::UI::run_in_main_thread);
    static inline PyMethodDef s_runWithResult =
        method("run_in_main_thread_with_result", Norvane::UI::run_in_main_thread_with_result);
};

} // namespace NorvaneTest
