#include <ui/docking/LayoutInspector.h>

#include <tests/support/LayoutDocuments.h>
#include <tests/support/LayoutProblems.h>

#include <QtTest>

using namespace NorvaneTest;
using Norvane::UI::LayoutInspector;

namespace {

const char kWrongVersion[] = "The file is not a Norvane panel layout version 1.0 file.";
const char kUnknown[] = "The element is not known in this place and is skipped.";

} // namespace

/// Which problems a LayoutInspector finds: one document for each.
class tst_LayoutInspectorProblems : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void soundDocumentHasNoProblem_data();
    void soundDocumentHasNoProblem();
    void lesserProblemIsRestorable_data();
    void lesserProblemIsRestorable();
    void otherRootIsNotRestorable_data();
    void otherRootIsNotRestorable();
    void brokenXmlIsNotRestorable_data();
    void brokenXmlIsNotRestorable();
};

void tst_LayoutInspectorProblems::soundDocumentHasNoProblem_data()
{
    using namespace LayoutDocuments;
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("pageIds");

    const QStringList none;
    const QStringList one(QLatin1String("Viewer.1"));
    const QByteArray pages = "<page id=\"Viewer.1\"/>\n";
    QTest::newRow("two windows") << twoWindows()
                                 << (QStringList() << QLatin1String("Properties.1")
                                                   << QLatin1String("Scopes.1") << QLatin1String("Viewer.1")
                                                   << QLatin1String("Graph.1") << QLatin1String("Curves.1"));
    QTest::newRow("window without a splitter") << inWindow("") << none;
    QTest::newRow("empty splitter") << inWindow(splitter("")) << none;
    QTest::newRow("empty pane") << inPane("") << none;
    QTest::newRow("no active page") << inPane(pages) << one;
    QTest::newRow("no XML declaration")
        << QByteArray("<layout version=\"1.0\">" + window("") + "</layout>") << none;
    QTest::newRow("vertical splitter") << inWindow("<splitter orientation=\"2\"/>") << none;
    QTest::newRow("position left of the screen")
        << layout("<window x=\"-20\" y=\"-5\" w=\"1\" h=\"1\" screen=\"0\"/>") << none;
    QTest::newRow("maximised and full screen")
        << layout("<window x=\"0\" y=\"0\" w=\"1\" h=\"1\" maximized=\"1\" fullscreen=\"1\" screen=\"3\"/>")
        << none;
    QTest::newRow("attribute of a later version") << inPane("<page id=\"Viewer.1\" colour=\"red\"/>") << one;
    QTest::newRow("text and comments between elements") << inPane("words <!-- <page/> -->" + pages) << one;
    QTest::newRow("text in a page") << inPane("<page id=\"Viewer.1\">words</page>") << one;
    QTest::newRow("id with a character reference") << inPane("<page id=\"Viewer&#46;1\"/>") << one;
    QTest::newRow("empty id, active") << inWindow(splitter(pane("", ""))) << QStringList(QString());
    QTest::newRow("split of size 0") << inWindow(splitter("<split size=\"0\" stretch=\"0\"/><dock id=\"\"/>"))
                                     << none;
}

void tst_LayoutInspectorProblems::soundDocumentHasNoProblem()
{
    QFETCH(QByteArray, document);
    QFETCH(QStringList, pageIds);
    const LayoutInspector inspector = inspect(document);
    QCOMPARE(problemsOf(inspector), QStringList());
    QVERIFY(inspector.isRestorable());
    QCOMPARE(inspector.pageIds(), pageIds);
}

