#pragma once

#include <python/PythonVersion.h>

#include <QEvent>
#include <QObject>
#include <QSemaphore>

#include <memory>
#include <mutex>

namespace Norvane { namespace UI {

/// Has the interpreter's lock as long as it lives. There must be an interpreter.
class PythonLock
{
public:
    PythonLock();
    ~PythonLock();

private:
    Q_DISABLE_COPY(PythonLock)

    const PyGILState_STATE m_state;
};

/// An exception that was raised, or none. Used with the interpreter's lock.
struct PythonException {
    /// Takes the thread's pending exception away from it.
    void fetch();
    /// Makes it the thread's pending one, and this none.
    void restore();
    /// Forgets it.
    void clear();

    PyObject* type = nullptr;
    PyObject* value = nullptr;
    PyObject* traceback = nullptr;
};

/// Where a thread gets the answer to its request. Lives on its stack.
struct ResultWaiter {
    /// Returns when the request was answered or dropped. The caller has the interpreter's lock and is without
    /// it meanwhile.
    void wait();
    /// Raises what the call raised, or a RuntimeError if no call was made.
    void raise();

    PyObject* result = nullptr;
    PythonException exception;
    QSemaphore semaphore;
};

/// A call to be made on the main thread.
class RunInMainThreadRequestEvent : public QEvent
{
public:
    /// With the interpreter's lock. \a args and \a kwargs may be null; args that is no tuple is the only
    /// argument. Nobody waits for the result if \a waiter is null.
    RunInMainThreadRequestEvent(PyObject* callable, PyObject* args, PyObject* kwargs, ResultWaiter* waiter);
    /// With or without the interpreter's lock, also after the interpreter's end. Releases a waiter that has
    /// had no answer.
    ~RunInMainThreadRequestEvent() override;

    /// Makes the call, with or without the interpreter's lock. Once only.
    void run();

private:
    Q_DISABLE_COPY(RunInMainThreadRequestEvent)

    void answer(PyObject* result);

    PyObject* const m_callable;
    PyObject* const m_args;
    PyObject* const m_kwargs;
    ResultWaiter* m_waiter;
};

/// Runs requests on the main thread, until the application object goes away.
class RunInMainThreadHandler : public QObject
{
public:
    /// With the interpreter's lock, on any thread. False if there is no application, or has been and is no
    /// more; the request is dropped then.
    static bool post(std::unique_ptr<RunInMainThreadRequestEvent> request);

protected:
    bool event(QEvent* event) override;

private:
    RunInMainThreadHandler();
    static RunInMainThreadHandler& instance();
    static void applicationEnds();

    std::mutex m_mutex;
    bool m_isClosed = false;
};

}} // namespace Norvane::UI
