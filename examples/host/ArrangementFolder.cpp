#include "ArrangementFolder.h"

#include "LayoutStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QUrl>

namespace Norvane { namespace Host {

namespace {

const char kSuffix[] = ".layout";
const char kOrderKey[] = "Order";

QString orderFile(const QString& folder)
{
    return QDir(folder).filePath(QLatin1String("order.ini"));
}

/// In characters that every file system and every locale can hold; never hidden.
QString fileNameOf(const QString& name)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(name, QByteArray(), ".~")) + QLatin1String(kSuffix);
}

QString nameOf(const QString& fileName)
{
    return QUrl::fromPercentEncoding(fileName.left(fileName.size() - int(sizeof kSuffix) + 1).toLatin1());
}

} // namespace

ArrangementFolder::ArrangementFolder(const QString& path)
    : m_path(path)
{
}

QString ArrangementFolder::defaultPath()
{
    return QFileInfo(QSettings().fileName()).dir().filePath(QLatin1String("arrangements"));
}

QStringList ArrangementFolder::names() const
{
    QStringList found;
    const QStringList pattern(QLatin1Char('*') + QLatin1String(kSuffix));
    const QStringList files = QDir(m_path).entryList(pattern, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        const QString name = nameOf(file);
        // One that the user put there may be spelt in a way of its own, and would not be found again.
        if (!name.isEmpty() && fileNameOf(name) == file)
            found.append(name);
    }
    QStringList names;
    const QSettings settings(orderFile(m_path), QSettings::IniFormat);
    const QStringList order = settings.value(QLatin1String(kOrderKey)).toStringList();
    for (const QString& name : order) {
        if (found.removeAll(name) > 0)
            names.append(name);
    }
    return names + found;
}

bool ArrangementFolder::contains(const QString& name) const
{
    return QFile::exists(fileOf(name));
}

bool ArrangementFolder::read(const QString& name, QByteArray* layout, QString* problem) const
{
    return LayoutStore::read(fileOf(name), layout, problem);
}

bool ArrangementFolder::write(const QString& name, const QByteArray& layout, QString* problem)
{
    const QStringList before = names();
    if (!LayoutStore::write(fileOf(name), layout, problem))
        return false;
    if (!before.contains(name))
        setOrder(before + QStringList(name));
    return true;
}

bool ArrangementFolder::rename(const QString& from, const QString& to, QString* problem)
{
    if (from == to)
        return true;
    if (contains(to)) {
        *problem =
            QCoreApplication::translate("ArrangementFolder", "There is already one called \"%1\".").arg(to);
        return false;
    }
    QStringList order = names();
    QFile file(fileOf(from));
    if (!file.rename(fileOf(to))) {
        *problem = file.errorString();
        return false;
    }
    order.replace(int(order.indexOf(from)), to);
    setOrder(order);
    return true;
}

bool ArrangementFolder::remove(const QString& name, QString* problem)
{
    QFile file(fileOf(name));
    if (file.remove())
        return true;
    *problem = file.errorString();
    return false;
}

QString ArrangementFolder::fileOf(const QString& name) const
{
    return QDir(m_path).filePath(fileNameOf(name));
}

void ArrangementFolder::setOrder(const QStringList& names)
{
    QSettings(orderFile(m_path), QSettings::IniFormat).setValue(QLatin1String(kOrderKey), names);
}

}} // namespace Norvane::Host
