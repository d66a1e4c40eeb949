#pragma once

#include <QString>
#include <QTemporaryFile>

namespace Norvane { namespace Host {

/// A new version of a file, which is written beside it and then put in its place: at any time there is either
/// the old file or the whole new one. It is gone with the object unless commit() was called.
class FileReplacement : public QTemporaryFile
{
public:
    /// \a path need not exist. A link stays a link: what it leads to is replaced.
    explicit FileReplacement(const QString& path);

    /// Puts the file in its place. False, with errorString() saying why, if that fails or if anything of it
    /// could not be written.
    bool commit();

private:
    const QString m_target;
};

}} // namespace Norvane::Host
