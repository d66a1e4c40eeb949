#include <examples/host/Arrangements.h>
#include <examples/host/LayoutStore.h>

#include <tests/support/MessageBoxCloser.h>
#include <tests/support/Waiting.h>

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>
#include <ui/docking/LayoutInspector.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QtTest>

using namespace Norvane;
using namespace Norvane::Host;

Q_DECLARE_METATYPE(Norvane::Host::Arrangement)

class tst_LayoutStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void arrangementsAreFlawless_data();
    void arrangementsAreFlawless();
    void problemsAreTold_data();
    void problemsAreTold();
    void fileIsReplacedWhole();
    void refusedFileIsLeftAlone();
    void missingFileIsTold();
    void closedNotesComeBack();
    void failedRestoreLeavesNothingBehind();

private:
    QString m_folder;
    QString m_path;
};

void tst_LayoutStore::initTestCase()
{
    m_folder = QDir::temp().filePath(
        QString::fromLatin1("tst_LayoutStore-%1").arg(QCoreApplication::applicationPid()));
    QVERIFY(QDir().mkpath(m_folder));
    m_path = QDir(m_folder).filePath(QLatin1String("a.layout"));
}

void tst_LayoutStore::cleanup()
{
    const QStringList left = QDir(m_folder).entryList(QDir::Files);
    for (const QString& name : left)
        QVERIFY(QFile::remove(QDir(m_folder).filePath(name)));
}

void tst_LayoutStore::cleanupTestCase()
{
    QVERIFY(QDir().rmdir(m_folder));
}

void tst_LayoutStore::arrangementsAreFlawless_data()
{
    QTest::addColumn<Arrangement>("arrangement");
    QTest::addColumn<int>("viewerCount");
    const char* const names[] = {"single", "side by side", "review"};
    const int viewerCounts[] = {0, 1, 2, 7};
    for (int i = kSingleArrangement; i <= kReviewArrangement; ++i) {
        for (const int viewerCount : viewerCounts) {
            const QByteArray row = QByteArray(names[i]) + ", viewers: " + QByteArray::number(viewerCount);
            QTest::newRow(row.constData()) << Arrangement(i) << viewerCount;
        }
    }
}

void tst_LayoutStore::arrangementsAreFlawless()
{
    QFETCH(Arrangement, arrangement);
    QFETCH(int, viewerCount);
    ArrangedPanels panels;
    panels.pictures = QStringList(QLatin1String("Pictures.1"));
    panels.notes = QStringList(QLatin1String("Notes.1"));
    for (int i = 1; i <= viewerCount; ++i)
        panels.viewers.append(QString::fromLatin1("Viewer.%1").arg(i));
    MainWindowPlace place;
    place.frame = QRect(10, 20, 1180, 760);
    QByteArray layout = arrangementDocument(arrangement, panels, place);
    QBuffer buffer(&layout);
    buffer.open(QIODevice::ReadOnly);
    const UI::LayoutInspector inspector(&buffer);
    QVERIFY(inspector.isRestorable());
    QVERIFY2(inspector.problems().isEmpty(), layout.constData());
    QStringList found = inspector.pageIds();
    QStringList wanted = panels.viewers + panels.pictures + panels.notes;
    found.sort();
    wanted.sort();
    QCOMPARE(found, wanted);
}

void tst_LayoutStore::problemsAreTold_data()
{
    QTest::addColumn<QByteArray>("layout");
    QTest::addColumn<bool>("isRestorable");
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("no XML") << QByteArray("hello") << false;
    QTest::newRow("another version") << QByteArray("<layout version=\"1.1\"/>") << false;
    QTest::newRow("cut short") << QByteArray("<layout version=\"1.0\"><window>") << false;
    QTest::newRow("flawed only") << QByteArray("<layout version=\"1.0\"><window x=\"a\"/></layout>") << true;
}

void tst_LayoutStore::problemsAreTold()
{
    QFETCH(QByteArray, layout);
    QFETCH(bool, isRestorable);
    QCOMPARE(LayoutStore::problemsOf(layout).isEmpty(), isRestorable);
}

void tst_LayoutStore::fileIsReplacedWhole()
{
    QString problem;
    QVERIFY(LayoutStore::write(m_path, QByteArray(100000, 'a'), &problem));
    QVERIFY(LayoutStore::write(m_path, "short", &problem));
    QByteArray layout;
    QVERIFY(LayoutStore::read(m_path, &layout, &problem));
    QCOMPARE(layout, QByteArray("short"));
    QVERIFY(problem.isEmpty());
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList(QLatin1String("a.layout")));
}

void tst_LayoutStore::refusedFileIsLeftAlone()
{
    QString problem;
    // A folder cannot be replaced by a file.
    QVERIFY(QDir().mkpath(m_path));
    QVERIFY(!LayoutStore::write(m_path, "text", &problem));
    QVERIFY(!problem.isEmpty());
    QVERIFY(QDir(m_folder).entryList(QDir::Files).isEmpty());
    QVERIFY(QDir().rmdir(m_path));
}

void tst_LayoutStore::missingFileIsTold()
{
    QByteArray layout;
    QString problem;
    QVERIFY(!LayoutStore::read(m_path, &layout, &problem));
    QVERIFY(!problem.isEmpty());
}

void tst_LayoutStore::closedNotesComeBack()
{
    QMap<QString, QString> notes;
    notes.insert(QLatin1String("Notes.1"), QLatin1String("one, \"two\"\n;three ") + QChar(0x20ac));
    notes.insert(QLatin1String("Notes.2"), QLatin1String("@x"));
    QVERIFY(LayoutStore::writeClosedNotes(m_path, notes));
    QCOMPARE(LayoutStore::readClosedNotes(m_path), notes);
    QVERIFY(LayoutStore::writeClosedNotes(m_path, QMap<QString, QString>()));
    QVERIFY(LayoutStore::readClosedNotes(m_path).isEmpty());
}

void tst_LayoutStore::failedRestoreLeavesNothingBehind()
{
    QPointer<UI::DockMainWindow> window(new UI::DockMainWindow);
    UI::Dock* const pane = window->createDock();
    window->addWidget(pane);
    QWidget* const panel = new QWidget;
    panel->setObjectName(QLatin1String("Panel.1"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    pane->addWidget(panel, true, false);
    window->addNewFloatingDock(nullptr);
    window->show();
    // Places and sizes, and which pane has the focus, are for the window manager to say.
    const auto arrangement = [&] {
        QString text = QString::fromUtf8(LayoutStore::layoutOf(window));
        for (int digit = 0; digit < 10; ++digit)
            text.remove(QString::number(digit));
        return text.remove(QLatin1Char('-')).remove(QLatin1String(" focus=\"true\""));
    };
    const QString before = arrangement();
    const QByteArray saved = LayoutStore::layoutOf(window);
    const QPointer<QWidget> oldRoot(window->centralWidget());
    const QPointer<QWidget> oldFloating(window->floatingWindows().first());

    {
        NorvaneTest::MessageBoxCloser closer;
        QVERIFY(!LayoutStore::restore(window, "<layout version=\"1.0\"><window>"));
        QCOMPARE(closer.count(), 1);
    }
    QVERIFY(!oldRoot);
    QVERIFY(!oldFloating);

    QVERIFY(LayoutStore::restore(window, saved));
    QCOMPARE(arrangement(), before);
    QVERIFY(window->close());
    WAIT_FOR(!window);
}

QTEST_MAIN(tst_LayoutStore)
#include "tst_LayoutStore.moc"
