#include <tests/support/GuilessMain.h>
#include <tests/support/LayoutDocuments.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

using namespace NorvaneTest;

/// Runs the command norvane-layout-check in a folder with three layouts.
class tst_LayoutCheck : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void filesAreChecked_data();
    void filesAreChecked();

private:
    void write(const char* name, const QByteArray& content);

    QDir m_directory;
};

void tst_LayoutCheck::initTestCase()
{
    const QString name = QString::fromLatin1("tst_LayoutCheck-%1").arg(QCoreApplication::applicationPid());
    QVERIFY(QDir::temp().mkdir(name));
    m_directory.setPath(QDir::temp().filePath(name));
    write("sound.xml", LayoutDocuments::twoWindows());
    write("faulty.xml", LayoutDocuments::inPane("<page/>\n<page id=\"a\"/>\n"));
    write("broken.xml", "<layout version=\"1.0\">\n<window");
}

void tst_LayoutCheck::cleanupTestCase()
{
    for (const QString& name : m_directory.entryList(QDir::Files))
        QVERIFY(m_directory.remove(name));
    QVERIFY(QDir().rmdir(m_directory.path()));
}

void tst_LayoutCheck::write(const char* name, const QByteArray& content)
{
    QFile file(m_directory.filePath(QLatin1String(name)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void tst_LayoutCheck::filesAreChecked_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("out"); // how it begins
    QTest::addColumn<QByteArray>("error");
    const auto row = [](const char* name, const char* arguments, int exitCode, const char* out,
                        const char* error) {
        QTest::newRow(name) << QByteArray(arguments) << exitCode << QByteArray(out) << QByteArray(error);
    };
    row("sound", "sound.xml", 0, "sound.xml: valid, 5 page(s)\n", "");
    row("standard input", "-", 0, "<standard input>: valid, 5 page(s)\n", "");
    row("with problems", "--pages faulty.xml broken.xml sound.xml", 1,
        "faulty.xml: 1 problem(s), but it can be restored\n    a\n"
        "broken.xml: 1 problem(s), it cannot be restored\n"
        "sound.xml: valid, 5 page(s)\n    Properties.1\n    Scopes.1\n",
        "faulty.xml:7:7: page: The attribute \"id\" is missing.\nbroken.xml:2:");
    row("missing, then sound", "missing.xml sound.xml", 2, "sound.xml: valid",
        "missing.xml: cannot be read: ");
    row("a directory", ".", 2, "", ".: cannot be read: ");
    row("file named like an option", "-- --pages", 2, "", "--pages: cannot be read: ");
    row("no file", "--pages", 2, "", "Usage: norvane-layout-check ");
    row("help", "--help", 0, "Usage: norvane-layout-check ", "");
    row("unknown option", "--nonsense sound.xml", 2, "", "Unknown option: --nonsense\nUsage: ");
}

void tst_LayoutCheck::filesAreChecked()
{
    QFETCH(QByteArray, arguments);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, out);
    QFETCH(QByteArray, error);
    QProcess process;
    process.setWorkingDirectory(m_directory.path());
    process.setStandardInputFile(m_directory.filePath(QLatin1String("sound.xml")));
    process.start(QFile::decodeName(NORVANE_LAYOUT_CHECK),
                  QString::fromLatin1(arguments).split(QLatin1Char(' ')));
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), exitCode);
    const QByteArray allOut = process.readAllStandardOutput();
    const QByteArray allError = process.readAllStandardError();
    QCOMPARE(out.isEmpty() ? allOut : allOut.left(out.size()), out);
    QCOMPARE(error.isEmpty() ? allError : allError.left(error.size()), error);
}

NORVANE_GUILESS_MAIN(tst_LayoutCheck)
#include "tst_LayoutCheck.moc"