void tst_LayoutInspectorProblems::lesserProblemIsRestorable_data()
{
    using namespace LayoutDocuments;
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("problem");

    const QString missing = QLatin1String(": The attribute \"%1\" is missing.");
    const QString noNumber = QLatin1String(": The attribute \"%1\" is not a whole number.");
    const QString tooSmall = QLatin1String(": The attribute \"%1\" is less than %2.");
    const QString unknown = QLatin1String(": ") + QLatin1String(kUnknown);

    const QByteArray sound =
        "<window x=\"1\" y=\"2\" w=\"3\" h=\"4\" maximized=\"1\" fullscreen=\"1\" screen=\"0\"/>\n";
    const struct {
        const char* attribute;
        const char* written;
        bool isRequired;
    } numbers[] = {
        {"x", " x=\"1\"", true},
        {"y", " y=\"2\"", true},
        {"w", " w=\"3\"", true},
        {"h", " h=\"4\"", true},
        {"maximized", " maximized=\"1\"", false},
        {"fullscreen", " fullscreen=\"1\"", false},
        {"screen", " screen=\"0\"", true},
    };
    for (const auto& number : numbers) {
        const QByteArray name = number.attribute;
        const QString where = QLatin1String("3: window");
        QByteArray without = sound;
        without.replace(number.written, "");
        if (number.isRequired)
            QTest::newRow("no " + name) << layout(without) << where + missing.arg(QLatin1String(name));
        QByteArray nonsense = sound;
        nonsense.replace(number.written, " " + name + "=\"many\"");
        QTest::newRow(name + " is a word") << layout(nonsense) << where + noNumber.arg(QLatin1String(name));
    }

    QTest::newRow("x with a fraction") << layout("<window x=\"1.5\" y=\"2\" w=\"3\" h=\"4\" screen=\"0\"/>")
                                       << QLatin1String("3: window") + noNumber.arg(QLatin1String("x"));
    QTest::newRow("x beyond an int") << layout(
                                            "<window x=\"2147483648\" y=\"2\" w=\"3\" h=\"4\" screen=\"0\"/>")
                                     << QLatin1String("3: window") + noNumber.arg(QLatin1String("x"));
    QTest::newRow("negative screen") << layout("<window x=\"1\" y=\"2\" w=\"3\" h=\"4\" screen=\"-1\"/>")
                                     << QLatin1String("3: window") +
                                            tooSmall.arg(QLatin1String("screen")).arg(0);
    QTest::newRow("no width") << layout("<window x=\"1\" y=\"2\" w=\"0\" h=\"4\" screen=\"0\"/>")
                              << QLatin1String("3: window") + tooSmall.arg(QLatin1String("w")).arg(1);
    QTest::newRow("negative height") << layout("<window x=\"1\" y=\"2\" w=\"3\" h=\"-4\" screen=\"0\"/>")
                                     << QLatin1String("3: window") + tooSmall.arg(QLatin1String("h")).arg(1);

    const QString splitterHere = QLatin1String("4: splitter");
    const QString orientation = QLatin1String("orientation");
    const QString notTwo =
        QLatin1String("4: splitter: The attribute \"orientation\" is not between 1 and 2.");
    QTest::newRow("no orientation") << inWindow("<splitter/>") << splitterHere + missing.arg(orientation);
    QTest::newRow("orientation is a word")
        << inWindow("<splitter orientation=\"flat\"/>") << splitterHere + noNumber.arg(orientation);
    QTest::newRow("orientation 0") << inWindow("<splitter orientation=\"0\"/>") << notTwo;
    QTest::newRow("orientation 3") << inWindow("<splitter orientation=\"3\"/>") << notTwo;
    QTest::newRow("two splitters in a window")
        << inWindow(splitter("") + splitter(""))
        << QString::fromLatin1("6: splitter: The window has another splitter already.");

    const QString splitHere = QLatin1String("5: split");
    const QByteArray anyPane = "<dock id=\"pane1\"/>\n";
    QTest::newRow("no size") << inWindow(splitter("<split/>" + anyPane))
                             << splitHere + missing.arg(QLatin1String("size"));
    QTest::newRow("size is empty") << inWindow(splitter("<split size=\"\"/>" + anyPane))
                                   << splitHere + noNumber.arg(QLatin1String("size"));
    QTest::newRow("negative size") << inWindow(splitter("<split size=\"-1\"/>" + anyPane))
                                   << splitHere + tooSmall.arg(QLatin1String("size")).arg(0);
    QTest::newRow("stretch is empty") << inWindow(splitter("<split size=\"1\" stretch=\"\"/>" + anyPane))
                                      << splitHere + noNumber.arg(QLatin1String("stretch"));
    QTest::newRow("negative stretch") << inWindow(splitter("<split size=\"1\" stretch=\"-1\"/>" + anyPane))
                                      << splitHere + tooSmall.arg(QLatin1String("stretch")).arg(0);

    const QString counts =
        QLatin1String("4: splitter: The splitter has %1 \"split\" elements for %2 children.");
    QTest::newRow("pane without a split") << inWindow(splitter(anyPane)) << counts.arg(0).arg(1);
    QTest::newRow("splitter without a split") << inWindow(splitter(splitter(""))) << counts.arg(0).arg(1);
    QTest::newRow("split without a pane")
        << inWindow(splitter(pane("a", "b") + "<split size=\"1\"/>")) << counts.arg(2).arg(1);

    QTest::newRow("pane without an id") << inWindow(splitter("<split size=\"1\"/>\n<dock/>"))
                                        << QLatin1String("6: dock") + missing.arg(QLatin1String("id"));
    QTest::newRow("hideTitles is a word")
        << inWindow(splitter("<split size=\"1\"/>\n<dock id=\"a\" hideTitles=\"yes\"/>"))
        << QLatin1String("6: dock") + noNumber.arg(QLatin1String("hideTitles"));
    QTest::newRow("active page in another pane")
        << inWindow(splitter(pane("a", "b") + "<split size=\"1\"/>\n<dock id=\"c\" activePageId=\"b\"/>"))
        << QString::fromLatin1("10: dock: The active page \"b\" is none of the pane's pages.");
    QTest::newRow("active page that is empty")
        << inWindow(splitter("<split size=\"1\"/>\n<dock id=\"a\" activePageId=\"\"/>"))
        << QString::fromLatin1("6: dock: The active page \"\" is none of the pane's pages.");
    QTest::newRow("pane in no window") << layout(window("") + "<dock id=\"a\"/>\n")
                                       << QString::fromLatin1("5: dock: The pane belongs to no window.");

    QTest::newRow("page without an id")
        << inPane("<page/>") << QLatin1String("7: page") + missing.arg(QLatin1String("id"));
    QTest::newRow("page id in two panes") << inWindow(splitter(pane("a", "b") + pane("c", "b")))
                                          << QString::fromLatin1("11: page: There is another page \"b\".");

    QTest::newRow("no window") << layout("") << QString::fromLatin1("2: layout: The layout has no window.");
    QTest::newRow("unknown in the layout")
        << layout(window("") + "<toolbar/>") << QLatin1String("5: toolbar") + unknown;
    QTest::newRow("unknown in a window")
        << inWindow("<toolbar><page/></toolbar>") << QLatin1String("4: toolbar") + unknown;
    QTest::newRow("unknown in a splitter")
        << inWindow(splitter("<page id=\"a\"/>")) << QLatin1String("5: page") + unknown;
    QTest::newRow("unknown in a pane") << inPane("<dock/>") << QLatin1String("7: dock") + unknown;
    QTest::newRow("pane directly in a window")
        << inWindow("<dock id=\"a\"/>") << QLatin1String("4: dock") + unknown;
    QTest::newRow("window in a window") << inWindow(window("")) << QLatin1String("4: window") + unknown;
    QTest::newRow("splitter directly in the layout")
        << layout(window("") + splitter("")) << QLatin1String("5: splitter") + unknown;
    QTest::newRow("layout in the layout")
        << layout(window("") + "<layout version=\"2\"/>") << QLatin1String("5: layout") + unknown;
    QTest::newRow("name in capitals") << inPane("<Page id=\"a\"/>") << QLatin1String("7: Page") + unknown;
}

