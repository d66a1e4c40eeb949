#include <examples/host/ArrangementFolder.h>
#include <examples/host/ArrangementMenu.h>
#include <examples/host/CommandLine.h>
#include <examples/host/FactsTable.h>
#include <examples/host/HostWindow.h>
#include <examples/host/LayoutStore.h>
#include <examples/host/NotesPanel.h>
#include <examples/host/ScriptPanel.h>
#include <examples/host/ViewerPanel.h>

#include <ui/progress/DialogProgressManager.h>
#include <ui/progress/ProgressDialog.h>
#include <ui/progress/ProgressTask.h>

#include <tests/support/Desk.h>
#include <tests/support/MessageBoxCloser.h>

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSettings>

using namespace NorvaneTest;
using namespace Norvane;
using namespace Norvane::Host;

class tst_HostArrangements : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init() { open(QString()); }
    void cleanup();
    void cleanupTestCase();
    void switchIsUndone();
    void closedViewerComesBack();
    void ownArrangementIsShown();
    void newPanelJoinsItsNeighbours_data();
    void newPanelJoinsItsNeighbours();
    void panelsFollowTheFocusedViewer();
    void scriptIsRunInItsPanel();
    void tasksAreAWindowOrAPanel();

private:
    /// A window with two pictures, in the arrangement that is the first one.
    void open(const QString& script);
    /// Gives the menu an arrangement of the user's own.
    void addOwn(const QString& name, const QByteArray& layout);
    /// The entry of any menu with this text, mnemonic and all.
    QAction* entry(const char* text) const;
    /// The panes of the main window.
    QString panes() const { return tree(m_window->rootSplitter()); }

    UI::DialogProgressManager m_progress;
    QString m_folder;
    QPointer<HostWindow> m_window;
};

void tst_HostArrangements::initTestCase()
{
    m_folder = QDir::temp().filePath(
        QString::fromLatin1("tst_HostArrangements-%1").arg(QCoreApplication::applicationPid()));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder);
    QCoreApplication::setOrganizationName(latin1("Norvane"));
    QCoreApplication::setApplicationName(latin1("norvane-host"));
}

void tst_HostArrangements::open(const QString& script)
{
    m_window = new HostWindow(&m_progress);
    CommandLine commandLine;
    commandLine.fresh = true;
    commandLine.scriptPath = script;
    for (const char* const name : {"Dunes.png", "StillLife.png"})
        commandLine.pictures.append(QDir(latin1(NORVANE_SAMPLES)).filePath(latin1(name)));
    m_window->start(commandLine);
}

void tst_HostArrangements::cleanup()
{
    m_window->close();
    WAIT_FOR(!m_window);
}

void tst_HostArrangements::cleanupTestCase()
{
    const QString folders[] = {ArrangementFolder::defaultPath(), QFileInfo(QSettings().fileName()).path()};
    for (const QString& folder : folders) {
        const QStringList files = QDir(folder).entryList(QDir::Files);
        for (const QString& file : files)
            QVERIFY(QDir(folder).remove(file));
        QVERIFY(QDir().rmdir(folder));
    }
    QDir().rmdir(m_folder);
}

void tst_HostArrangements::addOwn(const QString& name, const QByteArray& layout)
{
    QString problem;
    QVERIFY(ArrangementFolder(ArrangementFolder::defaultPath()).write(name, layout, &problem));
    QVERIFY(QMetaObject::invokeMethod(m_window->findChild<ArrangementMenu*>(), "refresh"));
}

QAction* tst_HostArrangements::entry(const char* text) const
{
    const QList<QAction*> entries = m_window->findChildren<QAction*>();
    for (QAction* const action : entries) {
        if (action->text() == latin1(text))
            return action;
    }
    return nullptr;
}

void tst_HostArrangements::switchIsUndone()
{
    QAction* const undo = entry("&Undo");
    QAction* const redo = entry("Re&do");
    NotesPanel* const notes = m_window->findChild<NotesPanel*>();
    const QString sideBySide = panes();
    QVERIFY(!undo->isEnabled() && !redo->isEnabled());

    entry("&Single")->trigger();
    WAIT_FOR(undo->isEnabled());
    const QString single = panes();
    QVERIFY(single != sideBySide);
    notes->setPlainText(latin1("typed since"));
    entry("&Review")->trigger();
    // At once: the switch is a step by itself.
    undo->trigger();
    QCOMPARE(panes(), single);
    undo->trigger();
    QCOMPARE(panes(), sideBySide);
    QVERIFY(!undo->isEnabled());
    QCOMPARE(notes->toPlainText(), latin1("typed since"));

    redo->trigger();
    QCOMPARE(panes(), single);
    redo->trigger();
    QCOMPARE(int(m_window->floatingWindows().size()), 1);
    QVERIFY(!redo->isEnabled());
    QCOMPARE(int(m_window->findChildren<NotesPanel*>().size()), 1);
    QCOMPARE(notes->toPlainText(), latin1("typed since"));
}

