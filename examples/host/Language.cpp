#include "Language.h"

#include <ui/toolkit/Application.h>

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

namespace Norvane { namespace Host { namespace Language {

namespace {

const char kFolder[] = ":/norvane/translations";
const char kHostPrefix[] = "norvane-host_";

/// Nothing if there is no such file.
void addTranslation(const QString& name, const QString& folder)
{
    QTranslator* const translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(name, folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

/// Without the country.
QString userLanguage()
{
    return QLocale::system().name().section(QLatin1Char('_'), 0, 0);
}

} // namespace

QStringList available()
{
    // What the texts in the sources are in.
    QStringList codes(QLatin1String("en"));
    const QDir folder((QLatin1String(kFolder)));
    const QStringList files =
        folder.entryList(QStringList(QLatin1String(kHostPrefix) + QLatin1String("*.qm")));
    for (const QString& file : files)
        codes.append(file.mid(int(sizeof(kHostPrefix)) - 1).section(QLatin1Char('.'), 0, 0));
    return codes;
}

bool choose(const QString& code)
{
    const QStringList codes = available();
    const QString chosen = code.isEmpty() && codes.contains(userLanguage()) ? userLanguage() : code;
    if (chosen.isEmpty())
        return true;
    if (!codes.contains(chosen))
        return false;
    if (!code.isEmpty())
        QLocale::setDefault(QLocale(chosen));
    addTranslation(QLatin1String("qt_") + chosen, UI::translationsFolder());
    addTranslation(QLatin1String("norvane-core_") + chosen, QLatin1String(kFolder));
    addTranslation(QLatin1String(kHostPrefix) + chosen, QLatin1String(kFolder));
    return true;
}

}}} // namespace Norvane::Host::Language
