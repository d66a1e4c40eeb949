#include <examples/host/CommandLine.h>

#include <QtTest>

using namespace Norvane::Host;

class tst_CommandLine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everythingIsTaken();
    void wrongArgumentIsNamed();
};

namespace {

CommandLine parse(const char* arguments)
{
    const QString line = QLatin1String("norvane-host ") + QLatin1String(arguments);
    return CommandLine::parse(line.split(QLatin1Char(' ')));
}

} // namespace

void tst_CommandLine::everythingIsTaken()
{
    const CommandLine line =
        parse("a.png --dark --layout b.layout --script=c=d.py --frame v210:4x2 e --language de "
              "-- --fresh");
    QCOMPARE(line.problem, QString());
    QCOMPARE(line.pictures.join(QLatin1String(" ")), QString::fromLatin1("a.png frame:v210:4x2|e --fresh"));
    QCOMPARE(line.layoutPath, QString::fromLatin1("b.layout"));
    QCOMPARE(line.scriptPath, QString::fromLatin1("c=d.py"));
    QCOMPARE(line.language, QString::fromLatin1("de"));
    QVERIFY(line.dark && !line.fresh && !line.help && !line.version);
}

void tst_CommandLine::wrongArgumentIsNamed()
{
    QCOMPARE(parse("--layout").problem, QString::fromLatin1("--layout needs a file."));
    QCOMPARE(parse("a.png --script").problem, QString::fromLatin1("--script needs a file."));
    QCOMPARE(parse("--frame v210:4x2").problem,
             QString::fromLatin1("--frame needs a layout with a size, and a file."));
    QCOMPARE(parse("-x --frame").problem, QString::fromLatin1("Unknown option \"-x\"."));
}

QTEST_APPLESS_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
