#include <python/MainThreadRequest.h>

#include <QCoreApplication>

#include <utility>

namespace Norvane { namespace UI {

namespace {

/// A type that no other request has, as long as there is one. With the interpreter's lock.
QEvent::Type freshType()
{
    static int last = QEvent::MaxUser;
    const int type = QEvent::registerEventType();
    if (type != -1)
        last = type;
    return QEvent::Type(last);
}

PyObject* newReference(PyObject* object)
{
    Py_XINCREF(object);
    return object;
}

PyObject* newTuple(PyObject* args)
{
    if (!args)
        return PyTuple_New(0);
    return PyTuple_Check(args) ? newReference(args) : PyTuple_Pack(1, args);
}

} // namespace

PythonLock::PythonLock()
    : m_state(PyGILState_Ensure())
{
}

PythonLock::~PythonLock()
{
    PyGILState_Release(m_state);
}

void PythonException::fetch()
{
    PyErr_Fetch(&type, &value, &traceback);
}

void PythonException::restore()
{
    PyErr_Restore(std::exchange(type, nullptr), std::exchange(value, nullptr),
                  std::exchange(traceback, nullptr));
}

void PythonException::clear()
{
    Py_CLEAR(type);
    Py_CLEAR(value);
    Py_CLEAR(traceback);
}

void ResultWaiter::wait()
{
    PyThreadState* const state = PyEval_SaveThread();
    semaphore.acquire(1);
    PyEval_RestoreThread(state);
}

void ResultWaiter::raise()
{
    if (exception.type)
        exception.restore();
    else
        PyErr_SetString(PyExc_RuntimeError, "the application ended before the call was made");
}

RunInMainThreadRequestEvent::RunInMainThreadRequestEvent(PyObject* callable, PyObject* args, PyObject* kwargs,
                                                         ResultWaiter* waiter)
    : QEvent(freshType())
    , m_callable(newReference(callable))
    , m_args(newTuple(args))
    , m_kwargs(newReference(kwargs))
    , m_waiter(waiter)
{
}

RunInMainThreadRequestEvent::~RunInMainThreadRequestEvent()
{
    if (Py_IsInitialized()) {
        const PythonLock lock;
        Py_DECREF(m_callable);
        Py_XDECREF(m_args);
        Py_XDECREF(m_kwargs);
    }
    if (m_waiter)
        m_waiter->semaphore.release();
}

void RunInMainThreadRequestEvent::run()
{
    const PythonLock lock;
    // One that an earlier call left behind. The interpreter takes it for this call's.
    PythonException earlier;
    earlier.fetch();
    answer(m_args ? PyObject_Call(m_callable, m_args, m_kwargs) : PyErr_NoMemory());
    if (PyErr_Occurred())
        earlier.clear();
    else
        earlier.restore();
}

void RunInMainThreadRequestEvent::answer(PyObject* result)
{
    if (!m_waiter) {
        Py_XDECREF(result);
        return;
    }
    m_waiter->result = result;
    if (!result)
        m_waiter->exception.fetch();
    // The waiter is gone once it is released.
    std::exchange(m_waiter, nullptr)->semaphore.release();
}

RunInMainThreadHandler& RunInMainThreadHandler::instance()
{
    static RunInMainThreadHandler handler;
    return handler;
}

RunInMainThreadHandler::RunInMainThreadHandler()
{
    moveToThread(QCoreApplication::instance()->thread());
    qAddPostRoutine(applicationEnds);
}

void RunInMainThreadHandler::applicationEnds()
{
    RunInMainThreadHandler& handler = instance();
    {
        const std::lock_guard<std::mutex> locker(handler.m_mutex);
        handler.m_isClosed = true;
    }
    QCoreApplication::removePostedEvents(&handler);
}

bool RunInMainThreadHandler::post(std::unique_ptr<RunInMainThreadRequestEvent> request)
{
    // The handler belongs to the application that there was when it was made.
    if (!QCoreApplication::instance())
        return false;
    RunInMainThreadHandler& handler = instance();
    const std::lock_guard<std::mutex> locker(handler.m_mutex);
    if (handler.m_isClosed)
        return false;
    QCoreApplication::postEvent(&handler, request.release());
    return true;
}

bool RunInMainThreadHandler::event(QEvent* event)
{
    // Moving it to another thread sends it events as well.
    auto* const request = dynamic_cast<RunInMainThreadRequestEvent*>(event);
    if (!request)
        return QObject::event(event);
    if (Py_IsInitialized())
        request->run();
    return true;
}

}} // namespace Norvane::UI
