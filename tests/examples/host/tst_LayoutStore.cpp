#include <examples/host/ArrangementFolder.h>
#include <examples/host/Arrangements.h>
#include <examples/host/LayoutHistory.h>
#include <examples/host/LayoutStore.h>

#include <tests/support/Desk.h>
#include <tests/support/MessageBoxCloser.h>

#include <ui/docking/LayoutInspector.h>

#include <QDir>
#include <QFile>

using namespace NorvaneTest;
using namespace Norvane;
using namespace Norvane::Host;

class tst_LayoutStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void arrangementsAreFlawless();
    void fileIsReplacedWhole();
    void closedNotesComeBack();
    void failedRestoreLeavesNothingBehind();
    void anyTextNamesArrangement();
    void arrangementsAreManaged();
    void problemsOfArrangementsAreTold();
    void stepsAreWalked();
    void samePlacesAreNoStep_data();
    void samePlacesAreNoStep();

private:
    // Made by the first file in it.
    const QString m_folder =
        QDir::temp().filePath(latin1("tst_LayoutStore-%1/a b").arg(QCoreApplication::applicationPid()));
    const QString m_path = QDir(m_folder).filePath(latin1("a.layout"));
    QString m_problem;
};

namespace {

/// A pane with a panel. \a attributes are the pane's, \a state is the panel's.
QByteArray layout(const QByteArray& width, const QByteArray& attributes = QByteArray(),
                  const QByteArray& state = QByteArray())
{
    return "<layout version=\"1.0\"><window x=\"0\" w=\"" + width + "\"><splitter><dock id=\"d\"" +
           attributes + "><page id=\"Viewer.1\" layout=\"" + state +
           "\"/></dock></splitter></window></layout>";
}

} // namespace

void tst_LayoutStore::cleanup()
{
    const QStringList left = QDir(m_folder).entryList(QDir::Files);
    for (const QString& name : left)
        QVERIFY(QFile::remove(QDir(m_folder).filePath(name)));
    QDir::temp().rmpath(m_folder);
    m_problem.clear();
}

void tst_LayoutStore::arrangementsAreFlawless()
{
    for (int arrangement = kSingleArrangement; arrangement <= kReviewArrangement; ++arrangement) {
        for (const int viewerCount : {0, 1, 2, 7}) {
            ArrangedPanels panels;
            panels.pictures = QStringList(latin1("Pictures.1"));
            panels.notes = QStringList(latin1("Notes.1"));
            for (int i = 1; i <= viewerCount; ++i)
                panels.viewers.append(latin1("Viewer.%1").arg(i));
            MainWindowPlace place;
            place.frame = QRect(10, 20, 1180, 760);
            QByteArray layout = arrangementDocument(Arrangement(arrangement), panels, place);
            QBuffer buffer(&layout);
            buffer.open(QIODevice::ReadOnly);
            const UI::LayoutInspector inspector(&buffer);
            QVERIFY2(inspector.isRestorable() && inspector.problems().isEmpty(), layout.constData());
            QStringList found = inspector.pageIds();
            QStringList wanted = panels.viewers + panels.pictures + panels.notes;
            found.sort();
            wanted.sort();
            QCOMPARE(found, wanted);
        }
    }
}

void tst_LayoutStore::fileIsReplacedWhole()
{
    QVERIFY(LayoutStore::write(m_path, QByteArray(100000, 'a'), &m_problem));
    QVERIFY(LayoutStore::write(m_path, "short", &m_problem));
    QByteArray layout;
    QVERIFY(LayoutStore::read(m_path, &layout, &m_problem));
    QCOMPARE(layout, QByteArray("short"));
    QVERIFY(m_problem.isEmpty());
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList(latin1("a.layout")));
    // A folder cannot be replaced by a file.
    QVERIFY(QFile::remove(m_path) && QDir().mkpath(m_path));
    QVERIFY(!LayoutStore::write(m_path, "text", &m_problem));
    QVERIFY(!m_problem.isEmpty());
    QVERIFY(QDir(m_folder).entryList(QDir::Files).isEmpty());
    QVERIFY(QDir().rmdir(m_path));
}

void tst_LayoutStore::closedNotesComeBack()
{
    QMap<QString, QString> notes;
    notes.insert(latin1("Notes.1"), latin1("one, \"two\"\n;three ") + QChar(0x20ac));
    notes.insert(latin1("Notes.2"), latin1("@x"));
    QVERIFY(LayoutStore::writeClosedNotes(m_path, notes));
    QCOMPARE(LayoutStore::readClosedNotes(m_path), notes);
    QVERIFY(LayoutStore::writeClosedNotes(m_path, QMap<QString, QString>()));
    QVERIFY(LayoutStore::readClosedNotes(m_path).isEmpty());
}

void tst_LayoutStore::failedRestoreLeavesNothingBehind()
{
    Desk desk;
    desk.pane("A B");
    desk.floatingPane("C");
    const QString before = desk.trees();
    const QByteArray saved = LayoutStore::layoutOf(desk.window);
    const QPointer<QWidget> oldRoot(desk.window->centralWidget());
    const QPointer<QWidget> oldFloating(desk.window->floatingWindows().first());
    {
        MessageBoxCloser closer;
        QVERIFY(!LayoutStore::restore(desk.window, "<layout version=\"1.0\"><window>"));
        QCOMPARE(closer.count(), 1);
    }
    QVERIFY(!oldRoot && !oldFloating);
    QVERIFY(LayoutStore::restore(desk.window, saved));
    QCOMPARE(desk.trees(), before);
}

