#include <ui/widgets/ApplicationPaths.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#include <vector>
#endif

namespace Norvane { namespace UI {

namespace {

/// The name that the system has for the running program; empty where it is not asked.
QString moduleFileName()
{
#ifdef Q_OS_WIN
    std::vector<wchar_t> name(261);
    DWORD length = GetModuleFileNameW(nullptr, name.data(), DWORD(name.size()));
    // A name that fills the buffer was cut.
    while (length == name.size()) {
        name.resize(name.size() + 260);
        length = GetModuleFileNameW(nullptr, name.data(), DWORD(name.size()));
    }
    return QString::fromWCharArray(name.data(), int(length));
#else
    return QString();
#endif
}

/// A colon separates the entries of PATH on every platform.
QString findInPath(const QString& name)
{
    const QStringList folders = QString::fromLocal8Bit(qgetenv("PATH")).split(QLatin1Char(':'));
    for (const QString& folder : folders) {
        if (folder.isEmpty())
            continue;
        const QString candidate = QDir::current().absoluteFilePath(folder + QLatin1Char('/') + name);
        const QFileInfo info(candidate);
        if (info.exists() && !info.isDir())
            return candidate;
    }
    return QString();
}

QString resolve(const QString& name)
{
    if (name.startsWith(QLatin1Char('/')))
        return name;
    if (name.contains(QLatin1Char('/')))
        return QDir::current().absoluteFilePath(name);
    return findInPath(name);
}

} // namespace

QString ApplicationFilePath(const char* argv0)
{
    static QString path = moduleFileName();
    if (path.isEmpty()) {
        const QFileInfo info(QDir::cleanPath(resolve(QFile::decodeName(argv0))));
        if (info.exists())
            path = info.canonicalFilePath();
    }
    return path;
}

QString ApplicationDirPath(const char* argv0)
{
    return QFileInfo(ApplicationFilePath(argv0)).path();
}

}} // namespace Norvane::UI
