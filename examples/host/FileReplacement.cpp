#include "FileReplacement.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

namespace Norvane { namespace Host {

namespace {

QString targetOf(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

} // namespace

FileReplacement::FileReplacement(const QString& path)
    : QTemporaryFile(targetOf(path) + QLatin1String(".XXXXXX"))
    , m_target(targetOf(path))
{
}

bool FileReplacement::commit()
{
    // What is still in memory may not find room on the disk.
    if (error() != NoError || !flush())
        return false;
    // Temporary files are for their owner's eyes only; this one may be handed around like others.
    setPermissions(exists(m_target) ? QFile::permissions(m_target)
                                    : ReadOwner | WriteOwner | ReadGroup | ReadOther);
    close();
    if (std::rename(encodeName(fileName()).constData(), encodeName(m_target).constData()) == 0) {
        setAutoRemove(false);
        return true;
    }
    setErrorString(QCoreApplication::translate("FileReplacement", "The file cannot be replaced."));
    return false;
}

}} // namespace Norvane::Host
