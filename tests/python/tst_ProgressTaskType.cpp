#include <ui/progress/ProgressManager.h>
#include <ui/progress/ProgressTask.h>
#include <ui/progress/TaskPrivate.h>

#include <tests/support/GuilessMain.h>
#include <tests/support/Interpreter.h>
#include <tests/support/Waiting.h>

using namespace Norvane::UI;
using NorvaneTest::Interpreter;

class tst_ProgressTaskType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void results_data();
    void results();
    void taskIsListedUntilFreed();
    void mainThreadProcessesEvents();
    void threadsReport();

private:
    ProgressManager manager;
    Interpreter python;
};

void tst_ProgressTaskType::results_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* expression, const char* expected) {
        QTest::newRow(expression) << QString::fromLatin1(expression) << QString::fromLatin1(expected);
    };
    row("[Task.kDelayedPopup, Task.kUserCanCancel, Task.kShowTimeToGo, Task.kKeepWhenFinished]",
        "[1, 2, 4, 8]");
    row("[Task.kDisable, Task.kModal, Task.kUserCanPause]", "[16, 32, 64]");
    row("(Task.__name__, Task.__doc__)", "('ProgressTask', 'ProgressTask')");
    row("Task('x').setProgress(5)", "None");
    row("Task('x').isCancelled()", "False");

    row("Task()", "TypeError: ");
    row("Task('x', 'y')", "TypeError: ");
    row("Task(name='x')", "TypeError: ProgressTask() takes no keyword arguments");
    row("Task('x').setProgress('y')", "TypeError: ");
    row("Task('x').setProgress(2 ** 40)", "OverflowError: ");
    row("Task('x').setMessage()", "TypeError: ");
    row("type('Sub', (Task,), {})", "TypeError: ");
}

void tst_ProgressTaskType::results()
{
    QFETCH(QString, expression);
    QFETCH(QString, expected);
    const QByteArray script = "Task = norvane.ProgressTask\nresult = " + expression.toLatin1() + "\n";
    const QString result = python.run(script.constData());
    QVERIFY2(expected.endsWith(QLatin1String(": ")) ? result.startsWith(expected) : result == expected,
             qPrintable(result));
    python.run("import gc\ngc.collect()\n");
}

void tst_ProgressTaskType::taskIsListedUntilFreed()
{
    // A name that is no text in every encoding.
    python.run("norvane.kept = norvane.ProgressTask('L\\xc3\\xa9o', 7)\n");
    const QExplicitlySharedDataPointer<TaskPrivate> task(manager.tasks().last());
    // In Python 3 the escapes are letters of the name, in Python 2 they are its bytes, which are Latin-1.
    QCOMPARE(task->name, QString::fromLatin1("L\xc3\xa9o"));
    QCOMPARE(int(task->maximum), 7);
    QCOMPARE(int(task->flags), int(ProgressTask::kUserCanCancel | ProgressTask::kShowTimeToGo));
    python.run("norvane.kept.setMessage('L\\xe9o')\nnorvane.kept.setProgress(3)\n");
    QCOMPARE(task->message(), QString::fromLatin1("L\xe9o"));
    QCOMPARE(int(task->progress), 3);
    task->cancelled = true;
    QCOMPARE(python.run("result = norvane.kept.isCancelled()\n"), QString::fromLatin1("True"));
    QVERIFY(!task->finished);
    python.run("norvane.kept = norvane.ProgressTask('x', 10, norvane.ProgressTask.kModal)\n");
    QVERIFY(task->finished);
    QCOMPARE(int(manager.tasks().last()->flags), int(ProgressTask::kModal));
    python.run("del norvane.kept\n");
}

// What a posted call leaves behind is reported and does not end the script.
void tst_ProgressTaskType::mainThreadProcessesEvents()
{
    const char script[] = "import sys, threading\n"
                          "class Lines(list):\n"
                          "    def write(self, text): self.append(text)\n"
                          "    def flush(self): pass\n"
                          "calls = []\n"
                          "def fail(): raise ValueError('nobody waits')\n"
                          "def post():\n"
                          "    norvane.run_in_main_thread(calls.append, 1)\n"
                          "    norvane.run_in_main_thread(fail)\n"
                          "lines = Lines()\n"
                          "sys.stderr = lines\n"
                          "task = norvane.ProgressTask('x')\n"
                          "for setter, value in ((task.setProgress, 1), (task.setMessage, 'y')):\n"
                          "    thread = threading.Thread(target=post)\n"
                          "    thread.start()\n"
                          "    thread.join()\n"
                          "    setter(value)\n"
                          "sys.stderr = sys.__stderr__\n"
                          "result = (calls, ''.join(lines).count('nobody waits'))\n";
    QCOMPARE(python.run(script), QString::fromLatin1("([1, 1], 2)"));
    QCOMPARE(python.takePending(), QString());
}

void tst_ProgressTaskType::threadsReport()
{
    const char script[] = "import threading\n"
                          "def work():\n"
                          "    for i in range(50):\n"
                          "        task = norvane.ProgressTask('task', 10)\n"
                          "        for step in range(10):\n"
                          "            task.setProgress(step)\n"
                          "            task.setMessage('step %d' % step)\n"
                          "threads = [threading.Thread(target=work) for n in range(8)]\n"
                          "for thread in threads: thread.start()\n"
                          "for thread in threads: thread.join()\n"
                          "result = 'done'\n";
    const int before = manager.tasksCount();
    QCOMPARE(python.runOnWorker(script), QString::fromLatin1("done"));
    QCOMPARE(manager.tasksCount(), before + 400);
    for (const TaskPrivate* const task : manager.tasks())
        QVERIFY(task->finished);
}

NORVANE_GUILESS_MAIN(tst_ProgressTaskType)
#include "tst_ProgressTaskType.moc"
