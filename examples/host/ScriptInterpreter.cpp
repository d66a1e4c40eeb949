#include "ScriptModule.h"

#include "ScriptInterpreter.h"

#include <pythread.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

namespace Norvane { namespace Host {

namespace {

const char kConsole[] = "norvane_console";
const int kPatience = 5000; // ms

bool threadsAreLeft = false;

/// The module made of console.py. With the interpreter's lock.
PyObject* console()
{
    return PyImport_AddModule(kConsole);
}

bool loadConsole()
{
    QFile file(QLatin1String(":/scripts/console.py"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    PyObject* const code = Py_CompileString(file.readAll().constData(), "console.py", Py_file_input);
    if (!code)
        return false;
    PyObject* const module = PyImport_ExecCodeModule(const_cast<char*>(kConsole), code);
    Py_DECREF(code);
    Py_XDECREF(module);
    return module;
}

/// Calls a function of console.py and lets \a args go. A new reference; null for an exception.
PyObject* callConsole(const char* name, PyObject* args)
{
    PyObject* const function = args ? PyObject_GetAttrString(console(), name) : nullptr;
    PyObject* const result = function ? PyObject_CallObject(function, args) : nullptr;
    Py_XDECREF(function);
    Py_XDECREF(args);
    return result;
}

/// Says what an exception is about that nobody handled, also one that a call from another thread left here.
void reportPending()
{
    if (PyErr_Occurred())
        PyErr_Print();
}

} // namespace

/// A turn of the main thread with the interpreter's lock.
class ScriptInterpreter::Turn
{
public:
    explicit Turn(ScriptInterpreter* interpreter)
        : m_interpreter(interpreter)
    {
        interpreter->start();
        m_state = PyGILState_Ensure();
        reportPending();
        interpreter->m_isRunning = true;
        Q_EMIT interpreter->runningChanged(true);
    }
    ~Turn()
    {
        reportPending();
        PyGILState_Release(m_state);
        m_interpreter->m_isRunning = false;
        Q_EMIT m_interpreter->runningChanged(false);
    }

private:
    Q_DISABLE_COPY(Turn)

    ScriptInterpreter* const m_interpreter;
    PyGILState_STATE m_state;
};

ScriptInterpreter::ScriptInterpreter(const PictureList* pictures, QObject* parent)
    : QObject(parent)
    , m_pictures(pictures)
{
}

ScriptInterpreter::~ScriptInterpreter()
{
    finish();
}

QString ScriptInterpreter::greeting()
{
    return tr("Python %1. The module norvane has pictures(), run_in_main_thread(), "
              "run_in_main_thread_with_result() and ProgressTask.")
        .arg(QString::fromLatin1(Py_GetVersion()).section(QLatin1Char(' '), 0, 0));
}

bool ScriptInterpreter::hasThreadsLeft()
{
    return threadsAreLeft;
}

void ScriptInterpreter::start()
{
    if (m_isStarted)
        return;
    m_isStarted = true;
    const bool isFirst = !Py_IsInitialized();
    if (isFirst) {
        // Not the modules of another Python that the path may lead to, and not for programs that we start.
        const QByteArray home = qgetenv("PYTHONHOME");
        if (home.isEmpty())
            qputenv("PYTHONHOME", NORVANE_PYTHON_HOME);
        Py_InitializeEx(0);
        qputenv("PYTHONHOME", home);
        PyEval_SaveThread();
    }
    const PyGILState_STATE state = PyGILState_Ensure();
    if (!setUpScriptModule(this, m_pictures) || !loadConsole())
        PyErr_Print();
    PyGILState_Release(state);
}

bool ScriptInterpreter::push(const QString& line)
{
    if (m_isRunning)
        return false;
    const Turn turn(this);
    const QByteArray utf8 = line.toUtf8();
    PyObject* const text = PyUnicode_DecodeUTF8(utf8.constData(), utf8.size(), "replace");
    PyObject* const needsMore = callConsole("push", Py_BuildValue("(N)", text));
    const bool answer = needsMore && PyObject_IsTrue(needsMore) == 1;
    Py_XDECREF(needsMore);
    return answer;
}

void ScriptInterpreter::run(const QByteArray& script, const QString& name)
{
    if (m_isRunning)
        return;
    const Turn turn(this);
    // Bytes, which may name their encoding.
    PyObject* const bytes = PyBytes_FromStringAndSize(script.constData(), script.size());
    PyObject* const result = callConsole("run", Py_BuildValue("(Ns)", bytes, name.toUtf8().constData()));
    Py_XDECREF(result);
}

bool ScriptInterpreter::isRunning() const
{
    return m_isRunning;
}

void ScriptInterpreter::interrupt()
{
    if (!m_isRunning)
        return;
    const PyGILState_STATE state = PyGILState_Ensure();
    PyThreadState_SetAsyncExc(PyThread_get_thread_ident(), PyExc_KeyboardInterrupt);
    PyGILState_Release(state);
}

void ScriptInterpreter::finish()
{
    if (!m_isStarted)
        return;
    m_isStarted = false;
    stopThreads();
    const PyGILState_STATE state = PyGILState_Ensure();
    PyObject* const result = callConsole("forget", PyTuple_New(0));
    Py_XDECREF(result);
    setUpScriptModule(nullptr, nullptr);
    PyErr_Clear();
    PyGILState_Release(state);
}

/// Raises SystemExit in every thread of a script until none is left. One that waits for the main thread gets
/// what it waits for.
void ScriptInterpreter::stopThreads()
{
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        const PyGILState_STATE state = PyGILState_Ensure();
        PyObject* const idents = callConsole("other_threads", PyTuple_New(0));
        const Py_ssize_t count = idents ? PyList_Size(idents) : 0;
        for (Py_ssize_t i = 0; i < count; ++i)
            PyThreadState_SetAsyncExc(PyLong_AsLong(PyList_GetItem(idents, i)), PyExc_SystemExit);
        Py_XDECREF(idents);
        PyGILState_Release(state);
        threadsAreLeft = count != 0;
        if (!threadsAreLeft || timer.elapsed() > kPatience)
            return;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
}

}} // namespace Norvane::Host