void tst_HostArrangements::closedViewerComesBack()
{
    QAction* const undo = entry("&Undo");
    QPointer<ViewerPanel> viewer = m_window->focusedViewer();
    const QString id = viewer->objectName();
    // It travels through a document.
    const QString state = latin1("2.5 40 30|/no/such/<A> & \"B\".png");
    viewer->setLayoutState(state);
    const QString before = panes();
    Dock::dockForWidget(viewer)->closeActiveTab();
    WAIT_FOR(!viewer && undo->isEnabled());
    QVERIFY(panes() != before);
    undo->trigger();
    QCOMPARE(panes(), before);
    QCOMPARE(m_window->findDockByName(id, true, false)->currentWidget()->property("layoutState").toString(),
             state);
}

void tst_HostArrangements::ownArrangementIsShown()
{
    entry("&Single")->trigger();
    const QString single = panes();
    addOwn(latin1("A & B"), LayoutStore::layoutOf(m_window));
    entry("Side &by Side")->trigger();
    entry("New &Viewer")->trigger();
    QCOMPARE(entry("A && B")->shortcut(), QKeySequence(latin1("Ctrl+4")));
    entry("A && B")->trigger();
    const Dock* const pane = m_window->findDockByName(latin1("Viewer.3"), true, false);
    QVERIFY(pane);
    QCOMPARE(pane->objectName(), latin1("pane.viewers"));
    QCOMPARE(panes().remove(latin1(" Viewer 3/Viewer.3")), single);

    addOwn(latin1("Broken"), "<layout version=\"1.0\">\n<window>");
    const QString before = panes();
    MessageBoxCloser closer;
    entry("Broken")->trigger();
    QCOMPARE(closer.count(), 1);
    QVERIFY2(closer.lastText().contains(latin1("\"Broken\"")), qPrintable(closer.lastText()));
    QVERIFY2(closer.lastText().contains(latin1("2")), qPrintable(closer.lastText()));
    QCOMPARE(panes(), before);
}

void tst_HostArrangements::newPanelJoinsItsNeighbours_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("neighbour");
    // The keyboard is in the first viewer: where the user is, beside the viewer, not before the viewer, and
    // where lines have room.
    QTest::newRow("New &Pictures") << "Pictures.2"
                                   << "Viewer.1";
    QTest::newRow("New &Viewer") << "Viewer.3"
                                 << "Viewer.1";
    QTest::newRow("New Contro&ls") << "Controls.1"
                                   << "Pictures.1";
    QTest::newRow("New &Script") << "Script.1"
                                 << "Notes.1";
}

void tst_HostArrangements::newPanelJoinsItsNeighbours()
{
    QFETCH(QString, id);
    QFETCH(QString, neighbour);
    WAIT_FOR(m_window->windowTitle().startsWith(latin1("Dunes.png")));
    entry(QTest::currentDataTag())->trigger();
    const Dock* const pane = m_window->findDockByName(neighbour, true, false);
    QCOMPARE(m_window->findDockByName(id, true, false), pane);
    QCOMPARE(pane->currentWidget()->objectName(), id);
}

void tst_HostArrangements::panelsFollowTheFocusedViewer()
{
    entry("New &Inspector")->trigger();
    const QLabel* const facts = m_window->findChild<FactsTable*>()->findChildren<QLabel*>()[1];
    for (const char* const name : {"Dunes.png", "StillLife.png"}) {
        const QList<ViewerPanel*> viewers = m_window->findChildren<ViewerPanel*>();
        for (ViewerPanel* const viewer : viewers) {
            if (viewer->windowTitle() == latin1(name))
                viewer->setFocus();
        }
        WAIT_FOR(m_window->windowTitle().startsWith(latin1(name)));
        QVERIFY(facts->text().startsWith(latin1(name)));
    }
}

void tst_HostArrangements::scriptIsRunInItsPanel()
{
    cleanup();
    const QString script = latin1("/no/such/script.py");
    open(script);
    QVERIFY(m_window->findDockByName(latin1("Script.1"), true, false));
    const QPlainTextEdit* const output = m_window->findChild<ScriptPanel*>()->findChild<QPlainTextEdit*>();
    WAIT_FOR(output->toPlainText().contains(QDir::toNativeSeparators(script)));
    entry("&Single")->trigger();
    QVERIFY(m_window->findDockByName(latin1("Script.1"), true, false));
}

void tst_HostArrangements::tasksAreAWindowOrAPanel()
{
    QAction* const undo = entry("&Undo");
    const QPointer<QWidget> tasks = m_window->findChild<UI::ProgressDialog*>();
    QVERIFY(tasks->isWindow() && !tasks->isVisible());
    entry("&Show Tasks")->trigger();
    QVERIFY(!tasks->isWindow() && tasks->isVisible());
    QCOMPARE(Dock::dockForWidget(tasks)->currentWidget(), tasks.data());
    WAIT_FOR(undo->isEnabled());

    undo->trigger();
    WAIT_FOR(tasks && tasks->isWindow() && !tasks->isVisible());
    entry("Re&do")->trigger();
    QVERIFY(Dock::dockForWidget(tasks));
    Dock::dockForWidget(tasks)->closeActiveTab();
    WAIT_FOR(tasks && tasks->isWindow());
    // It is a window again for the next task.
    const UI::ProgressTask task(latin1("Long"), 10, 0);
    WAIT_FOR(tasks->isVisible());
}

QTEST_MAIN(tst_HostArrangements)
#include "tst_HostArrangements.moc"
