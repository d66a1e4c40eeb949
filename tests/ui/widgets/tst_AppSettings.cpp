#include <ui/widgets/AppSettings.h>

#include <tests/support/GuilessMain.h>

#include <QFile>
#include <QtTest>

using namespace Norvane::UI;

class tst_AppSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void namesFile_data();
    void namesFile();
};

namespace {

QString folder(const char* name)
{
    return QDir::currentPath() + QString::fromLatin1("/tst_AppSettings.d/") + QString::fromLatin1(name);
}

} // namespace

void tst_AppSettings::namesFile_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("not named") << QByteArray();
    QTest::newRow("plain") << QByteArray("norvane-test");
    QTest::newRow("Latin-1") << QByteArray("r\xe9glages");
}

void tst_AppSettings::namesFile()
{
    QFETCH(QByteArray, name);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder("user"));
    AppSettings::SetName(name.constData());
    {
        AppSettings settings;
        QCOMPARE(settings.organizationName(), QString::fromLatin1(name));
        QCOMPARE(settings.applicationName(), QString());
        QCOMPARE(settings.scope(), QSettings::UserScope);
        QVERIFY(!settings.fallbacksEnabled());
        settings.setValue(QString::fromLatin1("group/key"), 42);
    }
    const QString path =
        folder("user") + QLatin1Char('/') + QString::fromLatin1(name) + QString::fromLatin1(".ini");
    if (!name.isEmpty())
        QVERIFY2(QFile::remove(path), qPrintable(path));
}

NORVANE_GUILESS_MAIN(tst_AppSettings)
#include "tst_AppSettings.moc"
