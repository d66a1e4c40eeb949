#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace Norvane { namespace UI {

class DockMainWindow;

}} // namespace Norvane::UI

/// Layouts as bytes, and the files that hold them.
namespace Norvane { namespace Host { namespace LayoutStore {

/// The arrangement as it is now.
QByteArray layoutOf(UI::DockMainWindow* window);

/// Empty if \a layout can be restored, else the first of its problems, one a line.
QString problemsOf(const QByteArray& layout);

/// Restores \a layout and, on an error, deletes what it left of the arrangement before.
bool restore(UI::DockMainWindow* window, const QByteArray& layout);

/// False, with a sentence in \a problem, if the file cannot be read.
bool read(const QString& path, QByteArray* layout, QString* problem);

/// Writes a file beside \a path and puts it in its place: there is either the old file or the whole new one.
/// False, with a sentence in \a problem, if that fails.
bool write(const QString& path, const QByteArray& layout, QString* problem);

/// The texts, by panel id, of notes that are in no pane and so in no layout. They are kept in a file beside
/// the layout's, which is there only if there are any.
QMap<QString, QString> readClosedNotes(const QString& layoutPath);
bool writeClosedNotes(const QString& layoutPath, const QMap<QString, QString>& notes);

/// Where the arrangement of the last quit is kept unless the user names another file.
QString defaultPath();

}}} // namespace Norvane::Host::LayoutStore
