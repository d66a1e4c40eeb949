#include <python/PythonVersion.h>

#include <python/ProgressTaskType.h>

#include <python/MainThread.h>

#include <ui/progress/ProgressTask.h>

#include <QCoreApplication>

namespace Norvane { namespace UI {

namespace {

struct TaskObject {
    PyObject_HEAD ProgressTask* task;
};

struct Constant {
    const char* name;
    int value;
};

const Constant kConstants[] = {
    {"kDelayedPopup", ProgressTask::kDelayedPopup}, {"kUserCanCancel", ProgressTask::kUserCanCancel},
    {"kShowTimeToGo", ProgressTask::kShowTimeToGo}, {"kKeepWhenFinished", ProgressTask::kKeepWhenFinished},
    {"kDisable", ProgressTask::kDisable},           {"kModal", ProgressTask::kModal},
    {"kUserCanPause", ProgressTask::kUserCanPause},
};

ProgressTask& taskOf(PyObject* self)
{
    return *reinterpret_cast<TaskObject*>(self)->task;
}

PyObject* newTask(PyTypeObject* type, PyObject* args, PyObject* kwargs)
{
    const char* name = nullptr;
    int maximum = 100;
    int flags = ProgressTask::kUserCanCancel | ProgressTask::kShowTimeToGo;
    if (kwargs && PyDict_Size(kwargs) != 0) {
        PyErr_SetString(PyExc_TypeError, "ProgressTask() takes no keyword arguments");
        return nullptr;
    }
    if (!PyArg_ParseTuple(args, "s|ii:ProgressTask:__new__", &name, &maximum, &flags))
        return nullptr;
    PyObject* const self = type->tp_alloc(type, 0);
    if (self)
        reinterpret_cast<TaskObject*>(self)->task =
            new ProgressTask(textFromPython(name), maximum, flags, nullptr, nullptr);
    return self;
}

void deleteTask(PyObject* self)
{
    delete &taskOf(self);
    Py_TYPE(self)->tp_free(self);
}

/// What setters return. On the main thread the user gets to see the change first.
PyObject* changed(PyObject* self)
{
    if (isMainThread()) {
        QCoreApplication::processEvents();
        // Left by something that the events ran, which must not end this script.
        if (PyErr_Occurred())
            PyErr_WriteUnraisable(self);
    }
    Py_RETURN_NONE;
}

PyObject* setProgress(PyObject* self, PyObject* args)
{
    int progress = 0;
    if (!PyArg_ParseTuple(args, "i:setProgress", &progress))
        return nullptr;
    taskOf(self).setProgress(progress);
    return changed(self);
}

PyObject* setMessage(PyObject* self, PyObject* args)
{
    const char* message = nullptr;
    if (!PyArg_ParseTuple(args, "s:setMessage", &message))
        return nullptr;
    taskOf(self).setMessage(textFromPython(message));
    return changed(self);
}

PyObject* isCancelled(PyObject* self, PyObject*)
{
    return PyBool_FromLong(taskOf(self).isCancelled());
}

PyMethodDef methods[] = {
    {"setProgress", setProgress, METH_VARARGS,
     "self.setProgress(i) -> None.\n\ni is an integer representing the current progress\n"},
    {"setMessage", setMessage, METH_VARARGS,
     "self.setMessage(s) -> None.\n\nset the message for the progress task\n"},
    {"isCancelled", isCancelled, METH_NOARGS,
     "self.isCancelled() -> True if the user has requested the task to be cancelled.\n\n"},
    {nullptr, nullptr, 0, nullptr},
};

PyTypeObject taskType;

PyObject* newConstants()
{
    PyObject* const constants = PyDict_New();
    for (const Constant& constant : kConstants) {
        PyObject* const value = constants ? pythonInteger(constant.value) : nullptr;
        if (!value || PyDict_SetItemString(constants, constant.name, value) < 0) {
            Py_XDECREF(value);
            Py_XDECREF(constants);
            return nullptr;
        }
        Py_DECREF(value);
    }
    return constants;
}

int prepareType()
{
    if (taskType.tp_flags & Py_TPFLAGS_READY)
        return 0;
    Py_INCREF(&taskType);
    taskType.tp_name = "ProgressTask";
    taskType.tp_basicsize = sizeof(TaskObject);
    taskType.tp_dealloc = deleteTask;
    taskType.tp_flags = Py_TPFLAGS_DEFAULT;
    taskType.tp_doc = "ProgressTask";
    taskType.tp_methods = methods;
    taskType.tp_new = newTask;
    taskType.tp_dict = newConstants();
    return taskType.tp_dict ? PyType_Ready(&taskType) : -1;
}

} // namespace

int addProgressTaskType(PyObject* module)
{
    const int problem = prepareType();
    if (problem < 0)
        return problem;
    PyObject* const type = reinterpret_cast<PyObject*>(&taskType);
    Py_INCREF(type);
    const int result = PyModule_AddObject(module, "ProgressTask", type);
    if (result < 0)
        Py_DECREF(type);
    return result;
}

}} // namespace Norvane::UI
