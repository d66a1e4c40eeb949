#include <tests/support/Desk.h>
#include <tests/support/LayoutDocuments.h>
#include <ui/docking/DockPlaceHolder.h>
#include <ui/toolkit/Screens.h>

using namespace NorvaneTest;
using Norvane::UI::DockPlaceHolder;
namespace Screens = Norvane::UI::Screens;

class tst_LayoutWriter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void writesWhatWasRead();
    void focusIsMarked_data();
    void focusIsMarked();
    void sameBytesAfterRestoring_data();
    void sameBytesAfterRestoring();
    void stateSurvives_data();
    void stateSurvives();
};

namespace {

/// A desk whose restored pages are placeholders, which keep the state of their panels.
class BareDesk : public Desk
{
    QWidget* page(QString& id) override { return window->DockMainWindow::createPage(id); }
};

/// The lines of \a document without their indentation; sizes are whatever the windows have made of them.
QStringList linesOf(const QByteArray& document)
{
    QStringList lines;
    for (const QString& line : QString::fromUtf8(document).split(QLatin1Char('\n'))) {
        QStringList words = line.trimmed().split(QLatin1Char(' '));
        if (words[0] == latin1("<split"))
            words[1] = words[1].endsWith(latin1("/>")) ? latin1("size/>") : latin1("size");
        lines.append(words.join(latin1(" ")));
    }
    return lines;
}

} // namespace

void tst_LayoutWriter::writesWhatWasRead()
{
    BareDesk desk;
    const QByteArray document = LayoutDocuments::twoWindows();
    QVERIFY(desk.restore(document));
    QWidget* const focused = desk.window->docks().first()->widget(0);
    waitUntil([&] { return linesOf(desk.save(focused)) == linesOf(document); });
    QCOMPARE(linesOf(desk.save(focused)), linesOf(document));

    // But for chains of splitters, which say no more than their last one. (A place holder has no title.)
    QVERIFY(desk.restore(LayoutDocuments::nestedSplitters(3)));
    QCOMPARE(desk.trees(), latin1("H(H(H(*/Innermost.1)))"));
    QVERIFY(desk.restore(desk.save()));
    QCOMPARE(desk.trees(), latin1("H(*/Innermost.1)"));
}

void tst_LayoutWriter::focusIsMarked_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("marked");
    QTest::newRow("keyboard focus") << QString() << latin1("B");
    QTest::newRow("argument") << latin1("A") << latin1("A");
    QTest::newRow("argument in no pane") << latin1("outside") << QString();
    QTest::newRow("pane without page") << latin1("empty") << QString();
}

void tst_LayoutWriter::focusIsMarked()
{
    QFETCH(QString, argument);
    QFETCH(QString, marked);
    Desk desk;
    desk.pane("A");
    Dock* const dock = desk.pane("B");
    desk.pane("")->setObjectName(latin1("empty"));
    QWidget outside(desk.window);
    outside.setObjectName(latin1("outside"));
    QVERIFY(desk.show());
    dock->setFocus();
    const QByteArray document =
        desk.save(argument.isEmpty() ? nullptr : desk.window->findChild<QWidget*>(argument));
    QCOMPARE(document.count("focus="), marked.isEmpty() ? 0 : 1);
    QVERIFY(desk.restore(document));
    QCOMPARE(desk.window->getFocusPage(), marked);
}

void tst_LayoutWriter::sameBytesAfterRestoring_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("screen");
    QTest::newRow("normal") << +Qt::WindowNoState << 0;
    QTest::newRow("maximised") << +Qt::WindowMaximized << 0;
    QTest::newRow("full-screen") << +Qt::WindowFullScreen << 0;
    QTest::newRow("floating window on the second monitor") << +Qt::WindowNoState << 1;
}

void tst_LayoutWriter::sameBytesAfterRestoring()
{
    QFETCH(int, state);
    QFETCH(int, screen);
    if (screen >= Screens::count())
        NORVANE_SKIP("needs a floating window on the second monitor");
    Desk desk;
    Dock* const dock = desk.pane("A B");
    dock->split(Qt::Horizontal, true)->setTitleVisible(false);
    dock->split(Qt::Vertical, false);
    QVERIFY(desk.show());
    desk.floatingPane("C")->split(Qt::Horizontal, false);
    DockWindow* const floating = desk.window->floatingWindows().first();
    WAIT_FOR(floating->frameSize() != floating->size());
    floating->move(Screens::availableGeometry(screen).topLeft() + QPoint(100, 150));
    WAIT_FOR(Screens::numberOf(floating) == screen);
    const QSize normal = desk.window->frameSize();
    desk.window->setWindowState(static_cast<Qt::WindowState>(state));
    WAIT_FOR(state == Qt::WindowNoState || desk.window->frameSize().width() > normal.width());

    const QByteArray document = desk.save(dock->widget(0));
    const QSize size = desk.window->size();
    QVERIFY(desk.restore(document));
    QWidget* const focused = desk.window->findChild<QWidget*>(desk.window->getFocusPage());
    // Qt may learn late, or never, how the frame of a maximised window differs from that of a normal one.
    const int compared = state == Qt::WindowNoState ? 0 : int(document.indexOf("screen="));
    const auto saved = [&] {
        return desk.save(focused).mid(desk.save(focused).size() - document.size() + compared);
    };
    waitUntil([&] { return desk.window->size() == size && saved() == document.mid(compared); });
    QCOMPARE(desk.window->size(), size);
    QCOMPARE(QString::fromUtf8(saved()), QString::fromUtf8(document.mid(compared)));
}

void tst_LayoutWriter::stateSurvives_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("kept");
    const QString clef = QString::fromUtf8("\xf0\x9d\x84\x9e \xc3\xa4\xe2\x82\xac");
    const QString breaks = latin1("a\nb\tc\r\nd\r");
    const QString marks = latin1("<a b=\"c\">&amp;'</a>");
    QTest::newRow("markup") << marks << marks;
    QTest::newRow("line breaks and tabs") << breaks << breaks;
    QTest::newRow("beyond ASCII") << clef << clef;
    QTest::newRow("control characters, half characters and none")
        << QString(latin1("a\x01") + QChar(0) + latin1("b\x1f") + QChar(0xd834)) + latin1("x") +
               QChar(0xdd1e) + latin1("y") + QChar(0xfffe) + QChar(0xffff)
        << latin1("abxy");
}

void tst_LayoutWriter::stateSurvives()
{
    QFETCH(QString, state);
    QFETCH(QString, kept);
    BareDesk desk;
    DockPlaceHolder* const placeHolder = new DockPlaceHolder;
    placeHolder->setObjectName(state);
    placeHolder->setLayoutState(state);
    desk.pane("")->addWidget(placeHolder, false, false);
    QVERIFY(desk.restore(desk.save()));
    const QList<DockPlaceHolder*> found = desk.window->placeHolders();
    QCOMPARE(int(found.size()), 1);
    QCOMPARE(found[0]->layoutState(), kept);
    QCOMPARE(found[0]->objectName(), kept);
}

QTEST_MAIN(tst_LayoutWriter)
#include "tst_LayoutWriter.moc"
