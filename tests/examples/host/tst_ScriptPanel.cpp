#include <examples/host/BackgroundJob.h>
#include <examples/host/PictureList.h>
#include <examples/host/ScriptInterpreter.h>
#include <examples/host/ScriptPanel.h>

#include <ui/progress/ProgressManager.h>

#include <tests/support/Waiting.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolButton>

#include <memory>

using namespace Norvane::Host;

class tst_ScriptPanel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void promptAnswers_data();
    void promptAnswers();
    void examplesRun();
    void stopInterruptsScript();
    void threadsAreStopped();
    void historyIsKept();

private:
    void type(const QString& line);
    QString output() const { return panel->findChild<QPlainTextEdit*>()->toPlainText(); }

    std::unique_ptr<PictureList> pictures;
    std::unique_ptr<ScriptInterpreter> interpreter;
    std::unique_ptr<ScriptPanel> panel;
};

void tst_ScriptPanel::init()
{
    // The first one stays the tasks' manager for ever.
    static Norvane::UI::ProgressManager first;
    pictures.reset(new PictureList);
    pictures->addPicture(QString::fromUtf8("/pictures/L\xc3\xa9o.png"));
    interpreter.reset(new ScriptInterpreter(pictures.get()));
    panel.reset(new ScriptPanel(interpreter.get(), 1));
    panel->show();
}

void tst_ScriptPanel::cleanup()
{
    panel.reset();
    interpreter.reset();
    pictures.reset();
    BackgroundJob::waitForAll();
}

void tst_ScriptPanel::type(const QString& line)
{
    QLineEdit* const input = panel->findChild<QLineEdit*>();
    input->setText(line);
    QTest::keyClick(input, Qt::Key_Return);
}

void tst_ScriptPanel::promptAnswers_data()
{
    QTest::addColumn<QString>("answer");
    const auto row = [](const char* lines, const char* answer) {
        QTest::newRow(lines) << QString::fromUtf8(answer);
    };
    row("a = 6\na * 7", ">>> a * 7\n42\n");
    row("for i in range(2):\n    print(i)\n", "... \n0\n1\n");
    row("{}['x']", "KeyError: 'x'");
    row("1 +", "SyntaxError: ");
    row("raise SystemExit", "A script cannot end the program.");
    row("import norvane\nprint(norvane.pictures()[0])", "/pictures/L\xc3\xa9o.png\n");
    row("import sys\n_ = sys.stderr.write('wrong\\n')", "wrong\n");
}

void tst_ScriptPanel::promptAnswers()
{
    QFETCH(QString, answer);
    for (const QString& line : QString::fromLatin1(QTest::currentDataTag()).split(QLatin1Char('\n')))
        type(line);
    QVERIFY2(output().contains(answer), qPrintable(output()));
}

void tst_ScriptPanel::examplesRun()
{
    const QList<QAction*> examples = panel->findChild<QMenu*>()->actions();
    const char* const answers[] = {"counted to 50", "1 pictures, 0 bytes in files",
                                   "IndexError: list index out of range"};
    for (int i = 0; i < 3; ++i) {
        examples[i]->trigger();
        QVERIFY2(NorvaneTest::waitUntil([&] { return output().contains(QLatin1String(answers[i])); }),
                 qPrintable(output()));
    }
}

// From an event of the script's own, as a click is.
void tst_ScriptPanel::stopInterruptsScript()
{
    QToolButton* stop = nullptr;
    for (QToolButton* const button : panel->findChildren<QToolButton*>()) {
        if (button->text() == QLatin1String("Stop"))
            stop = button;
    }
    if (!stop)
        QFAIL("no button stops scripts");
    QVERIFY(!stop->isEnabled());
    QTimer::singleShot(0, stop, SLOT(click()));
    interpreter->run("import norvane\ntask = norvane.ProgressTask('x')\nwhile True: task.setProgress(1)\n",
                     "loop.py");
    QVERIFY2(output().contains(QLatin1String("KeyboardInterrupt")), qPrintable(output()));
    QVERIFY(!interpreter->isRunning() && !stop->isEnabled());
}

void tst_ScriptPanel::threadsAreStopped()
{
    interpreter->run("import threading, time, norvane\n"
                     "def work():\n"
                     "    while True:\n"
                     "        norvane.run_in_main_thread_with_result(len, 'x')\n"
                     "for i in range(3): threading.Thread(target=work).start()\n",
                     "threads.py");
    interpreter->finish();
    QVERIFY(!ScriptInterpreter::hasThreadsLeft());
}

void tst_ScriptPanel::historyIsKept()
{
    type("1");
    type("2");
    type("2");
    QCOMPARE(panel->layoutState(), QString::fromLatin1("1\n2"));
    panel->setLayoutState("3\n4");
    QLineEdit* const input = panel->findChild<QLineEdit*>();
    QString recalled;
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down}) {
        QTest::keyClick(input, key);
        recalled += QLatin1Char('|') + input->text();
    }
    QCOMPARE(recalled, QString::fromLatin1("|4|3|3|4|"));
}

QTEST_MAIN(tst_ScriptPanel)
#include "tst_ScriptPanel.moc"
