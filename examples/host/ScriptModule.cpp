#include "ScriptModule.h"

#include "PictureList.h"
#include "ScriptInterpreter.h"

#include <python/ProgressTaskType.h>
#include <python/RunInMainThread.h>

#include <QThread>

namespace Norvane { namespace Host {

namespace {

/// Used with the interpreter's lock.
ScriptInterpreter* theInterpreter = nullptr;
const PictureList* thePictures = nullptr;

PyObject* write(PyObject*, PyObject* args)
{
    char* text = nullptr;
    int isError = 0;
    if (!PyArg_ParseTuple(args, "eti:write", "utf-8", &text, &isError))
        return nullptr;
    if (theInterpreter)
        Q_EMIT theInterpreter->written(QString::fromUtf8(text), isError);
    PyMem_Free(text);
    Py_RETURN_NONE;
}

PyObject* pictures(PyObject*, PyObject*)
{
    if (!thePictures || QThread::currentThread() != thePictures->thread()) {
        PyErr_SetString(PyExc_RuntimeError,
                        "pictures() is for the main thread: use run_in_main_thread_with_result()");
        return nullptr;
    }
    const QStringList paths = thePictures->paths();
    PyObject* const list = PyList_New(0);
    for (const QString& path : paths) {
        const QByteArray utf8 = path.toUtf8();
        PyObject* const text = PyUnicode_DecodeUTF8(utf8.constData(), utf8.size(), "replace");
        if (text)
            PyList_Append(list, text);
        Py_XDECREF(text);
    }
    return list;
}

/// As the method table wants it.
PyCFunction withKeywords(PyObject* (*function)(PyObject*, PyObject*, PyObject*))
{
    return reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(function));
}

PyMethodDef functions[] = {
    {"run_in_main_thread", withKeywords(UI::run_in_main_thread), METH_VARARGS | METH_KEYWORDS,
     "run_in_main_thread(call, args=(), kwargs={}) -> None.\n\nHas the main thread call it, some time.\n"},
    {"run_in_main_thread_with_result", withKeywords(UI::run_in_main_thread_with_result),
     METH_VARARGS | METH_KEYWORDS,
     "run_in_main_thread_with_result(call, args=(), kwargs={}) -> what the call returns.\n\n"
     "Has the main thread call it, and waits.\n"},
    {"pictures", pictures, METH_NOARGS,
     "pictures() -> the paths of the open pictures.\n\nFor the main thread only.\n"},
    {"write", write, METH_VARARGS, "write(text, is_error) -> None.\n\nWrites into the Script panel.\n"},
};

} // namespace

bool setUpScriptModule(ScriptInterpreter* interpreter, const PictureList* pictureList)
{
    theInterpreter = interpreter;
    thePictures = pictureList;
    PyObject* const module = PyImport_AddModule("norvane");
    if (!module)
        return false;
    if (PyObject_HasAttrString(module, "ProgressTask"))
        return true;
    for (PyMethodDef& function : functions) {
        PyObject* const object = PyCFunction_New(&function, nullptr);
        if (!object || PyModule_AddObject(module, function.ml_name, object) < 0)
            return false;
    }
    return UI::addProgressTaskType(module) == 0;
}

}} // namespace Norvane::Host