void tst_LayoutInspectorProblems::lesserProblemIsRestorable()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, problem);
    const LayoutInspector inspector = inspect(document);
    QCOMPARE(problemsOf(inspector), QStringList(problem));
    QVERIFY(inspector.isRestorable());
}

void tst_LayoutInspectorProblems::otherRootIsNotRestorable_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("element");
    QTest::newRow("later version") << QByteArray("<layout version=\"1.1\"/>") << "layout";
    QTest::newRow("shorter version") << QByteArray("<layout version=\"1\"/>") << "layout";
    QTest::newRow("no version") << QByteArray("<layout/>") << "layout";
    QTest::newRow("another format") << QByteArray("<html version=\"1.0\"><layout version=\"1.0\"/></html>")
                                    << "html";
    QTest::newRow("a window alone") << LayoutDocuments::window("") << "window";
    QTest::newRow("another format, then broken") << QByteArray("<html><p></html>") << "html";
}

void tst_LayoutInspectorProblems::otherRootIsNotRestorable()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, element);
    const LayoutInspector inspector = inspect(document);
    QCOMPARE(problemsOf(inspector),
             QStringList(QString::fromLatin1("1: %1: %2").arg(element, QLatin1String(kWrongVersion))));
    QVERIFY(!inspector.isRestorable());
}

void tst_LayoutInspectorProblems::brokenXmlIsNotRestorable_data()
{
    using namespace LayoutDocuments;
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("line");
    QByteArray cut = twoWindows();
    cut.chop(int(qstrlen("</layout>\n")));
    QTest::newRow("nothing") << QByteArray() << 1;
    QTest::newRow("blanks") << QByteArray("  \n ") << 2;
    QTest::newRow("no XML") << QByteArray("pane1 = left") << 1;
    QTest::newRow("cut off in an element") << QByteArray("<layout version=\"1.0\">\n<window") << 2;
    QTest::newRow("cut off before the end") << cut << int(cut.count('\n')) + 1;
    QTest::newRow("cut off in an unknown element")
        << QByteArray("<layout version=\"1.0\">\n<toolbar>\n<a>") << 3;
    QTest::newRow("wrong end") << inWindow("</layout>\n") << 4;
    QTest::newRow("wrong end in an unknown element") << inWindow("<toolbar>\n<a></b></toolbar>") << 5;
    QTest::newRow("attribute without quotes") << inWindow("<splitter orientation=1/>") << 4;
    QTest::newRow("attribute twice") << inWindow("<splitter orientation=\"1\" orientation=\"2\"/>") << 4;
    QTest::newRow("undeclared entity") << inPane("&page;") << 7;
    QTest::newRow("text behind the end") << layout(window("")) + "more" << 6;
    QTest::newRow("element behind the end") << layout(window("")) + "<layout version=\"1.0\"/>" << 6;
    QTest::newRow("control character") << inPane("\x01") << 7;
    // Bytes are decoded many at a time, long before their line is read.
    QTest::newRow("no UTF-8") << inPane("<page id=\"\xff\xfe\"/>") << 1;
}

void tst_LayoutInspectorProblems::brokenXmlIsNotRestorable()
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
    QVERIFY(error.reason != QLatin1String(kWrongVersion));
}

QTEST_APPLESS_MAIN(tst_LayoutInspectorProblems)
#include "tst_LayoutInspectorProblems.moc"
