#include <tests/support/GuilessMain.h>
#include <tests/support/Interpreter.h>
#include <tests/support/Waiting.h>

using NorvaneTest::Interpreter;

class tst_RunInMainThread : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answers_data();
    void answers();
    void callsRunOnMainThread();
    void postedCallsKeepTheirOrder();
    void exceptionStaysPending();
    void manyWaitAtOnce();
    void referencesAreDropped();
    void moreCallsThanEventTypes();

private:
    /// What \a script answers, on the main thread as on another one.
    QString answer(const char* script)
    {
        const QString here = python.run(script);
        const QString there = python.runOnWorker(script);
        return here == there ? here : here + QString::fromLatin1(" here, there ") + there;
    }

    Interpreter python;
};

void tst_RunInMainThread::answers_data()
{
    QTest::addColumn<QString>("expected");
    // f returns what it was given.
    const auto row = [](const char* arguments, const char* expected) {
        QTest::newRow(arguments) << QString::fromLatin1(expected);
    };
    row("f", "((), {})");
    row("f, 5", "((5,), {})");
    row("f, None", "((None,), {})");
    row("f, (1, 2)", "((1, 2), {})");
    row("f, [1, 2]", "(([1, 2],), {})");
    row("f, Pair(1, 2)", "((1, 2), {})");
    row("f, (1,), {'a': 2}", "((1,), {'a': 2})");
    row("call=f, kwargs={'a': 2}", "((), {'a': 2})");
    row("5", "TypeError: expected callable object, int found");
    row("fail", "ValueError: out of range");
    row("exit", "SystemExit: 3");
    row("f, (), {1: 2}", "TypeError: ");
    row("f, (), None", "TypeError: ");
    row("", "TypeError: ");
    row("f, unknown=1", "TypeError: ");
}

void tst_RunInMainThread::answers()
{
    QFETCH(QString, expected);
    const QByteArray script = "import collections, sys\n"
                              "class Pair(collections.namedtuple('Pair', 'left right')): pass\n"
                              "def f(*args, **kwargs): return (args, kwargs)\n"
                              "def fail(): raise ValueError('out of range')\n"
                              "def exit(): sys.exit(3)\n"
                              "result = norvane.run_in_main_thread_with_result(" +
                              QByteArray(QTest::currentDataTag()) + ")\n";
    const QString result = answer(script.constData());
    QVERIFY2(expected.endsWith(QString::fromLatin1(": ")) ? result.startsWith(expected) : result == expected,
             qPrintable(result));
}

void tst_RunInMainThread::callsRunOnMainThread()
{
    python.run("import sys, threading\n"
               "sys.mainIdent = threading.current_thread().ident\n");
    const char script[] = "import sys, threading, traceback\n"
                          "def ident(): return threading.current_thread().ident\n"
                          "answer = norvane.run_in_main_thread_with_result(ident)\n"
                          "def fails(): {}['missing']\n"
                          "try:\n"
                          "    norvane.run_in_main_thread_with_result(fails)\n"
                          "except KeyError:\n"
                          "    trace = traceback.format_exc()\n"
                          "result = (answer == sys.mainIdent, 'in fails' in trace, 'in <module>' in trace)\n";
    QCOMPARE(answer(script), QString::fromLatin1("(True, True, True)"));
}

void tst_RunInMainThread::postedCallsKeepTheirOrder()
{
    const char script[] = "order = []\n"
                          "def note(number):\n"
                          "    order.append(number)\n"
                          "    return number\n"
                          "answers = [norvane.run_in_main_thread(note, i) for i in range(1000)]\n"
                          "norvane.run_in_main_thread_with_result(note, 1000)\n"
                          "result = (order == list(range(1001)), answers == [None] * 1000)\n";
    QCOMPARE(answer(script), QString::fromLatin1("(True, True)"));
}

void tst_RunInMainThread::exceptionStaysPending()
{
    const char script[] = "import sys\n"
                          "calls = []\n"
                          "def fail(): raise ValueError('nobody waits')\n"
                          "answer = norvane.run_in_main_thread(fail)\n"
                          "norvane.run_in_main_thread(calls.append, 1)\n"
                          "calls.append(norvane.run_in_main_thread_with_result(len, 'four'))\n"
                          "result = (answer, calls)\n";
    QCOMPARE(python.runOnWorker(script), QString::fromLatin1("(None, [1, 4])"));
    QCOMPARE(python.takePending(), QString::fromLatin1("ValueError: nobody waits"));
}

// Threads of Python's own wait for the main thread, which needs the interpreter's lock as well.
void tst_RunInMainThread::manyWaitAtOnce()
{
    const char script[] = "import threading\n"
                          "sums = []\n"
                          "def work(number):\n"
                          "    for i in range(200):\n"
                          "        norvane.run_in_main_thread(int)\n"
                          "        sums.append(norvane.run_in_main_thread_with_result(pow, (number, 2)))\n"
                          "threads = [threading.Thread(target=work, args=(n,)) for n in range(8)]\n"
                          "for thread in threads: thread.start()\n"
                          "for thread in threads: thread.join()\n"
                          "result = sorted(sums) == sorted([n * n for n in range(8)] * 200)\n";
    QCOMPARE(python.runOnWorker(script), QString::fromLatin1("True"));
}

void tst_RunInMainThread::referencesAreDropped()
{
    const char script[] =
        "import sys\n"
        "class Argument(object): pass\n"
        "def take(argument, other=None): return argument\n"
        "def fail(argument): raise ValueError(argument)\n"
        "argument, args, kwargs = Argument(), (Argument(),), {'other': Argument()}\n"
        "watched = [take, fail, argument, args, kwargs, args[0], kwargs['other']]\n"
        "def counts(): return [sys.getrefcount(each) for each in watched]\n"
        "def calls(count):\n"
        "    for i in range(count):\n"
        "        norvane.run_in_main_thread(take, argument, kwargs)\n"
        "        norvane.run_in_main_thread_with_result(take, args, kwargs)\n"
        "        try: norvane.run_in_main_thread_with_result(fail, argument)\n"
        "        except ValueError: pass\n"
        "        try: norvane.run_in_main_thread(argument, args, kwargs)\n"
        "        except TypeError: pass\n"
        "    if sys.version_info[0] == 2: sys.exc_clear()\n"
        "    norvane.run_in_main_thread_with_result(int) # all requests before this one are gone\n"
        "calls(1)\n"
        "before = counts()\n"
        "calls(2500)\n"
        "result = [after - early for after, early in zip(counts(), before)]\n";
    QCOMPARE(answer(script), QString::fromLatin1("[0, 0, 0, 0, 0, 0, 0]"));
}

void tst_RunInMainThread::moreCallsThanEventTypes()
{
    QCOMPARE(python.run("for i in range(70000): norvane.run_in_main_thread(int)\n"), QString());
    QCOMPARE(python.runOnWorker("norvane.run_in_main_thread(int)\n"
                                "result = norvane.run_in_main_thread_with_result(len, 'four')\n"),
             QString::fromLatin1("4"));
}

NORVANE_GUILESS_MAIN(tst_RunInMainThread)
#include "tst_RunInMainThread.moc"
