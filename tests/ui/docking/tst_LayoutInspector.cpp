#include <ui/docking/LayoutInspector.h>

#include <tests/support/LayoutDocuments.h>
#include <tests/support/LayoutProblems.h>

#include <QBuffer>
#include <QtTest>

#include <algorithm>

using namespace NorvaneTest;
using namespace NorvaneTest::LayoutDocuments;
using Norvane::UI::LayoutInspector;

class tst_LayoutInspector : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void problemsAreFound_data();
    void problemsAreFound();
    void brokenXmlIsNotRestorable_data();
    void brokenXmlIsNotRestorable();
    void columnIsThatOfTheLastCharacterRead();
    void problemsStandInDocumentOrder();
    void pageIdsStandInDocumentOrder();
    void startsAtTheDevicePosition();
    void sequentialDeviceIsRead();
    void unreadableDeviceIsAProblem();
};

namespace {

/// Problems as problemsOf() tells them, one a line.
void row(const QByteArray& name, const QByteArray& document, const QByteArray& problems = QByteArray(),
         bool restorable = true)
{
    QTest::newRow(name.constData()) << document << problems << restorable;
}

void rootRow(const char* name, const QByteArray& document, const QByteArray& element)
{
    row(name, document, "1: " + element + ": The file is not a Norvane panel layout version 1.0 file.",
        false);
}

void unknownRow(const char* name, const QByteArray& document, const QByteArray& place)
{
    row(name, document, place + ": The element is not known in this place and is skipped.");
}

void soundRows()
{
    row("two windows", twoWindows());
    row("window without a splitter", inWindow(""));
    row("empty pane", inPane(""));
    row("no XML declaration", "<layout version=\"1.0\">" + window("") + "</layout>");
    row("position left of the screen", layout("<window x=\"-20\" y=\"-5\" w=\"1\" h=\"1\" screen=\"0\"/>"));
    row("attribute of a later version", inPane("<page id=\"Viewer.1\" colour=\"red\"/>"));
    row("text and comments", inPane("words <!-- <page/> --><page id=\"Viewer&#46;1\">words</page>"));
    row("empty id, active", inWindow(splitter(pane("", ""))));
    row("split of size 0", inWindow(splitter("<split size=\"0\" stretch=\"0\"/><dock id=\"\"/>")));
}

void windowRows()
{
    const QByteArray sound =
        "<window x=\"1\" y=\"1\" w=\"1\" h=\"1\" maximized=\"1\" fullscreen=\"1\" screen=\"1\"/>";
    const auto with = [&](const QByteArray& name, const QByteArray& written) {
        return layout(QByteArray(sound).replace(" " + name + "=\"1\"", written));
    };
    for (const QByteArray name : {"x", "y", "w", "h", "maximized", "fullscreen", "screen"}) {
        const QByteArray attribute = "3: window: The attribute \"" + name + "\" is ";
        row(name + " is a word", with(name, " " + name + "=\"many\""), attribute + "not a whole number.");
        row("no " + name, with(name, ""),
            name.endsWith("ed") || name == "fullscreen" ? "" : attribute + "missing.");
    }
    row("x with a fraction", with("x", " x=\"1.5\""),
        "3: window: The attribute \"x\" is not a whole number.");
    row("x beyond an int", with("x", " x=\"2147483648\""),
        "3: window: The attribute \"x\" is not a whole number.");
    row("negative screen", with("screen", " screen=\"-1\""),
        "3: window: The attribute \"screen\" is less than 0.");
    row("width 0, negative height", layout("<window x=\"1\" y=\"1\" w=\"0\" h=\"-4\" screen=\"0\"/>"),
        "3: window: The attribute \"w\" is less than 1.\n"
        "3: window: The attribute \"h\" is less than 1.");
}

void splitterRows()
{
    const QByteArray orientation = "4: splitter: The attribute \"orientation\" is ";
    row("no orientation", inWindow("<splitter/>"), orientation + "missing.");
    for (const QByteArray wrong : {"0", "3"})
        row("orientation " + wrong, inWindow("<splitter orientation=\"" + wrong + "\"/>"),
            orientation + "not between 1 and 2.");
    row("orientation 2", inWindow("<splitter orientation=\"2\"/>"));
    row("two splitters in a window", inWindow(splitter("") + splitter("")),
        "6: splitter: The window has another splitter already.");

    const QByteArray anyPane = "<dock id=\"pane1\"/>\n";
    row("no size, no stretch", inWindow(splitter("<split stretch=\"\"/>" + anyPane)),
        "5: split: The attribute \"size\" is missing.\n"
        "5: split: The attribute \"stretch\" is not a whole number.");
    row("negative size and stretch", inWindow(splitter("<split size=\"-1\" stretch=\"-1\"/>" + anyPane)),
        "5: split: The attribute \"size\" is less than 0.\n"
        "5: split: The attribute \"stretch\" is less than 0.");
    row("splitter without a split", inWindow(splitter(splitter(""))),
        "4: splitter: The splitter has 0 \"split\" elements for 1 children.");
    row("split without a pane", inWindow(splitter(pane("a", "b") + "<split size=\"1\"/>")),
        "4: splitter: The splitter has 2 \"split\" elements for 1 children.");
    row("deepest splitter", nestedSplitters(128));
    row("one deeper", nestedSplitters(129), "260: splitter: The layout is nested too deeply.", false);
    row("many windows with splitters", layout(window(splitter("")).repeated(200)));
    unknownRow("deep in an unknown element",
               inWindow("<toolbar>" + nested("<splitter>", "</splitter>", 200) + "</toolbar>"), "4: toolbar");
}

void paneRows()
{
    row("pane without an id", inWindow(splitter("<split size=\"1\"/>\n<dock hideTitles=\"yes\"/>")),
        "6: dock: The attribute \"hideTitles\" is not a whole number.\n"
        "6: dock: The attribute \"id\" is missing.");
    row("active page in another pane",
        inWindow(splitter(pane("a", "b") + "<split size=\"1\"/>\n<dock id=\"c\" activePageId=\"b\"/>")),
        "10: dock: The active page \"b\" is none of the pane's pages.");
    row("pane in no window", layout("<dock id=\"a\"/>\n"),
        "2: layout: The layout has no window.\n"
        "3: dock: The pane belongs to no window.");
    row("page without an id", inPane("<page/>"), "7: page: The attribute \"id\" is missing.");
    row("page id in two panes", inWindow(splitter(pane("a", "b") + pane("c", "b"))),
        "11: page: There is another page \"b\".");
}

void elementRows()
{
    unknownRow("unknown in the layout", layout(window("") + "<toolbar/>"), "5: toolbar");
    unknownRow("unknown in a window", inWindow("<toolbar><page/></toolbar>"), "4: toolbar");
    unknownRow("page in a splitter", inWindow(splitter("<page id=\"a\"/>")), "5: page");
    unknownRow("pane in a pane", inPane("<dock/>"), "7: dock");
    unknownRow("pane directly in a window", inWindow("<dock id=\"a\"/>"), "4: dock");
    unknownRow("window in a window", inWindow(window("")), "4: window");
    unknownRow("splitter directly in the layout", layout(window("") + splitter("")), "5: splitter");
    unknownRow("layout in the layout", layout(window("") + "<layout version=\"2\"/>"), "5: layout");
    unknownRow("name in capitals", inPane("<Page id=\"a\"/>"), "7: Page");

    rootRow("later version", "<layout version=\"1.1\"/>", "layout");
    rootRow("no version", "<layout/>", "layout");
    rootRow("another format", "<html version=\"1.0\"><layout version=\"1.0\"/></html>", "html");
    rootRow("another format, then broken", "<html><p></html>", "html");
}

} // namespace

