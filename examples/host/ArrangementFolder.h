#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Norvane { namespace Host {

/// The user's own arrangements: layout files in a folder, named by what the user calls them. Any text that is
/// not empty is a name. The folder is made when it is needed; other files in it are left alone.
class ArrangementFolder
{
public:
    explicit ArrangementFolder(const QString& path);

    /// The folder beside the settings.
    static QString defaultPath();

    /// In the order in which they were first saved.
    QStringList names() const;
    bool contains(const QString& name) const;

    /// These return false, with a sentence in \a problem, if it cannot be done; then nothing has changed.
    bool read(const QString& name, QByteArray* layout, QString* problem) const;
    /// Overwrites one of the same name.
    bool write(const QString& name, const QByteArray& layout, QString* problem);
    /// Overwrites nothing.
    bool rename(const QString& from, const QString& to, QString* problem);
    bool remove(const QString& name, QString* problem);

private:
    QString fileOf(const QString& name) const;
    void setOrder(const QStringList& names);

    QString m_path;
};

}} // namespace Norvane::Host
