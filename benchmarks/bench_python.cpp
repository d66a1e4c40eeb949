// What it costs a script's thread to have a function called on the main thread and get its result, beside
// what Qt's own blocking call costs.

#include <python/PythonVersion.h>

#include <python/RunInMainThread.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QObject>

#include <thread>

namespace {

/// An object of the main thread.
class Answerer : public QObject
{
    Q_OBJECT
public Q_SLOTS:
    int answer() { return 0; }
};

Answerer* answerer = nullptr;

void qtRoundTrip(benchmark::State& state)
{
    int result = 0;
    for (auto unused : state) {
        (void)unused;
        QMetaObject::invokeMethod(answerer, "answer", Qt::BlockingQueuedConnection,
                                  Q_RETURN_ARG(int, result));
    }
}
BENCHMARK(qtRoundTrip)->UseRealTime();

void pythonRoundTrip(benchmark::State& state)
{
    const PyGILState_STATE lock = PyGILState_Ensure();
    PyObject* const args = PyTuple_Pack(1, reinterpret_cast<PyObject*>(&PyLong_Type));
    for (auto unused : state) {
        (void)unused;
        PyObject* const result = Norvane::UI::run_in_main_thread_with_result(nullptr, args, nullptr);
        if (!result) {
            state.SkipWithError("no result");
            PyErr_Clear();
            break;
        }
        Py_DECREF(result);
    }
    Py_DECREF(args);
    PyGILState_Release(lock);
}
BENCHMARK(pythonRoundTrip)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    Answerer mainThreadObject;
    answerer = &mainThreadObject;
    Py_InitializeEx(0);
    Norvane::UI::initializePythonThreads();
    PyThreadState* const mainState = PyEval_SaveThread();

    benchmark::Initialize(&argc, argv);
    std::thread script([] {
        benchmark::RunSpecifiedBenchmarks();
        QMetaObject::invokeMethod(QCoreApplication::instance(), "quit", Qt::QueuedConnection);
    });
    const int status = QCoreApplication::exec();
    script.join();
    PyEval_RestoreThread(mainState);
    Py_Finalize();
    return status;
}

#include "bench_python.moc"
