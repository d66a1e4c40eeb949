#include <tests/support/Desk.h>
#include <tests/support/LayoutDocuments.h>
#include <tests/support/MessageBoxCloser.h>
#include <ui/toolkit/Screens.h>

using namespace NorvaneTest;
using namespace NorvaneTest::LayoutDocuments;
namespace Screens = Norvane::UI::Screens;

class tst_LayoutReader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void documentIsRestored_data();
    void documentIsRestored();
    void pagesComeFromHost();
    void sizesAndStretchAreRestored();
    void windowOfMissingScreenIsPlaced_data();
    void windowOfMissingScreenIsPlaced();
    void mainWindowFillsScreen();
    void mainWindowLeavesFullscreen();
    void brokenDocumentIsReported_data();
    void brokenDocumentIsReported();
};

void tst_LayoutReader::documentIsRestored_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("trees");
    const QByteArray two = pane("p1", "A") + pane("p2", "B");
    QTest::newRow("no windows") << layout("") << latin1("V()");
    QTest::newRow("unknown elements, comments and text")
        << layout("<x><window/></x>" + window("text<!-- c --><x>" + splitter(two) + "</x>" +
                                              splitter("<x><x/><dock/></x>text" + two + "<?x y?>")))
        << latin1("H(*A, *B)");
    QTest::newRow("elements inside a page")
        << inPane("<page id='A'><page id='B'/></page><page id='C'/>") << latin1("H(*A C)");
    QTest::newRow("pane outside windows")
        << layout("<dock><page id='A'/></dock>" + window(splitter(two))) << latin1("H(*A, *B)");
    QTest::newRow("too many split elements")
        << inWindow(splitter("<dock/><split size='5' stretch='1'/><split size='5' stretch='1'/>"))
        << latin1("H(-)");
    QTest::newRow("no numbers")
        << QByteArray("<layout version='1.0'><window x='a'><splitter><dock/></splitter></window></layout>")
        << latin1("V(-)");
    QTest::newRow("two splitters in a window")
        << inWindow(splitter(pane("p1", "A")) + splitter(pane("p2", "B"))) << latin1("H(*A, *B)");
    QTest::newRow("the active page is not there")
        << inWindow(splitter("<dock activePageId='C'><page id='A'/><page id='B'/></dock>"))
        << latin1("H(*A B)");
}

void tst_LayoutReader::documentIsRestored()
{
    QFETCH(QByteArray, document);
    Desk desk;
    desk.pane("old");
    const QPointer<DockWindow> oldWindow(desk.window->addNewFloatingDock(nullptr));
    const QPointer<QWidget> oldRoot(desk.window->centralWidget());
    QVERIFY(desk.restore(document));
    QTEST(desk.trees(), "trees");
    QVERIFY(!oldWindow);
    WAIT_FOR(!oldRoot);
    for (const DockWindow* const window : desk.window->floatingWindows())
        QVERIFY(window->snapEnabled());
}

namespace {

/// A desk that does not know the page "none" and calls the page "old" "new".
class ChoosyDesk : public Desk
{
    QWidget* page(QString& id) override
    {
        if (id == latin1("none"))
            return nullptr;
        if (id == latin1("old"))
            id = latin1("new");
        return panel(id);
    }
};

} // namespace

void tst_LayoutReader::pagesComeFromHost()
{
    ChoosyDesk desk;
    QVERIFY(desk.restore(inPane("<page id='A' layout='x'/><page id='none'/><page id='old'/>")));
    Dock* const dock = desk.window->docks().first();
    QCOMPARE(tabs(dock), latin1("*A new"));
    QCOMPARE(dock->paneIDs().join(latin1(" ")), latin1("A new"));
    QVERIFY(desk.window->isInLayout(latin1("new")) && !desk.window->isInLayout(latin1("old")));
    // The panel does not declare the property.
    QVERIFY(!dock->widget(0)->property("layoutState").isValid());
    QVERIFY(!desk.save().contains("layout="));
}

void tst_LayoutReader::sizesAndStretchAreRestored()
{
    Desk desk;
    QVERIFY(desk.restore(
        inWindow(splitter("<split size='100' stretch='x'/><dock/><split size='300' stretch='2'/><dock/>"
                          "<split size='200'/><dock/>"))));
    const DockSplitter* const root = desk.window->rootSplitter();
    const int rest = root->width() - 2 * root->handleWidth() - 300;
    QCOMPARE(root->sizes(), QList<int>() << 100 << rest << 200);
    desk.window->resize(desk.window->width() + 300, desk.window->height());
    WAIT_FOR(root->sizes() == QList<int>() << 100 << rest + 300 << 200);
}

