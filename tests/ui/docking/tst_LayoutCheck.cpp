#include <tests/support/GuilessMain.h>
#include <tests/support/LayoutDocuments.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

using namespace NorvaneTest;

/// Runs the command norvane-layout-check.
class tst_LayoutCheck : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void exitCode_data();
    void exitCode();
    void problemsReadLikeCompilerErrors();
    void summaryAndPagesAreTold();
    void standardInputIsRead();
    void usageGoesWhereItIsWanted();

private:
    QString write(const char* name, const QByteArray& content);
    void run(const QStringList& arguments, const QByteArray& input = QByteArray());

    QDir m_directory;
    QString m_sound;
    QString m_faulty;
    QString m_broken;
    int m_exitCode = -1;
    QString m_out;
    QString m_error;
};

void tst_LayoutCheck::initTestCase()
{
    const QString name = QString::fromLatin1("tst_LayoutCheck-%1").arg(QCoreApplication::applicationPid());
    QVERIFY(QDir::temp().mkdir(name));
    m_directory.setPath(QDir::temp().filePath(name));
    m_sound = write("sound.xml", LayoutDocuments::twoWindows());
    m_faulty = write("faulty.xml", LayoutDocuments::inPane("<page/>\n<page id=\"a\"/>\n"));
    m_broken = write("broken.xml", "<layout version=\"1.0\">\n<window");
}

void tst_LayoutCheck::cleanupTestCase()
{
    for (const QString& name : m_directory.entryList(QDir::Files))
        QVERIFY(m_directory.remove(name));
    QVERIFY(QDir().rmdir(m_directory.path()));
}

QString tst_LayoutCheck::write(const char* name, const QByteArray& content)
{
    const QString path = m_directory.filePath(QLatin1String(name));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        QTest::qFail("The file cannot be written.", __FILE__, __LINE__);
    return path;
}

void tst_LayoutCheck::run(const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.start(QFile::decodeName(NORVANE_LAYOUT_CHECK), arguments);
    QVERIFY(process.waitForStarted());
    process.write(input);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    m_exitCode = process.exitCode();
    m_out = QString::fromLocal8Bit(process.readAllStandardOutput());
    m_error = QString::fromLocal8Bit(process.readAllStandardError());
}

void tst_LayoutCheck::exitCode_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    const QStringList none;
    const QString missing = m_directory.filePath(QLatin1String("missing.xml"));
    const QString pages = QLatin1String("--pages");
    QTest::newRow("sound") << (QStringList() << m_sound) << 0;
    QTest::newRow("faulty") << (QStringList() << m_faulty) << 1;
    QTest::newRow("broken") << (QStringList() << m_broken) << 1;
    QTest::newRow("sound, then faulty") << (QStringList() << m_sound << m_faulty) << 1;
    QTest::newRow("missing") << (QStringList() << missing) << 2;
    QTest::newRow("missing, then faulty") << (QStringList() << missing << m_faulty) << 2;
    QTest::newRow("a directory") << (QStringList() << m_directory.path()) << 2;
    QTest::newRow("no file") << none << 2;
    QTest::newRow("file named like an option") << (QStringList() << QLatin1String("--") << pages) << 2;
}

void tst_LayoutCheck::exitCode()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    run(arguments);
    QCOMPARE(m_exitCode, exitCode);
    // Who is told of a failure learns why, and nobody else hears complaints.
    QCOMPARE(m_error.isEmpty(), exitCode == 0);
}

void tst_LayoutCheck::problemsReadLikeCompilerErrors()
{
    run(QStringList() << m_faulty);
    QCOMPARE(m_error, m_faulty + QLatin1String(":7:7: page: The attribute \"id\" is missing.\n"));
    run(QStringList() << m_broken);
    QVERIFY2(m_error.startsWith(m_broken + QLatin1String(":2:")), qPrintable(m_error));
    QCOMPARE(m_error.count(QLatin1Char('\n')), 1);
}

void tst_LayoutCheck::summaryAndPagesAreTold()
{
    run(QStringList() << QLatin1String("--pages") << m_sound << m_faulty << m_broken);
    QCOMPARE(m_out, m_sound +
                        QLatin1String(": valid, 5 page(s)\n"
                                      "    Properties.1\n"
                                      "    Scopes.1\n"
                                      "    Viewer.1\n"
                                      "    Graph.1\n"
                                      "    Curves.1\n") +
                        m_faulty + QLatin1String(": 1 problem(s), but it can be restored\n    a\n") +
                        m_broken + QLatin1String(": 1 problem(s), it cannot be restored\n"));
}

void tst_LayoutCheck::standardInputIsRead()
{
    run(QStringList() << QLatin1String("-"), LayoutDocuments::twoWindows());
    QCOMPARE(m_exitCode, 0);
    QCOMPARE(m_out, QString::fromLatin1("<standard input>: valid, 5 page(s)\n"));
    run(QStringList() << QLatin1String("-"));
    QCOMPARE(m_exitCode, 1);
}

void tst_LayoutCheck::usageGoesWhereItIsWanted()
{
    for (const char* const option : {"--help", "-h"}) {
        run(QStringList() << QLatin1String(option));
        QCOMPARE(m_exitCode, 0);
        QVERIFY(m_out.startsWith(QLatin1String("Usage: norvane-layout-check ")));
    }
    run(QStringList() << QLatin1String("--nonsense") << m_sound);
    QVERIFY(m_out.isEmpty());
    QVERIFY(m_error.startsWith(QLatin1String("Unknown option: --nonsense\nUsage: ")));
}

NORVANE_GUILESS_MAIN(tst_LayoutCheck)
#include "tst_LayoutCheck.moc"
