#include <ui/widgets/ApplicationPaths.h>

#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <cstring>

using namespace Norvane::UI;

namespace {

const char kResolve[] = "--resolve";

/// What the test program does when it is asked for answers: each answer stays for its process's life.
int printPaths(int count, char** names)
{
    for (int i = 0; i < count; ++i) {
        const QByteArray path = QFile::encodeName(ApplicationFilePath(names[i]));
        const QByteArray folder = QFile::encodeName(ApplicationDirPath(names[i]));
        std::printf("%s in %s\n", path.constData(), folder.constData());
    }
    return 0;
}

} // namespace

class tst_ApplicationPaths : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void resolves_data();
    void resolves();
};

void tst_ApplicationPaths::resolves_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("answers");
    const struct {
        const char* name;
        const char* names;
        const char* answers;
    } rows[] = {{"whole path", "%/bin/tool", "%/bin/tool in %/bin"},
                {"with detours", "%/bin/../bin/./tool", "%/bin/tool in %/bin"},
                {"from here", "bin/tool", "%/bin/tool in %/bin"},
                {"along PATH, past a folder", "tool", "%/bin/tool in %/bin"},
                {"not on PATH", "missing", " in "},
                {"nothing", "", " in "},
                {"no such file", "%/missing", " in "},
                {"link", "./link", "%/bin/tool in %/bin"},
                {"tried again", "missing|bin/tool", " in |%/bin/tool in %/bin"},
                {"found before", "bin/tool|link", "%/bin/tool in %/bin|%/bin/tool in %/bin"}};
    for (const auto& row : rows)
        QTest::newRow(row.name) << QString::fromLatin1(row.names) << QString::fromLatin1(row.answers);
}

void tst_ApplicationPaths::resolves()
{
    QFETCH(QString, names);
    QFETCH(QString, answers);
    QDir top(QDir::current().canonicalPath() + QString::fromLatin1("/tst_ApplicationPaths.d"));
    QVERIFY(top.mkpath(QString::fromLatin1("decoy/tool")) && top.mkpath(QString::fromLatin1("bin")));
    QFile tool(top.filePath(QString::fromLatin1("bin/tool")));
    QVERIFY(tool.open(QIODevice::WriteOnly));
    top.remove(QString::fromLatin1("link"));
    QVERIFY(tool.link(top.filePath(QString::fromLatin1("link"))));

    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1("PATH"), QString::fromLatin1(":/missing:decoy:bin"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(top.path());
    names.replace(QLatin1Char('%'), top.path());
    process.start(QCoreApplication::applicationFilePath(),
                  QStringList(QString::fromLatin1(kResolve)) + names.split(QLatin1Char('|')));
    QVERIFY(process.waitForFinished());
    answers.replace(QLatin1Char('%'), top.path()).replace(QLatin1Char('|'), QLatin1Char('\n'));
    QCOMPARE(QString::fromLocal8Bit(process.readAllStandardOutput()), answers + QLatin1Char('\n'));
}

int main(int argc, char** argv)
{
    if (argc > 2 && std::strcmp(argv[1], kResolve) == 0)
        return printPaths(argc - 2, argv + 2);
    QCoreApplication application(argc, argv);
    tst_ApplicationPaths tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "tst_ApplicationPaths.moc"