void tst_LayoutInspector::problemsAreFound_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("problems");
    QTest::addColumn<bool>("restorable");
    soundRows();
    windowRows();
    splitterRows();
    paneRows();
    elementRows();
}

void tst_LayoutInspector::problemsAreFound()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, restorable);
    const LayoutInspector inspector = inspect(document);
    QTEST(problemsOf(inspector).join(QLatin1String("\n")).toLatin1(), "problems");
    QCOMPARE(inspector.isRestorable(), restorable);
}

void tst_LayoutInspector::brokenXmlIsNotRestorable_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("line");
    QTest::newRow("nothing") << QByteArray() << 1;
    QTest::newRow("cut off in an element") << QByteArray("<layout version=\"1.0\">\n<window") << 2;
    QTest::newRow("wrong end in an unknown element") << inWindow("<toolbar>\n<a></b></toolbar>") << 5;
    QTest::newRow("undeclared entity") << inPane("&page;") << 7;
    QTest::newRow("element behind the end") << layout(window("")) + "<layout version=\"1.0\"/>" << 6;
    // Bytes are decoded many at a time, long before their line is read.
    QTest::newRow("no UTF-8") << inPane("<page id=\"\xff\xfe\"/>") << 1;
}

void tst_LayoutInspector::brokenXmlIsNotRestorable()
{
    QFETCH(QByteArray, document);
    QFETCH(int, line);
    const LayoutInspector inspector = inspect(document);
    QVERIFY(!inspector.isRestorable());
    const LayoutInspector::Problem error = inspector.problems().last();
    QCOMPARE(error.line, qint64(line));
    QVERIFY(error.column >= 1);
    QCOMPARE(error.element, QString());
    QVERIFY(!error.reason.isEmpty());
}

