#include <tests/support/Interpreter.h>
#include <tests/support/Waiting.h>

#include <memory>

using NorvaneTest::Interpreter;

/// What becomes of requests without an application, in the order of a process's life.
class tst_MainThreadAtExit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void beforeApplication();
    void waiterIsReleased();
    void afterApplication();
    void requestOutlivesInterpreter();

private:
    Interpreter* python = nullptr;
};

namespace {

const char kWait[] = "result = norvane.run_in_main_thread_with_result(len, 'four')\n";

} // namespace

void tst_MainThreadAtExit::beforeApplication()
{
    python = new Interpreter;
    QCOMPARE(python->run(kWait),
             QString::fromLatin1("RuntimeError: there is no application to make the call"));
}

void tst_MainThreadAtExit::waiterIsReleased()
{
    int argc = 1;
    char name[] = "program";
    char* argv[] = {name, nullptr};
    std::unique_ptr<QCoreApplication> application(new QCoreApplication(argc, argv));
    QCOMPARE(python->runOnWorker(kWait), QString::fromLatin1("4"));

    QString answer;
    std::atomic<bool> hasPosted(false);
    std::thread worker([&] {
        python->run("import sys\n"
                    "class Watched(object): pass\n"
                    "sys.watched = Watched()\n"
                    "sys.count = sys.getrefcount(sys.watched)\n"
                    "norvane.run_in_main_thread(len, sys.watched)\n");
        hasPosted = true;
        answer = python->run(kWait);
    });
    while (!hasPosted)
        std::this_thread::yield();
    application.reset();
    worker.join();
    // Either it was waiting already, or it came too late to.
    QVERIFY2(answer.startsWith(QLatin1String("RuntimeError: ")), qPrintable(answer));
    QCOMPARE(python->run("import sys\nresult = sys.getrefcount(sys.watched) - sys.count\n"),
             QString::fromLatin1("0"));
}

void tst_MainThreadAtExit::afterApplication()
{
    QCOMPARE(python->run(kWait),
             QString::fromLatin1("RuntimeError: there is no application to make the call"));
}

void tst_MainThreadAtExit::requestOutlivesInterpreter()
{
    delete python;
    python = nullptr;
    QVERIFY(!Py_IsInitialized());
}

QTEST_APPLESS_MAIN(tst_MainThreadAtExit)
#include "tst_MainThreadAtExit.moc"
