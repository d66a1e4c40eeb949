#include <ui/docking/LayoutInspector.h>

#include <tests/support/LayoutDocuments.h>
#include <tests/support/LayoutProblems.h>

#include <QBuffer>
#include <QtTest>

#include <algorithm>

using namespace NorvaneTest;
using Norvane::UI::LayoutInspector;

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

class tst_LayoutInspector : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void columnIsThatOfTheLastCharacterRead();
    void problemsStandInDocumentOrder();
    void everyProblemOfAnElementIsTold();
    void loosePaneIsNoWindow();
    void splitterDepthIsLimited_data();
    void splitterDepthIsLimited();
    void deepNestingIsHarmless_data();
    void deepNestingIsHarmless();
    void manyProblemsAreAllKept();
    void pageIdsStandInDocumentOrder();
    void devicePositionIsRestored();
    void startsAtTheDevicePosition();
    void sequentialDeviceIsRead();
    void unreadableDeviceIsAProblem();
};

void tst_LayoutInspector::columnIsThatOfTheLastCharacterRead()
{
    const LayoutInspector tag = inspect("<layout version=\"1.0\"><toolbar/></layout>");
    QCOMPARE(tag.problems().at(0).column, qint64(qstrlen("<layout version=\"1.0\">")));
    QCOMPARE(tag.problems().at(1).column, qint64(qstrlen("<layout version=\"1.0\"><toolbar/>")));
    const LayoutInspector garbage = inspect("<layout version=\"1.0\"/>\n  x");
    QCOMPARE(garbage.problems().last().line, qint64(2));
    QCOMPARE(garbage.problems().last().column, qint64(3));
}

void tst_LayoutInspector::problemsStandInDocumentOrder()
{
    const QByteArray pane = "<dock id=\"a\" activePageId=\"b\">\n<toolbar/>\n</dock>\n";
    const LayoutInspector inspector =
        inspect(LayoutDocuments::inWindow("<splitter>\n" + pane + "</splitter>\n</x>"));
    const QStringList problems = problemsOf(inspector);
    QCOMPARE(
        problems.mid(0, 4),
        QStringList() << QLatin1String("4: splitter: The attribute \"orientation\" is missing.")
                      << QLatin1String("4: splitter: The splitter has 0 \"split\" elements for 1 children.")
                      << QLatin1String("5: dock: The active page \"b\" is none of the pane's pages.")
                      << QLatin1String("6: toolbar: The element is not known in this place and is skipped."));
    QCOMPARE(problems.size(), 5);
    QCOMPARE(inspector.problems().last().line, qint64(9));
}

void tst_LayoutInspector::everyProblemOfAnElementIsTold()
{
    const LayoutInspector inspector =
        inspect(LayoutDocuments::layout("<window y=\"top\" w=\"-1\" h=\"1\"/>"));
    QCOMPARE(problemsOf(inspector),
             QStringList() << QLatin1String("3: window: The attribute \"x\" is missing.")
                           << QLatin1String("3: window: The attribute \"y\" is not a whole number.")
                           << QLatin1String("3: window: The attribute \"w\" is less than 1.")
                           << QLatin1String("3: window: The attribute \"screen\" is missing."));
}

void tst_LayoutInspector::loosePaneIsNoWindow()
{
    const LayoutInspector inspector = inspect(LayoutDocuments::layout("<dock id=\"a\"/>"));
    QCOMPARE(problemsOf(inspector), QStringList()
                                        << QLatin1String("2: layout: The layout has no window.")
                                        << QLatin1String("3: dock: The pane belongs to no window."));
}

void tst_LayoutInspector::splitterDepthIsLimited_data()
{
    using namespace LayoutDocuments;
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("restorable");
    const QByteArray unknown = "<toolbar>" + nested("<splitter>", "</splitter>", 200) + "</toolbar>";
    QTest::newRow("the deepest allowed") << nestedSplitters(128) << true;
    QTest::newRow("one deeper") << nestedSplitters(129) << false;
    QTest::newRow("many side by side") << inWindow(splitter(splitter("").repeated(200))) << true;
    QTest::newRow("many windows") << layout(window(splitter("")).repeated(200)) << true;
    QTest::newRow("in an unknown element") << inWindow(unknown) << true;
    QTest::newRow("too deep in the second window")
        << layout(window("") + window(nested("<splitter>", "</splitter>", 129))) << false;
}

void tst_LayoutInspector::splitterDepthIsLimited()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, restorable);
    const LayoutInspector inspector = inspect(document);
    QCOMPARE(inspector.isRestorable(), restorable);
    const QStringList complaints =
        problemsOf(inspector).filter(QLatin1String("The layout is nested too deeply."));
    QCOMPARE(complaints.size(), restorable ? 0 : 1);
}

void tst_LayoutInspector::deepNestingIsHarmless_data()
{
    using namespace LayoutDocuments;
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("restorable");
    const int depth = 20000;
    QTest::newRow("unknown elements") << inWindow(nested("<a>", "</a>", depth)) << true;
    QTest::newRow("windows") << layout(nested("<window>", "</window>", depth)) << true;
    QTest::newRow("splitters") << inWindow(nested("<splitter>", "</splitter>", depth)) << false;
    QTest::newRow("split elements") << inWindow(splitter(nested("<split>", "</split>", depth))) << true;
    QTest::newRow("panes") << inWindow(splitter(nested("<dock>", "</dock>", depth))) << true;
    QTest::newRow("pages") << inPane(nested("<page>", "</page>", depth)) << true;
    QTest::newRow("unknown elements, cut off")
        << QByteArray("<layout version=\"1.0\">" + QByteArray("<a>").repeated(depth)) << false;
}

void tst_LayoutInspector::deepNestingIsHarmless()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, restorable);
    const LayoutInspector inspector = inspect(document);
    QCOMPARE(inspector.isRestorable(), restorable);
    QVERIFY(!inspector.problems().isEmpty());
}

void tst_LayoutInspector::manyProblemsAreAllKept()
{
    const LayoutInspector inspector =
        inspect(LayoutDocuments::inPane(QByteArray("<page/>\n").repeated(100000)));
    QCOMPARE(int(inspector.problems().size()), 100000);
    QCOMPARE(inspector.problems().last().line, qint64(7 + 99999));
    QVERIFY(inspector.isRestorable());
}

void tst_LayoutInspector::pageIdsStandInDocumentOrder()
{
    using namespace LayoutDocuments;
    const LayoutInspector inspector =
        inspect(layout("<dock id=\"a\"><page id=\"Zebra\"/></dock>" +
                       window(splitter(pane("b", "Apple") + pane("c", "Zebra"))) +
                       "<toolbar><page id=\"unknown\"/></toolbar>"));
    QCOMPARE(inspector.pageIds(),
             QStringList() << QLatin1String("Zebra") << QLatin1String("Apple") << QLatin1String("Zebra"));
}

void tst_LayoutInspector::devicePositionIsRestored()
{
    QByteArray document = LayoutDocuments::twoWindows();
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    QVERIFY(LayoutInspector(&buffer).isRestorable());
    QCOMPARE(buffer.pos(), qint64(0));
    QCOMPARE(buffer.readAll(), document);
}

void tst_LayoutInspector::startsAtTheDevicePosition()
{
    QByteArray bytes = "header" + LayoutDocuments::twoWindows();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QVERIFY(!LayoutInspector(&buffer).isRestorable());
    buffer.seek(6);
    QVERIFY(LayoutInspector(&buffer).isRestorable());
    QCOMPARE(buffer.pos(), qint64(6));
}

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