void tst_LayoutStore::anyTextNamesArrangement()
{
    const QStringList names = QStringList()
                              << latin1("My two screens") << latin1("../a/b\\c") << latin1(".x")
                              << latin1("100%25") << latin1("<a>&\"'*?|:;,=[]\n\t") << latin1("a.layout")
                              << QString::fromUtf8("\xc3\xbc \xe4\xbd\xa0 \xd7\xa9 \xf0\x9f\x98\x80");
    ArrangementFolder folder(m_folder);
    for (const QString& name : names)
        QVERIFY2(folder.write(name, name.toUtf8(), &m_problem), qPrintable(m_problem));
    QCOMPARE(ArrangementFolder(m_folder).names(), names);
    for (const QString& name : names) {
        QByteArray bytes;
        QVERIFY(folder.read(name, &bytes, &m_problem));
        QCOMPARE(bytes, name.toUtf8());
    }
}

void tst_LayoutStore::arrangementsAreManaged()
{
    const QString a = latin1("a");
    const QString b = latin1("b");
    const QString c = latin1("c");
    ArrangementFolder folder(m_folder);
    QVERIFY(folder.names().isEmpty());
    for (const QString& name : {c, a, c})
        QVERIFY(folder.write(name, name.toLatin1(), &m_problem));
    QCOMPARE(folder.names(), QStringList() << c << a);
    QVERIFY(folder.rename(c, b, &m_problem));
    QCOMPARE(folder.names(), QStringList() << b << a);
    QVERIFY(!folder.contains(c));
    QByteArray bytes;
    QVERIFY(folder.read(b, &bytes, &m_problem));
    QCOMPARE(bytes, QByteArray("c"));
    QVERIFY(folder.remove(b, &m_problem));
    QCOMPARE(folder.names(), QStringList(a));
    QVERIFY(m_problem.isEmpty());
}

void tst_LayoutStore::problemsOfArrangementsAreTold()
{
    const QString a = latin1("a");
    const QString b = latin1("b");
    ArrangementFolder folder(m_folder);
    const auto isTold = [this](bool done) {
        const bool told = !done && !m_problem.isEmpty();
        m_problem.clear();
        return told;
    };
    QByteArray bytes;
    QVERIFY(isTold(folder.read(a, &bytes, &m_problem)));
    QVERIFY(isTold(folder.remove(a, &m_problem)));
    QVERIFY(isTold(folder.rename(a, b, &m_problem)));
    QVERIFY(folder.write(a, "1", &m_problem) && folder.write(b, "2", &m_problem));
    QVERIFY(isTold(folder.rename(a, b, &m_problem)));
    QVERIFY(isTold(folder.write(QString(300, QLatin1Char('x')), "3", &m_problem)));
    QCOMPARE(folder.names(), QStringList() << a << b);
    QVERIFY(folder.read(b, &bytes, &m_problem));
    QCOMPARE(bytes, QByteArray("2"));
}

void tst_LayoutStore::stepsAreWalked()
{
    LayoutHistory history(3);
    QVERIFY(history.undo().isEmpty());
    // The first one is forgotten.
    for (const char* width : {"0", "1", "2", "3"})
        history.record(layout(width));
    QVERIFY(!history.canRedo());
    QCOMPARE(history.undo(), layout("2"));
    QCOMPARE(history.undo(), layout("1"));
    QVERIFY(!history.canUndo());
    QVERIFY(history.undo().isEmpty());
    QCOMPARE(history.redo(), layout("2"));
    QVERIFY(history.canRedo());
    history.record(layout("4"));
    QVERIFY(!history.canRedo());
    QVERIFY(history.redo().isEmpty());
    QCOMPARE(history.undo(), layout("2"));
}

void tst_LayoutStore::samePlacesAreNoStep_data()
{
    QTest::addColumn<QByteArray>("changed");
    QTest::addColumn<bool>("isStep");
    QTest::addColumn<bool>("isStepWhileSettling");
    QTest::newRow("the same") << layout("1") << false << false;
    QTest::newRow("a panel's state") << layout("1", "", "fit|a") << false << false;
    QTest::newRow("tab in front") << layout("1", " activePageId=\"Viewer.1\" focus=\"true\"") << false
                                  << false;
    QTest::newRow("title of a lone panel") << layout("1", " hideTitles=\"1\"") << false << false;
    QTest::newRow("size") << layout("2") << true << false;
    QTest::newRow("panel") << layout("1").replace("Viewer.1", "Viewer.2") << true << true;
    QTest::newRow("splitter") << layout("1").replace("<splitter", "<splitter orientation=\"1\"") << true
                              << true;
}

void tst_LayoutStore::samePlacesAreNoStep()
{
    QFETCH(QByteArray, changed);
    LayoutHistory history;
    LayoutHistory settling;
    for (LayoutHistory* const each : {&history, &settling}) {
        each->record(layout("1"));
        each->record(layout("9"));
        QCOMPARE(each->undo(), layout("1"));
    }
    history.record(changed);
    QTEST(history.canUndo(), "isStep");
    QCOMPARE(history.canRedo(), !history.canUndo());
    settling.settle(changed);
    QTEST(settling.canUndo(), "isStepWhileSettling");
    // What is no step is remembered all the same.
    settling.record(layout("8"));
    QCOMPARE(settling.undo(), changed);
}

QTEST_MAIN(tst_LayoutStore)
#include "tst_LayoutStore.moc"
