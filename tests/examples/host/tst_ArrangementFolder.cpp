#include <examples/host/ArrangementFolder.h>

#include <QDir>
#include <QtTest>

using namespace Norvane::Host;

class tst_ArrangementFolder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anyTextIsName_data();
    void anyTextIsName();
    void folderIsMadeAndManaged();
    void problemsAreTold();
};

namespace {

/// A folder in the temporary one that goes with everything in it.
struct Folder {
    Folder()
        : path(QDir::temp().filePath(
              QString::fromLatin1("tst_ArrangementFolder-%1/a b").arg(QCoreApplication::applicationPid())))
    {
    }
    ~Folder()
    {
        const QStringList files = QDir(path).entryList(QDir::Files);
        for (const QString& file : files)
            QDir(path).remove(file);
        QDir::temp().rmpath(path);
    }
    QString path;
};

} // namespace

void tst_ArrangementFolder::anyTextIsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("words") << "My two screens";
    QTest::newRow("path") << "../a/b\\c";
    QTest::newRow("hidden") << ".x";
    QTest::newRow("percent") << "100%25";
    QTest::newRow("marks") << "<a>&\"'*?|:;,=[]\n\t";
    QTest::newRow("suffix") << "a.layout";
    QTest::newRow("umlaut and CJK") << QString::fromUtf8("\xc3\xbc \xe4\xbd\xa0");
    QTest::newRow("right to left") << QString(QChar(0x5e9)) + QChar(0x5dc);
    QTest::newRow("surrogates") << QString(QChar(0xd83d)) + QChar(0xde00);
}

void tst_ArrangementFolder::anyTextIsName()
{
    QFETCH(QString, name);
    const Folder temporary;
    ArrangementFolder folder(temporary.path);
    QString problem;
    QVERIFY2(folder.write(name, "bytes", &problem), qPrintable(problem));
    QVERIFY(folder.write(QLatin1String("a"), "others", &problem));
    QCOMPARE(ArrangementFolder(temporary.path).names(), QStringList() << name << QLatin1String("a"));
    QByteArray bytes;
    QVERIFY(folder.read(name, &bytes, &problem));
    QCOMPARE(bytes, QByteArray("bytes"));
}

void tst_ArrangementFolder::folderIsMadeAndManaged()
{
    const QString a = QLatin1String("a");
    const QString b = QLatin1String("b");
    const QString c = QLatin1String("c");
    const Folder temporary;
    ArrangementFolder folder(temporary.path);
    QString problem;
    QVERIFY(folder.names().isEmpty());
    for (const QString& name : {c, a, c})
        QVERIFY(folder.write(name, name.toLatin1(), &problem));
    QCOMPARE(folder.names(), QStringList() << c << a);
    QVERIFY(folder.rename(c, b, &problem));
    QCOMPARE(folder.names(), QStringList() << b << a);
    QVERIFY(!folder.contains(c));
    QByteArray bytes;
    QVERIFY(folder.read(b, &bytes, &problem));
    QCOMPARE(bytes, QByteArray("c"));
    QVERIFY(folder.remove(b, &problem));
    QCOMPARE(folder.names(), QStringList(a));
    QVERIFY(problem.isEmpty());
}

void tst_ArrangementFolder::problemsAreTold()
{
    const QString a = QLatin1String("a");
    const QString b = QLatin1String("b");
    const Folder temporary;
    ArrangementFolder folder(temporary.path);
    QString problem;
    QByteArray bytes("kept");
    QVERIFY(!folder.read(a, &bytes, &problem) && !problem.isEmpty());
    problem.clear();
    QVERIFY(!folder.remove(a, &problem) && !problem.isEmpty());
    problem.clear();
    QVERIFY(!folder.rename(a, b, &problem) && !problem.isEmpty());
    problem.clear();
    QVERIFY(folder.write(a, "1", &problem) && folder.write(b, "2", &problem));
    QVERIFY(!folder.rename(a, b, &problem) && !problem.isEmpty());
    QVERIFY(folder.read(b, &bytes, &problem));
    QCOMPARE(bytes, QByteArray("2"));
    problem.clear();
    QVERIFY(!folder.write(QString(300, QLatin1Char('x')), "3", &problem) && !problem.isEmpty());
    QCOMPARE(folder.names(), QStringList() << a << b);
}

QTEST_MAIN(tst_ArrangementFolder)
#include "tst_ArrangementFolder.moc"