void tst_LayoutInspector::columnIsThatOfTheLastCharacterRead()
{
    const LayoutInspector tag = inspect("<layout version=\"1.0\"><toolbar/></layout>");
    QCOMPARE(tag.problems().at(0).column, qint64(qstrlen("<layout version=\"1.0\">")));
    QCOMPARE(tag.problems().at(1).column, qint64(qstrlen("<layout version=\"1.0\"><toolbar/>")));
}

void tst_LayoutInspector::problemsStandInDocumentOrder()
{
    const QByteArray dock = "<dock id=\"a\" activePageId=\"b\">\n<toolbar/>\n</dock>\n";
    QByteArray lines;
    const LayoutInspector inspector = inspect(inWindow("<splitter>\n" + dock + "</splitter>\n</x>"));
    for (const LayoutInspector::Problem& problem : inspector.problems())
        lines += QByteArray::number(problem.line) + problem.element.left(2).toLatin1() + ' ';
    QCOMPARE(lines, QByteArray("4sp 4sp 5do 6to 9 "));
}

void tst_LayoutInspector::pageIdsStandInDocumentOrder()
{
    const LayoutInspector inspector =
        inspect(layout("<dock id=\"a\"><page id=\"Zebra\"/></dock>" +
                       window(splitter(pane("b", "Apple") + pane("c", "Zebra"))) +
                       "<toolbar><page id=\"unknown\"/></toolbar>"));
    QCOMPARE(inspector.pageIds().join(QLatin1String(" ")), QString::fromLatin1("Zebra Apple Zebra"));
}

void tst_LayoutInspector::startsAtTheDevicePosition()
{
    QByteArray bytes = "header" + twoWindows();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QVERIFY(!LayoutInspector(&buffer).isRestorable());
    buffer.seek(6);
    QVERIFY(LayoutInspector(&buffer).isRestorable());
    QCOMPARE(buffer.pos(), qint64(6));
}

namespace {

/// A device that cannot be put back and gives a few bytes at a time.
class Pipe : public QIODevice
{
public:
    explicit Pipe(const QByteArray& bytes)
        : m_bytes(bytes)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_bytes.size() - m_next + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 size) override
    {
        const QByteArray piece = m_bytes.mid(m_next, int(qMin<qint64>(size, 7)));
        std::copy(piece.begin(), piece.end(), data);
        m_next += int(piece.size());
        return piece.size();
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    const QByteArray m_bytes;
    int m_next = 0;
};

} // namespace

void tst_LayoutInspector::sequentialDeviceIsRead()
{
    Pipe pipe(LayoutDocuments::twoWindows());
    const LayoutInspector inspector(&pipe);
    QCOMPARE(problemsOf(inspector), QStringList());
    QVERIFY(inspector.isRestorable());
    QCOMPARE(int(inspector.pageIds().size()), 5);
}

void tst_LayoutInspector::unreadableDeviceIsAProblem()
{
    QBuffer closed;
    QBuffer writable;
    writable.open(QIODevice::WriteOnly);
    QIODevice* const devices[] = {nullptr, &closed, &writable};
    for (QIODevice* device : devices) {
        const LayoutInspector inspector(device);
        QCOMPARE(problemsOf(inspector), QStringList(QLatin1String("1: : The layout cannot be read.")));
        QCOMPARE(inspector.problems().first().column, qint64(1));
        QVERIFY(!inspector.isRestorable());
        QVERIFY(inspector.pageIds().isEmpty());
    }
}

QTEST_APPLESS_MAIN(tst_LayoutInspector)
#include "tst_LayoutInspector.moc"
