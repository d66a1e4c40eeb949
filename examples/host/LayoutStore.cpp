#include "LayoutStore.h"

#include "FileReplacement.h"

#include <ui/docking/DockMainWindow.h>
#include <ui/docking/LayoutInspector.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSettings>
#include <QStringList>

namespace Norvane { namespace Host { namespace LayoutStore {

namespace {

const int kProblemsShown = 5;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LayoutStore)
};

QString closedNotesPath(const QString& layoutPath)
{
    return layoutPath + QLatin1String(".notes");
}

} // namespace

QByteArray layoutOf(UI::DockMainWindow* window)
{
    QByteArray layout;
    QBuffer buffer(&layout);
    buffer.open(QIODevice::WriteOnly);
    window->saveLayout(&buffer, nullptr);
    return layout;
}

QString problemsOf(const QByteArray& layout)
{
    QBuffer buffer;
    buffer.setData(layout);
    buffer.open(QIODevice::ReadOnly);
    const UI::LayoutInspector inspector(&buffer);
    if (inspector.isRestorable())
        return QString();
    QStringList lines;
    const QList<UI::LayoutInspector::Problem>& problems = inspector.problems();
    for (int i = 0; i < problems.size() && i < kProblemsShown; ++i) {
        lines.append(Texts::tr("Line %1, column %2: %3")
                         .arg(problems[i].line)
                         .arg(problems[i].column)
                         .arg(problems[i].reason));
    }
    return lines.join(QLatin1String("\n"));
}

bool restore(UI::DockMainWindow* window, const QByteArray& layout)
{
    QList<QPointer<QWidget>> before;
    before.append(window->centralWidget());
    const QList<UI::DockWindow*> floating = window->floatingWindows();
    for (UI::DockWindow* const floatingWindow : floating)
        before.append(floatingWindow);

    QBuffer buffer;
    buffer.setData(layout);
    buffer.open(QIODevice::ReadOnly);
    if (window->restoreLayout(&buffer, false))
        return true;
    // After an error the former windows are still there, in no list. Panels that are in them belong to us.
    for (const QPointer<QWidget>& widget : before)
        delete widget;
    return false;
}

bool read(const QString& path, QByteArray* layout, QString* problem)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *problem = file.errorString();
        return false;
    }
    *layout = file.readAll();
    if (file.error() == QFile::NoError)
        return true;
    *problem = file.errorString();
    return false;
}

bool write(const QString& path, const QByteArray& layout, QString* problem)
{
    QDir().mkpath(QFileInfo(path).path());
    FileReplacement file(path);
    if (file.open() && file.write(layout) == layout.size() && file.commit())
        return true;
    *problem = file.errorString();
    return false;
}

QMap<QString, QString> readClosedNotes(const QString& layoutPath)
{
    QMap<QString, QString> notes;
    const QSettings file(closedNotesPath(layoutPath), QSettings::IniFormat);
    const QStringList ids = file.allKeys();
    for (const QString& id : ids)
        notes.insert(id, file.value(id).toString());
    return notes;
}

bool writeClosedNotes(const QString& layoutPath, const QMap<QString, QString>& notes)
{
    const QString path = closedNotesPath(layoutPath);
    if (notes.isEmpty())
        return !QFile::exists(path) || QFile::remove(path);
    QSettings file(path, QSettings::IniFormat);
    file.clear();
    for (QMap<QString, QString>::const_iterator i = notes.begin(); i != notes.end(); ++i)
        file.setValue(i.key(), i.value());
    file.sync();
    return file.status() == QSettings::NoError;
}

QString defaultPath()
{
    return QFileInfo(QSettings().fileName()).dir().filePath(QLatin1String("last.layout"));
}

}}} // namespace Norvane::Host::LayoutStore