void tst_LayoutReader::windowOfMissingScreenIsPlaced_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QRect>("frame");
    const QRect last = Screens::availableGeometry(Screens::count() - 1);
    QTest::newRow("out of sight") << QByteArray("x='9000' y='80' w='400' h='300'")
                                  << QRect(last.right() - 399, last.top() + 80, 400, 300);
    QTest::newRow("full-screen") << QByteArray("x='9' y='9' w='9' h='9' fullscreen='1'")
                                 << QRect(last.left() + last.width() / 6, last.top() + last.height() / 6,
                                          2 * last.width() / 3, 2 * last.height() / 3);
}

void tst_LayoutReader::windowOfMissingScreenIsPlaced()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QRect, frame);
    Desk desk;
    QVERIFY(desk.restore(layout(window("") + "<window screen='9' " + attributes + "/>")));
    const DockWindow* const floating = desk.window->floatingWindows().first();
    QVERIFY(floating->isVisible() && !floating->isFullScreen());
    WAIT_FOR(floating->frameSize() != floating->size() && floating->frameGeometry() == frame);
}

void tst_LayoutReader::mainWindowFillsScreen()
{
    Desk desk;
    QVERIFY(desk.restore(layout(window("") + window("")), true));
    WAIT_FOR(desk.window->frameGeometry() == Screens::availableGeometry(0));
    QVERIFY(desk.window->floatingWindows().first()->frameGeometry() != desk.window->frameGeometry());
}

void tst_LayoutReader::mainWindowLeavesFullscreen()
{
    Desk desk;
    const DockMainWindow* const window = desk.window;
    QVERIFY(desk.show());
    WAIT_FOR(window->frameSize() != window->size());
    const QByteArray saved = desk.save();
    const QRect frame = window->frameGeometry();
    desk.window->setWindowState(Qt::WindowFullScreen);
    WAIT_FOR(window->frameSize() == window->size() && window->width() > frame.width());
    QVERIFY(desk.restore(saved));
    WAIT_FOR(window->frameSize() != window->size() && window->frameGeometry() == frame);
    QVERIFY(!window->isFullScreen());
}

void tst_LayoutReader::brokenDocumentIsReported_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("looksValid");
    QTest::addColumn<QString>("text");
    const QString version = latin1("\nThe file is not a Norvane panel layout version 1.0 file.");
    QTest::newRow("other version") << QByteArray("\n<layout version='1.1'/>") << false
                                   << latin1("2, column 23:") + version;
    QTest::newRow("other root") << QByteArray("<x version='1.0'><layout version='1.0'/></x>") << false
                                << latin1("1, column 17:") + version;
    QTest::newRow("nested too deeply")
        << nestedSplitters(129) << true << latin1("260, column 26:\nThe layout is nested too deeply.");
    QTest::newRow("cut off") << QByteArray("<layout version='1.0' x='y'><") << true << latin1("1, column ");
    QTest::newRow("empty") << QByteArray() << false << latin1("1, column 0:\n");
}

void tst_LayoutReader::brokenDocumentIsReported()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, looksValid);
    QFETCH(QString, text);
    Desk desk;
    MessageBoxCloser closer;
    QVERIFY(!desk.restore(document));
    QCOMPARE(closer.count(), 1);
    QCOMPARE(closer.lastTitle(), latin1("Dock Layout"));
    const QString start = latin1("Parse error at line ") + text;
    QCOMPARE(closer.lastText().left(start.size()), start);
    QVERIFY(closer.lastText().size() > start.size() || start.endsWith(QLatin1Char('.')));

    QBuffer buffer(&document);
    QVERIFY(!desk.window->restoreLayout(&buffer, false));
    QCOMPARE(closer.count(), 2);
    QVERIFY(!DockMainWindow::IsLayoutValid(&buffer) && !DockMainWindow::IsLayoutValid(nullptr));
    buffer.open(QIODevice::ReadOnly);
    QCOMPARE(DockMainWindow::IsLayoutValid(&buffer), looksValid);
}

QTEST_MAIN(tst_LayoutReader)
#include "tst_LayoutReader.moc"
