#include <ui/docking/LayoutInspector.h>

#include <tests/support/LayoutDocuments.h>
#include <tests/support/LayoutProblems.h>

#include <QBuffer>
#include <QtTest>

using namespace NorvaneTest;
using namespace NorvaneTest::LayoutDocuments;
using Norvane::UI::LayoutInspector;

class tst_LayoutInspector : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void problemsAreFound_data();
    void problemsAreFound();
    void pageIdsStandInDocumentOrder();
    void deviceIsReadFromItsPosition();
};

namespace {

/// Problems as problemsOf() tells them, one a line.
void row(const char* name, const QByteArray& document, const QByteArray& problems = QByteArray(),
         bool restorable = true)
{
    QTest::newRow(name) << document << problems << restorable;
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
    row("window without a splitter, left of the screen",
        layout("<window x=\"-20\" y=\"-5\" w=\"1\" h=\"1\" screen=\"0\"/>"));
    row("attribute of a later version", inPane("<page id=\"Viewer.1\" colour=\"red\"/>"));
    row("text and comments", inPane("words <!-- <page/> --><page id=\"Viewer&#46;1\">words</page>"));
    row("empty id, active", inWindow(splitter(pane("", ""))));
    row("deepest splitter", nestedSplitters(128));
    row("many windows with splitters", layout(window(splitter("")).repeated(200)));
}

void numberRows()
{
    row("no numbers", layout("<window>\n<splitter>\n<split/>\n<dock id=\"pane1\"/>\n</splitter></window>\n"),
        "3: window: The attribute \"x\" is missing.\n"
        "3: window: The attribute \"y\" is missing.\n"
        "3: window: The attribute \"w\" is missing.\n"
        "3: window: The attribute \"h\" is missing.\n"
        "3: window: The attribute \"screen\" is missing.\n"
        "4: splitter: The attribute \"orientation\" is missing.\n"
        "5: split: The attribute \"size\" is missing.");
    row("no whole numbers",
        layout("<window x=\"1.5\" y=\"2147483648\" w=\"1\" h=\"many\" maximized=\"\" fullscreen=\"yes\" "
               "screen=\"0\"/>"),
        "3: window: The attribute \"x\" is not a whole number.\n"
        "3: window: The attribute \"y\" is not a whole number.\n"
        "3: window: The attribute \"h\" is not a whole number.\n"
        "3: window: The attribute \"maximized\" is not a whole number.\n"
        "3: window: The attribute \"fullscreen\" is not a whole number.");
    row("too small", layout("<window x=\"1\" y=\"1\" w=\"0\" h=\"-4\" screen=\"-1\"/>"),
        "3: window: The attribute \"w\" is less than 1.\n"
        "3: window: The attribute \"h\" is less than 1.\n"
        "3: window: The attribute \"screen\" is less than 0.");
    row("no direction and no sizes",
        inWindow(
            "<splitter orientation=\"3\">\n<split size=\"-1\" stretch=\"-1\"/><dock id=\"\"/></splitter>"),
        "4: splitter: The attribute \"orientation\" is not between 1 and 2.\n"
        "5: split: The attribute \"size\" is less than 0.\n"
        "5: split: The attribute \"stretch\" is less than 0.");
}

void structureRows()
{
    row("two splitters in a window", inWindow(splitter("") + splitter("")),
        "6: splitter: The window has another splitter already.");
    row("splitter without a split", inWindow(splitter(splitter(""))),
        "4: splitter: The splitter has 0 \"split\" elements for 1 children.");
    row("nested too deeply", nestedSplitters(129), "260: splitter: The layout is nested too deeply.", false);
    row("pane without an id", inWindow(splitter("<split size=\"1\"/>\n<dock hideTitles=\"yes\"/>")),
        "6: dock: The attribute \"hideTitles\" is not a whole number.\n"
        "6: dock: The attribute \"id\" is missing.");
    row("active page in another pane, before an unknown element",
        inWindow(splitter(pane("a", "b") +
                          "<split size=\"1\"/>\n<dock id=\"c\" activePageId=\"b\">\n<toolbar/></dock>")),
        "10: dock: The active page \"b\" is none of the pane's pages.\n"
        "11: toolbar: The element is not known in this place and is skipped.");
    row("pane in no window", layout("<dock id=\"a\"/>\n"),
        "2: layout: The layout has no window.\n"
        "3: dock: The pane belongs to no window.");
    row("page without an id", inPane("<page/>"), "7: page: The attribute \"id\" is missing.");
    row("page id in two panes", inWindow(splitter(pane("a", "b") + pane("c", "b"))),
        "11: page: There is another page \"b\".");

    unknownRow("page in a splitter", inWindow(splitter("<page id=\"a\"/>")), "5: page");
    unknownRow("pane directly in a window", inWindow("<dock id=\"a\"/>"), "4: dock");
    unknownRow("window in a window", inWindow(window("")), "4: window");
    unknownRow("splitter directly in the layout", layout(window("") + splitter("")), "5: splitter");
    unknownRow("name in capitals", inPane("<Page id=\"a\"/>"), "7: Page");
    unknownRow("deep in an unknown element",
               inWindow("<toolbar>" + nested("<splitter>", "</splitter>", 200) + "</toolbar>"), "4: toolbar");
    rootRow("later version", "<layout version=\"1.1\"/>", "layout");
    rootRow("another format, then broken", "<html><p></html>", "html");
}

} // namespace

void tst_LayoutInspector::problemsAreFound_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("problems");
    QTest::addColumn<bool>("restorable");
    soundRows();
    numberRows();
    structureRows();
}

void tst_LayoutInspector::problemsAreFound()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, restorable);
    const LayoutInspector inspector = inspect(document);
    QTEST(problemsOf(inspector).join(QLatin1String("\n")).toLatin1(), "problems");
    QCOMPARE(inspector.isRestorable(), restorable);
}

void tst_LayoutInspector::pageIdsStandInDocumentOrder()
{
    const LayoutInspector inspector =
        inspect(layout("<dock id=\"a\"><page id=\"Zebra\"/></dock>" +
                       window(splitter(pane("b", "Apple") + pane("c", "Zebra"))) +
                       "<toolbar><page id=\"unknown\"/></toolbar>"));
    QCOMPARE(inspector.pageIds().join(QLatin1String(" ")), QString::fromLatin1("Zebra Apple Zebra"));
}

void tst_LayoutInspector::deviceIsReadFromItsPosition()
{
    QByteArray bytes = "header" + twoWindows();
    QBuffer buffer(&bytes);
    QCOMPARE(problemsOf(LayoutInspector(&buffer)),
             QStringList(QLatin1String("1: : The layout cannot be read.")));
    QVERIFY(!LayoutInspector(nullptr).isRestorable());
    QCOMPARE(inspect(QByteArray()).problems().first().column, qint64(1));
    buffer.open(QIODevice::ReadOnly);
    QVERIFY(!LayoutInspector(&buffer).isRestorable());
    buffer.seek(6);
    QVERIFY(LayoutInspector(&buffer).isRestorable());
    QCOMPARE(buffer.pos(), qint64(6));
}

QTEST_APPLESS_MAIN(tst_LayoutInspector)
#include "tst_LayoutInspector.moc"
