#include <tests/support/Interpreter.h>
#include <tests/support/Waiting.h>

#include <memory>

using NorvaneTest::Interpreter;

/// What becomes of requests without an application, in the order of a process's life.
class tst_MainThreadAtExit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everybodyIsAnswered();
};

void tst_MainThreadAtExit::everybodyIsAnswered()
{
    const char wait[] = "result = norvane.run_in_main_thread_with_result(len, 'four')\n";
    const QString refusal = QString::fromLatin1("RuntimeError: there is no application to make the call");
    std::unique_ptr<Interpreter> python(new Interpreter);
    QCOMPARE(python->run(wait), refusal);

    int argc = 1;
    char name[] = "program";
    char* argv[] = {name, nullptr};
    std::unique_ptr<QCoreApplication> application(new QCoreApplication(argc, argv));
    QCOMPARE(python->runOnWorker(wait), QString::fromLatin1("4"));
    QString answer;
    std::atomic<bool> hasPosted(false);
    std::thread worker([&] {
        python->run("import sys\n"
                    "class Watched(object): pass\n"
                    "sys.watched = Watched()\n"
                    "sys.count = sys.getrefcount(sys.watched)\n"
                    "norvane.run_in_main_thread(len, sys.watched)\n");
        hasPosted = true;
        answer = python->run(wait);
    });
    while (!hasPosted)
        std::this_thread::yield();
    application.reset();
    worker.join();
    // Either it was waiting already, or it came too late to.
    QVERIFY2(answer.startsWith(QLatin1String("RuntimeError: ")), qPrintable(answer));
    QCOMPARE(python->run("import sys\nresult = sys.getrefcount(sys.watched) - sys.count\n"),
             QString::fromLatin1("0"));
    QCOMPARE(python->run(wait), refusal);

    // Requests may outlive the interpreter.
    python.reset();
    QVERIFY(!Py_IsInitialized());
}

QTEST_APPLESS_MAIN(tst_MainThreadAtExit)
#include "tst_MainThreadAtExit.moc"
