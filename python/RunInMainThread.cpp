#include <python/PythonVersion.h>

#include <python/RunInMainThread.h>

#include <python/MainThread.h>
#include <python/MainThreadRequest.h>

#include <memory>

namespace Norvane { namespace UI {

namespace {

struct Call {
    PyObject* callable = nullptr;
    PyObject* args = nullptr;
    PyObject* kwargs = nullptr;
};

int toCallable(PyObject* object, void* callable)
{
    if (!PyCallable_Check(object)) {
        PyErr_Format(PyExc_TypeError, "expected callable object, %.200s found", Py_TYPE(object)->tp_name);
        return 0;
    }
    *static_cast<PyObject**>(callable) = object;
    return 1;
}

bool parse(PyObject* args, PyObject* kwargs, const char* format, Call* call)
{
    static const char* const keywords[] = {"call", "args", "kwargs", nullptr};
    return PyArg_ParseTupleAndKeywords(args, kwargs, format, const_cast<char**>(keywords), toCallable,
                                       &call->callable, &call->args, &PyDict_Type, &call->kwargs);
}

/// Makes the call, or has the main thread make it. False, with an exception set, if nobody will.
bool dispatch(const Call& call, ResultWaiter* waiter)
{
    if (isMainThread()) {
        RunInMainThreadRequestEvent(call.callable, call.args, call.kwargs, waiter).run();
        return true;
    }
    std::unique_ptr<RunInMainThreadRequestEvent> request(
        new RunInMainThreadRequestEvent(call.callable, call.args, call.kwargs, waiter));
    if (RunInMainThreadHandler::post(std::move(request)))
        return true;
    PyErr_SetString(PyExc_RuntimeError, "there is no application to make the call");
    return false;
}

} // namespace

PyObject* run_in_main_thread(PyObject*, PyObject* args, PyObject* kwargs)
{
    const PythonLock lock;
    Call call;
    if (!parse(args, kwargs, "O&|OO!:run_in_main_thread", &call) || !dispatch(call, nullptr))
        return nullptr;
    Py_RETURN_NONE;
}

PyObject* run_in_main_thread_with_result(PyObject*, PyObject* args, PyObject* kwargs)
{
    ResultWaiter waiter;
    {
        const PythonLock lock;
        Call call;
        if (!parse(args, kwargs, "O&|OO!:run_in_main_thread_with_result", &call) || !dispatch(call, &waiter))
            return nullptr;
    }
    waiter.wait();
    if (!waiter.result)
        waiter.raise();
    return waiter.result;
}

}} // namespace Norvane::UI
